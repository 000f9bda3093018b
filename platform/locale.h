// What the user's regional settings say: numbers, dates, times, and the ANSI code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/numbers.h"

namespace platform {

class Locale {
 public:
  virtual ~Locale() = default;
  [[nodiscard]] virtual NumberFormat Numbers() = 0;

  /// Renders a date by a picture of "d", "dd", "ddd", "dddd", "M", "MM", "MMM", "MMMM", "yy",
  /// "yyyy"; text in single quotes and other characters stand for themselves. (FormatTime, which
  /// needs no locale, does the same for times.)
  [[nodiscard]] virtual std::u16string FormatDate(const DateTime& when,
                                                  std::u16string_view picture) = 0;
  [[nodiscard]] virtual std::u16string LongDate(const DateTime& when) = 0;
  [[nodiscard]] virtual std::u16string ShortDate(const DateTime& when) = 0;
  /// The long time has seconds, the short one has none.
  [[nodiscard]] virtual std::u16string LongTime(const DateTime& when) = 0;
  [[nodiscard]] virtual std::u16string ShortTime(const DateTime& when) = 0;

  /// Reads a date or a time as the user would type it, in numbers or with the names of months
  /// ("9.3.26", "9. März 2026", "15:05:04"); a text may hold both, and what is not asked for is
  /// left out. A date without a year is in the present one. None for any other text, for days that
  /// no month has, and for years before 1601, where the system's calendar begins.
  [[nodiscard]] virtual std::optional<DateTime> ParseDate(std::u16string_view text) = 0;
  /// On the first day of the calendar. A text that holds a date alone is at midnight.
  [[nodiscard]] virtual std::optional<DateTime> ParseTime(std::u16string_view text) = 0;

  /// The ANSI code page at the edge of files and formats. Neither direction fails: a character that
  /// the page lacks is replaced by "?", and every byte has a character that leads back to it.
  [[nodiscard]] virtual std::string ToAnsi(std::u16string_view text) = 0;
  [[nodiscard]] virtual std::u16string FromAnsi(std::string_view bytes) = 0;
};

}  // namespace platform
