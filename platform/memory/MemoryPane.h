// Panes of the in-process desktop: a canvas, and what the screen shows of it since the last
// refresh.
#pragma once

#include <memory>

#include "platform/memory/MemoryNode.h"
#include "platform/wheel.h"

namespace platform {

class PaneNode : public MemoryNode {
 public:
  PaneNode(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds, PaneEvents& events);

  bool AcceptsDrops() const override { return acceptsDrops_; }
  Pointer Shape() const override { return pointer_; }
  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override;

 protected:
  PaneEvents& Events() { return *events_; }
  Surface& CanvasOf();
  void ShowCanvas();
  void EndCapture();
  DropEffect RunDrag(const DataContent& data, DropEffect allowed, DragFeedback* feedback);
  void ChangePointer(const Pointer& pointer);
  void ChangeAcceptsDrops(bool accepts) { acceptsDrops_ = accepts; }

  void OnPointerInput(const PointerInput& input, const MouseEvent& event) override;
  void OnKeyInput(KeyEvent& event, bool down) override;
  void OnCharInput(CharEvent& event) override { events_->OnChar(event); }
  void OnFocusChange(bool gained) override { events_->OnFocus(gained); }
  void OnSeenChange(bool seen) override;
  void OnMoved(Size former) override;
  DropEffect OnDragInput(const DragEvent& event, bool drop) override;

 private:
  PaneEvents* events_;
  Surface canvas_;
  Surface shown_;
  Pointer pointer_;
  bool acceptsDrops_ = false;
  WheelNotches wheel_;
};

template <class Port>
class PaneOf : public WindowOf<Port, PaneNode> {
 public:
  using WindowOf<Port, PaneNode>::WindowOf;
  Surface& Canvas() override { return this->CanvasOf(); }
  void Refresh() override { this->ShowCanvas(); }
  void SetPointer(const Pointer& pointer) override { this->ChangePointer(pointer); }
  void ReleaseCapture() override { this->EndCapture(); }
  DropEffect Drag(const DataContent& data, DropEffect allowed, DragFeedback* feedback) override {
    return this->RunDrag(data, allowed, feedback);
  }
  void SetAcceptsDrops(bool accepts) override { this->ChangeAcceptsDrops(accepts); }
};

using MemoryPane = PaneOf<Pane>;

}  // namespace platform
