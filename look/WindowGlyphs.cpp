#include "look/WindowGlyphs.h"

#include <algorithm>

#include "platform/drawing.h"

namespace dorvalin {
namespace {

using platform::Colour;
using platform::Point;
using platform::Rect;
using platform::Surface;

struct GlyphCaption {
  std::u16string_view caption;
  WindowGlyph glyph;
};

constexpr GlyphCaption kCaptions[] = {
    {u"\\C", WindowGlyph::Close},    {u"\\L", WindowGlyph::Left},
    {u"\\R", WindowGlyph::Right},    {u"\\T", WindowGlyph::Up},
    {u"\\B", WindowGlyph::Down},     {u"\\S", WindowGlyph::Sunken},
    {u"\\M", WindowGlyph::Minimise}, {u"\\W", WindowGlyph::Restore},
    {u"\\X", WindowGlyph::Maximise},
};

void DrawCross(Surface& surface, const Rect& box, Colour colour) {
  const int length = box.Width();
  for (int i = 0; i < length; ++i) {
    FillRect(surface, Rect::At({box.left + i, box.top + i}, {2, 1}), colour);
    FillRect(surface, Rect::At({box.left + i, box.bottom - 1 - i}, {2, 1}), colour);
  }
}

// A triangle of rows or columns that shrink by one pixel at both ends.
void DrawArrow(Surface& surface, const Rect& box, WindowGlyph glyph, Colour colour) {
  const int depth = (box.Width() + 1) / 2;
  const Point middle = box.Middle();
  for (int i = 0; i < depth; ++i) {
    const int half = depth - 1 - i;
    const int across = 2 * half + 1;
    const int along =
        glyph == WindowGlyph::Right || glyph == WindowGlyph::Down ? i - depth / 2 : depth / 2 - i;
    const bool upright = glyph == WindowGlyph::Up || glyph == WindowGlyph::Down;
    const Rect row = upright ? Rect::At({middle.x - half, middle.y + along}, {across, 1})
                             : Rect::At({middle.x + along, middle.y - half}, {1, across});
    FillRect(surface, row, colour);
  }
}

void DrawSheet(Surface& surface, const Rect& box, Colour colour) {
  FrameRect(surface, box, colour);
  FillRect(surface, Rect::At(box.Origin(), {box.Width(), 2}), colour);
}

// Two sheets behind each other; the one in front covers the other's corner.
void DrawRestore(Surface& surface, const Rect& box, Colour colour) {
  const int side = box.Width() * 2 / 3;
  const Rect back = Rect::At({box.right - side, box.top}, {side, side});
  const Rect front = Rect::At({box.left, box.bottom - side}, {side, side});
  DrawSheet(surface, front, colour);
  FillRect(surface, {back.left, back.top, back.right, back.top + 2}, colour);
  FillRect(surface, {back.right - 1, back.top, back.right, back.bottom}, colour);
  FillRect(surface, {back.left, back.top, back.left + 1, front.top}, colour);
  FillRect(surface, {front.right, back.bottom - 1, back.right, back.bottom}, colour);
}

}  // namespace

bool GlyphOf(std::u16string_view caption, WindowGlyph& glyph) {
  const auto* at = std::find_if(std::begin(kCaptions), std::end(kCaptions),
                                [&](const GlyphCaption& c) { return c.caption == caption; });
  if (at == std::end(kCaptions)) return false;
  glyph = at->glyph;
  return true;
}

void DrawGlyph(Surface& surface, const Rect& area, WindowGlyph glyph, Colour colour) {
  const int side = std::max(std::min(area.Width(), area.Height()) * 7 / 17, 3);
  const Point middle = area.Middle();
  const Rect box = Rect::At({middle.x - side / 2, middle.y - side / 2}, {side, side});
  switch (glyph) {
    case WindowGlyph::Close:
      return DrawCross(surface, {box.left, box.top, box.right, box.bottom}, colour);
    case WindowGlyph::Left:
    case WindowGlyph::Right:
    case WindowGlyph::Up:
    case WindowGlyph::Down:
      return DrawArrow(surface, box, glyph, colour);
    case WindowGlyph::Sunken:
      return DrawCircle(surface, middle, side / 4, colour);
    case WindowGlyph::Minimise:
      return FillRect(surface, {box.left, box.bottom - 2, box.right, box.bottom}, colour);
    case WindowGlyph::Restore:
      return DrawRestore(surface, box, colour);
    case WindowGlyph::Maximise:
      return DrawSheet(surface, box, colour);
  }
}

}  // namespace dorvalin
