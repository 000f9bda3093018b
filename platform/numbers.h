// Numbers as the user reads and types them: the locale's separators, decimal-exact.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

struct NumberFormat {
  char16_t decimal = u',';
  char16_t group = u'.';
};

/// Reads digits with an optional sign, grouping, decimal separator and exponent (E or e), blanks at
/// both ends allowed. The nearest Double to what is written; none for anything else or an overflow.
[[nodiscard]] std::optional<double> ParseNumber(std::u16string_view text,
                                                const NumberFormat& format);

/// At most 15 significant digits, no trailing zeros, no grouping; "1E+15" for large numbers and the
/// same form for very small ones.
[[nodiscard]] std::u16string FormatNumber(double value, const NumberFormat& format);

}  // namespace platform
