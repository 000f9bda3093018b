#include "tests/conformance/Conformance.h"

#include <algorithm>

#include "platform/keystrokes.h"

namespace conformance {
namespace {

constexpr auto kStep = 30ms;
constexpr int kDragSteps = 12;

}  // namespace

int Listener::Count(const std::string& what) const {
  return static_cast<int>(std::count(log.begin(), log.end(), what));
}

void Listener::LogButton(Button button, const char* what, const platform::MouseEvent& event) {
  const char* kNames[] = {"left ", "right ", "middle "};
  log.push_back(std::string(kNames[static_cast<int>(button)]) + what);
  lastMouse = event;
}

void Listener::OnMouseDown(Button button, const platform::MouseEvent& event) {
  LogButton(button, "down", event);
  if (const auto act = onMouseDown) act();
}

void Listener::OnMouseUp(Button button, const platform::MouseEvent& event) {
  LogButton(button, "up", event);
}

void Listener::OnDoubleClick(Button button, const platform::MouseEvent& event) {
  LogButton(button, "double", event);
}

void Listener::OnMouseMove(const platform::MouseEvent& event) {
  lastMouse = event;
  if (const auto act = onMouseMove) act();
}

void Listener::OnMouseWheel(int notches, const platform::MouseEvent& event) {
  lastMouse = event;
  log.push_back("wheel " + std::to_string(notches));
}

void Listener::OnPreviewKey(platform::KeyEvent& event, platform::Window* focused) {
  previewed.emplace_back(event.virtualKey, focused);
  event.handled = event.virtualKey == keyToTake;
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
  window->SetBounds(bounds);
  return window;
}

std::unique_ptr<TopWindow> Conformance::NewDialog(Listener& listener, const Rect& bounds) {
  auto window = desktop().windows().NewTopWindow(
      {.frame = platform::FrameStyle::Dialog, .caption = u"Dialog"}, listener);
  window->SetBounds(bounds);
  return window;
}

void Conformance::Activate(TopWindow& window) {
  window.Show(ShowMode::Activate);
  EXPECT_TRUE(HasForeground(window));
  Settle();
}

std::unique_ptr<OtherProgram> Conformance::StartOther() {
  auto other = under().Start(kTheirs);
  EXPECT_TRUE(OtherHasForeground());
  return other;
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

testing::AssertionResult Conformance::OtherHolds(OtherProgram& other, const std::u16string& text) {
  if (Until([&] { return other.Text() == text; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "it holds " << platform::ToUtf8(other.Text());
}

void Conformance::PointAt(Point p) {
  // A display may still be telling of an earlier move, which takes the pointer back.
  for (int n = 0; n < 20; ++n) {
    under().MoveTo(p);
    under().Pump(50ms);
    if (desktop().input().PointerPosition() == p) return;
  }
}

void Conformance::Click(Point p, Button button) {
  PointAt(p);
  under().Click(button);
  Settle();
}

void Conformance::DoubleClick(Point p, Button button) {
  PointAt(p);
  under().Click(button);
  under().Click(button);
  Settle();
}

void Conformance::PressKey(int virtualKey) {
  under().Stroke(virtualKey);
  Settle();
}

void Conformance::PressKeys(std::initializer_list<int> virtualKeys) {
  for (const int virtualKey : virtualKeys) PressKey(virtualKey);
}

bool Conformance::Type(std::u16string_view keystrokes) {
  const auto strokes = platform::ParseKeystrokes(keystrokes);
  return strokes && desktop().input().Type(*strokes);
}

Point Conformance::CornerOf(const platform::TreeView& tree, platform::TreeNode node) {
  const Rect place = tree.ScreenBounds();
  for (int y = 0; y < place.Height(); ++y) {
    for (int x = 0; x < place.Width(); x += 8) {
      if (tree.NodeAt({x, y}) != node) continue;
      while (tree.NodeAt({x - 1, y}) == node) --x;
      return place.Origin() + Point{x, y};
    }
  }
  ADD_FAILURE() << "the node is not shown";
  return {};
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
