#include "platform/win32/ToolTips.h"

#include "platform/win32/wide.h"

namespace platform {
namespace {

TTTOOLINFOW ToolOf(HWND owner, HWND window) {
  TTTOOLINFOW tool{};
  // The full size is refused where the program runs with the older common controls.
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
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
  return tips_ != nullptr;
}

void ToolTips::Set(HWND window, std::u16string_view text) {
  if (text.empty() && !tips_) return;
  if (!Ready()) return;
  TTTOOLINFOW tool = ToolOf(owner_, window);
  ::SendMessageW(tips_.get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (text.empty()) return;
  std::u16string shown(text);
  tool.lpszText = WideBuffer(shown);
  ::SendMessageW(tips_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace platform
