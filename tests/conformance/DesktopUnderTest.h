// The seam of the conformance suite: the same promises are asked of the in-process desktop and of
// Windows, so a test speaks to either through this.
//
// The user's acts come from outside: they return at once, and what they lead to arrives while the
// test pumps (Settle, Until). Acts that fall into a nested loop are planned with Later.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop.h"
#include "platform/geometry.h"
#include "platform/input.h"
#include "platform/menus.h"
#include "platform/taskbar.h"

namespace conformance {

using platform::Button;
using platform::Point;
using platform::Rect;

/// A window of another program with one text, which keeps the formats that are pasted into it and
/// takes text that is dropped on it.
class OtherProgram {
 public:
  virtual ~OtherProgram() = default;
  virtual Rect Area() = 0;  ///< on the screen
  /// Lines end in CR LF.
  virtual std::u16string Text() = 0;
  /// First and last+1 position of each bold part.
  virtual std::vector<std::pair<int, int>> BoldRanges() = 0;
};

class DesktopUnderTest {
 public:
  virtual ~DesktopUnderTest() = default;
  virtual platform::Desktop& desktop() = 0;
  /// Where it is known to differ from Windows.
  virtual bool OnWine() = 0;

  /// Started at the place, in the foreground, empty.
  virtual std::unique_ptr<OtherProgram> Start(const Rect& place) = 0;

  // The user's hands. May be called from a planned act.
  virtual void MoveTo(Point p) = 0;
  virtual void Press(Button button) = 0;
  virtual void Release(Button button) = 0;
  void Click(Button button = Button::Left) {
    Press(button);
    Release(button);
  }
  /// In parts of a notch; away from the user is positive.
  virtual void TurnWheel(int turn) = 0;
  virtual void KeyDown(int virtualKey) = 0;
  virtual void KeyUp(int virtualKey) = 0;
  void Stroke(int virtualKey) {
    KeyDown(virtualKey);
    KeyUp(virtualKey);
  }
  /// Happens after the delay whoever pumps then; it may use the hands and nothing else.
  virtual void Later(std::chrono::milliseconds delay, std::function<void()> act) = 0;
  /// The next pop-up menu is answered by its entry at this place, counted from 1 without the
  /// separators; 0 dismisses it, and so does an entry that cannot be chosen.
  virtual void ChooseInMenu(int place) = 0;
  /// The entries that stood in the menu that was answered last, without their captions.
  virtual platform::Menu MenuSeen() = 0;
  /// With the task bar icon. May be called from a planned act.
  virtual void OnIcon(platform::TaskBarEvent event) = 0;
  /// Another program takes the clipboard for itself, and gives it back.
  virtual void HoldClipboard(bool held) = 0;

  /// What the user sees at the pointer.
  virtual std::u16string ToolTipShown() = 0;
  virtual bool HourglassShown() = 0;

  /// Pumps for so long.
  virtual void Pump(std::chrono::milliseconds time) = 0;
};

std::unique_ptr<DesktopUnderTest> NewDesktopUnderTest();

}  // namespace conformance
