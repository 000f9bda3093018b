// Drags over a pane.
#pragma once

#include <wrl/client.h>

#include "platform/win32/handles.h"
#include "platform/window.h"

namespace platform {

/// A window's place in the system's list of drop targets, left at the end of its life.
class DropRegistration {
 public:
  DropRegistration() = default;
  ~DropRegistration() { Revoke(); }
  DropRegistration(const DropRegistration&) = delete;
  DropRegistration& operator=(const DropRegistration&) = delete;

  void Register(HWND window, PaneEvents& events);
  void Revoke();

 private:
  HWND window_ = nullptr;
};

}  // namespace platform
