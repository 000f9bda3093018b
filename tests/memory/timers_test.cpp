// Timers and the pump of the in-process desktop, by the rules of the system's own.
#include "tests/support/DesktopTest.h"

namespace dorvalin {
namespace {

using platform::MemoryPump;

class Timers : public DesktopTest {
 protected:
  std::unique_ptr<platform::Timer> Start(int interval, std::function<void()> tick) {
    auto timer = desktop.pump().NewTimer(interval, std::move(tick));
    timer->SetEnabled(true);
    return timer;
  }
};

TEST_F(Timers, AreNoFinerThanTenMilliseconds) {
  int fast = 0, fine = 0, exact = 0;
  const auto a = Start(1, [&] { ++fast; });
  const auto b = Start(10, [&] { ++fine; });
  const auto c = Start(15, [&] { ++exact; });
  user.Wait(300ms);
  EXPECT_EQ(fast, 30);
  EXPECT_EQ(fine, 30);
  EXPECT_EQ(exact, 20);
}

TEST_F(Timers, DoNotMakeUpForWhatWasMissed) {
  int ticks = 0;
  const auto timer = Start(150, [&] { ++ticks; });
  desktop.clock().Advance(10s);  // a handler that does not pump
  desktop.pump().DoEvents();
  EXPECT_EQ(ticks, 1);
  user.Wait(149ms);
  EXPECT_EQ(ticks, 1);
  user.Wait(1ms);
  EXPECT_EQ(ticks, 2);
}

TEST_F(Timers, TickInsideAPumpInsideTheirOwnTick) {
  int depth = 0, deepest = 0;
  const auto timer = Start(10, [&] {
    deepest = std::max(deepest, ++depth);
    if (depth < 3) {
      desktop.clock().Advance(20ms);
      desktop.pump().DoEvents();
    }
    --depth;
  });
  user.Wait(10ms);
  EXPECT_EQ(deepest, 3);
}

TEST_F(Timers, DoEventsReturnsThoughATickTakesLongerThanItsInterval) {
  int ticks = 0;
  const auto timer = Start(1, [&] {
    ++ticks;
    desktop.clock().Advance(50ms);
  });
  desktop.clock().Advance(10ms);
  desktop.pump().DoEvents();
  EXPECT_EQ(ticks, 1);
}

TEST_F(Timers, AWaitForAUserWithoutPlansEnds) {
  EXPECT_FALSE(desktop.pump().WaitAndDispatch()) << "nothing can ever come";
  int ticks = 0;
  const auto timer = Start(150, [&] { ++ticks; });
  while (desktop.pump().WaitAndDispatch()) {
  }
  EXPECT_EQ(ticks, MemoryPump::kPatience / 150ms);
}

TEST_F(Timers, AWaitMovesTheClockToTheNextDueTime) {
  const auto before = desktop.clock().SinceStart();
  MemoryPump::Duration at{};
  user.Later(70ms, [&] { at = desktop.clock().SinceStart(); });
  EXPECT_TRUE(desktop.pump().WaitAndDispatch());
  EXPECT_EQ(at - before, 70ms);
}

}  // namespace
}  // namespace dorvalin
