// Makes our windows on the in-process desktop and leads pointer and keyboard to the right one.
#pragma once

#include <string>
#include <vector>

#include "platform/memory/MemoryTopWindow.h"
#include "platform/memory/WindowStack.h"

namespace platform {

class MemoryWindows : public Windows {
 public:
  explicit MemoryWindows(MemoryDesktop& desktop) : desktop_(desktop) {}

  std::unique_ptr<TopWindow> NewTopWindow(const TopWindowOptions& options,
                                          TopWindowEvents& events) override;
  std::unique_ptr<Pane> NewPane(Pane& parent, const Rect& bounds, bool focusable,
                                PaneEvents& events) override;
  Foreground ForegroundWindow() override;
  const Window* WindowAt(Point screen) override;
  void HideWindowsOfClass(std::u16string_view prefix) override;

  /// What was asked of HideWindowsOfClass. The in-process desktop has no such windows.
  const std::vector<std::u16string>& HiddenClasses() const { return hiddenClasses_; }
  /// The innermost of our nodes at the point; null where another program or none is in front.
  MemoryNode* NodeAt(Point screen);
  /// Our windows, shown or not, from the bottom to the top.
  std::vector<MemoryTopWindow*> TopWindows();

  void Focus(MemoryNode& node);
  /// Who has the keyboard; null when another program's window or none is active.
  MemoryNode* Focused() const;
  /// Before the node is hidden or after it was disabled: the keyboard goes to its window.
  void TakeFocusFrom(const MemoryNode& node);
  MemoryNode* Captured() const { return captured_; }
  /// A press begins the capture, the release of the last button ends it.
  void Deliver(MemoryNode& node, PointerInput input);
  void Capture(MemoryNode& node) { captured_ = &node; }
  void ReleaseCapture(const MemoryNode& within);
  void Forget(const MemoryNode& node);

 private:
  /// The last press that reached a window of ours.
  struct LastPress {
    const MemoryNode* node = nullptr;
    Button button = Button::Left;
    Point at{};
    std::chrono::nanoseconds time{};
  };
  bool IsSecond(const MemoryNode& node, const PointerInput& press);

  MemoryDesktop& desktop_;
  MemoryNode* captured_ = nullptr;
  LastPress lastPress_;
  std::vector<std::u16string> hiddenClasses_;
};

}  // namespace platform
