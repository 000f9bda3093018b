// What the solver's tests share: an environment that stands still, and terms solved in it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "calculator/modSolve.h"

namespace dorvalin {

class FixedClock : public platform::Clock {
 public:
  std::optional<std::int64_t> PerformanceFrequency() override { return std::nullopt; }
  std::int64_t PerformanceCounter() override { return 0; }
  std::uint32_t TickCount() override { return 0; }
  platform::DateTime Now() override { return now; }

  platform::DateTime now{.hour = 12, .minute = 34, .second = 56, .millisecond = 789};
};

inline constexpr platform::NumberFormat kGerman{u',', u'.'};
inline constexpr platform::NumberFormat kEnglish{u'.', u','};

/// No term of the tests gives this value by itself: it shows that nothing was written.
inline constexpr double kUntouched = -987654.321;

struct Answer {
  int status = 0;
  double value = kUntouched;
};

inline Answer SolveIn(const platform::NumberFormat& numbers, std::u16string_view term,
                      double ans = 0, const CStringDoubleStack* vars = nullptr) {
  static FixedClock clock;
  Answer answer;
  answer.status = Solve(term, answer.value, ans, vars, 0, -1, {numbers, clock});
  return answer;
}

inline Answer SolveGerman(std::u16string_view term, double ans = 0,
                          const CStringDoubleStack* vars = nullptr) {
  return SolveIn(kGerman, term, ans, vars);
}

/// `count` times the same text.
inline std::u16string Repeat(std::u16string_view text, int count) {
  std::u16string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

}  // namespace dorvalin
