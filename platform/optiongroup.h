// Which option buttons belong together, and where the arrow keys lead among them.
#pragma once

#include <vector>

#include "platform/controls.h"

namespace platform {

struct OptionPlace {
  OptionButton* button;
  bool startsGroup;
};

/// The group of a button, given all options of its parent in the order of their making.
[[nodiscard]] std::vector<OptionButton*> OptionGroup(const std::vector<OptionPlace>& siblings,
                                                     const OptionButton& member);

/// The next one that can be chosen, round the group; the member itself where there is no other.
/// Null: the key is no arrow.
[[nodiscard]] OptionButton* OptionAfterKey(std::vector<OptionButton*> group, OptionButton& member,
                                           int virtualKey);

}  // namespace platform
