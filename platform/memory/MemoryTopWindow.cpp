#include "platform/memory/MemoryTopWindow.h"

#include <algorithm>

#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryInput.h"
#include "platform/memory/MemoryWindows.h"
#include "platform/memory/WindowFrame.h"

namespace platform {
namespace {

// An odd-sized ellipse has its middle on a pixel, an even-sized one between two: doubled
// coordinates keep both exact.
bool InsideEllipse(const Rect& box, Point p) {
  const double width = box.Width(), height = box.Height();
  const double x = (2.0 * p.x + 1 - box.left - box.right) / width;
  const double y = (2.0 * p.y + 1 - box.top - box.bottom) / height;
  return box.Contains(p) && x * x + y * y <= 1.0;
}

}  // namespace

MemoryTopWindow::MemoryTopWindow(MemoryDesktop& desktop, const TopWindowOptions& options,
                                 TopWindowEvents& events)
    : PaneOf<TopWindow>(desktop, nullptr, Rect{}, events),
      frame_(options.frame),
      caption_(options.caption),
      owner_(static_cast<MemoryTopWindow*>(options.owner)),
      topMost_(options.topMost),
      activatable_(options.activatable),
      unseen_(options.unseen),
      focus_(this) {
  SetTop(*this);
  SetVisibleFlag(false);
  SetFocusable(true);
}

MemoryTopWindow::~MemoryTopWindow() { Close(); }

void MemoryTopWindow::SetVisible(bool visible) { visible ? Show(ShowMode::NoActivate) : Hide(); }

void MemoryTopWindow::Show(ShowMode mode) {
  if (Fails("TopWindow.Show")) return;
  WindowStack& stack = Desktop().stack();
  if (mode == ShowMode::Activate) stack.Raise(*this);
  SetVisibleFlag(true);
  UpdateSeen();
  if (mode == ShowMode::Activate && Shown() && Enabled()) stack.Activate(this);
}

void MemoryTopWindow::Hide() {
  if (!Visible() || Fails("TopWindow.Hide")) return;
  SetVisibleFlag(false);
  Desktop().windows().ReleaseCapture(*this);
  Desktop().stack().HandOn(*this);
  UpdateSeen();
}

void MemoryTopWindow::SetTopMost(bool topMost) {
  if (Fails("TopWindow.SetTopMost") || !(topMost || topMost_)) return;
  topMost_ = topMost;
  Desktop().stack().Raise(*this);
}

bool MemoryTopWindow::SetEllipseRegion(const std::optional<Rect>& box) {
  if (Fails("TopWindow.SetEllipseRegion")) return false;
  ellipse_ = box;
  return true;
}

void MemoryTopWindow::SetCaption(std::u16string_view caption) {
  if (!Fails("TopWindow.SetCaption")) caption_ = caption;
}

Point MemoryTopWindow::ClientOffset() const { return Framed() ? WindowFrame::kOffset : Point{}; }

Size MemoryTopWindow::ClientArea() const {
  const Size whole = Place().Size();
  if (!Framed()) return whole;
  return {std::max(0, whole.width - WindowFrame::kTaken.width),
          std::max(0, whole.height - WindowFrame::kTaken.height)};
}

void MemoryTopWindow::SetClientSize(Size size) {
  if (Framed()) {
    size = {size.width + WindowFrame::kTaken.width, size.height + WindowFrame::kTaken.height};
  }
  Move(Rect::At(Place().Origin(), size));
}

void MemoryTopWindow::StartMove() {
  if (!Fails("TopWindow.StartMove")) Desktop().input().MoveWithPointer(*this);
}

void MemoryTopWindow::Close() {
  if (!Alive()) return;
  SetVisibleFlag(false);
  for (DesktopWindow* other : std::vector(Desktop().stack().Order())) {
    if (other->Owner() == this) other->OnOwnerClosed();
  }
  MemoryDesktop& desktop = Desktop();
  desktop.windows().ReleaseCapture(*this);
  desktop.input().Forget(*this);
  desktop.drags().Forget(*this);
  desktop.stack().Remove(*this);
  CutOff();
}

bool MemoryTopWindow::Covers(Point screen) const {
  return Place().Contains(screen) &&
         (!ellipse_ || InsideEllipse(*ellipse_, screen - Place().Origin()));
}

void MemoryTopWindow::Paint(Surface& screen) {
  if (unseen_) return;
  const Surface behind = ellipse_ ? screen.Clone() : Surface();
  const bool active = Desktop().stack().Active() == this;
  if (Framed()) WindowFrame(Place()).Paint(screen, caption_, active);
  const Rect client = Rect::At(ClientOnScreen(), ClientArea());
  PaintOn(screen, client, screen.Area());
  if (!ellipse_) return;
  const Rect seen = Place().Intersected(screen.Area());
  for (int y = seen.top; y < seen.bottom; ++y) {
    for (int x = seen.left; x < seen.right; ++x) {
      if (!Covers({x, y})) screen.At({x, y}) = behind.At({x, y});
    }
  }
}

void MemoryTopWindow::OnActivation(Activation activation) {
  // The keyboard is there before the window hears that it is active.
  const bool gained = activation == Activation::Gained;
  const auto stillSo = [&] { return Alive() && (Desktop().stack().Active() == this) == gained; };
  if (gained && focus_ != nullptr) focus_->OnFocusChange(true);
  if (stillSo()) TopEvents().OnActivate(activation);
  if (!gained && stillSo() && focus_ != nullptr) focus_->OnFocusChange(false);
}

bool MemoryTopWindow::PressFrame(const PointerInput& input) {
  if (!Framed() || Rect::At(ClientOnScreen(), ClientArea()).Contains(input.state.at)) return false;
  if (input.kind != PointerInput::Kind::Press || input.button != Button::Left) return true;
  const WindowFrame frame(Place());
  if (frame.CloseBox().Contains(input.state.at)) {
    TopEvents().OnCloseRequest();
  } else if (frame.TitleBar().Contains(input.state.at)) {
    StartMove();
  }
  return true;
}

void MemoryTopWindow::OnPointer(const PointerInput& input) {
  const bool press = input.kind == PointerInput::Kind::Press;
  if (press) {
    if (activatable_) {
      Desktop().stack().Raise(*this);
      Desktop().stack().Activate(this);
    }
    if (!Alive() || PressFrame(input)) return;
  }
  MemoryNode* hit = InnermostAt(input.state.at - ClientOnScreen());
  while (!hit->OwnEnabled() && hit != this) hit = hit->Parent();
  Desktop().windows().Deliver(*hit, input);
}

void MemoryTopWindow::OnKey(const KeyInput& input) {
  if (focus_ == nullptr || !Enabled()) return;
  if (input.down) return TypeKey(input);
  KeyEvent event{input.virtualKey, input.modifiers};
  focus_->OnKeyInput(event, false);
}

void MemoryTopWindow::TypeKey(const KeyInput& input) {
  KeyEvent event{input.virtualKey, input.modifiers};
  TopEvents().OnPreviewKey(event, focus_ == this ? nullptr : focus_->Face());
  if (event.handled || !Alive() || focus_ == nullptr) return;
  focus_->OnKeyInput(event, true);
  if (event.handled || !Alive() || focus_ == nullptr) return;
  if (input.modifiers.alt && !input.modifiers.control) {
    if (input.virtualKey == key::kF4) TopEvents().OnCloseRequest();
    return;
  }
  CharEvent typed{input.unit};
  if (typed.unit != 0) focus_->OnCharInput(typed);
}

MemoryNode* MemoryTopWindow::DropTargetAt(Point screen) {
  MemoryNode* node = InnermostAt(screen - ClientOnScreen());
  while (node != nullptr && !node->AcceptsDrops()) node = node->Parent();
  return node;
}

DropEffect MemoryTopWindow::PassDrag(const DragEvent& event, bool drop) {
  DragEvent passed = event;
  MemoryNode* target = event.state == DragState::Leave ? nullptr : DropTargetAt(event.at);
  if (dragTarget_ != nullptr && dragTarget_ != target) {
    passed.state = DragState::Leave;
    passed.data = nullptr;
    passed.at = event.at - dragTarget_->ClientOnScreen();
    std::exchange(dragTarget_, nullptr)->OnDragInput(passed, false);
  }
  if (target == nullptr || !Alive()) return DropEffect::None;
  passed = event;
  passed.state = dragTarget_ == target ? DragState::Over : DragState::Enter;
  passed.at = event.at - target->ClientOnScreen();
  dragTarget_ = drop ? nullptr : target;
  return target->OnDragInput(passed, drop);
}

}  // namespace platform
