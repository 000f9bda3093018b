// Key events that go into the input stream in one piece, so that nothing the user does comes
// between them.
#pragma once

#include <span>
#include <vector>

#include "platform/input.h"
#include "platform/win32/win.h"

namespace platform {

class KeyBatch {
 public:
  /// Enough for one piece: a slow target works on it for some tenths of a second. A character of
  /// two units is not cut.
  bool Full() const { return strokes_ >= kStrokes + (halfCharacter_ ? 1 : 0); }
  /// Once, whatever the stroke's count says.
  void Add(const KeyStroke& stroke);
  /// The marker goes down behind the last stroke.
  void End();
  /// The modifiers that the user holds are let go of before and taken up again behind. False: not
  /// all was injected.
  bool Send() const;

 private:
  static constexpr int kStrokes = 25;

  void Key(int virtualKey, DWORD edge);
  void Press(int virtualKey);
  void Unit(char16_t unit);

  std::vector<INPUT> events_;
  int strokes_ = 0;
  bool halfCharacter_ = false;
};

/// To be made on a thread with windows: under Wine, a thread without one takes 20 ms to find the
/// first key's place on the keyboard.
std::vector<KeyBatch> BatchesOf(std::span<const KeyStroke> strokes);

/// Whether the key is held on the keyboard, whichever program gets it.
bool PhysicallyDown(int virtualKey);

/// A key that no keyboard has. The target's own state of it, which says what the target has taken,
/// is down once the batch before it was taken. (Not its toggle state: that of a window which is new
/// to the keyboard can lag behind by one.)
bool MarkerTaken();
void ReleaseMarker();

}  // namespace platform
