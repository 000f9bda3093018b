// Loads the one picture format that is simple enough to be told byte for byte in a test: bitmaps of
// 24 or 32 bits without compression.
#pragma once

#include "platform/memory/MemoryFiles.h"
#include "platform/pictures.h"

namespace platform {

class MemoryPictures : public Pictures {
 public:
  explicit MemoryPictures(MemoryFiles& files) : files_(files) {}
  std::optional<Surface> Load(std::u16string_view path) override;

 private:
  MemoryFiles& files_;
};

}  // namespace platform
