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
  /// Takes the place of an icon that stands already. Where there is no task bar yet, as for a
  /// program that starts with the session, the icon comes as soon as there is one. False: there
  /// will be none. `happened` is called, while somebody pumps, until RemoveIcon.
  virtual bool AddIcon(const Icon& icon, std::u16string_view tip,
                       std::function<void(TaskBarEvent)> happened) = 0;
  /// False: there is none to change.
  virtual bool ChangeIcon(const Icon& icon, std::u16string_view tip) = 0;
  virtual void RemoveIcon() = 0;
};

}  // namespace platform
