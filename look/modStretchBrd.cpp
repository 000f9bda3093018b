#include "look/modStretchBrd.h"

#include <algorithm>
#include <cmath>

namespace dorvalin {
namespace {

using platform::Rect;

/// The two border cells of one direction as they lie in the destination.
struct Borders {
  int near;
  int far;
};

Borders Fitted(int near, int far, int size) {
  if (near + far <= std::max(size, 0)) return {near, far};
  const int shrunk = static_cast<int>(std::lrint(double(near) / (near + far) * size));
  return {shrunk, size - shrunk};
}

/// One direction cut at its borders: where the three cells begin, and where the last ends.
struct Cuts {
  int at[4];
  bool Has(int cell) const { return at[cell + 1] - at[cell] >= 1; }
};

Cuts CutAt(int begin, int size, Borders borders) {
  return {{begin, begin + borders.near, begin + size - borders.far, begin + size}};
}

}  // namespace

bool StretchBorder(platform::Surface& destination, const Rect& area,
                   const platform::Surface& source, const Rect& from, const BorderCells& cells,
                   platform::RasterOp op, bool drawCentre) {
  const Borders across = Fitted(cells.Left, cells.Right, area.Width());
  const Borders down = Fitted(cells.Top, cells.Bottom, area.Height());
  // The left cell stands where one would look for the top one: pictures were drawn with that.
  const bool centreFellAway =
      across.near + across.far >= area.Width() || across.near + down.far >= area.Height();

  const Cuts toX = CutAt(area.left, area.Width(), across);
  const Cuts toY = CutAt(area.top, area.Height(), down);
  const Cuts fromX = CutAt(from.left, from.Width(), {cells.Left, cells.Right});
  const Cuts fromY = CutAt(from.top, from.Height(), {cells.Top, cells.Bottom});
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      const bool centre = row == 1 && column == 1;
      if (!toX.Has(column) || !toY.Has(row) || (centre && (centreFellAway || !drawCentre)))
        continue;
      platform::StretchBlt(
          destination, {toX.at[column], toY.at[row], toX.at[column + 1], toY.at[row + 1]}, source,
          {fromX.at[column], fromY.at[row], fromX.at[column + 1], fromY.at[row + 1]}, op);
    }
  }
  return centreFellAway;
}

}  // namespace dorvalin
