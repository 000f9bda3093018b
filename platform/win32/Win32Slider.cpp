#include "platform/win32/Win32Slider.h"

#include <algorithm>
#include <utility>

#include "platform/win32/MouseMessages.h"
#include "platform/win32/wide.h"

namespace platform {

bool Win32Slider::Make(HWND parent, const Rect& bounds) {
  if (!MakeChild(parent, bounds, TRACKBAR_CLASSW, TBS_HORZ | TBS_AUTOTICKS)) return false;
  ShowTicks();
  return true;
}

void Win32Slider::SetRange(int minimum, int maximum) {
  Send(TBM_SETRANGEMIN, FALSE, minimum);
  Send(TBM_SETRANGEMAX, TRUE, maximum);
  ShowTicks();
  TellIfMoved();
}

void Win32Slider::SetTickStep(int step) {
  tickStep_ = step;
  ShowTicks();
}

// Left to itself the system marks every single value.
void Win32Slider::ShowTicks() {
  const LRESULT range = Send(TBM_GETRANGEMAX) - Send(TBM_GETRANGEMIN);
  const LRESULT step = tickStep_ > 0 ? tickStep_ : std::max<LRESULT>(range, 1);
  Send(TBM_SETTICFREQ, static_cast<WPARAM>(step));
}

int Win32Slider::Value() const { return static_cast<int>(Send(TBM_GETPOS)); }

void Win32Slider::SetValue(int value) {
  Send(TBM_SETPOS, TRUE, value);
  TellIfMoved();
}

bool Win32Slider::ThumbAt(Point client) const {
  RECT thumb{};
  SendPointer(TBM_GETTHUMBRECT, 0, &thumb);
  return RectOf(thumb).Contains(client);
}

std::optional<LRESULT> Win32Slider::Receive(const WindowMessage& message) {
  const auto what = ButtonMessageOf(message);
  if (!what || what->event == ButtonEvent::Up || !MouseDown) return ControlOf::Receive(message);
  const MouseEvent event = MouseEventOf(message);
  const int before = Value();
  MouseDown(what->button, event);
  if (Value() == before || ThumbAt(event.at)) return ControlOf::Receive(message);
  if (Handle()) ::SetFocus(Handle());
  return 0;
}

// The system tells of every notch of a drag several times.
void Win32Slider::TellIfMoved() {
  if (!Handle()) return;
  const int value = Value();
  if (std::exchange(told_, value) != value) TellChange();
}

}  // namespace platform
