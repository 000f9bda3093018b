// A growing table of 32-bit numbers: the colours of a palette.
#pragma once

#include <cstdint>

#include "stacks/BlockArray.h"

namespace dorvalin {

/// Items count from 1. An index for which there is no room reads as 0 and is not written to.
class CLongStack {
 public:
  [[nodiscard]] int Count() const { return items_.Count(); }
  /// Items within the new count keep their values; a negative count is 0.
  void SetCount(int count) { items_.SetCount(count); }

  [[nodiscard]] std::int32_t Item(int index) const;
  void SetItem(int index, std::int32_t value);

  /// Returns the new item's index.
  int AddItem(std::int32_t value);

  /// Nothing happens for an index that is no item's. A count beyond the last item ends there.
  void RemoveItem(int index) { RemoveItems(index, 1); }
  void RemoveItems(int index, int count);

  /// Puts `count` items of one value in front of the item at `index`, or behind the last one for
  /// the index that follows it. Nothing happens for any other index.
  void InsertItems(int index, int count, std::int32_t value);

 private:
  // A palette is emptied before it is filled again: its first block stays.
  BlockArray<std::int32_t> items_{1};
};

}  // namespace dorvalin
