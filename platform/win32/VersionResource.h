// The version information of a program's file.
#pragma once

#include <optional>
#include <string_view>

#include "platform/shell.h"

namespace platform {

/// None where the file has no such information.
std::optional<VersionInformation> VersionOfFile(std::u16string_view path);

}  // namespace platform
