// A surface's pixels as a device-independent bitmap, selected in a device context of its own: what
// the system draws there (text) and what the program writes are the same memory.
#pragma once

#include "platform/surface.h"
#include "platform/win32/handles.h"

namespace platform {

class DibMemory final : public PixelMemory {
 public:
  /// `pixels` stays null when there is no memory for it.
  explicit DibMemory(Size size);

  HDC Dc() const { return dc_.get(); }

 private:
  OwnedBitmap bitmap_;
  OwnedDc dc_;  ///< goes first: a bitmap that is still selected would not be freed
};

/// The device context of a surface; null of an empty one. What was drawn through it can be read
/// from the pixels after GdiFlush.
HDC DcOf(const Surface& surface);

/// Copies the surface to a place of the device context; none of it outside of `clip`.
void CopyTo(HDC dc, const Surface& surface, Point at, const Rect& clip);

}  // namespace platform
