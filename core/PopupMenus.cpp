#include "core/PopupMenus.h"

#include <algorithm>

#include "core/PopupMenuTable.h"
#include "platform/desktop.h"

namespace dorvalin {

PopupMenus::PopupMenus() {
  for (const PopupDesign& design : PopupDesigns()) {
    if (menus_.empty() || menus_.back().name != design.menu) menus_.push_back({design.menu, {}});
    menus_.back().entries.push_back({design.name, std::u16string(design.caption), design.action});
  }
}

PopupMenu& PopupMenus::Menu(std::string_view name) {
  const auto at = std::find_if(menus_.begin(), menus_.end(),
                               [&](const NamedMenu& menu) { return menu.name == name; });
  return at == menus_.end() ? none_ : at->entries;
}

PopupEntry* PopupMenus::Entry(std::string_view name) {
  for (NamedMenu& menu : menus_) {
    for (PopupEntry& entry : menu.entries) {
      if (entry.name == name) return &entry;
    }
  }
  return nullptr;
}

PopupAction PopupMenus::PopUp(std::string_view menu, platform::TopWindow& owner,
                              platform::Point screen, platform::MenuButtons buttons,
                              std::string_view defaultEntry) {
  // A copy: while the menu is up a panel may change or close what it was made from.
  const PopupMenu entries = Menu(menu);
  platform::Menu shown;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const PopupEntry& entry = entries[i];
    shown.push_back({.id = entry.caption.empty() ? 0 : static_cast<int>(i + 1),
                     .caption = entry.caption,
                     .enabled = entry.enabled,
                     .checked = entry.checked,
                     .isDefault = entry.name == defaultEntry,
                     .visible = entry.visible});
  }
  const auto chosen = platform::TheDesktop().menus().PopUp(owner, screen, shown, buttons);
  return chosen ? entries[static_cast<std::size_t>(*chosen - 1)].action : PopupAction{};
}

}  // namespace dorvalin
