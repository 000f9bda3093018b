// Colours as text, in the notations of programming and markup languages.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dorvalin {

struct Rgb {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  friend bool operator==(const Rgb&, const Rgb&) = default;

  /// As palettes and drawing count it: 0x00BBGGRR.
  constexpr std::int32_t Value() const { return r + 256 * g + 65536 * b; }
  static constexpr Rgb Of(std::int32_t value) {
    return {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
            static_cast<std::uint8_t>(value >> 16)};
  }
};

/// In the order in which the user finds them in the list.
enum class Notation {
  Html,         ///< "#RRGGBB"
  C,            ///< "0xBBGGRR"
  Java,         ///< "0xRRGGBB"
  VisualBasic,  ///< "&HBBGGRR&"
  Delphi,       ///< "$00BBGGRR"
  Triple,       ///< red, green and blue in decimal with tabs between them
  Decimal       ///< the colour's value
};

/// The list's entries. The blanks of the sixth make it a heading for the three numbers.
inline constexpr std::u16string_view kNotationCaptions[] = {
    u"HTML-Farbcode",   u"C/C++-Farbcode",
    u"Java-Farbcode",   u"Visual Basic-Farbcode",
    u"Delphi-Farbcode", u"Rot          Grün        Blau",
    u"Dezimalzahl"};

/// TextToColor reads every text of this back as the same colour. Empty for a number that is no
/// notation.
[[nodiscard]] std::u16string ColorToText(Rgb color, Notation style);
/// None where the text is not valid in that notation.
[[nodiscard]] std::optional<Rgb> TextToColor(std::u16string_view text, Notation style);

}  // namespace dorvalin
