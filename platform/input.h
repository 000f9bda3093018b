// The physical state of pointer, buttons and keys, and keys put into the input stream.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/geometry.h"

namespace platform {

enum class Button { Left, Right, Middle };

struct Modifiers {
  bool shift = false;
  bool control = false;
  bool alt = false;
  friend bool operator==(const Modifiers&, const Modifiers&) = default;
  bool Any() const { return shift || control || alt; }
};

/// Virtual key codes by their system numbers; letters and digits are their upper-case characters.
namespace key {
inline constexpr int kBack = 8, kTab = 9, kEnter = 13, kShift = 16, kControl = 17, kAlt = 18;
inline constexpr int kEscape = 27, kSpace = 32, kPageUp = 33, kPageDown = 34, kEnd = 35, kHome = 36;
inline constexpr int kLeft = 37, kUp = 38, kRight = 39, kDown = 40, kInsert = 45, kDelete = 46;
inline constexpr int kF1 = 112, kF2 = 113, kF4 = 115, kScrollLock = 145;
}  // namespace key

/// One press and release (repeated `count` times): a character unit typed as such, or a virtual key
/// with modifiers held, which mean nothing to a unit.
struct KeyStroke {
  char16_t unit = 0;  ///< typed as Unicode when `virtualKey` is 0
  int virtualKey = 0;
  Modifiers modifiers;
  int count = 1;
  friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

class Input {
 public:
  virtual ~Input() = default;
  /// The physical state now, whichever program's window has the pointer or the keyboard.
  [[nodiscard]] virtual bool ButtonDown(Button button) = 0;
  [[nodiscard]] virtual bool KeyDown(int virtualKey) = 0;
  [[nodiscard]] virtual Modifiers ModifiersDown() = 0;
  [[nodiscard]] virtual Point PointerPosition() = 0;
  virtual void MovePointer(Point p) = 0;
  /// The hourglass over all windows of this program, whatever their own pointers, until taken back.
  virtual void SetWaitPointer(bool wait) = 0;
  enum class KeyEdge { Down, Up };
  /// One key event into the input stream.
  virtual void InjectKey(int virtualKey, int scanCode, bool extended, KeyEdge edge) = 0;
  /// Types into the window that has the keyboard and returns when it has taken them, as far as the
  /// system lets one know. Modifiers that the user holds do not mix in. False: not all were
  /// injected.
  virtual bool Type(const std::vector<KeyStroke>& strokes) = 0;
};

}  // namespace platform
