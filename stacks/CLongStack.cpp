#include "stacks/CLongStack.h"

#include <algorithm>

namespace dorvalin {

std::int32_t CLongStack::Item(int index) const {
  const std::int32_t* item = items_.At(index);
  return item ? *item : 0;
}

void CLongStack::SetItem(int index, std::int32_t value) {
  if (std::int32_t* item = items_.At(index)) *item = value;
}

int CLongStack::AddItem(std::int32_t value) {
  SetCount(Count() + 1);
  SetItem(Count(), value);
  return Count();
}

void CLongStack::RemoveItems(int index, int count) {
  if (index < 1 || index > Count() || count < 1) return;
  items_.CloseGap(index, std::min(count, Count() - index + 1));
}

void CLongStack::InsertItems(int index, int count, std::int32_t value) {
  if (index < 1 || index > Count() + 1 || count < 1) return;
  items_.OpenGap(index, count, value);
}

}  // namespace dorvalin
