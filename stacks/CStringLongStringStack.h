// A growing table of a number and two texts an item: what a list control is to show.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "stacks/BlockArray.h"

namespace dorvalin {

/// Items count from 1. An index for which there is no room reads as 0 or an empty text and is not
/// written to.
class CStringLongStringStack {
 public:
  [[nodiscard]] int Count() const { return items_.Count(); }
  /// Items within the new count keep their values; a negative count is 0.
  void SetCount(int count) { items_.SetCount(count); }

  /// The item's number: a list takes it for its icon or its tag.
  [[nodiscard]] std::int32_t ItemIndex(int index) const;
  void SetItemIndex(int index, std::int32_t number);
  /// The caption.
  [[nodiscard]] std::u16string_view ItemText(int index) const;
  void SetItemText(int index, std::u16string_view text);
  /// The text behind the caption: a verb, a path.
  [[nodiscard]] std::u16string_view ItemData(int index) const;
  void SetItemData(int index, std::u16string_view data);

  /// Puts an item in front of the one at `index`; 0, or the index behind the last item, appends.
  /// Returns where the item stands now, or 0 and changes nothing for any other index.
  int AddItem(int index, std::int32_t number, std::u16string_view text,
              std::u16string_view data = {});

 private:
  struct Row {
    std::int32_t number = 0;
    std::u16string text;
    std::u16string data;
  };
  BlockArray<Row> items_;
};

}  // namespace dorvalin
