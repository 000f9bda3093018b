// A drag under way: from one of our panes or from another program, over whatever lies under the
// pointer.
#pragma once

#include "platform/memory/DesktopWindow.h"

namespace platform {

class MemoryDesktop;

class DragSession {
 public:
  explicit DragSession(MemoryDesktop& desktop) : desktop_(desktop) {}

  /// A drag of ours: a nested loop until the left button is up or Escape.
  DropEffect Run(const DataContent& data, DropEffect allowed, DragFeedback* feedback);
  /// Another program begins a drag with a button held; the user's moves drive it from here on.
  void BeginByOther(DataContent data, DropEffect allowed);

  bool Active() const { return active_; }
  /// How the last drag ended.
  DropEffect Result() const { return result_; }

  void OnPointer(const PointerInput& input);
  void OnKey(const KeyInput& input);
  void Forget(const DesktopWindow& window);

 private:
  void Begin(DataContent data, DropEffect allowed);
  void Over();
  void Drop();
  void LeaveTarget();
  void End(DropEffect result);
  DragEvent EventFor(DragState state, const DataSource* data) const;

  MemoryDesktop& desktop_;
  bool active_ = false;
  DataContent data_;
  DropEffect allowed_ = DropEffect::None;
  DropEffect effect_ = DropEffect::None;
  DropEffect result_ = DropEffect::None;
  DragFeedback* feedback_ = nullptr;
  DesktopWindow* target_ = nullptr;
  Point at_{};
};

}  // namespace platform
