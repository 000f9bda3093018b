#include "platform/memory/MemoryPump.h"

#include <algorithm>
#include <utility>

namespace platform {
namespace {

constexpr auto kNever = MemoryPump::Duration::max();
// The system's timers are no finer than this, whatever was asked for.
constexpr MemoryPump::Duration kShortestInterval = std::chrono::milliseconds(10);

}  // namespace

struct MemoryPump::Ticking {
  Duration interval;
  std::function<void()> tick;
  Duration due = kNever;
};

class MemoryPump::MemoryTimer final : public Timer {
 public:
  MemoryTimer(MemoryPump& pump, std::shared_ptr<Ticking> ticking)
      : pump_(pump), ticking_(std::move(ticking)) {}
  ~MemoryTimer() override {
    ticking_->due = kNever;
    std::erase(pump_.timers_, ticking_);
  }
  void SetEnabled(bool enabled) override {
    if (enabled == Enabled()) return;
    ticking_->due = enabled ? pump_.Now() + ticking_->interval : kNever;
  }
  bool Enabled() const override { return ticking_->due != kNever; }

 private:
  MemoryPump& pump_;
  std::shared_ptr<Ticking> ticking_;
};

std::unique_ptr<Timer> MemoryPump::NewTimer(int interval, std::function<void()> tick) {
  auto ticking = std::make_shared<Ticking>(Ticking{
      std::max<Duration>(kShortestInterval, std::chrono::milliseconds(interval)), std::move(tick)});
  // A timer that the system refuses exists and never ticks.
  if (!faults_.Fails("Pump.NewTimer")) timers_.push_back(ticking);
  return std::make_unique<MemoryTimer>(*this, std::move(ticking));
}

void MemoryPump::Post(std::function<void()> event) {
  lastSign_ = Now();
  events_.push_back(std::move(event));
}

void MemoryPump::Later(Duration delay, std::function<void()> action) {
  planned_.push_back({Now() + delay, std::move(action)});
}

void MemoryPump::Run(const std::function<void()>& handler) {
  ++depth_;
  handler();
  --depth_;
}

bool MemoryPump::DispatchOne() {
  if (events_.empty()) return false;
  const auto event = std::move(events_.front());
  events_.pop_front();
  Run(event);
  return true;
}

std::vector<MemoryPump::Planned>::iterator MemoryPump::NextPlanned() {
  return std::min_element(planned_.begin(), planned_.end(),
                          [](const Planned& a, const Planned& b) { return a.due < b.due; });
}

bool MemoryPump::RunPlanned() {
  const auto next = NextPlanned();
  if (next == planned_.end() || next->due > Now()) return false;
  lastSign_ = Now();
  const auto action = std::move(next->action);
  planned_.erase(next);
  Run(action);
  return true;
}

std::shared_ptr<MemoryPump::Ticking> MemoryPump::NextTimer() const {
  const auto next = std::min_element(timers_.begin(), timers_.end(),
                                     [](const auto& a, const auto& b) { return a->due < b->due; });
  return next == timers_.end() || (*next)->due == kNever ? nullptr : *next;
}

bool MemoryPump::TickOne(Duration latest) {
  const auto timer = NextTimer();
  if (!timer || timer->due > latest) return false;
  timer->due += timer->interval;
  if (timer->due <= Now()) timer->due = Now() + timer->interval;
  Run([&] { timer->tick(); });
  return true;
}

void MemoryPump::DoEvents() {
  // Ticks that fall due while this goes on wait for the next call, or it might never return.
  const Duration entered = Now();
  do {
    while (DispatchOne() || RunPlanned()) {
    }
  } while (TickOne(entered));
}

MemoryPump::Duration MemoryPump::NextDue() {
  const auto planned = NextPlanned();
  const auto timer = NextTimer();
  return std::min(planned == planned_.end() ? kNever : planned->due, timer ? timer->due : kNever);
}

bool MemoryPump::WaitAndDispatch() {
  if (ended_) return false;
  while (!DispatchOne() && !RunPlanned() && !TickOne(Now())) {
    const Duration next = NextDue();
    if (next == kNever) return false;
    if (planned_.empty() && next - lastSign_ > kPatience) return false;
    clock_.Advance(std::max(next - Now(), Duration{0}));
  }
  return true;
}

void MemoryPump::RunFor(Duration time, const std::function<void()>& idle) {
  const Duration until = Now() + time;
  lastSign_ = Now();
  for (;;) {
    while (DispatchOne() || RunPlanned() || TickOne(Now())) idle();
    if (Now() >= until) return;
    clock_.Advance(std::max(std::min(NextDue(), until) - Now(), Duration{0}));
  }
}

}  // namespace platform
