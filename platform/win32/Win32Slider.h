// The system's track bar.
#pragma once

#include "platform/win32/ControlWindow.h"

namespace platform {

class Win32Slider final : public ControlOf<Slider> {
 public:
  Win32Slider() : ControlOf(Background::Parents) {}
  bool Make(HWND parent, const Rect& bounds);
  void SetRange(int minimum, int maximum) override;
  void SetTickStep(int step) override;
  [[nodiscard]] int Value() const override;
  void SetValue(int value) override;

  std::optional<LRESULT> Receive(const WindowMessage& message) override;

 protected:
  void OnScroll() override { TellIfMoved(); }

 private:
  void TellIfMoved();

  void ShowTicks();
  bool ThumbAt(Point client) const;

  int told_ = 0;
  int tickStep_ = 0;
};

}  // namespace platform
