// Makes windows and answers for those on the screen.
#pragma once

#include "platform/window.h"

namespace platform {

class Win32Windows final : public Windows {
 public:
  [[nodiscard]] std::unique_ptr<TopWindow> NewTopWindow(const TopWindowOptions& options,
                                                        TopWindowEvents& events) override;
  [[nodiscard]] std::unique_ptr<Pane> NewPane(Pane& parent, const Rect& bounds, bool focusable,
                                              PaneEvents& events) override;
  [[nodiscard]] Foreground ForegroundWindow() override;
  [[nodiscard]] const Window* WindowAt(Point screen) override;
  void HideWindowsOfClass(std::u16string_view prefix) override;
};

}  // namespace platform
