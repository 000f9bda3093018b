// The system's track bar.
#pragma once

#include "platform/win32/ControlWindow.h"

namespace platform {

class Win32Slider final : public ControlOf<Slider> {
 public:
  Win32Slider() : ControlOf(Background::Parents) {}
  bool Make(HWND parent, const Rect& bounds);
  void SetRange(int minimum, int maximum) override;
  [[nodiscard]] int Value() const override;
  void SetValue(int value) override;

 protected:
  void OnScroll() override { TellIfMoved(); }

 private:
  void TellIfMoved();

  int told_ = 0;
};

}  // namespace platform
