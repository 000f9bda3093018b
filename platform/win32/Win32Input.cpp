#include "platform/win32/Win32Input.h"

#include <algorithm>

#include "platform/win32/KeyBatch.h"
#include "platform/win32/Pointers.h"
#include "platform/win32/TypingTarget.h"
#include "platform/win32/handles.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

struct Typing {
  const std::vector<KeyBatch> batches;
  bool complete = false;
};

DWORD WINAPI TypeAll(void* parameter) noexcept {
  auto& typing = *static_cast<Typing*>(parameter);
  TypingTarget target;
  try {
    typing.complete = std::ranges::all_of(
        typing.batches, [&](const KeyBatch& batch) { return target.Take(batch); });
  } catch (...) {  // No memory for a batch; it and what is behind it stay untyped.
  }
  return 0;
}

/// Waits without dispatching input or ticks, but answers what other programs ask of our windows:
/// one that pastes may ask the clipboard's owner, and would hang as long as nobody answers.
void WaitAnswering(HANDLE thread) {
  MSG message;
  while (::MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, QS_SENDMESSAGE) ==
         WAIT_OBJECT_0 + 1) {
    ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
  }
}

/// The asynchronous state knows the buttons by their place, the user by what they do.
int KeyOf(Button button) {
  if (button == Button::Middle) return VK_MBUTTON;
  const bool swapped = ::GetSystemMetrics(SM_SWAPBUTTON) != 0;
  return (button == Button::Left) == swapped ? VK_RBUTTON : VK_LBUTTON;
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

void Win32Input::SetWaitPointer(bool wait) { platform::SetWaitPointer(wait); }

void Win32Input::InjectKey(int virtualKey, int scanCode, bool extended, KeyEdge edge) {
  const DWORD flags =
      (extended ? KEYEVENTF_EXTENDEDKEY : 0u) | (edge == KeyEdge::Up ? KEYEVENTF_KEYUP : 0u);
  ::keybd_event(static_cast<BYTE>(virtualKey), static_cast<BYTE>(scanCode), flags, 0);
}

bool Win32Input::Type(const std::vector<KeyStroke>& strokes) {
  // On a thread without windows, whose input can be joined with the target's: the pointer over a
  // window of this thread, which does not pump meanwhile, would hold up both.
  Typing typing{BatchesOf(strokes)};
  const OwnedKernel thread(::CreateThread(nullptr, 0, TypeAll, &typing, 0, nullptr));
  if (!thread) return false;
  WaitAnswering(thread.get());
  return typing.complete;
}

}  // namespace platform
