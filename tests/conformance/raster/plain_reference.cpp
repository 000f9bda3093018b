#include <cstdlib>
#include <vector>

#include "tests/conformance/raster/RasterReference.h"

namespace platform {
namespace {

/// The truth table of an operation stands in bits 16 to 23 of its code: one bit for each pair of a
/// source bit and a destination bit (and, unused here, a pattern bit).
Pixel ByTruthTable(Pixel d, Pixel s, RasterOp op) {
  Pixel result = 0;
  for (int bit = 0; bit < 32; ++bit) {
    const unsigned row = ((s >> bit) & 1) * 2 + ((d >> bit) & 1);
    result |= ((static_cast<unsigned>(op) >> (16 + row)) & 1) << bit;
  }
  return result;
}

bool NeedsSource(RasterOp op) { return ByTruthTable(1, 0, op) != ByTruthTable(1, ~0u, op); }

/// The source pixel for each pixel of one direction, in the direction's own order; found by dealing
/// out the shorter side's pixels by their middles.
std::vector<int> Dealt(int to, int from, bool keepFirst, auto visible) {
  std::vector<int> dealt(std::abs(to), -1);
  if (to == 0 || from == 0) return dealt;
  const std::int64_t t = std::abs(to), f = std::abs(from);
  for (std::int64_t i = 0; i < std::max(t, f); ++i) {
    const auto [sparse, dense] = std::minmax(t, f);
    std::int64_t other = ((2 * i + 1) * sparse) / (2 * dense);
    if (((2 * i + 1) * sparse) % (2 * dense) == 0) --other;  // exactly on an edge: the one before
    const std::int64_t target = t >= f ? i : other, source = t >= f ? other : i;
    if (visible(source) && !(keepFirst && dealt[target] >= 0)) dealt[target] = int(source);
  }
  return dealt;
}

int Sign(int v) { return v < 0 ? -1 : 1; }

}  // namespace

void ReferenceStretchBlt(Surface& destination, const Rect& area, const Surface& source,
                         const Rect& from, RasterOp op) {
  const bool reads = NeedsSource(op);
  const Surface before = source.Clone();
  const auto sourceX = [&](auto i) { return from.left + int(i) * Sign(from.Width()); };
  const auto sourceY = [&](auto i) { return from.top + int(i) * Sign(from.Height()); };
  const auto columns = Dealt(area.Width(), reads ? from.Width() : area.Width(), false, [&](auto i) {
    return !reads || (sourceX(i) >= 0 && sourceX(i) < source.Width());
  });
  const auto rows = Dealt(area.Height(), reads ? from.Height() : area.Height(), true, [&](auto i) {
    return !reads || (sourceY(i) >= 0 && sourceY(i) < source.Height());
  });
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < columns.size(); ++column) {
      const Point to{area.left + int(column) * Sign(area.Width()),
                     area.top + int(row) * Sign(area.Height())};
      if (rows[row] < 0 || columns[column] < 0 || !destination.Area().Contains(to)) continue;
      Pixel& d = destination.At(to);
      const Pixel s = reads ? before.At({sourceX(columns[column]), sourceY(rows[row])}) : 0;
      d = ByTruthTable(d, s, op);
    }
  }
}

void ReferenceBitBlt(Surface& destination, const Rect& area, const Surface& source, Point from,
                     RasterOp op) {
  ReferenceStretchBlt(destination, area, source, Rect::At(from, area.Size()), op);
}

bool ReferenceErrs(const Rect&, Size, const Rect&) { return false; }

}  // namespace platform
