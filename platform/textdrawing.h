// Text on surfaces, in the desktop's fonts.
#pragma once

#include <string_view>

#include "platform/font.h"
#include "platform/surface.h"

namespace platform {

struct TextFormat {
  enum class Horizontal { Left, Centre, Right };
  enum class Vertical { Top, Centre, Bottom };
  Horizontal horizontal = Horizontal::Left;
  Vertical vertical = Vertical::Top;
  bool wordBreak = false;   ///< several lines; otherwise one
  bool ellipsis = false;    ///< cut with "..." where it does not fit
  bool accessKeys = false;  ///< "&" underlines the next character instead of being shown
};

class TextDrawing {
 public:
  virtual ~TextDrawing() = default;
  /// Size of the text in one line, in pixels; the height is that of the font's line.
  [[nodiscard]] virtual Size Measure(std::u16string_view text, const Font& font) = 0;
  /// Height in pixels of the text broken into lines at this width.
  [[nodiscard]] virtual int MeasureHeight(std::u16string_view text, const Font& font,
                                          int width) = 0;
  /// Draws inside `area`, clipped to it; the background stays.
  virtual void Draw(Surface& surface, const Rect& area, std::u16string_view text, const Font& font,
                    Colour colour, const TextFormat& format) = 0;
};

}  // namespace platform
