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

/// A size at or below 0 copies nothing.
void BitBlt(Surface& destination, const Rect& area, const Surface& source, Point from, RasterOp op);

/// Stretches `from` of the source over `area`; nearest pixel (the system's colour-on-colour mode).
/// A negative width or height (right below left, bottom below top) mirrors; a size of 0 draws
/// nothing.
void StretchBlt(Surface& destination, const Rect& area, const Surface& source, const Rect& from,
                RasterOp op);

}  // namespace platform
