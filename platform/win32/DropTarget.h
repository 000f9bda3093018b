// Drags over the panes of a top-level window.
#pragma once

#include "platform/win32/handles.h"
#include "platform/window.h"

namespace platform {

/// A top-level window's place in the system's list of drop targets, left at the end of its life.
/// Only it is there, for all its panes: to enter and to leave the list costs more than to make a
/// window, and a panel has dozens. Which pane a drag is over is found at each move.
class DropRegistration {
 public:
  DropRegistration() = default;
  ~DropRegistration() { Revoke(); }
  DropRegistration(const DropRegistration&) = delete;
  DropRegistration& operator=(const DropRegistration&) = delete;

  /// Nothing for one that is registered.
  void Register(HWND root);
  void Revoke();

 private:
  HWND root_ = nullptr;
};

}  // namespace platform
