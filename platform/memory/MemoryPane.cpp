#include "platform/memory/MemoryPane.h"

#include <utility>

#include "platform/memory/DragSession.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryWindows.h"
#include "platform/raster.h"

namespace platform {

PaneNode::PaneNode(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds,
                   PaneEvents& events)
    : MemoryNode(desktop, parent, bounds), events_(&events) {}

Surface& PaneNode::CanvasOf() {
  // Made on first use, so that a window that is moved about before it is drawn costs nothing.
  const Size size = Alive() ? ClientArea() : Size{};
  if (canvas_.Size() == size || (size.Empty() && canvas_.Empty())) return canvas_;
  Surface former = std::exchange(canvas_, Surface(size));
  BitBlt(canvas_, canvas_.Area(), former, {0, 0}, RasterOp::SrcCopy);
  return canvas_;
}

void PaneNode::ShowCanvas() {
  if (Fails("Pane.Refresh")) return;
  shown_ = CanvasOf().Clone();
}

void PaneNode::PaintOn(Surface& screen, const Rect& place, const Rect& clip) {
  const Rect part = place.Intersected(clip);
  if (!part.Empty()) {
    BitBlt(screen, part, shown_, part.Origin() - place.Origin(), RasterOp::SrcCopy);
  }
  // The first made is in front, so it is painted last.
  const auto& children = Children();
  for (std::size_t n = children.size(); n-- > 0;) {
    MemoryNode& child = *children[n];
    if (child.OwnVisible()) child.PaintOn(screen, child.Place().Moved(place.Origin()), part);
  }
}

void PaneNode::EndCapture() {
  if (!Fails("Pane.ReleaseCapture")) Desktop().windows().ReleaseCapture(*this);
}

void PaneNode::ChangePointer(const Pointer& pointer) {
  if (!Fails("Pane.SetPointer")) pointer_ = pointer;
}

DropEffect PaneNode::RunDrag(const DataContent& data, DropEffect allowed, DragFeedback* feedback) {
  if (Fails("Pane.Drag")) return DropEffect::None;
  MemoryDesktop& desktop = Desktop();
  desktop.windows().ReleaseCapture(*this);
  return desktop.drags().Run(data, allowed, feedback);
}

void PaneNode::OnPointerInput(const PointerInput& input, const MouseEvent& event) {
  switch (input.kind) {
    case PointerInput::Kind::Press:
      return input.second ? events_->OnDoubleClick(input.button, event)
                          : events_->OnMouseDown(input.button, event);
    case PointerInput::Kind::Release:
      return events_->OnMouseUp(input.button, event);
    case PointerInput::Kind::Move:
      return events_->OnMouseMove(event);
    case PointerInput::Kind::Wheel:
      if (const int notches = wheel_.Take(input.turn)) events_->OnMouseWheel(notches, event);
      return;
  }
}

void PaneNode::OnKeyInput(KeyEvent& event, bool down) {
  down ? events_->OnKeyDown(event) : events_->OnKeyUp(event);
}

void PaneNode::OnSeenChange(bool seen) {
  events_->OnVisible(seen);
  if (seen && Alive()) shown_ = CanvasOf().Clone();  // a window that comes up is painted whole
}

void PaneNode::OnMoved(Size former) {
  if (Place().Size() == former) return;
  shown_ = CanvasOf().Clone();
  events_->OnResize();
}

DropEffect PaneNode::OnDragInput(const DragEvent& event, bool drop) {
  return drop ? events_->OnDrop(event) : events_->OnDrag(event);
}

}  // namespace platform
