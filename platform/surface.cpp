#include "platform/surface.h"

#include <algorithm>
#include <utility>

namespace platform {

Surface::Surface(platform::Size size) {
  if (size.Empty()) return;
  memory_ = NewPixelMemory(size);
  if (memory_) size_ = size;
}

Surface::Surface(Surface&& other) noexcept
    : size_(std::exchange(other.size_, {})), memory_(std::move(other.memory_)) {}

Surface& Surface::operator=(Surface&& other) noexcept {
  size_ = std::exchange(other.size_, {});
  memory_ = std::move(other.memory_);
  return *this;
}

Surface Surface::Clone() const {
  Surface copy(size_);
  if (!copy.Empty()) std::copy_n(Row(0), std::size_t(Width()) * Height(), copy.Row(0));
  return copy;
}

}  // namespace platform
