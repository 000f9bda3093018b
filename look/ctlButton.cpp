#include "look/ctlButton.h"

#include "look/ButtonSkin.h"
#include "look/WindowGlyphs.h"
#include "look/modMixBlt.h"
#include "platform/desktop.h"
#include "platform/drawing.h"
#include "platform/screen.h"
#include "platform/text.h"
#include "platform/textdrawing.h"

namespace dorvalin {
namespace {

using platform::Button;
using platform::MouseEvent;
using platform::Rect;
using platform::TheDesktop;

constexpr int kOutInterval = 1;      // milliseconds
constexpr int kFlashInterval = 300;  // milliseconds
constexpr platform::Colour kDisabledText = 0x808080;
constexpr platform::Colour kFocusDots = 0x808080;
constexpr platform::Colour kGreen = 0x00FF00;
constexpr std::uint8_t kFlashAlpha = 200;
constexpr int kIconGap = 4;
constexpr int kFocusInset = 3;
constexpr int kSmallFocusInset = 2;  // clear of the sign in a window button

platform::Colour Face() {
  return TheDesktop().screen().SystemColourOf(platform::SystemColour::ButtonFace);
}

// The character behind the first "&", 0 for none. Before a blank the sign is one of the text's own.
char16_t AccessKeyOf(std::u16string_view caption) {
  const auto at = caption.find(u'&');
  const char16_t key = at + 1 < caption.size() && at != caption.npos ? caption[at + 1] : 0;
  return key == u' ' || key == u'&' ? char16_t{0} : platform::UpperUnit(key);
}

// Every second pixel of a frame: the sign for the keyboard's place.
void DrawDotted(platform::Surface& surface, const Rect& box, platform::Colour colour) {
  const auto dot = [&](int x, int y) {
    if (((x + y) & 1) == 0 && surface.Area().Contains(platform::Point{x, y})) {
      surface.At({x, y}) = platform::PixelFromColour(colour);
    }
  };
  for (int x = box.left; x < box.right; ++x) {
    dot(x, box.top);
    dot(x, box.bottom - 1);
  }
  for (int y = box.top; y < box.bottom; ++y) {
    dot(box.left, y);
    dot(box.right - 1, y);
  }
}

}  // namespace

ctlButton::ctlButton(platform::Pane& parent, const Rect& bounds, std::u16string_view caption)
    : caption_(caption),
      tmrOut_(TheDesktop().pump().NewTimer(kOutInterval, [this] { WatchOut(); })),
      tmrFlash_(TheDesktop().pump().NewTimer(kFlashInterval,
                                             [this] {
                                               tmrFlash_->SetEnabled(false);
                                               Draw();
                                             })),
      pane_(TheDesktop().windows().NewPane(parent, bounds, true, *this)) {
  if (pane_) pane_->SetAcceptsDrops(true);
  Draw();
}

void ctlButton::SetCaption(std::u16string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Draw();
}

void ctlButton::SetIcon(const platform::Icon& icon) {
  icon_ = icon;
  Draw();
}

void ctlButton::SetForeColor(platform::Colour colour) {
  foreColour_ = colour;
  Draw();
}

void ctlButton::SetEnabled(bool enabled) {
  enabled_ = enabled;
  if (pane_) pane_->SetEnabled(enabled);
  Draw();
}

void ctlButton::SetVisible(bool visible) {
  if (pane_) pane_->SetVisible(visible);
}

void ctlButton::SetBounds(const Rect& bounds) {
  if (pane_) pane_->SetBounds(bounds);
}

void ctlButton::SetToolTip(std::u16string_view text) {
  if (pane_) pane_->SetToolTip(text);
}

void ctlButton::JoinForm(platform::Form& form) {
  form.AddTabStop(pane_.get());
  const char16_t key = AccessKeyOf(caption_);
  if (key == 0) return;
  form.AddAccessKey(key, [this] {
    if (enabled_) Raise(Click);
  });
}

void ctlButton::ResetFont() {
  font_.face = u"MS Sans Serif";
  Draw();
}

void ctlButton::Draw() {
  // Out of sight it waits: most buttons get several properties before they are seen.
  if (!pane_ || !pane_->Seen() || pane_->Canvas().Empty()) return;
  DrawFace();
  DrawCaption();
  pane_->Refresh();
}

void ctlButton::DrawFace() {
  auto& canvas = pane_->Canvas();
  FillRect(canvas, canvas.Area(), Face());
  if (NoStyle) return;
  DrawSkin(canvas, canvas.Area(),
           {.pressed = Pressed,
            .keptDown = KeptDown,
            .isDefault = LookDefault,
            .enabled = enabled_,
            .hover = Hover_});
  const int inset = GlyphOf(caption_) ? kSmallFocusInset : kFocusInset;
  if (HasFocus_) DrawDotted(canvas, canvas.Area().Grown(-inset), kFocusDots);
}

platform::Colour ctlButton::TextColour() const { return enabled_ ? foreColour_ : kDisabledText; }

void ctlButton::DrawCaption() {
  auto& canvas = pane_->Canvas();
  Rect area = canvas.Area();
  if (Pressed) area = area.Moved({1, 1});
  if (const auto glyph = GlyphOf(caption_)) return DrawGlyph(canvas, area, *glyph, TextColour());
  auto& text = TheDesktop().text();
  platform::Font font = font_;
  if (caption_ == u"...") font.face = u"System";
  if (icon_) {
    const auto size = icon_->size;
    const int width = caption_.empty() ? 0 : text.Measure(caption_, font).width + kIconGap;
    const int left = area.left + (area.Width() - size.width - width) / 2;
    DrawIcon(canvas, {left, area.top + (area.Height() - size.height) / 2}, icon_, size);
    area.left += (size.width + kIconGap);
  }
  text.Draw(canvas, area, caption_, font, TextColour(),
            {.horizontal = platform::TextFormat::Horizontal::Centre,
             .vertical = platform::TextFormat::Vertical::Centre,
             .accessKeys = AccessKeyOf(caption_) != 0});
}

void ctlButton::Release() {
  Held_ = false;
  Pressed = false;
  Draw();
}

void ctlButton::FlashGreen() {
  if (!pane_ || !pane_->Seen()) return;
  auto& canvas = pane_->Canvas();
  ColorBlt(canvas, canvas.Area(), {canvas, {0, 0}}, kGreen, kFlashAlpha);
  pane_->Refresh();
  tmrFlash_->SetEnabled(true);
}

void ctlButton::SetPressed(bool pressed) {
  if (Pressed == pressed) return;
  Pressed = pressed;
  Draw();
}

// A copy: the handler may replace or destroy what it belongs to.
void ctlButton::Raise(const std::function<void()>& event) {
  if (const auto handler = event) handler();
}

bool ctlButton::Inside(platform::Point p) const { return pane_->Canvas().Area().Contains(p); }

void ctlButton::Enter() {
  if (Hover_) return;
  Hover_ = true;
  Draw();
  tmrOut_->SetEnabled(true);
}

void ctlButton::WatchOut() {
  if (pane_ && pane_->ScreenBounds().Contains(TheDesktop().input().PointerPosition())) return;
  tmrOut_->SetEnabled(false);
  Hover_ = false;
  Draw();
}

void ctlButton::OnMouseMove(const MouseEvent& event) {
  if (!event.left) return Enter();
  if (Held_) SetPressed(Inside(event.at));
}

void ctlButton::OnMouseDown(Button button, const MouseEvent& event) {
  if (button != Button::Left) return;
  Held_ = true;
  SetPressed(Inside(event.at));
  Raise(Down);
}

void ctlButton::OnMouseUp(Button button, const MouseEvent& event) {
  // A press that began elsewhere, on a window that made room for this one, clicks here as well.
  if (button != Button::Left) return;
  Release();
  if (Inside(event.at)) Raise(Click);
}

void ctlButton::OnKeyDown(platform::KeyEvent& event) {
  if (event.virtualKey == platform::key::kEnter) {
    event.handled = true;
    Raise(Click);
  } else if (event.virtualKey == platform::key::kSpace) {
    event.handled = true;
    SetPressed(true);
    Raise(Down);
  }
}

void ctlButton::OnKeyUp(platform::KeyEvent& event) {
  if (event.virtualKey != platform::key::kSpace) return;
  event.handled = true;
  SetPressed(false);
  if (HasFocus_) Raise(Click);
}

void ctlButton::OnFocus(bool gained) {
  HasFocus_ = gained;
  if (!gained) Pressed = false;
  Draw();
}

platform::DropEffect ctlButton::OnDrag(const platform::DragEvent& event) {
  if (event.state != platform::DragState::Leave) Enter();
  return platform::DropEffect::None;
}

}  // namespace dorvalin
