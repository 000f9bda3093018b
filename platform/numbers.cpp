#include "platform/numbers.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <system_error>

#include "platform/text.h"

namespace platform {
namespace {

bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool IsSign(char16_t unit) { return unit == u'+' || unit == u'-'; }

/// Turns the user's spelling into the one std::from_chars reads, checking it on the way. It needs
/// as much room as the text, which stays the caller's.
class Spelling {
 public:
  Spelling(std::u16string_view text, const NumberFormat& format, char* room)
      : rest_(Trim(text)), format_(format), plain_(room), end_(room) {}

  /// False if the text is no number; `Plain` is then of no use.
  bool Read() {
    TakeSign();
    const bool whole = TakeWholePart();
    const bool fraction = TakeFraction();
    return (whole || fraction) && TakeExponent() && rest_.empty();
  }

  std::string_view Plain() const { return {plain_, end_}; }

 private:
  bool Sees(char16_t unit) const { return !rest_.empty() && rest_.front() == unit; }

  void Put(char unit) { *end_++ = unit; }

  void Take() {
    Put(static_cast<char>(rest_.front()));
    rest_.remove_prefix(1);
  }

  // std::from_chars knows no leading plus.
  void TakeSign() {
    if (Sees(u'-')) Take();
    if (Sees(u'+') && end_ == plain_) rest_.remove_prefix(1);
  }

  bool TakeDigits() {
    const char* const before = end_;
    while (!rest_.empty() && IsDigit(rest_.front())) Take();
    return end_ != before;
  }

  // Grouping is not counted in threes: users leave groups out and type them where they like.
  bool TakeWholePart() {
    if (!TakeDigits()) return false;
    while (!Sees(format_.decimal) && Sees(format_.group)) {
      rest_.remove_prefix(1);
      TakeDigits();
    }
    return true;
  }

  bool TakeFraction() {
    if (!Sees(format_.decimal)) return false;
    rest_.remove_prefix(1);
    Put('.');
    return TakeDigits();
  }

  bool TakeExponent() {
    if (!Sees(u'E') && !Sees(u'e')) return true;
    Take();
    if (!rest_.empty() && IsSign(rest_.front())) {
      if (Sees(u'-')) Put('-');
      rest_.remove_prefix(1);
    }
    return TakeDigits();
  }

  std::u16string_view rest_;
  const NumberFormat& format_;
  char* plain_;
  char* end_;
};

std::int64_t ExponentOf(std::string_view digits) {
  std::int64_t exponent = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  if (read.ec == std::errc::result_out_of_range)
    return digits.front() == '-' ? INT64_MIN / 2 : INT64_MAX / 2;
  return exponent;
}

/// Of a number outside the range of a Double: is it too near to zero rather than too large?
bool IsTiny(std::string_view plain) {
  const std::size_t e = std::min(plain.find_first_of("eE"), plain.size());
  const std::string_view mantissa = plain.substr(0, e);
  const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), e));
  const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
  const std::int64_t exponent = e < plain.size() ? ExponentOf(plain.substr(e + 1)) : 0;
  return point - first + exponent < 0;
}

}  // namespace

std::optional<double> ParseNumber(std::u16string_view text, const NumberFormat& format) {
  // Everyday numbers take no memory from the heap.
  char room[32];
  std::string more;
  if (text.size() > sizeof room) more.resize(text.size());
  Spelling spelling(text, format, more.empty() ? room : more.data());
  if (!spelling.Read()) return std::nullopt;
  const std::string_view plain = spelling.Plain();
  double value = 0;
  const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (read.ec == std::errc()) return value;
  // The nearest Double to a number too small to be told from zero is zero.
  if (read.ec == std::errc::result_out_of_range && IsTiny(plain)) return 0.0;
  return std::nullopt;
}

std::u16string FormatNumber(double value, const NumberFormat& format) {
  char digits[32];
  // Zero has no sign for the user.
  const auto end = std::to_chars(digits, digits + sizeof digits, value == 0 ? 0 : value,
                                 std::chars_format::general, 15);
  std::u16string text(digits, end.ptr);
  for (char16_t& unit : text) {
    if (unit == u'.') unit = format.decimal;
    if (unit == u'e') unit = u'E';
  }
  return text;
}

}  // namespace platform
