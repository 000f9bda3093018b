// Our windows on the in-process desktop.
#pragma once

#include <optional>

#include "platform/memory/MemoryPane.h"

namespace platform {

class MemoryTopWindow final : public PaneOf<TopWindow>, public DesktopWindow {
 public:
  MemoryTopWindow(MemoryDesktop& desktop, const TopWindowOptions& options, TopWindowEvents& events);
  ~MemoryTopWindow() override;

  // As a window of the program.
  void SetVisible(bool visible) override;
  void Show(ShowMode mode) override;
  void Hide() override;
  void SetTopMost(bool topMost) override;
  bool SetEllipseRegion(const std::optional<Rect>& box) override;
  void SetCaption(std::u16string_view caption) override;
  /// Shown nowhere here.
  void SetIcon(const Icon&) override {}
  Size ClientSize() const override { return ClientArea(); }
  void SetClientSize(Size size) override;
  void StartMove() override;
  void Close() override;

  // As a window of the desktop.
  bool Ours() const override { return true; }
  Rect Area() const override { return Place(); }
  bool Shown() const override { return Visible(); }
  bool TakesInput() const override { return Enabled(); }
  bool Activatable() const override { return activatable_; }
  bool TopMost() const override { return topMost_; }
  DesktopWindow* Owner() const override { return owner_; }
  void OnOwnerClosed() override { Close(); }
  bool Covers(Point screen) const override;
  void Paint(Surface& screen) override;
  void OnActivation(Activation activation) override;
  void OnPointer(const PointerInput& input) override;
  void OnKey(const KeyInput& input) override;
  DropEffect OnDragOver(const DragEvent& event) override { return PassDrag(event, false); }
  DropEffect OnDropped(const DragEvent& event) override { return PassDrag(event, true); }

  const std::u16string& Caption() const { return caption_; }

  Point ClientOffset() const override;
  Size ClientArea() const override;

 private:
  friend class MemoryWindows;
  bool Framed() const { return frame_ == FrameStyle::Dialog; }
  bool PressFrame(const PointerInput& input);
  void TypeKey(const KeyInput& input);
  DropEffect PassDrag(const DragEvent& event, bool drop);
  MemoryNode* DropTargetAt(Point screen);
  TopWindowEvents& TopEvents() { return static_cast<TopWindowEvents&>(Events()); }

  FrameStyle frame_;
  std::u16string caption_;
  MemoryTopWindow* owner_;
  bool topMost_;
  bool activatable_;
  bool unseen_;
  std::optional<Rect> ellipse_;
  MemoryNode* focus_ = nullptr;       ///< who has the keyboard when this window is active
  MemoryNode* dragTarget_ = nullptr;  ///< whom a drag over it was last reported to
};

}  // namespace platform
