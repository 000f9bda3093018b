// A rectangle of 32-bit pixels in memory, on which all drawing of the program happens.
//
// A pixel is 0xXXRRGGBB as it lies in a device-independent bitmap, rows from the top; the top byte
// carries nothing. A colour of the design is 0x00BBGGRR (`Colour`), as system colours come.
//
// The memory comes from the desktop library that the program is linked with (on Windows a DIB
// section, so that text can be drawn into it and it can be shown without a copy being read back).
#pragma once

#include <cstdint>
#include <memory>

#include "platform/geometry.h"

namespace platform {

using Pixel = std::uint32_t;
using Colour = std::uint32_t;  ///< 0x00BBGGRR

constexpr Pixel PixelFromColour(Colour c) {
  return ((c & 0xFF) << 16) | (c & 0xFF00) | ((c >> 16) & 0xFF);
}
constexpr Colour ColourFromPixel(Pixel p) { return PixelFromColour(p); }

/// Pixels and what the desktop keeps beside them; freed with its owner.
class PixelMemory {
 public:
  virtual ~PixelMemory() = default;
  Pixel* pixels = nullptr;  ///< width x height of them, zeroed; rows follow each other without gaps
};

/// Supplied by the desktop library. Null when there is no memory for it.
[[nodiscard]] std::unique_ptr<PixelMemory> NewPixelMemory(Size size);

class Surface {
 public:
  Surface() = default;
  /// Filled with zero (black). A size at or below 0, or one there is no memory for, gives an empty
  /// surface of size 0 x 0.
  explicit Surface(platform::Size size);
  /// The surface that was moved from is empty.
  Surface(Surface&& other) noexcept;
  Surface& operator=(Surface&& other) noexcept;

  /// Empty when there is no memory for it.
  [[nodiscard]] Surface Clone() const;

  platform::Size Size() const { return size_; }
  int Width() const { return size_.width; }
  int Height() const { return size_.height; }
  Rect Area() const { return {0, 0, size_.width, size_.height}; }
  bool Empty() const { return size_.Empty(); }

  Pixel* Row(int y) { return memory_->pixels + static_cast<std::ptrdiff_t>(y) * size_.width; }
  const Pixel* Row(int y) const {
    return memory_->pixels + static_cast<std::ptrdiff_t>(y) * size_.width;
  }
  /// The point must lie inside.
  Pixel& At(Point p) { return Row(p.y)[p.x]; }
  Pixel At(Point p) const { return Row(p.y)[p.x]; }

  /// For the desktop library alone, which knows what it allocated.
  PixelMemory* Memory() const { return memory_.get(); }

 private:
  platform::Size size_;
  std::unique_ptr<PixelMemory> memory_;
};

}  // namespace platform
