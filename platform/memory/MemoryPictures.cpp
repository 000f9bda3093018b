#include "platform/memory/MemoryPictures.h"

#include <cstdint>

namespace platform {
namespace {

constexpr std::size_t kHeaders = 54;
constexpr std::uint32_t kMostPixelsASide = 10'000;

std::uint32_t NumberAt(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) {
    number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  }
  return number;
}

struct BitmapHeader {
  std::uint32_t pixels;
  std::uint32_t width;
  std::uint32_t height;
  std::uint32_t bits;
  std::size_t Stride() const { return (std::size_t{width} * bits / 8 + 3) / 4 * 4; }
};

std::optional<BitmapHeader> ReadHeader(std::string_view bytes) {
  if (bytes.size() < kHeaders || !bytes.starts_with("BM")) return std::nullopt;
  const BitmapHeader header{NumberAt(bytes, 10, 4), NumberAt(bytes, 18, 4), NumberAt(bytes, 22, 4),
                            NumberAt(bytes, 28, 2)};
  const bool isPlain = (header.bits == 24 || header.bits == 32) && NumberAt(bytes, 30, 4) == 0;
  const bool isSane = header.width > 0 && header.width <= kMostPixelsASide && header.height > 0 &&
                      header.height <= kMostPixelsASide;
  if (!isPlain || !isSane || header.pixels > bytes.size()) return std::nullopt;
  const bool isWhole = header.Stride() * header.height <= bytes.size() - header.pixels;
  return isWhole ? std::optional(header) : std::nullopt;
}

}  // namespace

std::optional<Surface> MemoryPictures::Load(std::u16string_view path) {
  const auto content = files_.Read(path);
  const auto header = ReadHeader(content.bytes);
  if (!header) return std::nullopt;
  Surface surface(Size{static_cast<int>(header->width), static_cast<int>(header->height)});
  std::size_t row = header->pixels;
  for (int y = surface.Height(); y-- > 0; row += header->Stride()) {
    for (int x = 0; x < surface.Width(); ++x) {
      surface.Row(y)[x] = NumberAt(content.bytes, row + std::size_t(x) * header->bits / 8, 3);
    }
  }
  return surface;
}

}  // namespace platform
