// The look of the program's buttons: which cell of the skin belongs to which state, and its
// drawing.
#pragma once

#include "look/modStretchBrd.h"
#include "platform/surface.h"

namespace dorvalin {

struct ButtonState {
  bool pressed = false;
  bool keptDown = false;  ///< from outside, while a menu is open
  bool isDefault = false;
  bool enabled = true;
  bool hover = false;
};

struct SkinCell {
  int top;  ///< in the strip of cells
  BorderCells margins;
};

/// The first condition of the button's table that holds. A button at rest shares the calm cell of a
/// disabled one.
[[nodiscard]] SkinCell CellOf(const ButtonState& state);

/// Stretches the cell over the area. Nothing is drawn where the skin is missing.
void DrawSkin(platform::Surface& surface, const platform::Rect& area, const ButtonState& state);

}  // namespace dorvalin
