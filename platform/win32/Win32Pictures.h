#pragma once

#include "platform/files.h"
#include "platform/pictures.h"

namespace platform {

/// Reads bmp, jpg, gif, ico, emf and wmf with a size in its head. What a picture leaves free is
/// white.
class Win32Pictures final : public Pictures {
 public:
  explicit Win32Pictures(Files& files) : files_(files) {}
  std::optional<Surface> Load(std::u16string_view path) override;

 private:
  Files& files_;
};

}  // namespace platform
