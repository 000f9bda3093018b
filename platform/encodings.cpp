#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/singlebyte.h"
#include "platform/text.h"

namespace platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// The character at a position; moves the position behind it.
char32_t NextFromUtf16(std::u16string_view text, std::size_t& at) {
  const char16_t unit = text[at++];
  if (!IsHighSurrogate(unit) && !IsLowSurrogate(unit)) return unit;
  if (IsLowSurrogate(unit) || at == text.size() || !IsLowSurrogate(text[at])) return kReplacement;
  const char16_t low = text[at++];
  return 0x10000 + ((unit - 0xD800u) << 10) + (low - 0xDC00u);
}

void AppendUtf8(std::string& out, char32_t c) {
  const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
  const auto putTail = [&](int shift) { put(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) return put(c);
  if (c < 0x800) {
    put(0xC0 | (c >> 6));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    putTail(6);
  } else {
    put(0xF0 | (c >> 18));
    putTail(12);
    putTail(6);
  }
  putTail(0);
}

void AppendUtf16(std::u16string& out, char32_t c) {
  if (c < 0x10000) {
    out.push_back(static_cast<char16_t>(c));
    return;
  }
  out.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)));
  out.push_back(static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
}

struct Utf8Lead {
  std::size_t tail = 0;  ///< bytes that follow
  char32_t bits = 0;     ///< what the lead byte carries
  char32_t least = 0;    ///< a smaller value would have a shorter form
  bool valid = false;
};

Utf8Lead ReadLead(unsigned char byte) {
  if (byte < 0x80) return {0, byte, 0, true};
  if ((byte & 0xE0) == 0xC0) return {1, byte & 0x1Fu, 0x80, true};
  if ((byte & 0xF0) == 0xE0) return {2, byte & 0x0Fu, 0x800, true};
  if ((byte & 0xF8) == 0xF0) return {3, byte & 0x07u, 0x10000, true};
  return {};
}

char32_t NextFromUtf8(std::string_view text, std::size_t& at) {
  const Utf8Lead lead = ReadLead(static_cast<unsigned char>(text[at++]));
  if (!lead.valid) return kReplacement;
  char32_t c = lead.bits;
  for (std::size_t i = 0; i < lead.tail; ++i, ++at) {
    if (at == text.size() || (text[at] & 0xC0) != 0x80) return kReplacement;
    c = (c << 6) | (static_cast<unsigned char>(text[at]) & 0x3Fu);
  }
  const bool isSurrogate = c >= 0xD800 && c <= 0xDFFF;
  return c < lead.least || c > 0x10FFFF || isSurrogate ? kReplacement : c;
}

/// What the bytes 0x80 to 0x9F stand for; the others stand for themselves.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ByteOf(char16_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
  const auto hit = std::ranges::find(kWindows1252, c);
  return hit == kWindows1252.end() ? '?' : static_cast<char>(0x80 + (hit - kWindows1252.begin()));
}

constexpr std::array<char16_t, 256> MakeUnits() {
  std::array<char16_t, 256> units{};
  for (std::size_t byte = 0; byte < 256; ++byte) units[byte] = static_cast<char16_t>(byte);
  std::ranges::copy(kWindows1252, units.begin() + 0x80);
  return units;
}

constexpr std::array<char16_t, 256> kUnits = MakeUnits();
char16_t UnitOf(char byte) { return kUnits[static_cast<unsigned char>(byte)]; }

}  // namespace

std::string ToUtf8(std::u16string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) AppendUtf8(result, NextFromUtf16(text, at));
  return result;
}

std::u16string FromUtf8(std::string_view text) {
  std::u16string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) AppendUtf16(result, NextFromUtf8(text, at));
  return result;
}

std::string ToWindows1252(std::u16string_view text) { return ToSingleByte(text, ByteOf); }

std::u16string FromWindows1252(std::string_view bytes) {
  std::u16string result(bytes.size(), u'\0');
  std::ranges::transform(bytes, result.begin(), UnitOf);
  return result;
}

}  // namespace platform
