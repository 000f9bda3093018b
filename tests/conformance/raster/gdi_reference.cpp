#include <algorithm>

#include "platform/win32/DibMemory.h"
#include "tests/conformance/raster/RasterReference.h"

namespace platform {
namespace {

/// Wine puts a mirrored source that reaches out of its bitmap at the wrong end of the destination,
/// and shrinks to a single pixel as if the source were one pixel shorter.
bool WineErrs(int to, int fromBegin, int from, int limit) {
  const int fromLast = fromBegin + from + (from < 0 ? 1 : -1);
  const bool reachesOut =
      std::min(fromBegin, fromLast) < 0 || std::max(fromBegin, fromLast) >= limit;
  const bool mirrored = (to < 0) != (from < 0);
  return (mirrored && reachesOut) || (to == 1 && from > 1);
}

}  // namespace

void ReferenceBitBlt(Surface& destination, const Rect& area, const Surface& source, Point from,
                     RasterOp op) {
  ::BitBlt(DcOf(destination), area.left, area.top, area.Width(), area.Height(), DcOf(source),
           from.x, from.y, static_cast<DWORD>(op));
  ::GdiFlush();
}

void ReferenceStretchBlt(Surface& destination, const Rect& area, const Surface& source,
                         const Rect& from, RasterOp op) {
  ::SetStretchBltMode(DcOf(destination), COLORONCOLOR);
  ::StretchBlt(DcOf(destination), area.left, area.top, area.Width(), area.Height(), DcOf(source),
               from.left, from.top, from.Width(), from.Height(), static_cast<DWORD>(op));
  ::GdiFlush();
}

bool ReferenceErrs(const Rect& area, Size source, const Rect& from) {
  return WineErrs(area.Width(), from.left, from.Width(), source.width) ||
         WineErrs(area.Height(), from.top, from.Height(), source.height);
}

}  // namespace platform
