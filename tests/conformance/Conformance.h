// The frame of the conformance tests: a fresh desktop, and windows that tell what happens to them.
#pragma once

#include <gtest/gtest.h>

#include "platform/Form.h"
#include "platform/clock.h"
#include "platform/controls.h"
#include "platform/data.h"
#include "platform/menus.h"
#include "platform/pump.h"
#include "platform/screen.h"
#include "platform/text.h"
#include "platform/window.h"
#include "tests/conformance/DesktopUnderTest.h"

namespace conformance {

using namespace std::chrono_literals;
using platform::ShowMode;
using platform::TopWindow;

/// Keeps what a window is told, in a row.
class Listener : public platform::TopWindowEvents {
 public:
  std::vector<std::string> log;
  std::function<void()> onMouseDown;
  std::function<void()> onMouseMove;
  std::function<void()> onVisible;
  std::function<platform::DropEffect(const platform::DragEvent&)> onDrop;
  platform::DropEffect dropEffect = platform::DropEffect::None;
  std::u16string typed;
  platform::MouseEvent lastMouse;
  int keyToTake = 0;
  std::vector<std::pair<int, platform::Window*>> previewed;

  int Count(const std::string& what) const;

  void OnMouseDown(Button button, const platform::MouseEvent& event) override;
  void OnMouseUp(Button button, const platform::MouseEvent& event) override;
  void OnMouseMove(const platform::MouseEvent& event) override;
  void OnDoubleClick(Button button, const platform::MouseEvent& event) override;
  void OnMouseWheel(int notches, const platform::MouseEvent& event) override;
  void OnPreviewKey(platform::KeyEvent& event, platform::Window* focused) override;
  void OnKeyDown(platform::KeyEvent& event) override;
  void OnChar(platform::CharEvent& event) override { typed += event.unit; }
  void OnFocus(bool gained) override { log.emplace_back(gained ? "focus" : "no focus"); }
  void OnResize() override { log.emplace_back("resize"); }
  void OnVisible(bool visible) override {
    log.emplace_back(visible ? "seen" : "gone");
    if (onVisible) onVisible();
  }
  void OnActivate(platform::Activation now) override;
  void OnCloseRequest() override { log.emplace_back("close"); }
  platform::DropEffect OnDrag(const platform::DragEvent& event) override;
  platform::DropEffect OnDrop(const platform::DragEvent& event) override;

 private:
  void LogButton(Button button, const char* what, const platform::MouseEvent& event);
};

class Conformance : public testing::Test {
 public:
  /// Above the bar of a desktop, with room for another program beside it.
  static constexpr Rect kOurs{60, 60, 400, 360};
  static constexpr Rect kTheirs{420, 80, 820, 380};

  Conformance() : under_(NewDesktopUnderTest()), scope_(under_->desktop()) {}

  DesktopUnderTest& under() { return *under_; }
  platform::Desktop& desktop() { return under_->desktop(); }

  std::unique_ptr<TopWindow> NewWindow(Listener& listener, const Rect& bounds = kOurs,
                                       TopWindow* owner = nullptr);
  std::unique_ptr<TopWindow> NewDialog(Listener& listener, const Rect& bounds = kOurs);
  std::unique_ptr<platform::Pane> NewPane(platform::Pane& parent, const Rect& bounds,
                                          Listener& listener, bool focusable = false) {
    return desktop().windows().NewPane(parent, bounds, focusable, listener);
  }
  /// Shows it, and waits until it has the activation.
  void Activate(TopWindow& window);
  /// In the foreground.
  std::unique_ptr<OtherProgram> StartOther();

  void Settle() { under().Pump(150ms); }
  /// Pumps until the condition holds; false when it does not within the time.
  bool Until(const std::function<bool()>& condition, std::chrono::milliseconds time = 5s);
  bool OtherHasForeground();
  bool HasForeground(const TopWindow& window);
  testing::AssertionResult OtherHolds(OtherProgram& other, const std::u16string& text);

  /// The pointer stands there when this returns.
  void PointAt(Point p);
  void PointAt(const platform::Window& window) { PointAt(window.ScreenBounds().Middle()); }
  void Click(Point p, Button button = Button::Left);
  void Click(const platform::Window& window) { Click(window.ScreenBounds().Middle()); }
  void DoubleClick(Point p, Button button = Button::Left);
  void DoubleClick(const platform::Window& window) { DoubleClick(window.ScreenBounds().Middle()); }
  /// Waits until a press counts as a first one again.
  void Rest() { under().Pump(700ms); }
  void PressKey(int virtualKey);
  void PressKeys(std::initializer_list<int> virtualKeys);
  /// Not by hand: as the program types into the other one.
  bool Type(std::u16string_view keystrokes);
  /// Where a node's icon begins, on the screen.
  static Point CornerOf(const platform::TreeView& tree, platform::TreeNode node);
  /// With the pointer, in steps that a drag needs; planned from now on.
  void PlanDrag(Point from, Point to);

 private:
  std::unique_ptr<DesktopUnderTest> under_;
  platform::DesktopScope scope_;
};

/// With a window of ours that is active.
class WithWindow : public Conformance {
 public:
  WithWindow() { Activate(*window); }

  Listener listener;
  const std::unique_ptr<TopWindow> window = NewWindow(listener);
};

}  // namespace conformance
