#pragma once

#include "platform/win32/NativeWindow.h"

namespace platform {

/// The handle of a window of this program; null for none and for one that was closed.
inline HWND HandleOf(const Window* window) {
  const auto* native = dynamic_cast<const NativeWindow*>(window);
  return native ? native->Handle() : nullptr;
}

}  // namespace platform
