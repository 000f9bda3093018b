// What the plain and the rich text box share: how a new text is set and told.
#pragma once

#include "platform/win32/ControlWindow.h"

namespace platform {

template <typename PortType>
class TextControl : public ControlOf<PortType> {
 public:
  TextControl() : ControlOf<PortType>(ControlWindow::Background::Own) {}

  void SetText(std::u16string_view text) override {
    if (!this->Handle()) return;
    const bool changes = text != this->Text();
    Quietly([&] { this->SetWindowText(text); }, changes);
  }

 protected:
  void OnCommand(int code) override {
    if (code != EN_CHANGE || quiet_) return;
    TellSelection();
    this->TellChange();
  }
  /// How often the system tells of a change by code differs between the two and their kinds of
  /// change: nobody hears that, and it is told once afterwards.
  template <typename Act>
  void Quietly(Act&& act, bool changes) {
    quiet_ = true;
    act();
    quiet_ = false;
    TellSelection();
    if (changes) this->TellChange();
  }
  bool Quiet() const { return quiet_; }
  /// If it moved.
  virtual void TellSelection() {}

 private:
  bool quiet_ = false;
};

}  // namespace platform
