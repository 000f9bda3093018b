#pragma once

#include "platform/screen.h"

namespace platform {

/// Whenever a window is told of another display mode or setting.
void ForgetScreenMode();

class Win32Screen final : public Screen {
 public:
  platform::Size Size() override;
  int Depth() override;
  Colour SystemColourOf(SystemColour colour) override;
  std::optional<Surface> Capture(const Rect& area) override;
  std::optional<Colour> ColourAt(Point p) override;
};

}  // namespace platform
