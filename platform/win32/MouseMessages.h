// What the system's pointer messages say.
#pragma once

#include "platform/win32/NativeWindow.h"
#include "platform/window.h"

namespace platform {

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
