// What the copies between surfaces are held against: under Windows the system's own blits on the
// same bitmaps, natively a pixel-by-pixel retelling that shares nothing with the product.
#pragma once

#include "platform/raster.h"

namespace platform {

void ReferenceBitBlt(Surface& destination, const Rect& area, const Surface& source, Point from,
                     RasterOp op);
void ReferenceStretchBlt(Surface& destination, const Rect& area, const Surface& source,
                         const Rect& from, RasterOp op);

/// Stretches at which the reference itself is known to be at fault.
[[nodiscard]] bool ReferenceErrs(const Rect& area, Size source, const Rect& from);

}  // namespace platform
