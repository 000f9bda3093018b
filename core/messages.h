// What the program says in a box of its own.
#pragma once

#include <string_view>

namespace platform {
class TopWindow;
}

namespace dorvalin {

inline constexpr std::u16string_view kProductName = u"Tolvo Dorvalin";

/// A plain box with an OK button, under the program's name.
void ShowPlainMessage(std::u16string_view text);
/// The same with an exclamation mark, in front of its owner; none for a box of its own.
void ShowWarning(std::u16string_view text, platform::TopWindow* owner = nullptr);

}  // namespace dorvalin
