// Pop-up menus answered by a script. A menu for which the script has no answer is dismissed.
#pragma once

#include <deque>
#include <functional>

#include "platform/memory/Faults.h"
#include "platform/menus.h"

namespace platform {

class MemoryDesktop;

struct ShownMenu {
  Point at;
  Menu entries;
  MenuButtons buttons = MenuButtons::Left;
};

class MemoryMenus : public Menus {
 public:
  explicit MemoryMenus(MemoryDesktop& desktop) : desktop_(desktop) {}
  std::optional<int> PopUp(TopWindow& owner, Point screen, const Menu& menu,
                           MenuButtons buttons) override;

  /// The next menu is answered by the entry with this caption ("&" as in the menu or left out).
  /// Entries that are missing, disabled or hidden cannot be chosen: the menu is dismissed.
  void Choose(std::u16string_view caption);
  void ChooseId(int id);
  void Dismiss();
  /// Runs while a menu stands, before the answer.
  void WhileOpen(std::function<void()> action) { whileOpen_ = std::move(action); }
  const std::vector<ShownMenu>& Shown() const { return shown_; }

 private:
  /// By id, or by caption where that is 0; neither dismisses.
  struct MenuAnswer {
    int id = 0;
    std::u16string caption;
    bool Means(const MenuEntry& entry) const;
  };
  MenuAnswer NextAnswer();

  MemoryDesktop& desktop_;
  std::deque<MenuAnswer> answers_;
  std::function<void()> whileOpen_;
  std::vector<ShownMenu> shown_;
};

}  // namespace platform
