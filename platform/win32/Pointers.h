// The system's pointers for the program's.
#pragma once

#include "platform/pointer.h"
#include "platform/win32/handles.h"

namespace platform {

/// A shared pointer that is never to be destroyed; the default one where a picture is unusable.
HCURSOR CursorOf(const Pointer& pointer);

}  // namespace platform
