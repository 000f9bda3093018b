#pragma once

#include <string>

#include "platform/taskbar.h"
#include "platform/win32/handles.h"

namespace platform {

inline constexpr wchar_t kTaskBarIconClass[] = L"DorvalinTaskBarIcon";
/// What the task bar sends to the icon's window; lParam is the message of the mouse.
inline constexpr UINT kTaskBarIconMessage = WM_APP + 1;

/// The icon reports to a hidden window of its own, which also hears when the task bar was started
/// (for the first time, or anew and has forgotten the icon).
class Win32TaskBar final : public TaskBar {
 public:
  ~Win32TaskBar() override;
  bool AddIcon(const Icon& icon, std::u16string_view tip,
               std::function<void(TaskBarEvent)> happened) override;
  bool ChangeIcon(const Icon& icon, std::u16string_view tip) override;
  void RemoveIcon() override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam) noexcept;
  LRESULT Receive(UINT id, WPARAM wParam, LPARAM lParam);
  void Happened(TaskBarEvent event);
  void Tell(DWORD operation);

  OwnedWindow window_;
  OwnedIcon icon_;
  std::u16string tip_;
  std::function<void(TaskBarEvent)> happened_;
};

}  // namespace platform
