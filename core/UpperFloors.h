// What the core asks of the floors above it. The composition root fills it in; an entry that is
// missing means that the part is not there, and asking for it does nothing.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string_view>

#include "core/PanelHost.h"

namespace dorvalin {

struct UpperFloors {
  /// The wheel at the pointer and the one of the sidebar, while they are loaded.
  FunctionWheel* PointerWheel = nullptr;
  FunctionWheel* SideWheel = nullptr;
  /// The host whose panel opened the last pop-up menu.
  PanelHost* CurrentPanelForm = nullptr;

  std::function<void()> OpenPointerWheel;
  std::function<void()> ShowSidebar;
  std::function<void()> SwitchSidebar;
  std::function<void()> ShowSidebarNotice;

  /// Windows that are shown by their names ("frmSettings").
  std::map<std::string_view, std::function<std::unique_ptr<platform::Form>()>> Forms;
};

UpperFloors& Floors();

/// The loaded form of that name; null for none.
[[nodiscard]] platform::Form* FindForm(std::string_view name);
/// The loaded form of that name, or a new one. Null: there is no such form.
platform::Form* LoadFormByName(std::string_view name);

/// Sets ModalOpen, shows the form modally, restores ModalOpen. Null does nothing.
void ShowModalGuarded(platform::Form* form);

}  // namespace dorvalin
