// What the drop-down list and the list box share: the same calls under different numbers.
#pragma once

#include <utility>

#include "platform/win32/ControlWindow.h"
#include "platform/win32/wide.h"

namespace platform {

struct ChoiceMessages {
  UINT clear, add, insert, remove, count, textLength, text, selected, select, first, setFirst;
  int selectionChanged;
  int doubleClicked;
};
inline constexpr ChoiceMessages kComboMessages{
    CB_RESETCONTENT, CB_ADDSTRING,  CB_INSERTSTRING, CB_DELETESTRING, CB_GETCOUNT,
    CB_GETLBTEXTLEN, CB_GETLBTEXT,  CB_GETCURSEL,    CB_SETCURSEL,    CB_GETTOPINDEX,
    CB_SETTOPINDEX,  CBN_SELCHANGE, CBN_DBLCLK};
inline constexpr ChoiceMessages kListMessages{
    LB_RESETCONTENT, LB_ADDSTRING,  LB_INSERTSTRING, LB_DELETESTRING, LB_GETCOUNT,
    LB_GETTEXTLEN,   LB_GETTEXT,    LB_GETCURSEL,    LB_SETCURSEL,    LB_GETTOPINDEX,
    LB_SETTOPINDEX,  LBN_SELCHANGE, LBN_DBLCLK};

template <typename PortType, const ChoiceMessages& kMessages>
class ChoiceControl : public ControlOf<PortType> {
 public:
  ChoiceControl() : ControlOf<PortType>(ControlWindow::Background::Own) {}

  void Clear() override {
    this->Send(kMessages.clear);
    told_ = -1;
  }
  void Add(std::u16string_view item) override {
    this->SendPointer(kMessages.add, 0, static_cast<const wchar_t*>(Terminated(item)));
  }
  void Remove(int index) override {
    this->Send(kMessages.remove, Wanted(index));
    told_ = Selected();
  }
  void SetItem(int index, std::u16string_view item) override {
    if (index < 0 || index >= Count()) return;
    const int chosen = Selected();
    const LRESULT first = this->Send(kMessages.first);
    this->Send(WM_SETREDRAW, FALSE);
    this->Send(kMessages.remove, Wanted(index));
    this->SendPointer(kMessages.insert, Wanted(index),
                      static_cast<const wchar_t*>(Terminated(item)));
    this->Send(kMessages.select, Wanted(chosen));
    this->Send(kMessages.setFirst, static_cast<WPARAM>(first));
    this->Send(WM_SETREDRAW, TRUE);
    ::InvalidateRect(this->Handle(), nullptr, TRUE);
  }
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
    // Out of its range the two controls answer differently.
    this->Send(kMessages.select, Wanted(index < Count() ? index : -1));
    if (Selected() != told_) TellChoice();
  }

  std::optional<LRESULT> Receive(const WindowMessage& message) override {
    const auto result = ControlOf<PortType>::Receive(message);
    if (result || (message.id != WM_KEYDOWN && message.id != WM_CHAR)) return result;
    byKey_ = true;
    const LRESULT answer = this->Default(message);
    byKey_ = false;
    return answer;
  }

 protected:
  void OnCommand(int code) override {
    // A key that leads nowhere is told too.
    const bool chosen = code == kMessages.selectionChanged && !(byKey_ && Selected() == told_);
    if (chosen) TellChoice();
    if (code == kMessages.doubleClicked) this->TellDoubleClick();
  }

 private:
  // -1 has to stay -1 in the wider type.
  static WPARAM Wanted(int index) { return static_cast<WPARAM>(static_cast<LONG_PTR>(index)); }
  void TellChoice() {
    const int chosen = Selected();
    if (std::exchange(told_, chosen) != chosen) this->TellChange();
    this->TellClick();
  }

  int told_ = -1;
  bool byKey_ = false;
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

 protected:
  void OnCommand(int code) override;

 private:
  void FitClosedHeight(int height);
};

}  // namespace platform
