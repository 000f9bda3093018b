#pragma once

#include "platform/input.h"

namespace platform {

class Win32Input final : public Input {
 public:
  bool ButtonDown(Button button) override;
  bool KeyDown(int virtualKey) override;
  Modifiers ModifiersDown() override;
  Point PointerPosition() override;
  void MovePointer(Point p) override;
  void SetWaitPointer(bool wait) override;
  void InjectKey(int virtualKey, int scanCode, bool extended, KeyEdge edge) override;
  bool Type(const std::vector<KeyStroke>& strokes) override;
};

}  // namespace platform
