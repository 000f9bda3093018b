// The signs of window buttons, drawn by the program itself: the symbol font that has them is
// missing on some machines.
#pragma once

#include <optional>
#include <string_view>

#include "platform/surface.h"

namespace dorvalin {

enum class WindowGlyph { Close, Left, Right, Up, Down, Square, Minimise, Restore, Maximise };

/// The sign that a caption stands for ("\C"); none for a plain text.
[[nodiscard]] std::optional<WindowGlyph> GlyphOf(std::u16string_view caption);

/// Draws it in the middle of the area, as large as the area's smaller side allows.
void DrawGlyph(platform::Surface& surface, const platform::Rect& area, WindowGlyph glyph,
               platform::Colour colour);

}  // namespace dorvalin
