#pragma once

#include "platform/menus.h"

namespace platform {

class Win32Menus final : public Menus {
 public:
  std::optional<int> PopUp(TopWindow& owner, Point screen, const Menu& menu,
                           MenuButtons buttons) override;
};

}  // namespace platform
