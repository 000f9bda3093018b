// Placeholders in quick text: dates, times, the user's name and address, a tab.
#pragma once

#include <string>
#include <string_view>

namespace dorvalin {

/// The key of the user's name and address below the program's own.
inline constexpr std::u16string_view kUserDataKey = u"\\UserData";

/// The text, plain or Rich Text source, with all placeholders filled in; "|" marks the place of the
/// caret and is removed with `stripCaret`. Clock and registry are asked only for what the text
/// holds.
[[nodiscard]] std::u16string ExpandPlaceholders(std::u16string_view text, bool stripCaret);

}  // namespace dorvalin
