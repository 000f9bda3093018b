#include "platform/win32/Win32Windows.h"

#include "platform/win32/Win32TopWindow.h"
#include "platform/win32/WindowHandle.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

std::u16string ClassNameOf(HWND window) {
  wchar_t name[256] = {};
  ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return Text(name);
}

BOOL CALLBACK HideIfOfClass(HWND window, LPARAM prefix) {
  if (ClassNameOf(window).starts_with(*reinterpret_cast<const std::u16string_view*>(prefix))) {
    ::ShowWindow(window, SW_HIDE);
  }
  return TRUE;
}

}  // namespace

std::unique_ptr<TopWindow> Win32Windows::NewTopWindow(const TopWindowOptions& options,
                                                      TopWindowEvents& events) {
  auto window = std::make_unique<Win32TopWindow>(events);
  return window->Make(options) ? std::move(window) : nullptr;
}

std::unique_ptr<Pane> Win32Windows::NewPane(Pane& parent, const Rect& bounds, bool focusable,
                                            PaneEvents& events) {
  const HWND handle = HandleOf(&parent);
  if (!handle) return nullptr;
  auto pane = std::make_unique<Win32Pane>(events, focusable);
  return pane->Make(handle, bounds) ? std::move(pane) : nullptr;
}

Foreground Win32Windows::ForegroundWindow() {
  const HWND window = ::GetForegroundWindow();
  const auto* object = dynamic_cast<const Win32TopWindow*>(NativeWindow::Of(window));
  return {.ours = object, .present = window != nullptr};
}

const Window* Win32Windows::WindowAt(Point screen) {
  NativeWindow* object = NativeWindow::Around(::WindowFromPoint(PointOf(screen)));
  return object ? &object->Port() : nullptr;
}

void Win32Windows::HideWindowsOfClass(std::u16string_view prefix) {
  ::EnumThreadWindows(::GetCurrentThreadId(), HideIfOfClass, reinterpret_cast<LPARAM>(&prefix));
}

}  // namespace platform
