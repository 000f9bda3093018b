// The panel "Rechner": a term line, a result line and a keypad. The user types or clicks a term,
// solves it, and sends the result into the target window.
#pragma once

#include <memory>
#include <vector>

#include "look/ctlButton.h"
#include "platform/controls.h"
#include "selector/Panel.h"

namespace dorvalin {

class DVC_Calc final : public Panel, private platform::PaneEvents {
 public:
  explicit DVC_Calc(PanelHost& host);
  ~DVC_Calc() override;

  [[nodiscard]] bool HasMenu() const override { return false; }
  [[nodiscard]] std::u16string Title() const override { return u"Rechner"; }
  [[nodiscard]] int NeededWidth() const override { return kWidth; }
  [[nodiscard]] int NeededHeight() const override { return kHeight; }
  void Move(const platform::Rect& bounds) override;

 private:
  static constexpr int kWidth = 207;
  static constexpr int kHeight = 164;

  void MakeTexts();
  void MakeButtons();
  void ListenToTexts();
  void AddTabStops();

  void SolveAndShow();
  void ClearHint();
  void ClickOK();
  void ClickKey(std::size_t index);
  void TermFocused();
  void TermTyped(platform::CharEvent& typed);
  void TermChanged();
  void Insert(std::u16string_view text, int advance);

  PanelHost& host_;
  std::unique_ptr<platform::Pane> pane_;
  std::unique_ptr<platform::TextBox> txtTerm_, txtResult_;
  std::unique_ptr<ctlButton> btnShow_, btnOK_;
  std::vector<std::unique_ptr<ctlButton>> btnInsert_;
  /// A click on the keypad keeps the caret: the next focus must not select the whole term.
  bool KeepSelection_ = false;
  bool HintShown_ = true;
};

}  // namespace dorvalin
