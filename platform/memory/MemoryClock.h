// A clock that a test holds in its hand. It moves as the test moves it, and by a small step at each
// reading of a counter, so that a loop that waits for a later time ends.
#pragma once

#include <chrono>

#include "platform/clock.h"

namespace platform {

class MemoryClock : public Clock {
 public:
  using Duration = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;

  void Advance(Duration by) { sinceStart_ += by; }
  void SetNow(const DateTime& now);
  void TakeAwayPerformanceCounter() { hasPerformanceCounter_ = false; }
  /// Time since the clock was made, without moving it.
  Duration SinceStart() const { return sinceStart_; }

  std::optional<std::int64_t> PerformanceFrequency() override;
  std::int64_t PerformanceCounter() override;
  std::uint32_t TickCount() override;
  DateTime Now() override;

 private:
  using TimePoint = std::chrono::local_time<Duration>;

  Duration sinceStart_{0};
  /// The wall clock's reading at the start.
  TimePoint wallAtStart_{std::chrono::local_days{std::chrono::year{2026} / 3 / 9} +
                         std::chrono::hours{14} + std::chrono::minutes{30}};
  bool hasPerformanceCounter_ = true;
};

}  // namespace platform
