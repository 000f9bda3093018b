// Check boxes and option buttons.
#pragma once

#include <string>
#include <utility>

#include "platform/memory/ControlNode.h"
#include "platform/optiongroup.h"

namespace platform {

template <class Port>
class CheckBoxOf : public ControlOf<Port> {
 public:
  CheckBoxOf(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds,
             std::u16string_view caption)
      : ControlOf<Port>(desktop, parent, bounds), caption_(caption) {}
  bool Checked() const override { return checked_; }
  void SetChecked(bool checked) override {
    if (!this->Fails("CheckBox.SetChecked") && checked != checked_) Check(checked);
  }
  void SetCaption(std::u16string_view caption) override {
    if (!this->Fails("CheckBox.SetCaption")) caption_ = caption;
  }
  const std::u16string& Caption() const { return caption_; }

 protected:
  virtual void Check(bool checked) {
    checked_ = checked;
    this->RaiseChoice();
  }
  virtual void Press() { Check(!checked_); }
  void SetCheckedFlag(bool checked) { checked_ = checked; }

  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override;
  void OnPointerInput(const PointerInput& input, const MouseEvent& event) override {
    const bool left = input.button == Button::Left;
    if (left && input.kind == PointerInput::Kind::Press) armed_ = true;
    if (!left || input.kind != PointerInput::Kind::Release) return;
    const bool inside = Rect::At({0, 0}, this->Place().Size()).Contains(event.at);
    if (std::exchange(armed_, false) && inside) Press();
  }
  void OnOwnKey(const KeyEvent& event) override {
    if (event.virtualKey == key::kSpace) Press();
  }

 private:
  std::u16string caption_;
  bool checked_ = false;
  bool armed_ = false;
};

using MemoryCheckBox = CheckBoxOf<CheckBox>;

class MemoryOptionButton final : public CheckBoxOf<OptionButton> {
 public:
  MemoryOptionButton(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds,
                     std::u16string_view caption, bool startsGroup)
      : CheckBoxOf(desktop, parent, bounds, caption), startsGroup_(startsGroup) {}

 protected:
  void Check(bool checked) override;
  void Press() override {
    if (!Checked()) Check(true);
  }
  void OnOwnKey(const KeyEvent& event) override;

 private:
  std::vector<OptionButton*> Group() const;
  bool startsGroup_;
};

}  // namespace platform
