#include "selector/WheelPainter.h"

#include "look/modMixBlt.h"
#include "platform/desktop.h"
#include "platform/drawing.h"
#include "platform/raster.h"
#include "platform/screen.h"
#include "platform/textdrawing.h"
#include "selector/WheelPictures.h"

namespace dorvalin {
namespace {

using platform::BitBlt;
using platform::Point;
using platform::RasterOp;
using platform::Rect;
using platform::Size;
using platform::Surface;
using platform::TheDesktop;

constexpr Size kSprite{kBubbleSize, kBubbleSize};
constexpr platform::Colour kWhite = 0xFFFFFF;
constexpr platform::Colour kBlack = 0;
constexpr int kCaptionAlpha = 50;

BubbleLook LookOf(int function, const WheelFrame& frame) {
  if (function == frame.active) return BubbleLook::Active;
  return function == frame.hover ? BubbleLook::Hover : BubbleLook::Normal;
}

void PaintPlain(Surface& canvas, const Rect& area, Point sprite) {
  const Surface& sheet = BubbleSheet();
  BitBlt(canvas, area, sheet, sprite, RasterOp::SrcInvert);
  BitBlt(canvas, area, sheet, kHardMask, RasterOp::SrcAnd);
  BitBlt(canvas, area, sheet, sprite, RasterOp::SrcInvert);
}

void PaintBubble(Surface& canvas, int function, const WheelFrame& frame) {
  const Point centre = frame.places[function - 1];
  const Point corner{centre.x - kBubbleSize / 2, centre.y - kBubbleSize / 2};
  const Point sprite = SpriteAt(function, LookOf(function, frame));
  const Rect area = Rect::At(corner, kSprite);
  const Surface& sheet = BubbleSheet();
  if (frame.plainMasks) {
    PaintPlain(canvas, area, sprite);
  } else if (frame.opacity == 255) {
    SoftBlt(canvas, area, {sheet, sprite}, {canvas, corner}, {sheet, kSoftMask});
  } else {
    SoftBltAlpha(canvas, area, {sheet, sprite}, {canvas, corner}, {sheet, kSoftMask},
                 static_cast<std::uint8_t>(frame.opacity));
  }
}

// A veil under the text keeps it legible on any screen; screens that cannot mix get a plain box.
void PaintCaption(Surface& canvas, std::u16string_view caption) {
  const platform::Font font;
  auto& text = TheDesktop().text();
  const Size size = text.Measure(caption, font);
  const Rect box =
      Rect::At({(canvas.Width() - size.width) / 2, (canvas.Height() - size.height) / 2}, size);
  const Rect veil{box.left - 2, box.top - 1, box.right + 2, box.bottom + 1};
  if (TheDesktop().screen().Depth() >= 24) {
    ColorBlt(canvas, veil, {canvas, veil.Origin()}, kWhite, kCaptionAlpha);
  } else {
    FillRect(canvas, veil, kWhite);
    FrameRect(canvas, veil, kBlack);
  }
  text.Draw(canvas, box, caption, font, kBlack, {});
}

}  // namespace

void PaintWheel(Surface& canvas, const WheelFrame& frame) {
  if (frame.background != nullptr) {
    BitBlt(canvas, canvas.Area(), *frame.background, {0, 0}, RasterOp::SrcCopy);
  }
  for (int i = 1; i <= kFunctionCount; ++i) PaintBubble(canvas, i, frame);
  if (!frame.caption.empty()) PaintCaption(canvas, frame.caption);
}

}  // namespace dorvalin
