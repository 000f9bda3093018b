#include "platform/memory/MemoryClock.h"

namespace platform {

using namespace std::chrono;

namespace {

/// How far one reading of a counter moves the time.
constexpr microseconds kStep(100);
constexpr milliseconds kTicksAtStart(1'000'000);

}  // namespace

void MemoryClock::SetNow(const DateTime& now) {
  const year_month_day date{year{now.year}, month{static_cast<unsigned>(now.month)},
                            day{static_cast<unsigned>(now.day)}};
  wallAtStart_ = TimePoint{local_days{date}} + hours{now.hour} + minutes{now.minute} +
                 seconds{now.second} + milliseconds{now.millisecond} - sinceStart_;
}

std::optional<std::int64_t> MemoryClock::PerformanceFrequency() {
  return hasPerformanceCounter_ ? std::optional(Duration{seconds{1}}.count()) : std::nullopt;
}

std::int64_t MemoryClock::PerformanceCounter() {
  sinceStart_ += kStep;
  return sinceStart_.count();
}

std::uint32_t MemoryClock::TickCount() {
  sinceStart_ += kStep;
  return static_cast<std::uint32_t>((kTicksAtStart + floor<milliseconds>(sinceStart_)).count());
}

DateTime MemoryClock::Now() {
  const TimePoint now = wallAtStart_ + sinceStart_;
  const auto today = floor<days>(now);
  const year_month_day date{today};
  const hh_mm_ss time{floor<milliseconds>(now - today)};
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count()),
          static_cast<int>(time.subseconds().count())};
}

}  // namespace platform
