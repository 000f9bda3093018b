#include "platform/memory/MemoryNode.h"

#include <utility>

#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryTopWindow.h"
#include "platform/memory/MemoryWindows.h"

namespace platform {

MemoryNode::MemoryNode(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds)
    : desktop_(&desktop), parent_(parent), bounds_(bounds) {
  if (parent_ == nullptr) return;
  top_ = parent_->top_;
  parent_->children_.push_back(this);
  toldSeen_ = Seen();
}

MemoryNode::~MemoryNode() { CutOff(); }

void MemoryNode::CutOff() {
  if (!Alive()) return;
  for (MemoryNode* child : std::exchange(children_, {})) {
    child->parent_ = nullptr;
    child->CutOff();
  }
  if (parent_ != nullptr) std::erase(parent_->children_, this);
  std::exchange(desktop_, nullptr)->windows().Forget(*this);
  parent_ = nullptr;
  top_ = nullptr;
}

bool MemoryNode::Fails(std::string_view call) const {
  return !Alive() || desktop_->faults().Fails(call);
}

Point MemoryNode::ClientOnScreen() const { return OnScreen().Origin() + ClientOffset(); }

Rect MemoryNode::OnScreen() const {
  if (!Alive()) return {};
  return parent_ == nullptr ? bounds_ : bounds_.Moved(parent_->ClientOnScreen());
}

bool MemoryNode::Seen() const {
  if (!Alive()) return false;
  const MemoryNode* node = this;
  while (node->visible_ && node->parent_ != nullptr) node = node->parent_;
  return node->visible_;
}

bool MemoryNode::Usable() const {
  if (!Alive()) return false;
  const MemoryNode* node = this;
  while (node->enabled_ && node->parent_ != nullptr) node = node->parent_;
  return node->enabled_;
}

MemoryNode* MemoryNode::InnermostAt(Point client) {
  if (!Rect::At({0, 0}, ClientArea()).Contains(client)) return this;
  for (MemoryNode* child : children_) {
    if (!child->visible_ || child->LetsHitsThrough() || !child->bounds_.Contains(client)) continue;
    return child->InnermostAt(client - child->bounds_.Origin() - child->ClientOffset());
  }
  return this;
}

void MemoryNode::Move(const Rect& bounds) {
  if (Fails("Window.SetBounds") || bounds == bounds_) return;
  const Size former = bounds_.Size();
  bounds_ = {bounds.left, bounds.top, std::max(bounds.left, bounds.right),
             std::max(bounds.top, bounds.bottom)};
  OnMoved(former);
}

void MemoryNode::UpdateSeen() {
  const bool seen = Seen();
  if (!Alive() || seen == toldSeen_) return;
  toldSeen_ = seen;
  OnSeenChange(seen);
  // A handler may make, show or close windows.
  for (MemoryNode* child : std::vector(children_)) {
    if (std::count(children_.begin(), children_.end(), child) != 0) child->UpdateSeen();
  }
}

void MemoryNode::ChangeVisible(bool visible) {
  if (Fails("Window.SetVisible") || visible == visible_) return;
  visible_ = visible;
  if (parent_ != nullptr && !parent_->Seen()) return;
  if (!visible) desktop_->windows().TakeFocusFrom(*this);
  UpdateSeen();
}

void MemoryNode::ChangeEnabled(bool enabled) {
  if (!Fails("Window.SetEnabled")) Enable(enabled);
}

void MemoryNode::Enable(bool enabled) {
  if (!Alive() || enabled == enabled_) return;
  enabled_ = enabled;
  if (!enabled) desktop_->windows().TakeFocusFrom(*this);
}

void MemoryNode::TakeFocus() {
  if (!Fails("Window.Focus") && Seen() && Usable()) desktop_->windows().Focus(*this);
}

bool MemoryNode::OwnsFocus() const { return Alive() && desktop_->windows().Focused() == this; }

void MemoryNode::ChangeToolTip(std::u16string_view text) {
  if (!Fails("Window.SetToolTip")) toolTip_ = text;
}

}  // namespace platform
