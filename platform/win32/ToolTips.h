// The tool tips of one top-level window and its children: one small window of the system.
#pragma once

#include <string_view>

#include "platform/win32/handles.h"

namespace platform {

class ToolTips {
 public:
  explicit ToolTips(HWND owner) : owner_(owner) {}
  /// An empty text takes the tip away.
  void Set(HWND window, std::u16string_view text);
  /// The system destroys what a window owns with it.
  void OwnerGone() { static_cast<void>(tips_.release()); }

 private:
  bool Ready();

  HWND owner_;
  OwnedWindow tips_;
};

}  // namespace platform
