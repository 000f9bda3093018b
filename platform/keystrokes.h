// The keystroke syntax in which texts are typed: plain characters, "^" "+" "%" before a key for
// Ctrl, Shift and Alt, "~" for Enter, named keys in braces with an optional count ("{ENTER}",
// "{LEFT 3}"), and special characters in braces ("{+}", "{{}", "{}}").
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/input.h"

namespace platform {

/// None for text that is not of the syntax (a brace without its end, an unknown name).
[[nodiscard]] std::optional<std::vector<KeyStroke>> ParseKeystrokes(std::u16string_view keys);

}  // namespace platform
