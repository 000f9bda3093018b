// Icons between their value and the system's handle.
#pragma once

#include "platform/icon.h"
#include "platform/win32/handles.h"

namespace platform {

/// Null for an empty icon or where the system makes none.
OwnedIcon IconHandleOf(const Icon& icon);

/// The pixels of a handle that stays the caller's; empty where they cannot be read. The mask of an
/// icon without alpha becomes its alpha.
Icon IconOfHandle(HICON handle);

}  // namespace platform
