// The system's buttons: check box, option button and the frame around a group.
#pragma once

#include "platform/optiongroup.h"
#include "platform/win32/ControlWindow.h"

namespace platform {

template <typename PortType>
class ButtonOf : public ControlOf<PortType> {
 public:
  ButtonOf() : ControlOf<PortType>(ControlWindow::Background::Parents) {}
  void SetCaption(std::u16string_view caption) override { this->SetWindowText(caption); }
};

class Win32CheckBox final : public ButtonOf<CheckBox> {
 public:
  bool Make(HWND parent, const Rect& bounds, std::u16string_view caption);
  [[nodiscard]] bool Checked() const override;
  void SetChecked(bool checked) override;

 protected:
  void OnCommand(int code) override;

 private:
  void TellChecked();
};

class Win32OptionButton final : public ButtonOf<OptionButton> {
 public:
  bool Make(HWND parent, const Rect& bounds, std::u16string_view caption, bool startsGroup);
  [[nodiscard]] bool Checked() const override;
  void SetChecked(bool checked) override;

  std::optional<LRESULT> Receive(const WindowMessage& message) override;

 protected:
  void OnCommand(int code) override;

 private:
  std::vector<OptionButton*> Group() const;
  bool MoveChoice(int virtualKey);

  bool startsGroup_ = false;
};

class Win32Frame final : public ButtonOf<Frame> {
 public:
  bool Make(HWND parent, const Rect& bounds, std::u16string_view caption);
};

}  // namespace platform
