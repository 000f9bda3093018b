#include "platform/win32/Win32Menus.h"

#include "platform/win32/WindowHandle.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

UINT FlagsOf(const MenuEntry& entry) {
  UINT flags = entry.id == 0 ? MF_SEPARATOR : MF_STRING;
  if (!entry.enabled) flags |= MF_GRAYED;
  if (entry.checked) flags |= MF_CHECKED;
  return flags;
}

void Append(HMENU menu, const MenuEntry& entry) {
  const auto id = static_cast<UINT>(entry.id);
  ::AppendMenuW(menu, FlagsOf(entry), id, Wide(entry.caption));
  if (entry.isDefault) ::SetMenuDefaultItem(menu, id, FALSE);
}

OwnedMenu NewMenu(const Menu& entries) {
  OwnedMenu menu(::CreatePopupMenu());
  for (const MenuEntry& entry : entries) {
    if (entry.visible) Append(menu.get(), entry);
  }
  return menu;
}

}  // namespace

std::optional<int> Win32Menus::PopUp(TopWindow& owner, Point screen, const Menu& menu,
                                     MenuButtons buttons) {
  const HWND window = HandleOf(&owner);
  if (!window) return std::nullopt;
  const OwnedMenu popup = NewMenu(menu);
  const UINT button = buttons == MenuButtons::LeftAndRight ? TPM_RIGHTBUTTON : TPM_LEFTBUTTON;
  // Without the foreground a click elsewhere would not reach the menu.
  BringToForeground(window);
  const BOOL chosen =
      ::TrackPopupMenuEx(popup.get(), TPM_RETURNCMD | button, screen.x, screen.y, window, nullptr);
  // The switch of tasks that a dismissal brings takes place only with a message behind it.
  ::PostMessageW(window, WM_NULL, 0, 0);
  return chosen ? std::optional<int>(chosen) : std::nullopt;
}

}  // namespace platform
