// The screen: its size, depth, system colours and what it shows.
#pragma once

#include <optional>

#include "platform/drawing.h"
#include "platform/surface.h"

namespace platform {

/// System colours by their numbers (GetSysColor).
enum class SystemColour {
  Window = 5,
  WindowText = 8,
  Highlight = 13,
  HighlightText = 14,
  ButtonFace = 15,
  ButtonShadow = 16,
  GrayText = 17,
  ButtonText = 18,
  ButtonHighlight = 20,
  DarkShadow = 21,
  Light = 22,
  TipText = 23,
  TipBackground = 24,
};

class Screen {
 public:
  virtual ~Screen() = default;
  [[nodiscard]] virtual platform::Size Size() = 0;
  /// Bits per pixel (16, 24, 32 ...); 0 for a screen with a palette.
  [[nodiscard]] virtual int Depth() = 0;
  [[nodiscard]] virtual Colour SystemColourOf(SystemColour colour) = 0;
  /// What the screen shows there, other programs included. Parts off the screen are black. None
  /// when the screen cannot be read.
  [[nodiscard]] virtual std::optional<Surface> Capture(const Rect& area) = 0;
  [[nodiscard]] virtual std::optional<Colour> ColourAt(Point p) = 0;
};

[[nodiscard]] EdgeColours SystemEdgeColours(Screen& screen);

}  // namespace platform
