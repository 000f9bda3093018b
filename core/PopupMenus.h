// The pop-up menus of the whole program. They belong to the hidden form; a panel changes the state
// of entries and pops a menu up on itself, and the chosen entry runs its action.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/menus.h"
#include "platform/window.h"

namespace dorvalin {

struct PopupAction {
  enum class Kind {
    Nothing,
    Panel,   ///< the open panel's operation `target`, with `argument`
    Dialog,  ///< frees the host of the open panel, then shows the form `target` modally
    Task,    ///< an entry of the task menu, by its own name
  };
  Kind kind = Kind::Nothing;
  std::string_view target;
  int argument = 0;
};

struct PopupEntry {
  std::string_view name;
  std::u16string caption;  ///< empty for a separator
  PopupAction action;
  bool enabled = true;
  bool checked = false;
  bool visible = true;
};

using PopupMenu = std::vector<PopupEntry>;

class PopupMenus {
 public:
  PopupMenus();

  /// A menu by its name; an empty one for a name that there is not.
  [[nodiscard]] PopupMenu& Menu(std::string_view name);
  /// The first entry of that name; null where there is none.
  [[nodiscard]] PopupEntry* Entry(std::string_view name);

  /// Pops the menu up at a screen point and returns the chosen action; Nothing when dismissed.
  [[nodiscard]] PopupAction PopUp(std::string_view menu, platform::TopWindow& owner,
                                  platform::Point screen, platform::MenuButtons buttons,
                                  std::string_view defaultEntry = {});

 private:
  struct NamedMenu {
    std::string_view name;
    PopupMenu entries;
  };
  std::vector<NamedMenu> menus_;
  PopupMenu none_;
};

}  // namespace dorvalin
