#include "tests/support/Png.h"

#include <png.h>

#include <vector>

namespace dorvalin {

bool SavePng(const platform::Surface& surface, const std::string& path) {
  if (surface.Empty()) return false;
  // The top byte of a pixel carries nothing, so colours go out without it.
  std::vector<png_byte> bytes;
  bytes.reserve(std::size_t(3) * surface.Width() * surface.Height());
  for (int y = 0; y < surface.Height(); ++y) {
    for (int x = 0; x < surface.Width(); ++x) {
      const platform::Pixel pixel = surface.Row(y)[x];
      for (int shift : {16, 8, 0}) bytes.push_back(static_cast<png_byte>(pixel >> shift));
    }
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(surface.Width());
  image.height = static_cast<png_uint_32>(surface.Height());
  image.format = PNG_FORMAT_RGB;
  return png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr) != 0;
}

}  // namespace dorvalin
