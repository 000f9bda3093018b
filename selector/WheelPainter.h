// Paints a wheel: the captured screen, the bubbles over it, the caption in the middle.
#pragma once

#include <string_view>

#include "platform/surface.h"
#include "selector/WheelGeometry.h"

namespace dorvalin {

struct WheelFrame {
  const platform::Surface* background = nullptr;  ///< the screen under the window, of its size
  BubblePlaces places;
  int active = 0;  ///< function index, 0 for none
  int hover = 0;
  int opacity = 255;  ///< 0 to 255
  /// Plain masks instead of mixing, for slow machines while the wheel moves.
  bool plainMasks = false;
  /// Shown in the middle; empty for none.
  std::u16string_view caption;
};

void PaintWheel(platform::Surface& canvas, const WheelFrame& frame);

}  // namespace dorvalin
