// The one icon of the program in the notification area.
#pragma once

#include <functional>
#include <string_view>

#include "platform/icon.h"

namespace platform {

enum class TaskBarEvent { LeftUp, LeftDoubleClick, RightUp };

class TaskBar {
 public:
  virtual ~TaskBar() = default;
  /// False: no icon stands there. `happened` is called for the icon until RemoveIcon.
  virtual bool AddIcon(const Icon& icon, std::u16string_view tip,
                       std::function<void(TaskBarEvent)> happened) = 0;
  virtual bool ChangeIcon(const Icon& icon, std::u16string_view tip) = 0;
  virtual void RemoveIcon() = 0;
};

}  // namespace platform
