// The message loop and timers. Everything happens on one thread; whoever pumps can be called back
// from within.
#pragma once

#include <functional>
#include <memory>

namespace platform {

/// Ticks while enabled and while somebody pumps; a tick that was missed is not made up for.
/// Destroying it (also in its own tick) ends it.
class Timer {
 public:
  virtual ~Timer() = default;
  virtual void SetEnabled(bool enabled) = 0;
  [[nodiscard]] virtual bool Enabled() const = 0;
};

class Pump {
 public:
  virtual ~Pump() = default;
  /// Delivers what waits (input, due timers, repaints) and returns; waits for nothing.
  virtual void DoEvents() = 0;
  /// Waits for something to deliver and delivers it. False: the desktop ends or nothing can ever
  /// come; every loop must end then.
  [[nodiscard]] virtual bool WaitAndDispatch() = 0;
  /// Starts disabled. The interval is in milliseconds, at least 1.
  [[nodiscard]] virtual std::unique_ptr<Timer> NewTimer(int interval,
                                                        std::function<void()> tick) = 0;
};

}  // namespace platform
