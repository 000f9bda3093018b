// The reveal of a window by a growing circle.
#pragma once

#include "core/HiResTimer.h"
#include "platform/window.h"

namespace dorvalin {

/// Shows the window, without the activation, under a circle around `centre` (window pixels, may lie
/// outside) that grows by `step` pixels every `delay` until it covers the farthest corner. Pumps
/// once a step.
void FadeInCircle(platform::TopWindow& window, platform::Point centre, platform::Size size,
                  int step, HiResTime delay);

}  // namespace dorvalin
