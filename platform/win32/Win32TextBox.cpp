#include "platform/win32/Win32TextBox.h"

#include <algorithm>

#include "platform/win32/wide.h"

namespace platform {
namespace {

DWORD StyleOf(const TextBoxStyle& style) {
  DWORD bits = style.multiLine ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN : ES_AUTOHSCROLL;
  if (style.readOnly) bits |= ES_READONLY;
  return bits;
}

}  // namespace

bool Win32TextBox::Make(HWND parent, const Rect& bounds, const TextBoxStyle& style) {
  multiLine_ = style.multiLine;
  const DWORD border = style.border ? WS_EX_CLIENTEDGE : 0;
  if (!MakeChild(parent, bounds, L"EDIT", StyleOf(style), {}, border)) return false;
  // Nothing stands for as much as the system can hold.
  Send(EM_SETLIMITTEXT);
  return true;
}

int Win32TextBox::SelStart() const {
  DWORD start = 0;
  SendPointer(EM_GETSEL, reinterpret_cast<WPARAM>(&start), static_cast<void*>(nullptr));
  return static_cast<int>(start);
}

int Win32TextBox::SelLength() const {
  DWORD start = 0;
  DWORD end = 0;
  SendPointer(EM_GETSEL, reinterpret_cast<WPARAM>(&start), &end);
  return static_cast<int>(end - start);
}

void Win32TextBox::Select(int start, int length) {
  const int first = std::max(start, 0);
  Send(EM_SETSEL, static_cast<WPARAM>(first), first + std::max(length, 0));
  Send(EM_SCROLLCARET);
}

void Win32TextBox::ReplaceSelection(std::u16string_view text) {
  SendPointer(EM_REPLACESEL, TRUE, static_cast<const wchar_t*>(Terminated(text)));
}

std::optional<LRESULT> Win32TextBox::Receive(const WindowMessage& message) {
  const auto result = TextControl::Receive(message);
  // A single line answers Enter, Tab and Escape with nothing but a beep.
  const bool beeps =
      message.id == WM_CHAR && !multiLine_ &&
      (message.wParam == VK_RETURN || message.wParam == VK_TAB || message.wParam == VK_ESCAPE);
  return beeps && !result ? 0 : result;
}

}  // namespace platform
