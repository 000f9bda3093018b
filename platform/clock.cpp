#include "platform/clock.h"

namespace platform {

int DayOfWeek(const DateTime& date) {
  // Sakamoto's rule for the Gregorian calendar.
  static constexpr int kMonthShift[] = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
  const int year = date.month < 3 ? date.year - 1 : date.year;
  const int sundayBased =
      (year + year / 4 - year / 100 + year / 400 + kMonthShift[date.month - 1] + date.day) % 7;
  return sundayBased == 0 ? 7 : sundayBased;
}

int DaysInMonth(int month, int year) {
  const bool isLeapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  if (month == 2) return isLeapYear ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

}  // namespace platform
