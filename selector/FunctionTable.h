// The eight functions of the program. The index counts from 1; it is the place of the bubble in the
// wheel, the row of its picture and the number stored as the last used function.
#pragma once

#include <string_view>

namespace dorvalin {

inline constexpr int kFunctionCount = 8;
inline constexpr int kMenuFunction = 1;
inline constexpr int kDefaultFunction = 2;

/// A function as the wheel knows it; the calculator has functions of its own.
struct WheelFunction {
  std::u16string_view caption;  ///< of the bubble
  std::string_view control;     ///< the panel's name
  std::u16string_view topic;    ///< of its help page
};

/// Null for an index outside 1 to 8.
[[nodiscard]] const WheelFunction* FunctionOf(int index);

}  // namespace dorvalin
