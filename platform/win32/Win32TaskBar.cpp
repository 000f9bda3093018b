#include "platform/win32/Win32TaskBar.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/win32/IconHandle.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

constexpr UINT kIconMessage = WM_APP + 1;
constexpr UINT kIconId = 1;
constexpr const wchar_t* kClass = L"DorvalinTaskBarIcon";

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
  windowClass.lpszClassName = kClass;
  ::RegisterClassW(&windowClass);
  OwnedWindow window(::CreateWindowExW(WS_EX_TOOLWINDOW, kClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                       nullptr, program, nullptr));
  ::SetWindowLongPtrW(window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(object));
  return window;
}

}  // namespace

Win32TaskBar::~Win32TaskBar() { RemoveIcon(); }

bool Win32TaskBar::AddIcon(const Icon& icon, std::u16string_view tip,
                           std::function<void(TaskBarEvent)> happened) {
  RemoveIcon();
  window_ = NewHiddenWindow(&Win32TaskBar::Procedure, this);
  icon_ = IconHandleOf(icon);
  tip_ = tip;
  happened_ = std::move(happened);
  if (Tell(NIM_ADD)) return true;
  window_.reset();
  return false;
}

bool Win32TaskBar::ChangeIcon(const Icon& icon, std::u16string_view tip) {
  if (!window_) return false;
  // The old handle must outlive the change.
  const OwnedIcon former = std::exchange(icon_, IconHandleOf(icon));
  tip_ = tip;
  return Tell(NIM_MODIFY);
}

void Win32TaskBar::RemoveIcon() {
  if (!window_) return;
  Tell(NIM_DELETE);
  window_.reset();
  icon_.reset();
}

bool Win32TaskBar::Tell(DWORD operation) {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof(data);
  data.hWnd = window_.get();
  data.uID = kIconId;
  data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  data.uCallbackMessage = kIconMessage;
  data.hIcon = icon_.get();
  std::copy_n(Wide(tip_), std::min(tip_.size(), std::size(data.szTip) - 1), data.szTip);
  return ::Shell_NotifyIconW(operation, &data) != 0;
}

void Win32TaskBar::OnMouse(UINT message) {
  const std::optional<TaskBarEvent> event = EventOf(message);
  // A copy: what happens then may remove the icon or put up another.
  const auto happened = happened_;
  if (event && happened) happened(*event);
}

LRESULT CALLBACK Win32TaskBar::Procedure(HWND window, UINT id, WPARAM wParam,
                                         LPARAM lParam) noexcept {
  auto* self = reinterpret_cast<Win32TaskBar*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self && id == kIconMessage) {
    self->OnMouse(static_cast<UINT>(lParam));
    return 0;
  }
  if (self && id == TaskBarCreated()) self->Tell(NIM_ADD);
  return ::DefWindowProcW(window, id, wParam, lParam);
}

}  // namespace platform
