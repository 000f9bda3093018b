// Dragging data out of a pane.
#pragma once

#include "platform/window.h"

namespace platform {

/// Runs the system's drag loop until the buttons are up or Escape. The effect that the target
/// chose, None when it was cancelled.
DropEffect RunDrag(const DataContent& data, DropEffect allowed, DragFeedback* feedback);

}  // namespace platform
