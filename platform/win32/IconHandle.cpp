#include "platform/win32/IconHandle.h"

#include <algorithm>
#include <cstddef>

#include "platform/win32/bitmaps.h"

namespace platform {
namespace {

constexpr std::uint32_t kOpaque = 0xFF000000;

using Pixels = std::vector<std::uint32_t>;

/// The two bitmaps of an icon, which the system hands over as the caller's own.
struct IconBitmaps {
  OwnedBitmap colour;  ///< none for a black and white icon
  OwnedBitmap mask;    ///< of a black and white icon: the mask above the picture
};

IconBitmaps BitmapsOf(HICON handle) {
  ICONINFO info{};
  if (!::GetIconInfo(handle, &info)) return {};
  return {OwnedBitmap(info.hbmColor), OwnedBitmap(info.hbmMask)};
}

Size SizeOf(HBITMAP bitmap) {
  BITMAP data{};
  if (!::GetObjectW(bitmap, sizeof(data), &data)) return {};
  return {static_cast<int>(data.bmWidth), static_cast<int>(data.bmHeight)};
}

Pixels PixelsOf(HBITMAP bitmap, Size size) {
  Pixels pixels(static_cast<std::size_t>(size.width) * size.height);
  BITMAPINFO info = TopDownBitmap(size);
  const BorrowedDc screen(nullptr);
  const int rows = ::GetDIBits(screen.get(), bitmap, 0, static_cast<UINT>(size.height),
                               pixels.data(), &info, DIB_RGB_COLORS);
  return rows == size.height ? pixels : Pixels();
}

bool HasAlpha(const Pixels& pixels) {
  return std::ranges::any_of(pixels, [](std::uint32_t p) { return (p & kOpaque) != 0; });
}

/// A white pixel of the mask lets the background through.
void ApplyMask(Pixels& colour, const std::uint32_t* mask) {
  for (std::size_t i = 0; i < colour.size(); ++i) {
    const bool transparent = (mask[i] & ~kOpaque) != 0;
    colour[i] = transparent ? 0 : colour[i] | kOpaque;
  }
}

Icon NewIcon(Size size, Pixels pixels) {
  return std::make_shared<const IconPixels>(IconPixels{size, std::move(pixels)});
}

Icon ColourIcon(const IconBitmaps& bitmaps) {
  const Size size = SizeOf(bitmaps.colour.get());
  Pixels colour = PixelsOf(bitmaps.colour.get(), size);
  if (colour.empty()) return {};
  if (!HasAlpha(colour)) {
    const Pixels mask = PixelsOf(bitmaps.mask.get(), size);
    if (mask.size() != colour.size()) return {};
    ApplyMask(colour, mask.data());
  }
  return NewIcon(size, std::move(colour));
}

Icon BlackAndWhiteIcon(HBITMAP bitmap) {
  const Size both = SizeOf(bitmap);
  const Pixels halves = PixelsOf(bitmap, both);
  const Size size{both.width, both.height / 2};
  if (halves.empty() || size.Empty()) return {};
  const auto middle = halves.begin() + static_cast<std::ptrdiff_t>(size.width) * size.height;
  Pixels picture(middle, middle + (middle - halves.begin()));
  ApplyMask(picture, halves.data());
  return NewIcon(size, std::move(picture));
}

/// The system mixes by the alpha; the mask serves those parts of it that know none.
OwnedBitmap MaskOf(const IconPixels& icon) {
  const int bytesPerRow = (icon.size.width + 15) / 16 * 2;
  std::vector<std::uint8_t> bits(static_cast<std::size_t>(bytesPerRow) * icon.size.height);
  for (int y = 0; y < icon.size.height; ++y) {
    for (int x = 0; x < icon.size.width; ++x) {
      const std::size_t pixel = static_cast<std::size_t>(y) * icon.size.width + x;
      if ((icon.pixels[pixel] & kOpaque) != 0) continue;
      bits[static_cast<std::size_t>(y) * bytesPerRow + x / 8] |=
          static_cast<std::uint8_t>(0x80 >> (x % 8));
    }
  }
  return OwnedBitmap(::CreateBitmap(icon.size.width, icon.size.height, 1, 1, bits.data()));
}

OwnedBitmap ColoursOf(const IconPixels& icon) {
  const BITMAPINFO info = TopDownBitmap(icon.size);
  void* bits = nullptr;
  OwnedBitmap bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bitmap) std::ranges::copy(icon.pixels, static_cast<std::uint32_t*>(bits));
  return bitmap;
}

}  // namespace

OwnedIcon IconHandleOf(const Icon& icon) {
  if (!icon || icon->size.Empty()) return {};
  const OwnedBitmap mask = MaskOf(*icon);
  const OwnedBitmap colours = ColoursOf(*icon);
  if (!mask || !colours) return {};
  ICONINFO info{TRUE, 0, 0, mask.get(), colours.get()};
  return OwnedIcon(::CreateIconIndirect(&info));
}

Icon IconOfHandle(HICON handle) {
  const IconBitmaps bitmaps = BitmapsOf(handle);
  if (!bitmaps.mask) return {};
  return bitmaps.colour ? ColourIcon(bitmaps) : BlackAndWhiteIcon(bitmaps.mask.get());
}

}  // namespace platform
