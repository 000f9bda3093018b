#include "stacks/CStringLongStringStack.h"

namespace dorvalin {

std::int32_t CStringLongStringStack::ItemIndex(int index) const {
  const Row* row = items_.At(index);
  return row ? row->number : 0;
}

void CStringLongStringStack::SetItemIndex(int index, std::int32_t number) {
  if (Row* row = items_.At(index)) row->number = number;
}

std::u16string_view CStringLongStringStack::ItemText(int index) const {
  const Row* row = items_.At(index);
  return row ? std::u16string_view(row->text) : std::u16string_view();
}

void CStringLongStringStack::SetItemText(int index, std::u16string_view text) {
  if (Row* row = items_.At(index)) row->text = text;
}

std::u16string_view CStringLongStringStack::ItemData(int index) const {
  const Row* row = items_.At(index);
  return row ? std::u16string_view(row->data) : std::u16string_view();
}

void CStringLongStringStack::SetItemData(int index, std::u16string_view data) {
  if (Row* row = items_.At(index)) row->data = data;
}

int CStringLongStringStack::AddItem(int index, std::int32_t number, std::u16string_view text,
                                    std::u16string_view data) {
  const int place = index == 0 ? Count() + 1 : index;
  if (place < 1 || place > Count() + 1) return 0;
  items_.OpenGap(place, 1, {number, std::u16string(text), std::u16string(data)});
  return place;
}

}  // namespace dorvalin
