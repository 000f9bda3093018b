#include "platform/win32/ChoiceControl.h"

namespace platform {
namespace {

constexpr int kOpenItems = 8;

}  // namespace

bool Win32ListBox::Make(HWND parent, const Rect& bounds) {
  return MakeChild(parent, bounds, L"LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL, {},
                   WS_EX_CLIENTEDGE);
}

bool Win32DropDownList::Make(HWND parent, const Rect& bounds) {
  if (!MakeChild(parent, bounds, L"COMBOBOX", CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL)) {
    return false;
  }
  SetBounds(bounds);
  return true;
}

void Win32DropDownList::SetBounds(const Rect& bounds) {
  if (!Handle()) return;
  FitClosedHeight(bounds.Height());
  // To the system the height is that with the list open.
  const int list = kOpenItems * static_cast<int>(Send(CB_GETITEMHEIGHT)) + 2;
  NativeWindow::SetBounds({bounds.left, bounds.top, bounds.right, bounds.bottom + list});
}

void Win32DropDownList::SetFont(const Font& font) {
  const Rect bounds = NativeWindow::Bounds();
  ControlOf::SetFont(font);
  // A new font sets the height anew.
  SetBounds(bounds);
}

void Win32DropDownList::OnCommand(int code) {
  if (code == CBN_DROPDOWN && DropDown) DropDown();
  ChoiceControl::OnCommand(code);
}

void Win32DropDownList::FitClosedHeight(int height) {
  constexpr WPARAM kClosedItem = static_cast<WPARAM>(-1);
  const int item = static_cast<int>(Send(CB_GETITEMHEIGHT, kClosedItem));
  const int frame = NativeWindow::Bounds().Height() - item;
  if (height > frame) Send(CB_SETITEMHEIGHT, kClosedItem, height - frame);
}

}  // namespace platform
