// A growing table of named numbers: the values that a term may use by name.
#pragma once

#include <string>
#include <string_view>

#include "stacks/BlockArray.h"

namespace dorvalin {

/// Items count from 1. An index for which there is no room reads as 0 or an empty text and is not
/// written to.
class CStringDoubleStack {
 public:
  [[nodiscard]] int Count() const { return items_.Count(); }
  /// Items within the new count keep their values; a negative count is 0.
  void SetCount(int count) { items_.SetCount(count); }

  [[nodiscard]] double ItemValue(int index) const;
  void SetItemValue(int index, double value);
  [[nodiscard]] std::u16string_view ItemText(int index) const;
  void SetItemText(int index, std::u16string_view text);

  /// Appends the value under its name, trimmed and in lower case, and returns the new index. With
  /// `noReplace` or `replace` an item whose name is `text` as it stands is looked for first: if
  /// found, `noReplace` changes nothing and returns 0, and `replace` alone overwrites the value and
  /// returns the item's index.
  int AddItem(double value, std::u16string_view text, bool noReplace = false, bool replace = false);

  /// The first item whose name is exactly this text, 0 for none.
  [[nodiscard]] int ItemFromText(std::u16string_view text) const;

 private:
  struct Named {
    double value = 0;
    std::u16string text;
  };
  BlockArray<Named> items_;
};

}  // namespace dorvalin
