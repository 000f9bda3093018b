#include "platform/win32/Win32Input.h"

#include "platform/win32/KeyBatch.h"
#include "platform/win32/TypingTarget.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

// How long the keyboard may be on its way from our windows to the target's.
constexpr DWORD kActivationWait = 100;  // ms

bool PhysicallyDown(int virtualKey) { return (::GetAsyncKeyState(virtualKey) & 0x8000) != 0; }

/// The asynchronous state knows the buttons by their place, the user by what they do.
int KeyOf(Button button) {
  const bool swapped = ::GetSystemMetrics(SM_SWAPBUTTON) != 0;
  switch (button) {
    case Button::Left:
      return swapped ? VK_RBUTTON : VK_LBUTTON;
    case Button::Right:
      return swapped ? VK_LBUTTON : VK_RBUTTON;
    default:
      return VK_MBUTTON;
  }
}

}  // namespace

bool Win32Input::ButtonDown(Button button) { return PhysicallyDown(KeyOf(button)); }

bool Win32Input::KeyDown(int virtualKey) { return PhysicallyDown(virtualKey); }

Modifiers Win32Input::ModifiersDown() {
  return {PhysicallyDown(VK_SHIFT), PhysicallyDown(VK_CONTROL), PhysicallyDown(VK_MENU)};
}

Point Win32Input::PointerPosition() {
  POINT p{};
  ::GetCursorPos(&p);
  return PointOf(p);
}

void Win32Input::MovePointer(Point p) { ::SetCursorPos(p.x, p.y); }

void Win32Input::InjectKey(int virtualKey, int scanCode, bool extended, KeyEdge edge) {
  const DWORD flags =
      (extended ? KEYEVENTF_EXTENDEDKEY : 0u) | (edge == KeyEdge::Up ? KEYEVENTF_KEYUP : 0u);
  ::keybd_event(static_cast<BYTE>(virtualKey), static_cast<BYTE>(scanCode), flags, 0);
}

bool Win32Input::Type(const std::vector<KeyStroke>& strokes) {
  WaitForOtherForeground(kActivationWait);
  StrokeReader rest(strokes);
  TypingTarget target;
  while (!rest.AtEnd()) {
    KeyBatch batch;
    while (!rest.AtEnd() && !batch.Full()) batch.Add(rest.Next());
    if (!target.Take(batch)) return false;
  }
  return true;
}

}  // namespace platform
