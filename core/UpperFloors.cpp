#include "core/UpperFloors.h"

#include "core/ProgramState.h"

namespace dorvalin {

UpperFloors& Floors() { return StateOf<UpperFloors>(); }

platform::Form* LoadFormByName(std::string_view name) {
  for (platform::Form* form : platform::TheForms().All()) {
    if (form->Name() == name) return form;
  }
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
