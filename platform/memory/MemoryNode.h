// A window of ours in its tree: place, visibility, focus. Windows, panes and controls are nodes
// under the port's interface (WindowOf); when their top-level window closes they are cut off and
// do nothing any more.
#pragma once

#include <string>
#include <vector>

#include "platform/memory/DesktopWindow.h"
#include "platform/surface.h"
#include "platform/window.h"

namespace platform {

class MemoryDesktop;
class MemoryTopWindow;

class MemoryNode {
 public:
  MemoryNode(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds);
  virtual ~MemoryNode();
  MemoryNode(const MemoryNode&) = delete;
  MemoryNode& operator=(const MemoryNode&) = delete;

  /// The face that the program knows it by.
  virtual Window* Face() = 0;
  MemoryTopWindow* Top() const { return top_; }
  MemoryNode* Parent() const { return parent_; }
  const std::vector<MemoryNode*>& Children() const { return children_; }
  /// False for a husk.
  bool Alive() const { return desktop_ != nullptr; }
  MemoryDesktop& Desktop() const { return *desktop_; }

  const Rect& Place() const { return bounds_; }
  Rect OnScreen() const;
  /// Where the client area begins on the screen.
  Point ClientOnScreen() const;
  virtual Point ClientOffset() const { return {0, 0}; }
  virtual Size ClientArea() const { return bounds_.Size(); }
  bool OwnVisible() const { return visible_; }
  /// With all its parents; on the screen if the top-level window is there.
  bool Seen() const;
  bool OwnEnabled() const { return enabled_; }
  bool Usable() const;
  bool Focusable() const { return focusable_; }
  void SetFocusable(bool focusable) { focusable_ = focusable; }
  const std::u16string& ToolTip() const { return toolTip_; }
  /// The innermost seen node under a point of the client area, itself included.
  MemoryNode* InnermostAt(Point client);

  void Move(const Rect& bounds);
  void ChangeVisible(bool visible);
  void ChangeEnabled(bool enabled);
  /// The system's own doing, which no order can make fail.
  void Enable(bool enabled);
  void TakeFocus();
  bool OwnsFocus() const;
  void ChangeToolTip(std::u16string_view text);
  /// Cuts it and all below it off the desktop.
  void CutOff();

  virtual bool LetsHitsThrough() const { return false; }
  virtual void PaintOn(Surface& screen, const Rect& place, const Rect& clip) = 0;
  /// The event's point is in client pixels.
  virtual void OnPointerInput(const PointerInput&, const MouseEvent&) {}
  virtual void OnKeyInput(KeyEvent&, bool /*down*/) {}
  virtual void OnCharInput(CharEvent&) {}
  virtual void OnFocusChange(bool) {}
  virtual void OnSeenChange(bool) {}
  virtual void OnMoved(Size /*former*/) {}
  virtual bool AcceptsDrops() const { return false; }
  virtual DropEffect OnDragInput(const DragEvent&, bool /*drop*/) { return DropEffect::None; }
  virtual Pointer Shape() const { return {}; }

 protected:
  bool Fails(std::string_view call) const;
  void SetTop(MemoryTopWindow& top) { top_ = &top; }
  void SetVisibleFlag(bool visible) { visible_ = visible; }
  /// Tells it and those in it whether they are seen, where that changed.
  void UpdateSeen();

 private:
  MemoryDesktop* desktop_;
  MemoryNode* parent_;
  MemoryTopWindow* top_ = nullptr;
  std::vector<MemoryNode*> children_;  ///< the first made is in front, as the system has it
  Rect bounds_;
  bool visible_ = true;
  bool toldSeen_ = false;
  bool enabled_ = true;
  bool focusable_ = false;
  std::u16string toolTip_;
};

/// Gives a node the port's interface. Every call on a husk does nothing.
template <class Port, class Base = MemoryNode>
class WindowOf : public Port, public Base {
 public:
  using Base::Base;
  Window* Face() override { return this; }
  Rect Bounds() const override { return this->Place(); }
  void SetBounds(const Rect& bounds) override { this->Move(bounds); }
  Rect ScreenBounds() const override { return this->OnScreen(); }
  bool Visible() const override { return this->Alive() && this->OwnVisible(); }
  void SetVisible(bool visible) override { this->ChangeVisible(visible); }
  bool Seen() const override { return Base::Seen(); }
  bool Enabled() const override { return this->Alive() && this->OwnEnabled(); }
  void SetEnabled(bool enabled) override { this->ChangeEnabled(enabled); }
  void Focus() override { this->TakeFocus(); }
  bool HasFocus() const override { return this->OwnsFocus(); }
  void SetToolTip(std::u16string_view text) override { this->ChangeToolTip(text); }
};

}  // namespace platform
