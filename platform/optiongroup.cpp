#include "platform/optiongroup.h"

#include <algorithm>

namespace platform {

std::vector<OptionButton*> OptionGroup(const std::vector<OptionPlace>& siblings,
                                       const OptionButton& member) {
  std::vector<OptionButton*> group;
  bool own = false;
  for (const auto& [button, startsGroup] : siblings) {
    if (startsGroup && own) break;
    if (startsGroup) group.clear();
    group.push_back(button);
    own = own || button == &member;
  }
  return group;
}

OptionButton* OptionAfterKey(std::vector<OptionButton*> group, OptionButton& member,
                             int virtualKey) {
  const bool back = virtualKey == key::kUp || virtualKey == key::kLeft;
  const bool forward = virtualKey == key::kDown || virtualKey == key::kRight;
  if (!back && !forward) return nullptr;
  std::erase_if(group, [&](const OptionButton* each) {
    return each != &member && !(each->Visible() && each->Enabled());
  });
  if (back) std::ranges::reverse(group);
  std::rotate(group.begin(), std::ranges::find(group, &member), group.end());
  return group.size() < 2 ? &member : group[1];
}

}  // namespace platform
