// What the drop-down list and the list box share: the same calls under different numbers.
#pragma once

#include "platform/win32/ControlWindow.h"
#include "platform/win32/wide.h"

namespace platform {

struct ChoiceMessages {
  UINT clear, add, remove, count, textLength, text, selected, select;
  int selectionChanged;
  int doubleClicked;
};
inline constexpr ChoiceMessages kComboMessages{
    CB_RESETCONTENT, CB_ADDSTRING, CB_DELETESTRING, CB_GETCOUNT,   CB_GETLBTEXTLEN,
    CB_GETLBTEXT,    CB_GETCURSEL, CB_SETCURSEL,    CBN_SELCHANGE, CBN_DBLCLK};
inline constexpr ChoiceMessages kListMessages{
    LB_RESETCONTENT, LB_ADDSTRING, LB_DELETESTRING, LB_GETCOUNT,   LB_GETTEXTLEN,
    LB_GETTEXT,      LB_GETCURSEL, LB_SETCURSEL,    LBN_SELCHANGE, LBN_DBLCLK};

template <typename PortType, const ChoiceMessages& kMessages>
class ChoiceControl : public ControlOf<PortType> {
 public:
  ChoiceControl() : ControlOf<PortType>(ControlWindow::Background::Own) {}

  void Clear() override { this->Send(kMessages.clear); }
  void Add(std::u16string_view item) override {
    this->SendPointer(kMessages.add, 0, static_cast<const wchar_t*>(Terminated(item)));
  }
  void Remove(int index) override { this->Send(kMessages.remove, Wanted(index)); }
  [[nodiscard]] int Count() const override { return static_cast<int>(this->Send(kMessages.count)); }
  [[nodiscard]] std::u16string Item(int index) const override {
    const LRESULT length = index < 0 ? -1 : this->Send(kMessages.textLength, Wanted(index));
    if (length <= 0) return {};
    std::u16string item(static_cast<std::size_t>(length), u'\0');
    this->SendPointer(kMessages.text, Wanted(index), WideBuffer(item));
    return item;
  }
  [[nodiscard]] int Selected() const override {
    return this->Handle() ? static_cast<int>(this->Send(kMessages.selected)) : -1;
  }
  void Select(int index) override {
    const int former = Selected();
    this->Send(kMessages.select, Wanted(index));
    if (Selected() != former) TellChoice();
  }

 protected:
  void OnCommand(int code) override {
    if (code == kMessages.selectionChanged) TellChoice();
    if (code == kMessages.doubleClicked) this->TellDoubleClick();
  }

 private:
  // -1 has to stay -1 in the wider type.
  static WPARAM Wanted(int index) { return static_cast<WPARAM>(static_cast<LONG_PTR>(index)); }
  void TellChoice() {
    this->TellChange();
    this->TellClick();
  }
};

class Win32ListBox final : public ChoiceControl<ListBox, kListMessages> {
 public:
  bool Make(HWND parent, const Rect& bounds);
};

class Win32DropDownList final : public ChoiceControl<DropDownList, kComboMessages> {
 public:
  bool Make(HWND parent, const Rect& bounds);
  void SetBounds(const Rect& bounds) override;
  void SetFont(const Font& font) override;

 private:
  void FitClosedHeight(int height);
};

}  // namespace platform
