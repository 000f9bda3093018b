// The keypad of the calculator: three rows of eight buttons.
#pragma once

#include <array>
#include <string_view>

#include "platform/geometry.h"
#include "platform/surface.h"

namespace dorvalin {

struct CalculatorKey {
  platform::Point at;  ///< pixels in the panel
  std::u16string_view caption;
  std::u16string_view tag;  ///< the text that a click inserts
  platform::Colour colour;  ///< of the caption
};

inline constexpr int kCalculatorKeySize = 25;  ///< pixels, square

/// By the index of the button.
[[nodiscard]] const std::array<CalculatorKey, 24>& CalculatorKeys();

/// How far behind the old caret the new one stands after a tag was inserted: between its brackets,
/// where it ends in some.
[[nodiscard]] int CaretAdvance(std::u16string_view tag);

}  // namespace dorvalin
