// Nine-part stretching: the corners of a small picture keep their size, its edges stretch along
// their length, its centre both ways.
//
//        Left          Right
//      +------+------+-------+
//      |corner| edge |corner | Top
//      +------+------+-------+
//      | edge |centre| edge  |
//      +------+------+-------+
//      |corner| edge |corner | Bottom
//      +------+------+-------+
#pragma once

#include "platform/raster.h"

namespace dorvalin {

/// Sizes of the border cells in the source, in pixels.
struct BorderCells {
  int Left = 0;
  int Top = 0;
  int Right = 0;
  int Bottom = 0;
};

/// Where the cells do not fit beside each other, they shrink in proportion. True: the destination
/// leaves no room for the centre.
bool StretchBorder(platform::Surface& destination, const platform::Rect& area,
                   const platform::Surface& source, const platform::Rect& from,
                   const BorderCells& cells, platform::RasterOp op, bool drawCentre);

}  // namespace dorvalin
