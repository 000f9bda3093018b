// A text on its parent's canvas.
#pragma once

#include "platform/win32/ControlWindow.h"
#include "platform/win32/MouseMessages.h"

namespace platform {

class Win32Label final : public ControlOf<Label> {
 public:
  explicit Win32Label(const LabelStyle& style)
      : ControlOf(style.transparent ? Background::Parents : Background::Own), style_(style) {}
  bool Make(HWND parent, const Rect& bounds, std::u16string_view caption);

  void SetCaption(std::u16string_view caption) override;
  void SetPointer(const Pointer& pointer) override { pointer_ = pointer; }

  std::optional<LRESULT> Receive(const WindowMessage& message) override;
  void PaintTree(HDC dc, Point at, const Rect& clip) override;

 private:
  LRESULT Paint();
  void DrawOn(Surface& surface) const;
  LRESULT ReceiveButton(const ButtonMessage& what, const WindowMessage& message);
  void Press(Button button, const WindowMessage& message);
  void Release(const WindowMessage& message);

  LabelStyle style_;
  Pointer pointer_;
};

}  // namespace platform
