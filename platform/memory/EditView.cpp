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

int XOf(const EditText& edit, std::u16string_view line, int position, const Font& font) {
  const int start = StartOf(edit, line);
  int x = 0;
  for (int n = 0; n < position && n < static_cast<int>(line.size()); ++n) {
    x += MemoryTextDrawing::Width(line.substr(n, 1), edit.FontAt(start + n, font));
  }
  return x;
}

void PaintLine(Surface& surface, const Rect& row, const EditText& edit, std::u16string_view line,
               const EditLook& look) {
  const int start = StartOf(edit, line);
  int x = row.left;
  for (int n = 0; n < static_cast<int>(line.size()); ++n) {
    const int at = start + n;
    const Font font = edit.FontAt(at, look.font);
    const int right = x + MemoryTextDrawing::Width(line.substr(n, 1), font);
    const bool selected = at >= edit.Start() && at < edit.Start() + edit.Length();
    const Rect place{x, row.top, row.right, row.bottom};
    if (selected) {
      FillRect(surface, Rect{x, row.top, right, row.bottom}.Intersected(row), kSelected);
    }
    MemoryTextDrawing::Paint(surface, place.Intersected(row), line.substr(n, 1), font,
                             selected ? 0xFFFFFF : edit.ColourAt(at, look.text), {});
    x = right;
  }
}

}  // namespace

void PaintEdit(Surface& surface, const Rect& area, const EditText& edit, const EditLook& look) {
  const int height = MemoryTextDrawing::LineHeight(look.font);
  const Rect clip = area.Intersected(surface.Area());
  int y = area.top;
  for (const std::u16string_view line : LinesOf(edit, look.font, area.Width())) {
    if (y >= clip.bottom) return;
    const Rect row = Rect{area.left, y, area.right, y + height}.Intersected(clip);
    PaintLine(surface, row, edit, line, look);
    const int caret = edit.Caret() - StartOf(edit, line);
    if (look.caret && caret >= 0 && caret <= static_cast<int>(line.size())) {
      const int x = area.left + XOf(edit, line, caret, look.font);
      FillRect(surface, Rect{x, y, x + 1, y + height}.Intersected(clip), 0);
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
         (XOf(edit, line, column, font) + XOf(edit, line, column + 1, font)) / 2 <= at.x) {
    ++column;
  }
  return StartOf(edit, line) + column;
}

}  // namespace platform
