#pragma once

#include <utility>
#include <vector>

#include "platform/textdrawing.h"
#include "platform/win32/handles.h"

namespace platform {

class Win32TextDrawing final : public TextDrawing {
 public:
  Win32TextDrawing();
  std::vector<std::u16string> Faces() override;
  ResolvedFace Resolve(const Font& font) override;
  platform::Size Measure(std::u16string_view text, const Font& font) override;
  int MeasureHeight(std::u16string_view text, const Font& font, int width) override;
  void Draw(Surface& surface, const Rect& area, std::u16string_view text, const Font& font,
            Colour colour, const TextFormat& format) override;

 private:
  /// Stays the cache's; valid until the next call.
  HFONT HandleOf(const Font& font);
  int HeightOf(HDC dc, std::u16string_view text, int width, UINT flags);

  OwnedDc measuring_;
  std::vector<std::pair<Font, OwnedFont>> fonts_;
};

}  // namespace platform
