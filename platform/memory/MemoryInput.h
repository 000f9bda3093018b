// The state of pointer, buttons and keys, and what the user's hand does with them. What happens
// over another program's window reaches it at once; what happens over ours waits in our queue.
#pragma once

#include <array>
#include <bitset>

#include "platform/input.h"
#include "platform/memory/DesktopWindow.h"
#include "platform/memory/MemoryPump.h"
#include "platform/wheel.h"

namespace platform {

class MemoryDesktop;
class MemoryTopWindow;

class MemoryInput : public Input {
 public:
  explicit MemoryInput(MemoryDesktop& desktop) : desktop_(desktop) {}

  bool ButtonDown(Button button) override;
  bool KeyDown(int virtualKey) override;
  Modifiers ModifiersDown() override;
  Point PointerPosition() override;
  void MovePointer(Point p) override;
  void SetWaitPointer(bool wait) override;
  void InjectKey(int virtualKey, int scanCode, bool extended, KeyEdge edge) override;
  bool Type(const std::vector<KeyStroke>& strokes) override;

  // The user's hand.
  void HandMoves(Point to);
  void HandPresses(Button button);
  void HandReleases(Button button);
  /// By parts of a notch, of which a whole one has WheelNotches::kNotch; away from the user is
  /// positive.
  void HandTurnsWheel(int turn);
  /// `unit`: the character that the key types in the user's layout; 0 for the one that the virtual
  /// key itself names, if any.
  void HandKey(int virtualKey, KeyEdge edge, char16_t unit = 0);

  /// What the pointer looks like over our windows while nothing is dragged.
  Pointer ShownPointer();
  bool ScrollLockOn() const { return scrollLock_; }
  bool AnyButtonDown() const { return buttons_.any(); }
  Modifiers HeldModifiers() const;
  /// The move by the title bar: a nested loop until the left button is up.
  void MoveWithPointer(MemoryTopWindow& window);
  void Forget(const MemoryTopWindow& window);

 private:
  MouseEvent State() const;
  void Send(PointerInput input);
  void Route(const PointerInput& input);
  void SendKey(const KeyInput& input);
  void TypeOne(const KeyStroke& stroke);

  MemoryDesktop& desktop_;
  Point pointer_{};
  std::bitset<3> buttons_;
  std::bitset<256> keys_;
  bool scrollLock_ = false;
  bool waits_ = false;
  MemoryTopWindow* moved_ = nullptr;
  Point grip_{};
};

}  // namespace platform
