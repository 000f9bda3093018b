#include <new>

#include "platform/surface.h"

namespace platform {
namespace {

class HeapPixels final : public PixelMemory {
 public:
  explicit HeapPixels(std::size_t count) : owned_(new (std::nothrow) Pixel[count]()) {
    pixels = owned_.get();
  }

 private:
  std::unique_ptr<Pixel[]> owned_;
};

}  // namespace

std::unique_ptr<PixelMemory> NewPixelMemory(Size size) {
  auto memory = std::make_unique<HeapPixels>(std::size_t(size.width) * size.height);
  return memory->pixels ? std::move(memory) : nullptr;
}

}  // namespace platform
