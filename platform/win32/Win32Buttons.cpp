#include "platform/win32/Win32Buttons.h"

#include <algorithm>

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
    for (Win32OptionButton* other : Group()) other->Send(BM_SETCHECK, BST_UNCHECKED);
  }
  Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
  TellChange();
  TellClick();
}

void Win32OptionButton::OnCommand(int code) {
  if (code == BN_CLICKED) SetChecked(true);
}

// The option buttons of the parent, in the order of their making, between two starts of a group.
std::vector<Win32OptionButton*> Win32OptionButton::Group() const {
  std::vector<Win32OptionButton*> group;
  bool own = false;
  for (HWND child = ::GetWindow(Handle(), GW_HWNDFIRST); child;
       child = ::GetWindow(child, GW_HWNDNEXT)) {
    auto* option = dynamic_cast<Win32OptionButton*>(Of(child));
    if (!option) continue;
    if (option->startsGroup_ && own) break;
    if (option->startsGroup_) group.clear();
    group.push_back(option);
    own = own || option == this;
  }
  return group;
}

bool Win32OptionButton::MoveChoice(int virtualKey) {
  const bool back = virtualKey == VK_UP || virtualKey == VK_LEFT;
  const bool forward = virtualKey == VK_DOWN || virtualKey == VK_RIGHT;
  if (!back && !forward) return false;
  std::vector<Win32OptionButton*> group = Group();
  std::erase_if(group, [this](const Win32OptionButton* each) {
    return each != this && !(each->Visible() && each->Enabled());
  });
  if (back) std::ranges::reverse(group);
  std::ranges::rotate(group, std::ranges::find(group, this));
  if (group.size() < 2) return true;
  group[1]->Focus();
  group[1]->SetChecked(true);
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
