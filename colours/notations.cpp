#include "colours/notations.h"

#include <algorithm>
#include <iterator>

#include "platform/text.h"

namespace dorvalin {
namespace {

constexpr std::int64_t kHighestColor = 0xFFFFFF;

// --- Writing

void AppendHex(std::u16string& text, std::uint8_t byte) {
  static constexpr char16_t kDigits[] = u"0123456789ABCDEF";
  text += kDigits[byte >> 4];
  text += kDigits[byte & 15];
}

std::u16string InHex(std::u16string_view prefix, std::uint8_t first, std::uint8_t second,
                     std::uint8_t third, std::u16string_view suffix = {}) {
  std::u16string text;
  text.reserve(prefix.size() + 6 + suffix.size());
  text += prefix;
  AppendHex(text, first);
  AppendHex(text, second);
  AppendHex(text, third);
  return text.append(suffix);
}

void AppendDecimal(std::u16string& text, std::int32_t number) {
  char16_t digits[10];
  auto* first = std::end(digits);
  do {
    *--first = static_cast<char16_t>(u'0' + number % 10);
    number /= 10;
  } while (number > 0);
  text.append(first, std::end(digits));
}

std::u16string InDecimal(Rgb color) {
  std::u16string text;
  AppendDecimal(text, color.Value());
  return text;
}

std::u16string AsTriple(Rgb color) {
  std::u16string text;
  AppendDecimal(text, color.r);
  AppendDecimal(text += u'\t', color.g);
  AppendDecimal(text += u'\t', color.b);
  return text;
}

// --- Reading

/// 16 or more for what is no digit.
std::uint32_t HexDigit(char16_t unit) {
  if (unit >= u'0' && unit <= u'9') return unit - u'0';
  const auto letter = static_cast<char16_t>(unit | 0x20);
  return letter >= u'a' && letter <= u'f' ? letter - u'a' + 10u : 16u;
}

/// One to eight digits, with or without the "&" that marks a long number. Four digits are the plain
/// number they say, not a negative one of 16 bits.
std::optional<std::int64_t> HexValue(std::u16string_view digits) {
  if (digits.ends_with(u'&')) digits.remove_suffix(1);
  if (digits.empty() || digits.size() > 8) return std::nullopt;
  std::int64_t value = 0;
  for (const char16_t unit : digits) {
    const auto digit = HexDigit(unit);
    if (digit >= 16) return std::nullopt;
    value = value * 16 + digit;
  }
  return value;
}

/// None beyond the highest colour, which includes every overflow.
std::optional<std::int64_t> DecimalValue(std::u16string_view text) {
  text = platform::Trim(text);
  if (text.starts_with(u'+')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  std::int64_t value = 0;
  for (const char16_t unit : text) {
    if (unit < u'0' || unit > u'9') return std::nullopt;
    value = value * 10 + (unit - u'0');
    if (value > kHighestColor) return std::nullopt;
  }
  return value;
}

/// The channel of up to two digits at `at`; 0 behind the text's end.
std::optional<std::uint8_t> ChannelAt(std::u16string_view text, std::size_t at) {
  if (at >= text.size()) return std::uint8_t{0};
  const auto value = HexValue(text.substr(at, 2));
  return value ? std::optional(static_cast<std::uint8_t>(*value)) : std::nullopt;
}

std::optional<Rgb> ChannelsFrom(std::u16string_view text, std::size_t at) {
  const auto r = ChannelAt(text, at);
  const auto g = ChannelAt(text, at + 2);
  const auto b = ChannelAt(text, at + 4);
  return r && g && b ? std::optional(Rgb{*r, *g, *b}) : std::nullopt;
}

std::optional<Rgb> FromHtml(std::u16string_view text) {
  const bool hasRed = text.size() > 1;
  return text.starts_with(u'#') && hasRed ? ChannelsFrom(text, 1) : std::nullopt;
}

std::optional<Rgb> FromJava(std::u16string_view text) {
  if (!text.starts_with(u"0x")) return std::nullopt;
  if (text.size() >= 8) return ChannelsFrom(text, 2);
  // Here the digits stand to the right, as those of a number, where HTML fills up from the left.
  return ChannelsFrom(std::u16string(8 - text.size(), u'0').append(text, 2), 0);
}

std::optional<Rgb> FromTriple(std::u16string_view text) {
  std::uint8_t channels[3] = {};
  for (auto& channel : channels) {
    const auto end = text.find(u'\t');
    const auto value = DecimalValue(text.substr(0, end));
    if (!value || *value > 255) return std::nullopt;
    channel = static_cast<std::uint8_t>(*value);
    if (end == text.npos) return Rgb{channels[0], channels[1], channels[2]};
    text.remove_prefix(end + 1);
  }
  return std::nullopt;
}

std::optional<Rgb> FromValue(std::optional<std::int64_t> value) {
  if (!value || *value > kHighestColor) return std::nullopt;
  return Rgb::Of(static_cast<std::int32_t>(*value));
}

std::optional<Rgb> FromHexNumber(std::u16string_view text, std::u16string_view prefix) {
  const bool isPrefixed =
      std::ranges::equal(text.substr(0, prefix.size()), prefix, {}, platform::LowerUnit);
  return isPrefixed ? FromValue(HexValue(text.substr(prefix.size()))) : std::nullopt;
}

}  // namespace

std::u16string ColorToText(Rgb color, Notation style) {
  switch (style) {
    case Notation::Html:
      return InHex(u"#", color.r, color.g, color.b);
    case Notation::C:
      return InHex(u"0x", color.b, color.g, color.r);
    case Notation::Java:
      return InHex(u"0x", color.r, color.g, color.b);
    case Notation::VisualBasic:
      return InHex(u"&H", color.b, color.g, color.r, u"&");
    case Notation::Delphi:
      return InHex(u"$00", color.b, color.g, color.r);
    case Notation::Triple:
      return AsTriple(color);
    case Notation::Decimal:
      return InDecimal(color);
  }
  return {};
}

std::optional<Rgb> TextToColor(std::u16string_view text, Notation style) {
  switch (style) {
    case Notation::Html:
      return FromHtml(text);
    case Notation::C:
      return FromHexNumber(text, u"0x");
    case Notation::Java:
      return FromJava(text);
    case Notation::VisualBasic:
      return FromHexNumber(text, u"&h");
    case Notation::Delphi:
      return FromHexNumber(text, u"$");
    case Notation::Triple:
      return FromTriple(text);
    case Notation::Decimal:
      return FromValue(DecimalValue(text));
  }
  return std::nullopt;
}

}  // namespace dorvalin
