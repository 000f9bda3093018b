// The system's edit control.
#pragma once

#include "platform/win32/ControlWindow.h"

namespace platform {

class Win32TextBox final : public ControlOf<TextBox> {
 public:
  Win32TextBox() : ControlOf(Background::Own) {}
  bool Make(HWND parent, const Rect& bounds, const TextBoxStyle& style);

  [[nodiscard]] std::u16string Text() const override { return WindowText(); }
  void SetText(std::u16string_view text) override;
  [[nodiscard]] int SelStart() const override;
  [[nodiscard]] int SelLength() const override;
  void Select(int start, int length) override;
  void ReplaceSelection(std::u16string_view text) override;

  std::optional<LRESULT> Receive(const WindowMessage& message) override;

 protected:
  void OnCommand(int code) override;

 private:
  bool multiLine_ = false;
  bool settingText_ = false;
};

}  // namespace platform
