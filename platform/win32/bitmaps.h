// The description of a bitmap whose rows lie in memory as those of a surface do.
#pragma once

#include "platform/geometry.h"
#include "platform/win32/win.h"

namespace platform {

/// 32 bits a pixel, rows from the top.
inline BITMAPINFO TopDownBitmap(Size size) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = size.width;
  info.bmiHeader.biHeight = -size.height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

}  // namespace platform
