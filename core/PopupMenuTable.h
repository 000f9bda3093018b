// Every entry of every pop-up menu as it is designed, in the order in which it is shown.
#pragma once

#include <span>
#include <string_view>

#include "core/PopupMenus.h"

namespace dorvalin {

struct PopupDesign {
  std::string_view menu;
  std::string_view name;
  std::u16string_view caption;
  PopupAction action;
};

[[nodiscard]] std::span<const PopupDesign> PopupDesigns();

}  // namespace dorvalin
