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
  /// Begins with letting go of the modifiers that the user holds.
  KeyBatch();
  /// Enough for one piece: a slow target works on it for some tenths of a second.
  bool Full() const { return strokes_ >= kStrokes; }
  void Add(const KeyStroke& stroke);
  /// Ends it with the marker going down and takes the user's modifiers up again. False: not all was
  /// injected.
  bool Send();

 private:
  static constexpr int kStrokes = 25;

  void Key(int virtualKey, DWORD edge);
  void Press(int virtualKey);
  void Unit(char16_t unit);
  void Distract();

  std::vector<int> held_;
  std::vector<INPUT> events_;
  int strokes_ = 0;
};

/// A key that no keyboard has. The target's own state of it, which says what the target has taken,
/// is down once the batch before it was taken. (Not its toggle state: that of a window which is new
/// to the keyboard can lag behind by one.)
bool MarkerTaken();
void ReleaseMarker();

/// Strokes one by one, each as often as its count says.
class StrokeReader {
 public:
  explicit StrokeReader(std::span<const KeyStroke> strokes) : rest_(strokes) { SkipEmpty(); }
  bool AtEnd() const { return rest_.empty(); }
  const KeyStroke& Next();

 private:
  void SkipEmpty();

  std::span<const KeyStroke> rest_;
  int done_ = 0;  // of the first one
};

}  // namespace platform
