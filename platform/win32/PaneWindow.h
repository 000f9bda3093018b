// What panes and top-level windows share: the canvas, pointer and keyboard events, drags.
#pragma once

#include "platform/wheel.h"
#include "platform/win32/NativeWindow.h"
#include "platform/win32/WindowOf.h"

namespace platform {

class PaneWindow : public NativeWindow {
 public:
  PaneWindow(PaneEvents& events, bool focusable) : events_(events), focusable_(focusable) {}

  Surface& Canvas() { return canvas_; }
  void Refresh();
  void SetPointer(const Pointer& pointer);
  void ReleaseCapture();
  DropEffect Drag(const DataContent& data, DropEffect allowed, DragFeedback* feedback);
  void SetAcceptsDrops(bool accepts);
  PaneEvents* DropEvents() override { return acceptsDrops_ ? &events_ : nullptr; }

  std::optional<LRESULT> Receive(const WindowMessage& message) override;
  /// Draws the part of the canvas that lies under a child into the child's device context.
  void PaintBehind(HWND child, HDC dc) const;

 protected:
  bool Make(const WindowMaking& making);
  void OnSeen(bool seen) override;
  void PaintTree(HDC dc, Point at, const Rect& clip) override;

 private:
  std::optional<LRESULT> ReceivePointer(const WindowMessage& message);
  std::optional<LRESULT> ReceiveKey(const WindowMessage& message);
  std::optional<LRESULT> ReceiveForChild(const WindowMessage& message);

  void ShowCanvas();
  LRESULT Paint();
  LRESULT Resize();
  LRESULT Press(Button button, const WindowMessage& message, bool second);
  bool FollowsPress(Button button) const;
  LRESULT Release(Button button, const WindowMessage& message);
  LRESULT Turn(const WindowMessage& message);
  std::optional<LRESULT> KeyDown(const WindowMessage& message);
  std::optional<LRESULT> KeyUp(const WindowMessage& message);
  std::optional<LRESULT> ShowPointer(const WindowMessage& message);

  PaneEvents& events_;
  bool focusable_;
  Surface canvas_;
  bool shown_ = false;  // painted since it came to be seen
  bool making_ = false;
  Pointer pointer_;
  unsigned held_ = 0;  // a bit for each button pressed here
  struct Pressed {
    Button button;
    LONG time;
  };
  std::optional<Pressed> lastPress_;  // the last that was told as one
  WheelNotches wheel_;
  bool acceptsDrops_ = false;
};

/// Gives a port the operations of a pane.
template <typename PortType>
class PaneOf : public WindowOf<PortType, PaneWindow> {
 public:
  using WindowOf<PortType, PaneWindow>::WindowOf;

  Surface& Canvas() override { return PaneWindow::Canvas(); }
  void Refresh() override { PaneWindow::Refresh(); }
  void SetPointer(const Pointer& pointer) override { PaneWindow::SetPointer(pointer); }
  void ReleaseCapture() override { PaneWindow::ReleaseCapture(); }
  DropEffect Drag(const DataContent& data, DropEffect allowed, DragFeedback* feedback) override {
    return PaneWindow::Drag(data, allowed, feedback);
  }
  void SetAcceptsDrops(bool accepts) override { PaneWindow::SetAcceptsDrops(accepts); }
};

class Win32Pane final : public PaneOf<Pane> {
 public:
  using PaneOf::PaneOf;
  bool Make(HWND parent, const Rect& bounds);
};

}  // namespace platform
