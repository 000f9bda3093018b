#include "platform/win32/Win32Slider.h"

#include <utility>

namespace platform {

bool Win32Slider::Make(HWND parent, const Rect& bounds) {
  return MakeChild(parent, bounds, TRACKBAR_CLASSW, TBS_HORZ | TBS_AUTOTICKS);
}

void Win32Slider::SetRange(int minimum, int maximum) {
  Send(TBM_SETRANGEMIN, FALSE, minimum);
  Send(TBM_SETRANGEMAX, TRUE, maximum);
  TellIfMoved();
}

int Win32Slider::Value() const { return static_cast<int>(Send(TBM_GETPOS)); }

void Win32Slider::SetValue(int value) {
  Send(TBM_SETPOS, TRUE, value);
  TellIfMoved();
}

// The system tells of every notch of a drag several times.
void Win32Slider::TellIfMoved() {
  if (!Handle()) return;
  const int value = Value();
  if (std::exchange(told_, value) != value) TellChange();
}

}  // namespace platform
