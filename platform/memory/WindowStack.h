// The order of all windows on the desktop and whose turn it is.
//
//   bottom  [ ordinary windows ... ][ top-most windows ... ]  top
//
// A window stands in front of its owner, and in the top-most band when its owner does. When the
// active window goes, the window that was active before it takes over, of whichever program.
#pragma once

#include <vector>

#include "platform/memory/DesktopWindow.h"

namespace platform {

class WindowStack {
 public:
  void Add(DesktopWindow& window);
  void Remove(DesktopWindow& window);
  /// To the top of its band, with the windows it owns in front of it.
  void Raise(DesktopWindow& window);
  /// Makes it the active one, or none; both sides are told.
  void Activate(DesktopWindow* window);
  /// After a window was hidden or is about to be closed.
  void HandOn(DesktopWindow& gone);

  DesktopWindow* Active() const { return active_; }
  /// The front-most window shown at the point; null for the bare desktop.
  DesktopWindow* At(Point screen) const;
  /// From the bottom to the top.
  const std::vector<DesktopWindow*>& Order() const { return order_; }

 private:
  DesktopWindow* Successor(const DesktopWindow& gone) const;
  void Sort();

  std::vector<DesktopWindow*> order_;
  std::vector<DesktopWindow*> formerlyActive_;  ///< the latest last
  DesktopWindow* active_ = nullptr;
};

}  // namespace platform
