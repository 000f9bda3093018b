#include "platform/win32/ToolTips.h"

#include "platform/win32/wide.h"

namespace platform {
namespace {

TTTOOLINFOW ToolOf(HWND owner, HWND window) {
  TTTOOLINFOW tool{};
  // The full size is refused where the program runs with the older common controls.
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = owner;
  tool.uId = reinterpret_cast<UINT_PTR>(window);
  return tool;
}

}  // namespace

bool ToolTips::Ready() {
  if (tips_) return true;
  // Top-most: its owner may be, and the tip must not stand behind it.
  tips_.reset(::CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, TOOLTIPS_CLASSW, nullptr,
                                WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                                CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner_, nullptr,
                                ::GetModuleHandleW(nullptr), nullptr));
  if (!tips_) return false;
  for (const auto& [window, text] : texts_) Add(window, text);
  return true;
}

void ToolTips::Set(HWND window, std::u16string_view text) {
  if (texts_.erase(window) != 0 && tips_) Remove(window);
  if (text.empty()) return;
  texts_.emplace(window, text);
  if (tips_) Add(window, text);
}

void ToolTips::Pass(HWND window, const WindowMessage& message) {
  if (!texts_.contains(window) || !Ready()) return;
  MSG passed{};
  passed.hwnd = window;
  passed.message = message.id;
  passed.wParam = message.wParam;
  passed.lParam = message.lParam;
  ::SendMessageW(tips_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&passed));
}

void ToolTips::Add(HWND window, std::u16string_view text) {
  TTTOOLINFOW tool = ToolOf(owner_, window);
  std::u16string shown(text);
  tool.lpszText = WideBuffer(shown);
  ::SendMessageW(tips_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTips::Remove(HWND window) {
  TTTOOLINFOW tool = ToolOf(owner_, window);
  ::SendMessageW(tips_.get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace platform
