// The system's rich edit control. It counts the end of a line as one character, the port as two
// (CR LF); positions are translated at this edge.
#pragma once

#include <utility>

#include "platform/win32/TextControl.h"

namespace platform {

class Win32RichTextBox final : public TextControl<RichTextBox> {
 public:
  bool Make(HWND parent, const Rect& bounds, const TextBoxStyle& style);

  void SetColours(std::optional<Colour> text, std::optional<Colour> background) override;
  [[nodiscard]] std::u16string Text() const override;
  [[nodiscard]] int SelStart() const override;
  [[nodiscard]] int SelLength() const override;
  void Select(int start, int length) override;
  void ReplaceSelection(std::u16string_view text) override;
  [[nodiscard]] std::string RichText() const override;
  bool SetRichText(std::string_view source) override;
  [[nodiscard]] RichSelection Selection() const override;
  void SetSelection(const RichSelection& properties) override;

 protected:
  LRESULT OnNotify(const NMHDR& notification) override;
  void TellSelection() override;

 private:
  std::u16string OwnText() const;
  bool StreamIn(std::string_view source);
  void SetAlignment(Alignment alignment);

  std::pair<LONG, LONG> told_{};  ///< the selection that was last told
};

}  // namespace platform
