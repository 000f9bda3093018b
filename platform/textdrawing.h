// Text on surfaces, in the desktop's fonts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

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

/// What a font really becomes.
struct ResolvedFace {
  std::u16string face;  ///< empty where the desktop cannot tell
  int charset = 0;      ///< its number in Rich Text
  friend bool operator==(const ResolvedFace&, const ResolvedFace&) = default;
};
inline constexpr int kSymbolCharset = 2;

class TextDrawing {
 public:
  virtual ~TextDrawing() = default;
  /// Every face that can be shown upright, each once, in alphabetical order.
  [[nodiscard]] virtual std::vector<std::u16string> Faces() = 0;
  /// The face that stands in for the font's own where that one is missing is another one than asked
  /// for; compare without case.
  [[nodiscard]] virtual ResolvedFace Resolve(const Font& font) = 0;
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
