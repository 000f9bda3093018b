// What the system's pointer messages say.
#pragma once

#include "platform/win32/NativeWindow.h"
#include "platform/window.h"

namespace platform {

enum class ButtonEvent { Down, Up, Second };  ///< in the order of the system's numbers
struct ButtonMessage {
  Button button;
  ButtonEvent event;
};

/// None: the message is about no button.
inline std::optional<ButtonMessage> ButtonMessageOf(const WindowMessage& m) {
  static_assert(WM_LBUTTONUP == WM_LBUTTONDOWN + 1 && WM_LBUTTONDBLCLK == WM_LBUTTONDOWN + 2);
  static_assert(WM_RBUTTONDOWN == WM_LBUTTONDOWN + 3 && WM_MBUTTONDOWN == WM_LBUTTONDOWN + 6);
  if (m.id < WM_LBUTTONDOWN || m.id > WM_MBUTTONDBLCLK) return std::nullopt;
  const UINT n = m.id - WM_LBUTTONDOWN;
  return ButtonMessage{static_cast<Button>(n / 3), static_cast<ButtonEvent>(n % 3)};
}

inline MouseEvent MouseEventOf(const WindowMessage& m) {
  MouseEvent event;
  event.at = {GET_X_LPARAM(m.lParam), GET_Y_LPARAM(m.lParam)};
  event.modifiers = {.shift = (m.wParam & MK_SHIFT) != 0,
                     .control = (m.wParam & MK_CONTROL) != 0,
                     .alt = ::GetKeyState(VK_MENU) < 0};
  event.left = (m.wParam & MK_LBUTTON) != 0;
  event.right = (m.wParam & MK_RBUTTON) != 0;
  event.middle = (m.wParam & MK_MBUTTON) != 0;
  return event;
}

}  // namespace platform
