#include "core/HiResTimer.h"

#include "core/ProgramState.h"
#include "platform/clock.h"
#include "platform/desktop.h"

namespace dorvalin {
namespace {

struct HiResTimerState {
  std::int64_t frequency = 0;
  bool noCounter = false;
};

}  // namespace

HiResTime HiResTimer() {
  auto& clock = platform::TheDesktop().clock();
  auto& state = StateOf<HiResTimerState>();
  if (state.frequency == 0 && !state.noCounter) {
    state.frequency = clock.PerformanceFrequency().value_or(0);
    state.noCounter = state.frequency <= 0;
  }
  if (state.noCounter) return HiResTime{clock.TickCount()} * 10;
  const std::int64_t counter = clock.PerformanceCounter();
  const std::int64_t whole = counter / state.frequency;
  const std::int64_t rest = counter % state.frequency;
  return whole * 10000 + (rest * 10000 + state.frequency / 2) / state.frequency;
}

void SpinUntil(HiResTime moment) {
  while (HiResTimer() < moment) {
  }
}

}  // namespace dorvalin
