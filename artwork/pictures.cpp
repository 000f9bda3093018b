#include "artwork/pictures.h"

#include <cstdint>
#include <cstring>
#include <optional>

// All numbers in these files are little-endian, as every processor is that the program runs on.
// The files are the program's own, so a size that does not fit means another kind of file, no more.
namespace dorvalin {
namespace {

using Bytes = std::span<const std::byte>;

template <typename Number>
Number Read(Bytes file, std::size_t at) {
  Number value = 0;
  if (at + sizeof value <= file.size()) std::memcpy(&value, file.data() + at, sizeof value);
  return value;
}

constexpr std::size_t kDirectory = 6, kEntry = 16, kInfoHeader = 40;

/// An image of an icon file: 32-bit rows from the bottom up behind the header.
std::optional<Bytes> ImageOfWidth(Bytes file, int width) {
  const auto count = Read<std::uint16_t>(file, 4);
  for (std::size_t entry = kDirectory; entry < kDirectory + count * kEntry; entry += kEntry) {
    if (Read<std::uint8_t>(file, entry) != width) continue;
    const auto size = Read<std::uint32_t>(file, entry + 8);
    return file.subspan(Read<std::uint32_t>(file, entry + 12), size);
  }
  return std::nullopt;
}

bool IsBitmap(Bytes file) { return Read<std::uint16_t>(file, 0) == 0x4D42; }

}  // namespace

platform::Surface PictureSurface(Picture which) {
  const Bytes file = PictureBytes(which);
  if (!IsBitmap(file)) return {};
  platform::Surface surface(
      platform::Size{Read<std::int32_t>(file, 18), Read<std::int32_t>(file, 22)});
  const std::size_t stride = (std::size_t(surface.Width()) * 3 + 3) / 4 * 4;
  std::size_t row = Read<std::uint32_t>(file, 10);
  // Three bytes a pixel; with the byte before them they are one number.
  for (int y = surface.Height() - 1; y >= 0; --y, row += stride) {
    for (int x = 0; x < surface.Width(); ++x)
      surface.Row(y)[x] = Read<std::uint32_t>(file, row + std::size_t(x) * 3 - 1) >> 8;
  }
  return surface;
}

platform::Icon PictureIcon(Picture which, int width) {
  const Bytes file = PictureBytes(which);
  const auto image = IsBitmap(file) ? std::nullopt : ImageOfWidth(file, width);
  if (!image) return {};
  auto icon = std::make_shared<platform::IconPixels>();
  icon->size = {width, width};
  icon->pixels.resize(std::size_t(width) * width);
  const std::size_t stride = std::size_t(width) * sizeof(std::uint32_t);
  for (int y = 0; y < width; ++y) {
    const auto row = image->subspan(kInfoHeader + (width - 1 - y) * stride, stride);
    std::memcpy(icon->pixels.data() + std::size_t(y) * width, row.data(), stride);
  }
  return icon;
}

}  // namespace dorvalin
