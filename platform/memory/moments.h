// How the countries of the in-process desktop name and read days and times.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "platform/clock.h"

namespace platform {

struct Calendar {
  std::array<std::u16string_view, 12> months;
  std::array<std::u16string_view, 7> days;  ///< Monday first
  std::size_t shortDay;                     ///< length of a day's short name
  bool dayFirst;                            ///< the day before the month, in numbers
};

const Calendar& GermanCalendar();
const Calendar& EnglishCalendar();

/// What a text says; a part that it does not name is missing.
struct Moment {
  std::optional<DateTime> date;
  std::optional<DateTime> time;
};

/// As a user types it: "9.3.26", "9. März 2026", "15:05", or both. None where any of it is no date
/// and no time. A date without a year is in this one.
[[nodiscard]] std::optional<Moment> ReadMoment(std::u16string_view text, const Calendar& calendar,
                                               int thisYear);

}  // namespace platform
