// Pop-up menus.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace platform {

class TopWindow;

struct MenuEntry {
  int id = 0;              ///< 0 for a separator
  std::u16string caption;  ///< "&" marks the access key
  bool enabled = true;
  bool checked = false;
  bool isDefault = false;  ///< drawn bold
  bool visible = true;
};

using Menu = std::vector<MenuEntry>;

enum class MenuButtons { Left, LeftAndRight };  ///< which buttons choose an entry

class Menus {
 public:
  virtual ~Menus() = default;
  /// Pops up at a screen point; runs a nested loop. The chosen entry's id, none when it was
  /// dismissed or the owner is closed. The owner is put in the foreground for it, so that a click
  /// elsewhere dismisses the menu.
  [[nodiscard]] virtual std::optional<int> PopUp(TopWindow& owner, Point screen, const Menu& menu,
                                                 MenuButtons buttons) = 0;
};

}  // namespace platform
