// Copies between surfaces. Every routine clips on both sides; source and destination may be the
// same surface and may overlap. The pixels are the same as the system's own blits give.
#pragma once

#include <cstdint>

#include "platform/surface.h"

namespace platform {

/// The ternary raster operations that the program uses, under their system codes.
enum class RasterOp : std::uint32_t {
  SrcCopy = 0x00CC0020,
  SrcInvert = 0x00660046,
  SrcAnd = 0x008800C6,
  SrcPaint = 0x00EE0086,
  SrcErase = 0x00440328,
  NotSrcCopy = 0x00330008,
  DstInvert = 0x00550009,
  Blackness = 0x00000042,
  Whiteness = 0x00FF0062,
};

/// Copies a part of the same size. A negative width or height extends to the left or upwards from
/// the area's corner, which then is the right or lower one and still belongs to it, and from the
/// source's corner alike; nothing is mirrored. A size of 0 copies nothing.
void BitBlt(Surface& destination, const Rect& area, const Surface& source, Point from, RasterOp op);

/// Stretches `from` of the source over `area` by whole pixels (the system's colour-on-colour mode):
/// of pixels that merge, the last column and the first row stay. Negative sizes extend as above;
/// one of the two negative mirrors. A size of 0 draws nothing.
void StretchBlt(Surface& destination, const Rect& area, const Surface& source, const Rect& from,
                RasterOp op);

}  // namespace platform
