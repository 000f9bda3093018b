#include "platform/memory/MemoryWindows.h"

#include <cstdlib>
#include <utility>

#include "platform/memory/MemoryDesktop.h"

namespace platform {
namespace {

constexpr auto kDoubleClickTime = std::chrono::milliseconds(500);
constexpr int kDoubleClickSize = 4;

bool IsWithin(const MemoryNode* node, const MemoryNode& root) {
  for (; node != nullptr; node = node->Parent()) {
    if (node == &root) return true;
  }
  return false;
}

}  // namespace

std::unique_ptr<TopWindow> MemoryWindows::NewTopWindow(const TopWindowOptions& options,
                                                       TopWindowEvents& events) {
  if (desktop_.faults().Fails("Windows.NewTopWindow")) return nullptr;
  auto window = std::make_unique<MemoryTopWindow>(desktop_, options, events);
  desktop_.stack().Add(*window);
  return window;
}

std::unique_ptr<Pane> MemoryWindows::NewPane(Pane& parent, const Rect& bounds, bool focusable,
                                             PaneEvents& events) {
  MemoryNode& node = dynamic_cast<MemoryNode&>(parent);
  if (!node.Alive() || desktop_.faults().Fails("Windows.NewPane")) return nullptr;
  auto pane = std::make_unique<MemoryPane>(desktop_, &node, bounds, events);
  pane->SetFocusable(focusable);
  return pane;
}

Foreground MemoryWindows::ForegroundWindow() {
  if (desktop_.faults().Fails("Windows.ForegroundWindow")) return {};
  const DesktopWindow* active = desktop_.stack().Active();
  if (active == nullptr) return {};
  const bool ours = active->Ours();
  return {ours ? static_cast<const MemoryTopWindow*>(active) : nullptr, true};
}

MemoryNode* MemoryWindows::NodeAt(Point screen) {
  DesktopWindow* hit = desktop_.stack().At(screen);
  if (hit == nullptr || !hit->Ours()) return nullptr;
  auto* top = static_cast<MemoryTopWindow*>(hit);
  return top->InnermostAt(screen - top->ClientOnScreen());
}

const Window* MemoryWindows::WindowAt(Point screen) {
  if (desktop_.faults().Fails("Windows.WindowAt")) return nullptr;
  MemoryNode* node = NodeAt(screen);
  return node != nullptr ? node->Face() : nullptr;
}

void MemoryWindows::HideWindowsOfClass(std::u16string_view prefix) {
  hiddenClasses_.emplace_back(prefix);
}

std::vector<MemoryTopWindow*> MemoryWindows::TopWindows() {
  std::vector<MemoryTopWindow*> ours;
  for (DesktopWindow* window : desktop_.stack().Order()) {
    if (window->Ours()) ours.push_back(static_cast<MemoryTopWindow*>(window));
  }
  return ours;
}

MemoryNode* MemoryWindows::Focused() const {
  const DesktopWindow* active = desktop_.stack().Active();
  if (active == nullptr || !active->Ours()) return nullptr;
  return static_cast<const MemoryTopWindow*>(active)->focus_;
}

void MemoryWindows::Focus(MemoryNode& node) {
  MemoryTopWindow& top = *node.Top();
  if (desktop_.stack().Active() != &top) {
    desktop_.stack().Raise(top);
    desktop_.stack().Activate(&top);
  }
  if (!node.Alive() || top.focus_ == &node) return;
  MemoryNode* former = std::exchange(top.focus_, &node);
  if (Focused() != &node) return;
  if (former != nullptr) former->OnFocusChange(false);
  if (Focused() == &node) node.OnFocusChange(true);
}

void MemoryWindows::TakeFocusFrom(const MemoryNode& node) {
  MemoryTopWindow* top = node.Top();
  if (top == nullptr || !IsWithin(top->focus_, node)) return;
  MemoryNode* former = top->focus_;
  if (&node == top || former == top) return;
  top->focus_ = top;
  if (Focused() != top) return;
  former->OnFocusChange(false);
  if (top->Alive() && Focused() == top) top->OnFocusChange(true);
}

bool MemoryWindows::IsSecond(const MemoryNode& node, const PointerInput& press) {
  const Point by = press.state.at - lastPress_.at;
  const bool second = lastPress_.node == &node && lastPress_.button == press.button &&
                      press.time - lastPress_.time <= kDoubleClickTime &&
                      std::abs(by.x) < kDoubleClickSize && std::abs(by.y) < kDoubleClickSize;
  // A third press begins anew.
  lastPress_ = {second ? nullptr : &node, press.button, press.state.at, press.time};
  return second;
}

void MemoryWindows::Deliver(MemoryNode& node, PointerInput input) {
  MouseEvent event = input.state;
  event.at = event.at - node.ClientOnScreen();
  const bool press = input.kind == PointerInput::Kind::Press;
  if (press) captured_ = &node;
  if (press) input.second = IsSecond(node, input);
  if (press && node.Focusable() && &node != node.Top()) {
    Focus(node);
    // A handler of the focus may have closed it; then nothing is captured any more.
    if (captured_ != &node) return;
  }
  const bool last = !event.left && !event.right && !event.middle;
  if (input.kind == PointerInput::Kind::Release && last) captured_ = nullptr;
  node.OnPointerInput(input, event);
}

void MemoryWindows::ReleaseCapture(const MemoryNode& within) {
  if (IsWithin(captured_, within)) captured_ = nullptr;
}

void MemoryWindows::Forget(const MemoryNode& node) {
  if (captured_ == &node) captured_ = nullptr;
  if (lastPress_.node == &node) lastPress_.node = nullptr;
  for (MemoryTopWindow* top : TopWindows()) {
    if (top->dragTarget_ == &node) top->dragTarget_ = nullptr;
    if (top->focus_ == &node) top->focus_ = top == &node ? nullptr : top;
  }
}

}  // namespace platform
