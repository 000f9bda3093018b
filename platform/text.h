// Small operations on UTF-16 text that the whole program shares. One unit is one character
// position.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Lower and upper case of every letter of the Basic Multilingual Plane's Latin, Greek and Cyrillic
/// ranges; other units stay. Never changes the length.
[[nodiscard]] char16_t LowerUnit(char16_t unit);
[[nodiscard]] char16_t UpperUnit(char16_t unit);
[[nodiscard]] std::u16string Lower(std::u16string_view text);
[[nodiscard]] std::u16string Upper(std::u16string_view text);

/// Without the blanks (code 32 only) at both ends.
[[nodiscard]] std::u16string_view Trim(std::u16string_view text);

enum class Case { Exact, Ignore };

/// Position of the first occurrence at or after `from`, npos for none.
[[nodiscard]] std::size_t Find(std::u16string_view text, std::u16string_view what, Case compare,
                               std::size_t from = 0);
/// Every occurrence replaced, found from left to right; what was put in is not searched again.
[[nodiscard]] std::u16string ReplaceAll(std::u16string_view text, std::u16string_view what,
                                        std::u16string_view by, Case compare = Case::Exact);

/// UTF-8 for tools, tests and captions of the system; ill-formed input becomes U+FFFD.
[[nodiscard]] std::string ToUtf8(std::u16string_view text);
[[nodiscard]] std::u16string FromUtf8(std::string_view text);

/// Windows code page 1252, the ANSI page where the machine's own is not known. Neither direction
/// fails: a character that the page lacks becomes "?" (a surrogate pair one "?"), and the five
/// unassigned bytes map to the control characters of the same number and back.
[[nodiscard]] std::string ToWindows1252(std::u16string_view text);
[[nodiscard]] std::u16string FromWindows1252(std::string_view bytes);

}  // namespace platform
