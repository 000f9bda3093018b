#include "stacks/CStringDoubleStack.h"

#include "platform/text.h"

namespace dorvalin {

double CStringDoubleStack::ItemValue(int index) const {
  const Named* item = items_.At(index);
  return item ? item->value : 0;
}

void CStringDoubleStack::SetItemValue(int index, double value) {
  if (Named* item = items_.At(index)) item->value = value;
}

std::u16string_view CStringDoubleStack::ItemText(int index) const {
  const Named* item = items_.At(index);
  return item ? std::u16string_view(item->text) : std::u16string_view();
}

void CStringDoubleStack::SetItemText(int index, std::u16string_view text) {
  if (Named* item = items_.At(index)) item->text = text;
}

int CStringDoubleStack::AddItem(double value, std::u16string_view text, bool noReplace,
                                bool replace) {
  const int found = noReplace || replace ? ItemFromText(text) : 0;
  if (found && noReplace) return 0;
  if (found) {
    SetItemValue(found, value);
    return found;
  }
  std::u16string name = platform::Lower(platform::Trim(text));
  SetCount(Count() + 1);
  *items_.At(Count()) = {value, std::move(name)};
  return Count();
}

int CStringDoubleStack::ItemFromText(std::u16string_view text) const {
  for (int i = 1; i <= Count(); ++i)
    if (items_.At(i)->text == text) return i;
  return 0;
}

}  // namespace dorvalin
