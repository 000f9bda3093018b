// The system's pointers for the program's.
#pragma once

#include "platform/pointer.h"
#include "platform/win32/handles.h"

namespace platform {

/// A shared pointer that is never to be destroyed; the default one where a picture is unusable.
HCURSOR CursorOf(const Pointer& pointer);

/// The hourglass over every window of the program.
void SetWaitPointer(bool wait);
[[nodiscard]] bool WaitPointerSet();

HWND WindowUnderPointer();
/// A pointer that rests sends no message by which it would change.
void ShowPointerAnew();

}  // namespace platform
