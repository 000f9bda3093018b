// The person in front of the in-process desktop, in a test's words:
//
//   User user(desktop);
//   user.Hold(Button::Middle, 450ms);
//   user.Release(Button::Middle);
//   user.Click(editor.Middle());
//   user.Type(u"6*7\r");
//
// Whatever the user does is delivered before the call returns, as by the main loop; unloaded forms
// are freed in between. An act that opens a modal loop (a dialog, a drag, a move) returns when that
// loop ends: what is to happen meanwhile is planned beforehand with Later.
#pragma once

#include <chrono>
#include <functional>
#include <string_view>

#include "platform/memory/MemoryDesktop.h"

namespace dorvalin {

class User {
 public:
  using Duration = platform::MemoryPump::Duration;

  explicit User(platform::MemoryDesktop& desktop) : desktop_(desktop) {}

  void MoveTo(platform::Point p);
  void Press(platform::Button button = platform::Button::Left);
  void Release(platform::Button button = platform::Button::Left);
  /// Presses, keeps still for so long and does not release.
  void Hold(platform::Button button, Duration time);
  void Click(platform::Point p, platform::Button button = platform::Button::Left);
  /// In the window's middle.
  void Click(const platform::Window& window, platform::Button button = platform::Button::Left);
  /// Presses the left button, moves in small steps and releases.
  void Drag(platform::Point from, platform::Point to);

  /// Line ends, tabs, backspaces and escapes are their keys.
  void Type(std::u16string_view text);
  void Key(int virtualKey, platform::Modifiers held = {});
  void KeyDown(int virtualKey);
  void KeyUp(int virtualKey);

  void Wait(Duration time);
  /// When the clock gets there, whoever waits then; Wait(0) for what is due now.
  void Later(Duration delay, std::function<void()> action);

 private:
  /// Lets the program take what was done.
  void Settle();
  void Collect();
  void Stroke(int virtualKey, char16_t unit);

  platform::MemoryDesktop& desktop_;
};

}  // namespace dorvalin
