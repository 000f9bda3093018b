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

// Beside each the character under which the symbol font "Marlett" has the sign.
constexpr GlyphCaption kCaptions[] = {
    {u"\\C", WindowGlyph::Close},     // r
    {u"\\L", WindowGlyph::Left},      // 3
    {u"\\R", WindowGlyph::Right},     // 4
    {u"\\T", WindowGlyph::Up},        // 5
    {u"\\B", WindowGlyph::Down},      // 6
    {u"\\S", WindowGlyph::Square},    // g
    {u"\\M", WindowGlyph::Minimise},  // 0
    {u"\\W", WindowGlyph::Restore},   // 2
    {u"\\X", WindowGlyph::Maximise},  // 1
};

/// How thick the strokes of a sign of that size are.
int StrokeOf(int side) { return (side + 5) / 6; }

// Its strokes are wider than high, so the sign is one stroke wider than the box.
void DrawCross(Surface& surface, const Rect& box, Colour colour) {
  const int stroke = StrokeOf(box.Width());
  for (int i = 0; i < box.Height(); ++i) {
    const int mirrored = box.Height() - 1 - i;
    FillRect(surface, Rect::At({box.left + i, box.top + i}, {stroke, 1}), colour);
    FillRect(surface, Rect::At({box.left + mirrored, box.top + i}, {stroke, 1}), colour);
  }
}

// Four rows or columns for a box of seven, each shorter by one pixel at both ends.
void DrawArrow(Surface& surface, const Rect& box, Point step, Colour colour) {
  const int depth = (box.Width() + 1) / 2;
  const Point middle = box.Middle();
  for (int i = 0; i < depth; ++i) {
    const int half = depth - 1 - i;
    const int along = i - depth / 2;
    const Point at{middle.x + step.x * along, middle.y + step.y * along};
    FillRect(surface,
             {at.x - (step.y ? half : 0), at.y - (step.x ? half : 0),
              at.x + (step.y ? half : 0) + 1, at.y + (step.x ? half : 0) + 1},
             colour);
  }
}

// A window: a frame with a heavier title bar.
void DrawWindow(Surface& surface, const Rect& box, int stroke, Colour colour) {
  FrameRect(surface, box, colour);
  FillRect(surface, Rect::At(box.Origin(), {box.Width(), stroke}), colour);
}

// Two windows behind each other; of the one behind only what the one in front leaves free.
void DrawRestore(Surface& surface, const Rect& box, int stroke, Colour colour) {
  const int side = box.Width() - 2;
  const Rect front{box.left, box.bottom - side + 1, box.left + side, box.bottom};
  const Rect behind{box.right - side, box.top, box.right, box.top + side - 1};
  FillRect(surface, {behind.left, behind.top, behind.right, behind.top + stroke}, colour);
  FillRect(surface, {behind.left, behind.top, behind.left + 1, front.top}, colour);
  FillRect(surface, {behind.right - 1, behind.top, behind.right, behind.bottom}, colour);
  FillRect(surface, {front.right, behind.bottom - 1, behind.right, behind.bottom}, colour);
  DrawWindow(surface, front, stroke, colour);
}

}  // namespace

std::optional<WindowGlyph> GlyphOf(std::u16string_view caption) {
  for (const GlyphCaption& known : kCaptions)
    if (known.caption == caption) return known.glyph;
  return std::nullopt;
}

void DrawGlyph(Surface& surface, const Rect& area, WindowGlyph glyph, Colour colour) {
  // Odd, so that arrows have a tip: 7 pixels in a button of 17.
  const int side = (std::max(std::min(area.Width(), area.Height()), 5) * 7 / 17) | 1;
  const Point middle = area.Middle();
  const Rect box = Rect::At({middle.x - side / 2, middle.y - side / 2}, {side, side});
  switch (glyph) {
    case WindowGlyph::Close:
      return DrawCross(surface, box, colour);
    case WindowGlyph::Left:
      return DrawArrow(surface, box, {-1, 0}, colour);
    case WindowGlyph::Right:
      return DrawArrow(surface, box, {1, 0}, colour);
    case WindowGlyph::Up:
      return DrawArrow(surface, box, {0, -1}, colour);
    case WindowGlyph::Down:
      return DrawArrow(surface, box, {0, 1}, colour);
    case WindowGlyph::Square:
      return FillRect(surface, box.Grown(-1), colour);
    case WindowGlyph::Minimise:
      return FillRect(surface, {box.left, box.bottom - StrokeOf(side), box.right, box.bottom},
                      colour);
    case WindowGlyph::Restore:
      return DrawRestore(surface, box.Grown(1), StrokeOf(side), colour);
    case WindowGlyph::Maximise:
      return DrawWindow(surface, box.Grown(1), StrokeOf(side), colour);
  }
}

}  // namespace dorvalin
