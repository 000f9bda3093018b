// Time as the desktop tells it. Every delay, animation and date of the program asks here.
#pragma once

#include <cstdint>
#include <optional>

namespace platform {

/// A point of local wall-clock time, as calendars count it.
struct DateTime {
  int year = 1601;
  int month = 1;        ///< 1 to 12
  int day = 1;          ///< 1 to 31
  int hour = 0;         ///< 0 to 23
  int minute = 0;       ///< 0 to 59
  int second = 0;       ///< 0 to 59
  int millisecond = 0;  ///< 0 to 999
  friend auto operator<=>(const DateTime&, const DateTime&) = default;
};

/// Monday is 1, Sunday 7.
[[nodiscard]] int DayOfWeek(const DateTime& date);

[[nodiscard]] int DaysInMonth(int month, int year);

[[nodiscard]] inline double SecondsSinceMidnight(const DateTime& t) {
  return t.hour * 3600.0 + t.minute * 60.0 + t.second + t.millisecond / 1000.0;
}

class Clock {
 public:
  virtual ~Clock() = default;
  /// Ticks of the performance counter a second; none where there is no such counter.
  [[nodiscard]] virtual std::optional<std::int64_t> PerformanceFrequency() = 0;
  [[nodiscard]] virtual std::int64_t PerformanceCounter() = 0;
  /// Milliseconds since the system was started; wraps at 2^32.
  [[nodiscard]] virtual std::uint32_t TickCount() = 0;
  [[nodiscard]] virtual DateTime Now() = 0;
};

}  // namespace platform
