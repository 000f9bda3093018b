// Text into a code page in which every byte is one character.
#pragma once

#include <string>
#include <string_view>

namespace platform {

constexpr bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// `byteOf(unit)` is the byte of a character. It is asked once for a surrogate pair, by its first
/// half: no page has such a character.
template <typename ByteOf>
[[nodiscard]] std::string ToSingleByte(std::u16string_view text, const ByteOf& byteOf) {
  std::string bytes(text.size(), '\0');
  auto out = bytes.begin();
  for (std::size_t at = 0; at < text.size(); ++at) {
    *out++ = byteOf(text[at]);
    const bool isPair =
        IsHighSurrogate(text[at]) && at + 1 < text.size() && IsLowSurrogate(text[at + 1]);
    if (isPair) ++at;
  }
  bytes.erase(out, bytes.end());
  return bytes;
}

}  // namespace platform
