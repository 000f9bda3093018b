// Wall-clock times between the ports' form and the system's.
#pragma once

#include "platform/clock.h"
#include "platform/win32/win.h"

namespace platform {

inline DateTime DateTimeOf(const SYSTEMTIME& t) {
  return {t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond, t.wMilliseconds};
}

inline SYSTEMTIME SystemTimeOf(const DateTime& t) {
  const auto word = [](int number) { return static_cast<WORD>(number); };
  SYSTEMTIME time{};
  time.wYear = word(t.year);
  time.wMonth = word(t.month);
  time.wDay = word(t.day);
  time.wDayOfWeek = word(DayOfWeek(t) % 7);
  time.wHour = word(t.hour);
  time.wMinute = word(t.minute);
  time.wSecond = word(t.second);
  time.wMilliseconds = word(t.millisecond);
  return time;
}

/// A file's time by the local clock, as the shell shows it: with today's daylight saving.
inline DateTime LocalTimeOf(const FILETIME& universal) {
  FILETIME local{};
  SYSTEMTIME parts{};
  if (!::FileTimeToLocalFileTime(&universal, &local)) return {};
  if (!::FileTimeToSystemTime(&local, &parts)) return {};
  return DateTimeOf(parts);
}

}  // namespace platform
