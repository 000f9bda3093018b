#include "platform/win32/DibMemory.h"

#include "platform/win32/bitmaps.h"

namespace platform {

DibMemory::DibMemory(Size size) : dc_(::CreateCompatibleDC(nullptr)) {
  const BITMAPINFO info = TopDownBitmap(size);
  void* bits = nullptr;
  bitmap_.reset(::CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!dc_ || !bitmap_) return;
  ::SelectObject(dc_.get(), bitmap_.get());
  pixels = static_cast<Pixel*>(bits);
}

HDC DcOf(const Surface& surface) {
  return surface.Empty() ? nullptr : static_cast<DibMemory*>(surface.Memory())->Dc();
}

void CopyTo(HDC dc, const Surface& surface, Point at, const Rect& clip) {
  const Rect place = Rect::At(at, surface.Size()).Intersected(clip);
  if (place.Empty()) return;
  const Point from = place.Origin() - at;
  ::BitBlt(dc, place.left, place.top, place.Width(), place.Height(), DcOf(surface), from.x, from.y,
           SRCCOPY);
}

std::unique_ptr<PixelMemory> NewPixelMemory(Size size) {
  auto memory = std::make_unique<DibMemory>(size);
  return memory->pixels ? std::move(memory) : nullptr;
}

}  // namespace platform
