// Text in a small built-in face, the same on every machine. Every face is drawn with these letters,
// scaled by the font's size; bold thickens, italic leans.
#pragma once

#include <map>
#include <vector>

#include "platform/memory/Faults.h"
#include "platform/textdrawing.h"

namespace platform {

class MemoryTextDrawing : public TextDrawing {
 public:
  explicit MemoryTextDrawing(Faults& faults) : faults_(faults) {}

  /// The faces and their charsets, which a test may set. Any other font becomes the first of them.
  std::map<std::u16string, int> faces{{u"Arial", 0},         {u"Courier New", 0},
                                      {u"MS Sans Serif", 0}, {u"Symbol", kSymbolCharset},
                                      {u"Tahoma", 0},        {u"Times New Roman", 0}};

  std::vector<std::u16string> Faces() override;
  ResolvedFace Resolve(const Font& font) override;
  Size Measure(std::u16string_view text, const Font& font) override;
  int MeasureHeight(std::u16string_view text, const Font& font, int width) override;
  void Draw(Surface& surface, const Rect& area, std::u16string_view text, const Font& font,
            Colour colour, const TextFormat& format) override;

  // The same for the desktop itself, which draws whatever fails for the program.
  static int Width(std::u16string_view text, const Font& font);
  static int LineHeight(const Font& font);
  static void Paint(Surface& surface, const Rect& area, std::u16string_view text, const Font& font,
                    Colour colour, const TextFormat& format);
  /// Broken at line ends and, where a line gets wider than `width`, between words.
  static std::vector<std::u16string_view> Lines(std::u16string_view text, const Font& font,
                                                int width);

 private:
  Faults& faults_;
};

}  // namespace platform
