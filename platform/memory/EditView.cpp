#include "platform/memory/EditView.h"

#include <algorithm>

#include "platform/drawing.h"
#include "platform/memory/MemoryTextDrawing.h"

namespace platform {
namespace {

constexpr Colour kSelected = 0x6A240A;

std::vector<std::u16string_view> LinesOf(const EditText& edit, const Font& font, int width) {
  if (!edit.MultiLine()) return {edit.Text()};
  return MemoryTextDrawing::Lines(edit.Text(), font, width);
}

int StartOf(const EditText& edit, std::u16string_view line) {
  return static_cast<int>(line.data() - edit.Text().data());
}

int XOf(std::u16string_view line, int position, const Font& font) {
  const auto count = std::clamp(position, 0, static_cast<int>(line.size()));
  return MemoryTextDrawing::Width(line.substr(0, count), font);
}

}  // namespace

void PaintEdit(Surface& surface, const Rect& area, const EditText& edit, const EditLook& look) {
  const int height = MemoryTextDrawing::LineHeight(look.font);
  const Rect clip = area.Intersected(surface.Area());
  int y = area.top;
  for (const std::u16string_view line : LinesOf(edit, look.font, area.Width())) {
    if (y >= clip.bottom) return;
    const int start = StartOf(edit, line);
    const auto x = [&](int position) { return area.left + XOf(line, position - start, look.font); };
    const Rect row{area.left, y, area.right, y + height};
    MemoryTextDrawing::Paint(surface, row, line, look.font, look.text, {});
    const Rect selected =
        Rect{x(edit.Start()), y, x(edit.Start() + edit.Length()), y + height}.Intersected(clip);
    if (!selected.Empty()) {
      FillRect(surface, selected, kSelected);
      MemoryTextDrawing::Paint(
          surface, selected,
          line.substr(std::max(0, edit.Start() - start), static_cast<std::size_t>(edit.Length())),
          look.font, 0xFFFFFF, {});
    }
    const int caret = edit.Caret() - start;
    if (look.caret && caret >= 0 && caret <= static_cast<int>(line.size())) {
      FillRect(surface, Rect{x(edit.Caret()), y, x(edit.Caret()) + 1, y + height}.Intersected(clip),
               0);
    }
    y += height;
  }
}

int PositionAt(const EditText& edit, Point at, int width, const Font& font) {
  const auto lines = LinesOf(edit, font, width);
  const int height = MemoryTextDrawing::LineHeight(font);
  const int row = std::max(0, at.y / height);
  if (row >= static_cast<int>(lines.size())) return static_cast<int>(edit.Text().size());
  const std::u16string_view line = lines[row];
  int column = 0;
  while (column < static_cast<int>(line.size()) &&
         (XOf(line, column, font) + XOf(line, column + 1, font)) / 2 <= at.x) {
    ++column;
  }
  return StartOf(edit, line) + column;
}

}  // namespace platform
