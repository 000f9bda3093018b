#include "platform/memory/MemoryButtons.h"

#include <algorithm>

#include "platform/drawing.h"
#include "platform/memory/MemoryTextDrawing.h"

namespace platform {
namespace {

constexpr int kBox = 13;

}  // namespace

template <class Port>
void CheckBoxOf<Port>::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  const Rect part = place.Intersected(clip);
  if (part.Empty()) return;
  if (this->Background()) FillRect(screen, part, *this->Background());
  const int top = place.top + (place.Height() - kBox) / 2;
  const Rect box{place.left, top, place.left + kBox, top + kBox};
  if constexpr (std::is_same_v<Port, OptionButton>) {
    DrawCircle(screen, box.Middle(), kBox / 2 - 1, 0x808080);
    DrawCircle(screen, box.Middle(), kBox / 2 - 2, 0xFFFFFF);
    if (checked_) FillRect(screen, box.Grown(-4).Intersected(clip), 0);
  } else {
    FillRect(screen, box.Intersected(clip), 0xFFFFFF);
    DrawEdge(screen, box, Edge::Sunken, {});
    if (checked_) MemoryTextDrawing::Paint(screen, box.Grown(-2).Moved({2, -1}), u"x", {}, 0, {});
  }
  const Colour colour = this->Usable() ? this->TextColour() : 0x808080;
  MemoryTextDrawing::Paint(screen, {box.right + 4, part.top, part.right, part.bottom}, caption_,
                           this->ShownFont(), colour,
                           {.vertical = TextFormat::Vertical::Centre, .accessKeys = true});
}
template class CheckBoxOf<CheckBox>;
template class CheckBoxOf<OptionButton>;

std::vector<MemoryOptionButton*> MemoryOptionButton::Group() const {
  std::vector<MemoryOptionButton*> group;
  bool mine = false;
  for (MemoryNode* sibling : Parent()->Children()) {
    auto* option = dynamic_cast<MemoryOptionButton*>(sibling);
    if (option == nullptr) continue;
    if (option->startsGroup_) {
      if (mine) break;
      group.clear();
    }
    group.push_back(option);
    mine = mine || option == this;
  }
  return group;
}

void MemoryOptionButton::Check(bool checked) {
  if (checked) {
    for (MemoryOptionButton* other : Group()) other->SetCheckedFlag(false);
  }
  SetCheckedFlag(checked);
  // Losing the check is no choice: only the one that gets it tells so.
  if (checked) Raise(events.Click);
}

void MemoryOptionButton::OnOwnKey(const KeyEvent& event) {
  const bool back = event.virtualKey == key::kUp || event.virtualKey == key::kLeft;
  const bool on = event.virtualKey == key::kDown || event.virtualKey == key::kRight;
  if (!back && !on) return CheckBoxOf::OnOwnKey(event);
  const auto group = Group();
  const auto me = std::find(group.begin(), group.end(), this) - group.begin();
  const auto count = static_cast<std::ptrdiff_t>(group.size());
  MemoryOptionButton* next = group[(me + (back ? count - 1 : 1)) % count];
  next->TakeFocus();
  if (next->Alive()) next->Press();
}

}  // namespace platform
