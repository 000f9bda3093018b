#include "platform/memory/MemoryMenus.h"

#include <algorithm>
#include <utility>

#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryPump.h"
#include "platform/memory/MemoryTopWindow.h"
#include "platform/memory/WindowStack.h"
#include "platform/text.h"

namespace platform {

void MemoryMenus::Choose(std::u16string_view caption) {
  answers_.push_back({0, std::u16string(caption)});
}

void MemoryMenus::ChooseId(int id) { answers_.push_back({id, {}}); }

void MemoryMenus::Dismiss() { answers_.emplace_back(); }

bool MemoryMenus::MenuAnswer::Means(const MenuEntry& entry) const {
  if (entry.id == 0 || !entry.enabled || !entry.visible) return false;
  if (id != 0) return entry.id == id;
  return entry.caption == caption || ReplaceAll(entry.caption, u"&", u"") == caption;
}

MemoryMenus::MenuAnswer MemoryMenus::NextAnswer() {
  if (answers_.empty()) return {};
  MenuAnswer answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

std::optional<int> MemoryMenus::PopUp(TopWindow& owner, Point screen, const Menu& menu,
                                      MenuButtons buttons) {
  auto& window = static_cast<MemoryTopWindow&>(owner);
  if (!window.Alive() || desktop_.faults().Fails("Menus.PopUp")) return std::nullopt;
  shown_.push_back({screen, menu, buttons});
  desktop_.stack().Activate(&window);
  desktop_.pump().DoEvents();
  if (whileOpen_) std::exchange(whileOpen_, nullptr)();
  const MenuAnswer answer = NextAnswer();
  const auto chosen = std::find_if(menu.begin(), menu.end(),
                                   [&](const MenuEntry& entry) { return answer.Means(entry); });
  return chosen != menu.end() ? std::optional(chosen->id) : std::nullopt;
}

}  // namespace platform
