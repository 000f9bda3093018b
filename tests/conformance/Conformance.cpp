#include "tests/conformance/Conformance.h"

#include <algorithm>

namespace conformance {
namespace {

constexpr auto kStep = 30ms;
constexpr int kDragSteps = 12;

std::string NameOf(Button button) {
  return button == Button::Left ? "left" : button == Button::Right ? "right" : "middle";
}

}  // namespace

int Listener::Count(const std::string& what) const {
  return static_cast<int>(std::count(log.begin(), log.end(), what));
}

void Listener::OnMouseDown(Button button, const platform::MouseEvent& event) {
  lastMouse = event;
  log.push_back(NameOf(button) + " down");
  if (const auto act = onMouseDown) act();
}

void Listener::OnMouseUp(Button button, const platform::MouseEvent& event) {
  lastMouse = event;
  log.push_back(NameOf(button) + " up");
}

void Listener::OnMouseMove(const platform::MouseEvent& event) {
  lastMouse = event;
  if (const auto act = onMouseMove) act();
}

void Listener::OnDoubleClick(Button button, const platform::MouseEvent& event) {
  lastMouse = event;
  log.push_back(NameOf(button) + " double");
}

void Listener::OnKeyDown(platform::KeyEvent& event) {
  log.push_back("key " + std::to_string(event.virtualKey));
}

void Listener::OnActivate(platform::Activation now) {
  log.emplace_back(now == platform::Activation::Gained ? "active" : "inactive");
}

platform::DropEffect Listener::OnDrag(const platform::DragEvent& event) {
  const char* states[] = {"enter", "leave", "over"};
  const std::string state = states[static_cast<int>(event.state)];
  // How often a drag is told of a pointer that rests or moves is the system's own affair.
  if (log.empty() || log.back() != state) log.push_back(state);
  return dropEffect;
}

platform::DropEffect Listener::OnDrop(const platform::DragEvent& event) {
  log.emplace_back("drop");
  return onDrop ? onDrop(event) : dropEffect;
}

std::unique_ptr<TopWindow> Conformance::NewWindow(Listener& listener, const Rect& bounds,
                                                  TopWindow* owner) {
  platform::TopWindowOptions options;
  options.owner = owner;
  auto window = desktop().windows().NewTopWindow(options, listener);
  if (window) window->SetBounds(bounds);
  return window;
}

bool Conformance::Until(const std::function<bool()>& condition, std::chrono::milliseconds time) {
  for (auto waited = 0ms; waited <= time; waited += 10ms) {
    if (condition()) return true;
    under().Pump(10ms);
  }
  return false;
}

bool Conformance::OtherHasForeground() {
  return Until([&] {
    const auto now = desktop().windows().ForegroundWindow();
    return now.present && now.ours == nullptr;
  });
}

bool Conformance::HasForeground(const TopWindow& window) {
  return Until([&] { return desktop().windows().ForegroundWindow().ours == &window; });
}

bool Conformance::OtherHolds(OtherProgram& other, const std::u16string& text) {
  return Until([&] { return other.Text() == text; });
}

void Conformance::Click(Point p, Button button) {
  under().MoveTo(p);
  // A display may still be telling of an earlier move.
  under().Pump(50ms);
  under().Press(button);
  under().Release(button);
  Settle();
}

void Conformance::PressKey(int virtualKey) {
  under().KeyDown(virtualKey);
  under().KeyUp(virtualKey);
  Settle();
}

void Conformance::PlanDrag(Point from, Point to) {
  under().MoveTo(from);
  Settle();
  under().Later(kStep, [this] { under().Press(Button::Left); });
  const Point way = to - from;
  for (int step = 1; step <= kDragSteps; ++step) {
    const Point at{from.x + way.x * step / kDragSteps, from.y + way.y * step / kDragSteps};
    under().Later((step + 1) * kStep, [this, at] { under().MoveTo(at); });
  }
  // The other side wants a moment and one more move to believe that the pointer stands there.
  under().Later((kDragSteps + 8) * kStep, [this, to] { under().MoveTo(to + Point{1, 1}); });
  under().Later((kDragSteps + 12) * kStep, [this] { under().Release(Button::Left); });
}

}  // namespace conformance
