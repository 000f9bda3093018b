// Names of files and registry keys in memory: their case is kept and does not count.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// What a map is keyed by; its order is the system's order of names.
[[nodiscard]] std::u16string NameKey(std::u16string_view name);
[[nodiscard]] bool SameName(std::u16string_view a, std::u16string_view b);
/// The parts between backslashes, without empty ones. They point into the path.
[[nodiscard]] std::vector<std::u16string_view> PathParts(std::u16string_view path);
/// Matches "*" (anything) and "?" (one character); "*.*" matches every name, as it does in the
/// system.
[[nodiscard]] bool MatchesPattern(std::u16string_view name, std::u16string_view pattern);

}  // namespace platform
