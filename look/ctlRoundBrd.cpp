#include "look/ctlRoundBrd.h"

#include "artwork/pictures.h"
#include "core/colours.h"
#include "look/modMixBlt.h"
#include "look/modStretchBrd.h"
#include "platform/desktop.h"
#include "platform/screen.h"

namespace dorvalin {
namespace {

using platform::Rect;
using platform::Surface;
using platform::SystemColour;

constexpr platform::Size kMask{80, 80};
/// The mask, and the shadow one pixel to the right and below.
constexpr platform::Size kFrame{81, 81};
constexpr BorderCells kCells{10, 10, 11, 11};
constexpr int kHighColorDepth = 16;

platform::Colour ColourOf(SystemColour which) {
  return platform::TheDesktop().screen().SystemColourOf(which);
}

}  // namespace

ctlRoundBrd::ctlRoundBrd(platform::Pane& parent, const Rect& bounds)
    : HighColor_(GetDepth() >= kHighColorDepth),
      pane_(platform::TheDesktop().windows().NewPane(parent, bounds, false, *this)) {
  TakeColours();
  BuildFrame();
  // What is drawn now is kept until the show, which need not draw again.
  DrawFrame();
}

void ctlRoundBrd::TakeColours() {
  const platform::Colour window = ColourOf(SystemColour::Window);
  FaceColor_ = ColourOf(SystemColour::ButtonFace);
  FrameColor_ = HighColor_ ? BlendColor(FaceColor_, window, 0.5) : window;
  ShadowColor_ = BlendColor(FaceColor_, ColourOf(SystemColour::ButtonShadow), 0.5);
}

void ctlRoundBrd::BuildFrame() {
  picTmp_ = Surface(kFrame);
  FillRect(picTmp_, picTmp_.Area(), HighColor_ ? FaceColor_ : FrameColor_);
  if (HighColor_) {
    const Surface picSrc = PictureSurface(Picture::ctlRoundBrdMask);
    TwoColorBlt(picTmp_, Rect::At({1, 1}, kMask), FaceColor_, ShadowColor_, {picSrc, {}});
    KeyBlt(picTmp_, Rect::At({}, kMask), {picTmp_, {}}, FrameColor_, {picSrc, {}});
  } else {
    FrameRect(picTmp_, picTmp_.Area(), ColourOf(SystemColour::ButtonShadow));
  }
  Prepared_ = !picTmp_.Empty();
}

void ctlRoundBrd::DrawFrame() {
  PendingDraw_ = false;
  if (!pane_ || !Prepared_) return;
  Surface& canvas = pane_->Canvas();
  FillRect(canvas, canvas.Area(), FaceColor_);
  StretchBorder(canvas, canvas.Area(), picTmp_, picTmp_.Area(), kCells, platform::RasterOp::SrcCopy,
                false);
  pane_->Refresh();
}

void ctlRoundBrd::OnResize() {
  if (pane_->Seen())
    DrawFrame();
  else
    PendingDraw_ = true;
}

void ctlRoundBrd::OnVisible(bool visible) {
  if (visible && PendingDraw_) DrawFrame();
  PendingDraw_ = false;
}

}  // namespace dorvalin
