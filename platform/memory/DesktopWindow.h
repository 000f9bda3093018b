// A window in the order of the in-process desktop: one of ours or one of another program.
#pragma once

#include <chrono>

#include "platform/data.h"
#include "platform/geometry.h"
#include "platform/input.h"
#include "platform/window.h"

namespace platform {

/// Something the user did with the pointer, in screen pixels.
struct PointerInput {
  enum class Kind { Press, Release, Move, Wheel };
  Kind kind = Kind::Move;
  Button button = Button::Left;
  MouseEvent state;                 ///< `at` in screen pixels
  std::chrono::nanoseconds time{};  ///< since the desktop's start
  bool second = false;              ///< the second press of a double click
  int turn = 0;                     ///< of the wheel, in parts of a notch (WheelNotches)
};

/// A key going down or up, with the character that it types (0 for none).
struct KeyInput {
  int virtualKey = 0;
  char16_t unit = 0;
  Modifiers modifiers;
  bool down = true;
};

class DesktopWindow {
 public:
  virtual ~DesktopWindow() = default;
  virtual bool Ours() const = 0;
  virtual Rect Area() const = 0;
  virtual bool Shown() const = 0;
  /// False: clicks are lost on it, and the activation passes it over.
  virtual bool TakesInput() const { return true; }
  virtual bool Activatable() const { return true; }
  virtual bool TopMost() const { return false; }
  virtual DesktopWindow* Owner() const { return nullptr; }
  virtual bool Covers(Point screen) const { return Area().Contains(screen); }
  virtual void Paint(Surface& screen) = 0;

  virtual void OnActivation(Activation) {}
  /// A window goes with its owner, which is still there for the time of this call.
  virtual void OnOwnerClosed() {}
  virtual void OnPointer(const PointerInput&) {}
  virtual void OnKey(const KeyInput&) {}
  /// The points of drag events are screen pixels here.
  virtual DropEffect OnDragOver(const DragEvent&) { return DropEffect::None; }
  virtual DropEffect OnDropped(const DragEvent&) { return DropEffect::None; }
};

}  // namespace platform
