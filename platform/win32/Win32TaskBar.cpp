#include "platform/win32/Win32TaskBar.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/win32/IconHandle.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr UINT kHappened = WM_APP + 2;  // from the window to itself; wParam: the event
constexpr UINT kIconId = 1;

UINT TaskBarCreated() {
  static const UINT message = ::RegisterWindowMessageW(L"TaskbarCreated");
  return message;
}

std::optional<TaskBarEvent> EventOf(UINT message) {
  switch (message) {
    case WM_LBUTTONUP:
      return TaskBarEvent::LeftUp;
    case WM_LBUTTONDBLCLK:
      return TaskBarEvent::LeftDoubleClick;
    case WM_RBUTTONUP:
      return TaskBarEvent::RightUp;
    default:
      return {};
  }
}

/// A top-level window, since the news of a new task bar goes to no other.
OwnedWindow NewHiddenWindow(WNDPROC procedure, void* object) {
  const HINSTANCE program = ::GetModuleHandleW(nullptr);
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = program;
  windowClass.lpszClassName = kTaskBarIconClass;
  ::RegisterClassW(&windowClass);
  OwnedWindow window(::CreateWindowExW(WS_EX_TOOLWINDOW, kTaskBarIconClass, L"", WS_POPUP, 0, 0, 0,
                                       0, nullptr, nullptr, program, nullptr));
  ::SetWindowLongPtrW(window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(object));
  return window;
}

}  // namespace

Win32TaskBar::~Win32TaskBar() { RemoveIcon(); }

bool Win32TaskBar::AddIcon(const Icon& icon, std::u16string_view tip,
                           std::function<void(TaskBarEvent)> happened) {
  RemoveIcon();
  window_ = NewHiddenWindow(&Win32TaskBar::Procedure, this);
  if (!window_) return false;
  icon_ = IconHandleOf(icon);
  tip_ = tip;
  happened_ = std::move(happened);
  Tell(NIM_ADD);
  return true;
}

bool Win32TaskBar::ChangeIcon(const Icon& icon, std::u16string_view tip) {
  if (!window_) return false;
  // The old handle must outlive the change.
  const OwnedIcon former = std::exchange(icon_, IconHandleOf(icon));
  tip_ = tip;
  Tell(NIM_MODIFY);
  return true;
}

void Win32TaskBar::RemoveIcon() {
  if (!window_) return;
  Tell(NIM_DELETE);
  window_.reset();
  icon_.reset();
}

void Win32TaskBar::Tell(DWORD operation) {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof(data);
  data.hWnd = window_.get();
  data.uID = kIconId;
  data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  data.uCallbackMessage = kTaskBarIconMessage;
  data.hIcon = icon_.get();
  std::copy_n(Wide(tip_), std::min(tip_.size(), std::size(data.szTip) - 1), data.szTip);
  // A refusal is no failure: a task bar that is not there yet is told when it comes.
  ::Shell_NotifyIconW(operation, &data);
}

void Win32TaskBar::Happened(TaskBarEvent event) {
  // A copy: what happens then may remove the icon or put up another.
  const auto happened = happened_;
  if (happened) happened(event);
}

LRESULT Win32TaskBar::Receive(UINT id, WPARAM wParam, LPARAM lParam) {
  switch (id) {
    case kTaskBarIconMessage:
      // The task bar sends its clicks, and what is sent comes through also while the program types
      // and lets nothing else in. What the click leads to waits for the loop.
      if (const auto event = EventOf(static_cast<UINT>(lParam))) {
        ::PostMessageW(window_.get(), kHappened, static_cast<WPARAM>(*event), 0);
      }
      return 0;
    case kHappened:
      Happened(static_cast<TaskBarEvent>(wParam));
      return 0;
    case WM_CLOSE:
      // Another program's wish; the window goes with its icon.
      return 0;
    default:
      if (id == TaskBarCreated()) Tell(NIM_ADD);
      return ::DefWindowProcW(window_.get(), id, wParam, lParam);
  }
}

LRESULT CALLBACK Win32TaskBar::Procedure(HWND window, UINT id, WPARAM wParam,
                                         LPARAM lParam) noexcept {
  auto* self = reinterpret_cast<Win32TaskBar*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  // While it is made and while it goes, its owner does not know it.
  if (!self || self->window_.get() != window) {
    return ::DefWindowProcW(window, id, wParam, lParam);
  }
  try {
    return self->Receive(id, wParam, lParam);
  } catch (...) {
    // What a click could not do must not unwind through the system.
    return 0;
  }
}

}  // namespace platform
