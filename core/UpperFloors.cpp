#include "core/UpperFloors.h"

#include <algorithm>

#include "core/ProgramState.h"

namespace dorvalin {

UpperFloors& Floors() { return StateOf<UpperFloors>(); }

platform::Form* FindForm(std::string_view name) {
  const auto all = platform::TheForms().All();
  const auto found = std::ranges::find(all, name, &platform::Form::Name);
  return found == all.end() ? nullptr : *found;
}

platform::Form* LoadFormByName(std::string_view name) {
  if (platform::Form* loaded = FindForm(name)) return loaded;
  const auto entry = Floors().Forms.find(name);
  return entry == Floors().Forms.end() ? nullptr : platform::TheForms().Load(entry->second());
}

void ShowModalGuarded(platform::Form* form) {
  if (form == nullptr) return;
  const bool before = State().ModalOpen;
  State().ModalOpen = true;
  form->ShowModal();
  State().ModalOpen = before;
}

}  // namespace dorvalin
