// The tool tips of one top-level window and its children: one small window of the system, made when
// the pointer first comes over something that has a tip.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/win32/NativeWindow.h"

namespace platform {

class ToolTips {
 public:
  explicit ToolTips(HWND owner) : owner_(owner) {}
  /// An empty text takes the tip away.
  void Set(HWND window, std::u16string_view text);
  /// A message of the pointer over the window.
  void Pass(HWND window, const WindowMessage& message);
  /// The system destroys what a window owns with it.
  void OwnerGone() { static_cast<void>(tips_.release()); }

 private:
  bool Ready();
  void Add(HWND window, std::u16string_view text);
  void Remove(HWND window);

  HWND owner_;
  OwnedWindow tips_;
  std::map<HWND, std::u16string> texts_;
};

}  // namespace platform
