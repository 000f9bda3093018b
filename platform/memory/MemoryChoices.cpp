#include "platform/memory/MemoryChoices.h"

#include <algorithm>

#include "platform/drawing.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryTextDrawing.h"
#include "platform/text.h"

namespace platform {
namespace {

constexpr int kEdge = 2;
constexpr Colour kSelected = 0x6A240A;

}  // namespace

void ItemRow::Remove(int index) {
  if (!Has(index)) return;
  items.erase(items.begin() + index);
  if (selected == index) selected = -1;
  if (selected > index) --selected;
}

int ItemRow::AfterKey(int virtualKey, int page) const {
  if (items.empty()) return selected;
  const auto within = [&](int index) { return std::clamp(index, 0, Count() - 1); };
  switch (virtualKey) {
    case key::kUp:
    case key::kLeft:
      return within(selected - 1);
    case key::kDown:
    case key::kRight:
      return within(selected + 1);
    case key::kPageUp:
      return within(selected - page);
    case key::kPageDown:
      return within(selected + page);
    case key::kHome:
      return 0;
    case key::kEnd:
      return Count() - 1;
    default:
      return selected;
  }
}

int ItemRow::AfterLetter(char16_t unit) const {
  for (int step = 1; step <= Count(); ++step) {
    const int index = (selected + step) % Count();
    if (!items[index].empty() && LowerUnit(items[index][0]) == LowerUnit(unit)) return index;
  }
  return selected;
}

template <class Port>
int ItemChoiceOf<Port>::RowHeight() const {
  return MemoryTextDrawing::LineHeight(this->ShownFont());
}
template class ItemChoiceOf<DropDownList>;
template class ItemChoiceOf<ListBox>;

void MemoryDropDownList::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  const Rect part = place.Intersected(clip);
  if (part.Empty()) return;
  FillRect(screen, part, Background().value_or(0xFFFFFF));
  DrawEdge(screen, place, Edge::Sunken, {});
  const Rect button{place.right - kEdge - 16, place.top + kEdge, place.right - kEdge,
                    place.bottom - kEdge};
  FillRect(screen, button.Intersected(clip), 0xC0C0C0);
  DrawEdge(screen, button, Edge::Raised, {});
  MemoryTextDrawing::Paint(screen, {place.left + 4, place.top, button.left, place.bottom},
                           Item(Selected()), ShownFont(), TextColour(),
                           {.vertical = TextFormat::Vertical::Centre});
}

void MemoryDropDownList::Open() {
  open_ = true;
  Desktop().windows().Capture(*this);
  Raise(DropDown);
}

void MemoryDropDownList::Close() {
  open_ = false;
  if (Alive()) Desktop().windows().ReleaseCapture(*this);
}

void MemoryDropDownList::OnPointerInput(const PointerInput& input, const MouseEvent& event) {
  const bool inBox = Rect::At({0, 0}, Place().Size()).Contains(event.at);
  const int index =
      event.at.y < Place().Height() ? -1 : (event.at.y - Place().Height()) / RowHeight();
  const bool inList = event.at.x >= 0 && event.at.x < Place().Width() && Row().Has(index);
  if (input.kind == PointerInput::Kind::Press && input.button == Button::Left) {
    pressedInList_ = open_ && inList;
    if (!open_ && inBox) return Open();
    if (open_ && !inList) return Close();
  }
  if (!open_ || input.kind != PointerInput::Kind::Release) return;
  // The open list keeps the pointer.
  Desktop().windows().Capture(*this);
  if (std::exchange(pressedInList_, false) && inList) {
    Close();
    Choose(index);
  }
}

void MemoryDropDownList::OnOwnKey(const KeyEvent& event) {
  const bool vertical = event.virtualKey == key::kUp || event.virtualKey == key::kDown;
  if (event.virtualKey == key::kF1 + 3 || (event.modifiers.alt && vertical)) {
    return open_ ? Close() : Open();
  }
  if (event.virtualKey == key::kEnter || event.virtualKey == key::kEscape) return Close();
  ItemChoiceOf::OnOwnKey(event);
}

void MemoryDropDownList::OnFocusChange(bool gained) {
  if (!gained) Close();
  ItemChoiceOf::OnFocusChange(gained);
}

int MemoryListBox::FirstShown() const {
  const int rows = std::max(1, (Place().Height() - 2 * kEdge) / RowHeight());
  return std::max(0, Selected() - rows + 1);
}

void MemoryListBox::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  const Rect part = place.Intersected(clip);
  if (part.Empty()) return;
  FillRect(screen, part, Background().value_or(0xFFFFFF));
  DrawEdge(screen, place, Edge::Sunken, {});
  const Rect inside = place.Grown(-kEdge).Intersected(clip);
  int y = inside.top;
  for (int index = FirstShown(); index < Count() && y < inside.bottom; ++index) {
    const Rect row = Rect{inside.left, y, inside.right, y + RowHeight()}.Intersected(inside);
    const bool chosen = index == Selected();
    if (chosen) FillRect(screen, row, kSelected);
    MemoryTextDrawing::Paint(screen, row, Item(index), ShownFont(),
                             chosen ? 0xFFFFFF : TextColour(), {});
    y += RowHeight();
  }
}

void MemoryListBox::OnPointerInput(const PointerInput& input, const MouseEvent& event) {
  if (input.button != Button::Left) return;
  if (input.kind == PointerInput::Kind::Release && beforePress_) {
    return TellChoice(*std::exchange(beforePress_, std::nullopt));
  }
  const int index = FirstShown() + (event.at.y - kEdge) / RowHeight();
  if (input.kind != PointerInput::Kind::Press || !Row().Has(index)) return;
  if (input.second) return Raise(events.DoubleClick);
  beforePress_ = std::exchange(Row().selected, index);
}

}  // namespace platform
