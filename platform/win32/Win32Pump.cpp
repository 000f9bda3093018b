#include "platform/win32/Win32Pump.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "platform/win32/Win32TopWindow.h"

namespace platform {
namespace {

constexpr const wchar_t* kTimerClass = L"DorvalinTimers";

using Tick = std::shared_ptr<std::function<void()>>;

// By number, so that a message that is still under way for an ended timer finds nothing.
std::unordered_map<UINT_PTR, Tick>& TickOf() {
  static std::unordered_map<UINT_PTR, Tick> ticks;
  return ticks;
}

class Win32Timer final : public Timer {
 public:
  Win32Timer(HWND window, int interval, std::function<void()> tick)
      : window_(window), interval_(static_cast<UINT>(std::max(interval, 1))), number_(++last_) {
    TickOf()[number_] = std::make_shared<std::function<void()>>(std::move(tick));
  }
  ~Win32Timer() override {
    SetEnabled(false);
    TickOf().erase(number_);
  }
  void SetEnabled(bool enabled) override {
    if (enabled == enabled_) return;
    enabled_ = enabled && ::SetTimer(window_, number_, interval_, nullptr) != 0;
    if (!enabled_) ::KillTimer(window_, number_);
  }
  [[nodiscard]] bool Enabled() const override { return enabled_; }

 private:
  inline static UINT_PTR last_ = 0;
  HWND window_;
  UINT interval_;
  UINT_PTR number_;
  bool enabled_ = false;
};

// Held for the call: a tick may end its own timer.
void RunTick(UINT_PTR number) {
  const auto found = TickOf().find(number);
  if (found == TickOf().end()) return;
  const Tick tick = found->second;
  if (*tick) (*tick)();
}

bool IsKeyDown(const MSG& message) {
  return message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
}

bool TakenByPreview(const MSG& message) {
  auto* top = dynamic_cast<Win32TopWindow*>(NativeWindow::RootOf(message.hwnd));
  return top && top->PreviewKey(message);
}

}  // namespace

Win32Pump::Win32Pump() {
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  description.lpfnWndProc = Procedure;
  description.hInstance = ::GetModuleHandleW(nullptr);
  description.lpszClassName = kTimerClass;
  ::RegisterClassExW(&description);
  timerWindow_.reset(::CreateWindowExW(0, kTimerClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE,
                                       nullptr, description.hInstance, nullptr));
}

Win32Pump::~Win32Pump() = default;

LRESULT CALLBACK Win32Pump::Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam) noexcept {
  if (id != WM_TIMER) return ::DefWindowProcW(window, id, wParam, lParam);
  try {
    RunTick(wParam);
  } catch (...) {
    // What a tick could not do must not unwind through the system; the next one tries again.
  }
  return 0;
}

bool Win32Pump::IsTimer(const MSG& message) const {
  return message.message == WM_TIMER && message.hwnd == timerWindow_.get();
}

void Win32Pump::DoEvents() {
  std::vector<UINT_PTR> ticked;
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // Every loop around this one has to see it too.
      ::PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (IsTimer(message)) {
      // A tick slower than its interval is always due again; timers come last, so all else is done.
      if (std::ranges::find(ticked, message.wParam) != ticked.end()) return;
      ticked.push_back(message.wParam);
    }
    Dispatch(message);
  }
}

// Not by GetMessage: it delivers what other programs send (the task bar's clicks among it) without
// returning, and the loop would not see that the last form has gone.
bool Win32Pump::WaitAndDispatch() {
  ::MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  MSG message;
  if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return true;
  if (message.message == WM_QUIT) {
    ::PostQuitMessage(static_cast<int>(message.wParam));
    return false;
  }
  Dispatch(message);
  return true;
}

void Win32Pump::Dispatch(const MSG& message) {
  if (IsKeyDown(message) && TakenByPreview(message)) return;
  ::TranslateMessage(&message);
  ::DispatchMessageW(&message);
}

std::unique_ptr<Timer> Win32Pump::NewTimer(int interval, std::function<void()> tick) {
  return std::make_unique<Win32Timer>(timerWindow_.get(), interval, std::move(tick));
}

}  // namespace platform
