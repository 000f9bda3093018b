#pragma once

#include <string>

#include "platform/taskbar.h"
#include "platform/win32/handles.h"

namespace platform {

/// The icon reports to a hidden window of its own, which also hears when the task bar was started
/// anew and has forgotten it.
class Win32TaskBar final : public TaskBar {
 public:
  ~Win32TaskBar() override;
  bool AddIcon(const Icon& icon, std::u16string_view tip,
               std::function<void(TaskBarEvent)> happened) override;
  bool ChangeIcon(const Icon& icon, std::u16string_view tip) override;
  void RemoveIcon() override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam) noexcept;
  void OnMouse(UINT message);
  bool Tell(DWORD operation);

  OwnedWindow window_;
  OwnedIcon icon_;
  std::u16string tip_;
  std::function<void(TaskBarEvent)> happened_;
};

}  // namespace platform
