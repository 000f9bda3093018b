#include "platform/win32/fonts.h"

#include <algorithm>
#include <cmath>

#include "platform/win32/wide.h"

namespace platform {
namespace {

// Forms are laid out at a fixed 15 twips to the pixel, which is 96 pixels to the inch; text of
// another scale would not fit in them.
constexpr double kPixelsPerPoint = 96.0 / 72.0;

LONG HeightOf(double points) { return -static_cast<LONG>(std::lround(points * kPixelsPerPoint)); }

}  // namespace

LOGFONTW LogFontOf(const Font& font) {
  LOGFONTW description{};
  description.lfHeight = HeightOf(font.points);
  description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.italic;
  description.lfUnderline = font.underline;
  description.lfStrikeOut = font.strikeOut;
  description.lfCharSet = DEFAULT_CHARSET;
  description.lfQuality = ANTIALIASED_QUALITY;
  const std::size_t length = std::min<std::size_t>(font.face.size(), LF_FACESIZE - 1);
  std::copy_n(Wide(font.face), length, description.lfFaceName);
  return description;
}

Font FontOf(const LOGFONTW& description) {
  Font font;
  font.face = Text(description.lfFaceName);
  font.points = std::abs(static_cast<double>(description.lfHeight)) / kPixelsPerPoint;
  font.bold = description.lfWeight >= FW_BOLD;
  font.italic = description.lfItalic != 0;
  font.underline = description.lfUnderline != 0;
  font.strikeOut = description.lfStrikeOut != 0;
  return font;
}

OwnedFont NewFont(const Font& font) {
  const LOGFONTW description = LogFontOf(font);
  return OwnedFont(::CreateFontIndirectW(&description));
}

}  // namespace platform
