// The program's stopwatch: a fixed-point number of seconds with four decimals. All delays and
// animations compare such values.
#pragma once

#include <cstdint>

namespace dorvalin {

/// Seconds in units of 1/10000.
using HiResTime = std::int64_t;

constexpr HiResTime HiResSeconds(double seconds) {
  return static_cast<HiResTime>(seconds * 10000 + 0.5);
}
constexpr HiResTime HiResMilliseconds(int milliseconds) { return HiResTime{milliseconds} * 10; }

/// From the performance counter, whose frequency is asked for once; from the tick count where there
/// is no such counter.
[[nodiscard]] HiResTime HiResTimer();

/// Holds the thread until that moment. Nothing is pumped meanwhile.
void SpinUntil(HiResTime moment);

}  // namespace dorvalin
