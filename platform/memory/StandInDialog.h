// What stands on the in-process desktop in place of a dialog of the system. The program does not
// know its window; it is active, and its owner is disabled.
#pragma once

#include <chrono>
#include <vector>

#include "platform/dialogs.h"
#include "platform/memory/DesktopWindow.h"

namespace platform {

class MemoryDesktop;
class MemoryTopWindow;

class StandInDialog final : public DesktopWindow {
 public:
  StandInDialog(MemoryDesktop& desktop, const Message& message);
  ~StandInDialog() override;
  StandInDialog(const StandInDialog&) = delete;
  StandInDialog& operator=(const StandInDialog&) = delete;

  /// Its loop: until a key answers it, its owner is closed (Unanswered) or so much time is over
  /// (none).
  std::optional<Answer> Run(std::chrono::milliseconds longest);

  bool Ours() const override { return false; }
  Rect Area() const override;
  bool Shown() const override { return true; }
  DesktopWindow* Owner() const override;
  void OnOwnerClosed() override;
  void Paint(Surface& screen) override;
  /// Tab and the arrows go from button to button, Enter and Space press one, Escape gives up.
  void OnKey(const KeyInput& input) override;

 private:
  void GoOn(int buttons);

  MemoryDesktop& desktop_;
  Message message_;
  std::vector<Answer> buttons_;
  std::size_t focused_ = 0;
  MemoryTopWindow* disabled_ = nullptr;  ///< to be enabled again
  MemoryTopWindow* owner_ = nullptr;
  std::optional<Answer> answer_;
};

}  // namespace platform
