// Pictures from files, in whatever formats the desktop can read.
#pragma once

#include <optional>
#include <string_view>

#include "platform/surface.h"

namespace platform {

class Pictures {
 public:
  virtual ~Pictures() = default;
  /// None where the file is missing or is no picture that the desktop knows.
  [[nodiscard]] virtual std::optional<Surface> Load(std::u16string_view path) = 0;
};

}  // namespace platform
