#include "platform/memory/MemoryPlainControls.h"

#include <algorithm>

#include "platform/drawing.h"
#include "platform/memory/MemoryTextDrawing.h"

namespace platform {
namespace {

constexpr int kThumb = 11;
constexpr int kPageSteps = 5;

}  // namespace

void MemorySlider::SetRange(int minimum, int maximum) {
  if (Fails("Slider.SetRange")) return;
  minimum_ = minimum;
  maximum_ = std::max(minimum, maximum);
  value_ = std::clamp(value_, minimum_, maximum_);
}

void MemorySlider::SetValue(int value) {
  if (Fails("Slider.SetValue")) return;
  value = std::clamp(value, minimum_, maximum_);
  if (std::exchange(value_, value) != value) Raise(events.Change);
}

int MemorySlider::XOf(int value) const {
  const int way = Place().Width() - kThumb;
  return maximum_ == minimum_ ? 0 : (value - minimum_) * way / (maximum_ - minimum_);
}

int MemorySlider::ValueAt(int x) const {
  const int way = std::max(1, Place().Width() - kThumb);
  const int along = std::clamp(x - kThumb / 2, 0, way);
  return minimum_ + (along * (maximum_ - minimum_) + way / 2) / way;
}

void MemorySlider::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  if (place.Intersected(clip).Empty()) return;
  const int y = place.Middle().y;
  DrawEdge(screen, {place.left + 4, y - 2, place.right - 4, y + 2}, Edge::Sunken, {});
  const Rect thumb = Rect::At({place.left + XOf(value_), y - 10}, {kThumb, 20});
  FillRect(screen, thumb.Intersected(clip), 0xC0C0C0);
  DrawEdge(screen, thumb, Edge::Raised, {});
}

void MemorySlider::OnPointerInput(const PointerInput& input, const MouseEvent& event) {
  const bool press = input.kind == PointerInput::Kind::Press && input.button == Button::Left;
  const bool drags = input.kind == PointerInput::Kind::Move && event.left;
  if (press || drags) SetValue(ValueAt(event.at.x));
}

void MemorySlider::OnOwnKey(const KeyEvent& event) {
  const int page = std::max(1, (maximum_ - minimum_) / kPageSteps);
  switch (event.virtualKey) {
    case key::kLeft:
    case key::kUp:
      return SetValue(value_ - 1);
    case key::kRight:
    case key::kDown:
      return SetValue(value_ + 1);
    case key::kPageUp:
      return SetValue(value_ - page);
    case key::kPageDown:
      return SetValue(value_ + page);
    case key::kHome:
      return SetValue(minimum_);
    case key::kEnd:
      return SetValue(maximum_);
    default:
      return;
  }
}

void MemoryLabel::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  const Rect part = place.Intersected(clip);
  if (part.Empty()) return;
  if (!style_.transparent) FillRect(screen, part, Background().value_or(0xC8D0D4));
  using Horizontal = TextFormat::Horizontal;
  const Horizontal along = style_.alignment == Alignment::Left    ? Horizontal::Left
                           : style_.alignment == Alignment::Right ? Horizontal::Right
                                                                  : Horizontal::Centre;
  MemoryTextDrawing::Paint(screen, part, caption_, ShownFont(),
                           Usable() ? TextColour() : Colour{0x808080},
                           {.horizontal = along, .wordBreak = true, .accessKeys = true});
}

void MemoryLabel::OnPointerInput(const PointerInput& input, const MouseEvent& event) {
  const bool left = input.button == Button::Left;
  if (input.kind == PointerInput::Kind::Press) {
    const auto click = left ? events.Click : nullptr;
    const auto doubleClick = left && input.second ? events.DoubleClick : nullptr;
    if (const auto handler = MouseDown) handler(input.button, event);
    Raise(doubleClick ? doubleClick : click);
  }
}

void MemoryFrame::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  if (place.Intersected(clip).Empty()) return;
  FrameRect(screen, {place.left, place.top + 6, place.right, place.bottom}, 0x808080);
  const int width = MemoryTextDrawing::Width(caption_, ShownFont());
  const Rect gap{place.left + 7, place.top, place.left + 11 + width, place.top + 13};
  if (!caption_.empty()) FillRect(screen, gap.Intersected(clip), Background().value_or(0xC8D0D4));
  MemoryTextDrawing::Paint(screen, {gap.left + 2, gap.top, place.right, gap.bottom}, caption_,
                           ShownFont(), TextColour(), {.accessKeys = true});
}

}  // namespace platform
