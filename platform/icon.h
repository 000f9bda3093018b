// An icon as a value: straight (not premultiplied) 32-bit pixels 0xAARRGGBB, row by row from the
// top.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/geometry.h"

namespace platform {

struct IconPixels {
  Size size;
  std::vector<std::uint32_t> pixels;
};

/// Shared and immutable; empty means no icon.
using Icon = std::shared_ptr<const IconPixels>;

}  // namespace platform
