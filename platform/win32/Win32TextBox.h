// The system's edit control.
#pragma once

#include "platform/win32/TextControl.h"

namespace platform {

class Win32TextBox final : public TextControl<TextBox> {
 public:
  bool Make(HWND parent, const Rect& bounds, const TextBoxStyle& style);

  [[nodiscard]] std::u16string Text() const override { return WindowText(); }
  [[nodiscard]] int SelStart() const override;
  [[nodiscard]] int SelLength() const override;
  void Select(int start, int length) override;
  void ReplaceSelection(std::u16string_view text) override;

  std::optional<LRESULT> Receive(const WindowMessage& message) override;

 private:
  bool multiLine_ = false;
};

}  // namespace platform
