// The message loop of the in-process desktop. Events come in the order in which they were posted,
// then timers that are due, the longest overdue first. The clock moves only while somebody waits.
#pragma once

#include <chrono>
#include <deque>
#include <memory>
#include <vector>

#include "platform/memory/Faults.h"
#include "platform/memory/MemoryClock.h"
#include "platform/pump.h"

namespace platform {

class MemoryPump : public Pump {
 public:
  using Duration = MemoryClock::Duration;
  /// A loop that waits this long for a user who has nothing planned is told to end.
  static constexpr Duration kPatience = std::chrono::minutes(2);

  MemoryPump(MemoryClock& clock, Faults& faults) : clock_(clock), faults_(faults) {}

  void DoEvents() override;
  bool WaitAndDispatch() override;
  std::unique_ptr<Timer> NewTimer(int interval, std::function<void()> tick) override;

  /// What another program or the user puts into our queue.
  void Post(std::function<void()> event);
  /// An action of the user or of another program that happens when the clock gets there, whoever
  /// waits then.
  void Later(Duration delay, std::function<void()> action);
  /// Dispatches what comes until the clock has moved so far; `idle` runs after each dispatch.
  void RunFor(Duration time, const std::function<void()>& idle);
  /// Whether a handler is running now.
  bool Dispatching() const { return depth_ > 0; }
  /// Every loop ends.
  void End() { ended_ = true; }

 private:
  struct Ticking;
  class MemoryTimer;
  struct Planned {
    Duration due;
    std::function<void()> action;
  };

  Duration Now() const { return clock_.SinceStart(); }
  bool DispatchOne();
  bool RunPlanned();
  bool TickOne(Duration latest);
  std::shared_ptr<Ticking> NextTimer() const;
  std::vector<Planned>::iterator NextPlanned();
  Duration NextDue();
  void Run(const std::function<void()>& handler);

  MemoryClock& clock_;
  Faults& faults_;
  std::deque<std::function<void()>> events_;
  std::vector<Planned> planned_;
  std::vector<std::shared_ptr<Ticking>> timers_;
  Duration lastSign_{0};  ///< when the user or another program last did something
  int depth_ = 0;
  bool ended_ = false;
};

}  // namespace platform
