// What the core needs of a panel's host window and of a function wheel. The selector provides them.
#pragma once

#include <string_view>

#include "platform/Form.h"

namespace dorvalin {

/// The window that holds one panel.
class PanelHost : public platform::Form {
 public:
  using platform::Form::Form;

  /// It stands alone: no wheel belongs to it.
  [[nodiscard]] virtual bool Free() const = 0;
  /// It belongs to the sidebar's wheel.
  [[nodiscard]] virtual bool Vertical() const = 0;
  /// Detaches it from its wheel; nothing for a host that is free already.
  virtual void DoFree() = 0;
  /// Out of the top-most band and back: around anything that must stand in front of the host.
  void NotInFG() { Window().SetTopMost(false); }
  void InFG() { Window().SetTopMost(true); }
  /// Runs an operation that the panel publishes under this name. False: there is no panel or it has
  /// no such operation, and nothing happened.
  virtual bool CallPanel(std::string_view operation, int argument = 0) = 0;
};

/// One ring at the pointer or one column at the screen's edge.
class FunctionWheel : public platform::Form {
 public:
  using platform::Form::Form;

  /// True from its opening until it is unloaded.
  bool Opened = false;
  /// Closes: the column hides, the ring unloads.
  virtual void CloseMe() = 0;
};

}  // namespace dorvalin
