// The message loop and timers.
#pragma once

#include "platform/pump.h"
#include "platform/win32/handles.h"

namespace platform {

class Win32Pump final : public Pump {
 public:
  Win32Pump();
  ~Win32Pump() override;
  void DoEvents() override;
  [[nodiscard]] bool WaitAndDispatch() override;
  [[nodiscard]] std::unique_ptr<Timer> NewTimer(int interval, std::function<void()> tick) override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam) noexcept;
  void Dispatch(const MSG& message);
  bool IsTimer(const MSG& message) const;

  OwnedWindow timerWindow_;
};

}  // namespace platform
