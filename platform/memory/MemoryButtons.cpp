#include "platform/memory/MemoryButtons.h"

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

std::vector<OptionButton*> MemoryOptionButton::Group() const {
  std::vector<OptionPlace> siblings;
  for (MemoryNode* sibling : Parent()->Children()) {
    auto* option = dynamic_cast<MemoryOptionButton*>(sibling);
    if (option != nullptr) siblings.push_back({option, option->startsGroup_});
  }
  return OptionGroup(siblings, *this);
}

void MemoryOptionButton::Check(bool checked) {
  if (checked) {
    for (OptionButton* other : Group()) {
      static_cast<MemoryOptionButton*>(other)->SetCheckedFlag(false);
    }
  }
  SetCheckedFlag(checked);
  if (checked) RaiseChoice();
}

void MemoryOptionButton::OnOwnKey(const KeyEvent& event) {
  auto* next = static_cast<MemoryOptionButton*>(OptionAfterKey(Group(), *this, event.virtualKey));
  if (next == nullptr) return CheckBoxOf::OnOwnKey(event);
  if (next == this) return;
  next->TakeFocus();
  if (next->Alive()) next->Press();
}

}  // namespace platform
