// How an edited text lies in its box: plain lines from the top, wrapped between words.
#pragma once

#include "platform/font.h"
#include "platform/memory/EditText.h"
#include "platform/surface.h"

namespace platform {

struct EditLook {
  Font font{};
  Colour text = 0x000000;
  bool caret = false;
};

void PaintEdit(Surface& surface, const Rect& area, const EditText& edit, const EditLook& look);

/// The position nearest to a point of the text's area.
[[nodiscard]] int PositionAt(const EditText& edit, Point at, int width, const Font& font);

}  // namespace platform
