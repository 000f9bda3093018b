#include "platform/win32/Win32Buttons.h"

namespace platform {
namespace {

// Later systems know it; it keeps an option button from choosing itself when it gets the keyboard.
constexpr UINT kDontClickOnFocus = BM_SETDONTCLICK;

}  // namespace

bool Win32CheckBox::Make(HWND parent, const Rect& bounds, std::u16string_view caption) {
  return MakeChild(parent, bounds, L"BUTTON", BS_AUTOCHECKBOX, caption);
}

bool Win32CheckBox::Checked() const { return Send(BM_GETCHECK) == BST_CHECKED; }

void Win32CheckBox::SetChecked(bool checked) {
  if (!Handle() || checked == Checked()) return;
  Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
  TellChecked();
}

void Win32CheckBox::OnCommand(int code) {
  if (code == BN_CLICKED) TellChecked();
}

void Win32CheckBox::TellChecked() {
  TellChange();
  TellClick();
}

bool Win32OptionButton::Make(HWND parent, const Rect& bounds, std::u16string_view caption,
                             bool startsGroup) {
  startsGroup_ = startsGroup;
  if (!MakeChild(parent, bounds, L"BUTTON", BS_RADIOBUTTON, caption)) return false;
  Send(kDontClickOnFocus, TRUE);
  return true;
}

bool Win32OptionButton::Checked() const { return Send(BM_GETCHECK) == BST_CHECKED; }

void Win32OptionButton::SetChecked(bool checked) {
  if (!Handle() || checked == Checked()) return;
  if (checked) {
    for (OptionButton* other : Group()) other->SetChecked(false);
  }
  Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
  if (!checked) return;
  TellChange();
  TellClick();
}

void Win32OptionButton::OnCommand(int code) {
  if (code == BN_CLICKED) SetChecked(true);
}

std::vector<OptionButton*> Win32OptionButton::Group() const {
  std::vector<OptionPlace> siblings;
  if (!Outer()) return {};
  for (NativeWindow* child : Outer()->Children()) {
    auto* option = dynamic_cast<Win32OptionButton*>(child);
    if (option) siblings.push_back({option, option->startsGroup_});
  }
  return OptionGroup(siblings, *this);
}

bool Win32OptionButton::MoveChoice(int virtualKey) {
  OptionButton* next = OptionAfterKey(Group(), *this, virtualKey);
  if (!next) return false;
  if (next == this) return true;
  next->Focus();
  next->SetChecked(true);
  return true;
}

std::optional<LRESULT> Win32OptionButton::Receive(const WindowMessage& message) {
  const auto result = ButtonOf::Receive(message);
  if (result || message.id != WM_KEYDOWN || !Handle()) return result;
  return MoveChoice(static_cast<int>(message.wParam)) ? std::optional<LRESULT>(0) : std::nullopt;
}

bool Win32Frame::Make(HWND parent, const Rect& bounds, std::u16string_view caption) {
  return MakeChild(parent, bounds, L"BUTTON", BS_GROUPBOX, caption);
}

}  // namespace platform
