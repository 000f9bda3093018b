#include "platform/memory/WindowFrame.h"

#include "platform/drawing.h"
#include "platform/memory/MemoryTextDrawing.h"
#include "platform/raster.h"

namespace platform {
namespace {

constexpr Colour kFace = 0xC0C0C0;
constexpr Colour kActiveTitle = 0x6A240A;
constexpr Colour kInactiveTitle = 0x808080;
constexpr Colour kTitleText = 0xFFFFFF;

}  // namespace

Rect WindowFrame::TitleBar() const {
  const Rect inside = Inside();
  return {inside.left, window_.top + kOffset.x, inside.right, inside.top - 1};
}

Rect WindowFrame::CloseBox() const {
  const Rect title = TitleBar();
  return {title.right - 18, title.top + 2, title.right - 2, title.bottom - 2};
}

Rect WindowFrame::Inside() const {
  const Point rest = Point{kTaken.width, kTaken.height} - kOffset;
  return {window_.left + kOffset.x, window_.top + kOffset.y, window_.right - rest.x,
          window_.bottom - rest.y};
}

void WindowFrame::Paint(Surface& screen, std::u16string_view title, bool active) const {
  FillRect(screen, window_, kFace);
  DrawEdge(screen, window_, Edge::Raised, {});
  const Rect bar = TitleBar();
  FillRect(screen, bar, active ? kActiveTitle : kInactiveTitle);
  MemoryTextDrawing::Paint(screen, {bar.left + 4, bar.top, CloseBox().left, bar.bottom}, title,
                           {.bold = true}, kTitleText,
                           {.vertical = TextFormat::Vertical::Centre, .ellipsis = true});
  FillRect(screen, CloseBox(), kFace);
  DrawEdge(screen, CloseBox(), Edge::Raised, {});
  MemoryTextDrawing::Paint(
      screen, CloseBox().Grown(-1), u"x", {.bold = true}, 0,
      {.horizontal = TextFormat::Horizontal::Centre, .vertical = TextFormat::Vertical::Centre});
}

}  // namespace platform
