#include "platform/memory/MemoryPlainControls.h"

#include <algorithm>

#include "platform/drawing.h"
#include "platform/memory/MemoryTextDrawing.h"

namespace platform {
namespace {

constexpr Size kThumb{11, 20};
constexpr int kTrackEnd = 13;  ///< from the control's edge to the thumb's middle at an end
constexpr int kPages = 5;

}  // namespace

void MemorySlider::SetRange(int minimum, int maximum) {
  if (Fails("Slider.SetRange")) return;
  minimum_ = minimum;
  maximum_ = std::max(minimum, maximum);
  const int value = std::clamp(value_, minimum_, maximum_);
  if (std::exchange(value_, value) != value) Raise(events.Change);
}

void MemorySlider::SetTickStep(int step) {
  if (!Fails("Slider.SetTickStep")) tickStep_ = step;
}

void MemorySlider::SetValue(int value) {
  if (Fails("Slider.SetValue")) return;
  value = std::clamp(value, minimum_, maximum_);
  if (std::exchange(value_, value) != value) Raise(events.Change);
}

int MemorySlider::Page() const { return std::max(1, (maximum_ - minimum_) / kPages); }

int MemorySlider::XOf(int value) const {
  const int way = Place().Width() - 2 * kTrackEnd;
  const int range = std::max(1, maximum_ - minimum_);
  return kTrackEnd + (value - minimum_) * way / range;
}

int MemorySlider::ValueAt(int x) const {
  const int way = std::max(1, Place().Width() - 2 * kTrackEnd);
  const int along = std::clamp(x - kTrackEnd, 0, way);
  return minimum_ + (along * (maximum_ - minimum_) + way / 2) / way;
}

Rect MemorySlider::Thumb() const {
  const Point middle{XOf(value_), Place().Height() / 2};
  return Rect::At({middle.x - kThumb.width / 2, middle.y - kThumb.height / 2}, kThumb);
}

void MemorySlider::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  if (place.Intersected(clip).Empty()) return;
  const int y = place.Middle().y;
  DrawEdge(screen, {place.left + 4, y - 2, place.right - 4, y + 2}, Edge::Sunken, {});
  const int step = tickStep_ > 0 ? tickStep_ : std::max(1, maximum_ - minimum_);
  for (int value = minimum_; value <= maximum_; value += step) {
    const Rect tick = Rect::At({place.left + XOf(value), y + kThumb.height / 2}, {1, 3});
    FillRect(screen, tick.Intersected(clip), 0x808080);
  }
  const Rect thumb = Thumb().Moved(place.Origin());
  FillRect(screen, thumb.Intersected(clip), 0xC0C0C0);
  DrawEdge(screen, thumb, Edge::Raised, {});
}

void MemorySlider::OnPointerInput(const PointerInput& input, const MouseEvent& event) {
  if (input.kind == PointerInput::Kind::Release && input.button == Button::Left) grip_.reset();
  if (input.kind == PointerInput::Kind::Move && grip_) SetValue(ValueAt(event.at.x - *grip_));
  if (input.kind != PointerInput::Kind::Press) return;
  const int before = value_;
  Raise(MouseDown, input.button, event);
  if (input.button == Button::Left && Alive()) Press(event, value_ != before);
}

void MemorySlider::Press(const MouseEvent& event, bool movedByHandler) {
  if (Thumb().Contains(event.at)) {
    grip_ = event.at.x - XOf(value_);
  } else if (!movedByHandler) {
    SetValue(event.at.x < XOf(value_) ? value_ - Page() : value_ + Page());
  }
}

void MemorySlider::OnOwnKey(const KeyEvent& event) {
  switch (event.virtualKey) {
    case key::kLeft:
    case key::kUp:
      return SetValue(value_ - 1);
    case key::kRight:
    case key::kDown:
      return SetValue(value_ + 1);
    case key::kPageUp:
      return SetValue(value_ - Page());
    case key::kPageDown:
      return SetValue(value_ + Page());
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
  if (Background() || !style_.transparent) {
    FillRect(screen, part, Background().value_or(0xC8D0D4));
  }
  using Horizontal = TextFormat::Horizontal;
  const Horizontal along = style_.alignment == Alignment::Left    ? Horizontal::Left
                           : style_.alignment == Alignment::Right ? Horizontal::Right
                                                                  : Horizontal::Centre;
  MemoryTextDrawing::Paint(screen, part, caption_, ShownFont(),
                           Usable() ? TextColour() : Colour{0x808080},
                           {.horizontal = along, .wordBreak = true});
}

void MemoryLabel::OnPointerInput(const PointerInput& input, const MouseEvent& event) {
  const bool left = input.button == Button::Left;
  const bool press = input.kind == PointerInput::Kind::Press;
  const bool inside = Rect::At({0, 0}, Place().Size()).Contains(event.at);
  if (press && left && input.second) return Raise(events.DoubleClick);
  if (press) {
    armed_ = armed_ || left;
    Raise(MouseDown, input.button, event);
  } else if (left && input.kind == PointerInput::Kind::Release) {
    if (std::exchange(armed_, false) && inside) Raise(events.Click);
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
