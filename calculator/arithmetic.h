// The operators, postfixes and functions of a term, on numbers that are solved already.
#pragma once

#include <bit>
#include <cstdint>
#include <optional>
#include <string_view>

#include "calculator/Solved.h"

namespace dorvalin {

/// 3.14159265358979, the number that users know, not the Double nearest to pi.
inline constexpr double kPi = std::bit_cast<double>(std::uint64_t{0x400921FB54442D11});

[[nodiscard]] Solved ApplyOperator(char16_t op, double left, double right);

[[nodiscard]] constexpr bool IsPostfix(char16_t unit) {
  return unit == u'²' || unit == u'³' || unit == u'!' || unit == u'°' || unit == u'%';
}
[[nodiscard]] Solved ApplyPostfix(char16_t postfix, double operand);

/// To the nearest 32-bit integer, halves to the even one; none beyond their range.
[[nodiscard]] std::optional<std::int32_t> RoundToLong(double value);

/// One of the functions that a term may call.
struct Function {
  std::u16string_view name;
  double (*apply)(double);  ///< no finite number for an error; nullptr: the call always fails
};

/// By its lower-case name, nullptr for none.
[[nodiscard]] const Function* FindFunction(std::u16string_view name);

/// What a call comes to once its argument is solved. `unwritten` stands for an argument that left
/// no value.
[[nodiscard]] Solved CallFunction(const Function& function, Solved argument, double unwritten);

}  // namespace dorvalin
