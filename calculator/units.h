// What the characters of a term are to its map.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "calculator/arithmetic.h"

namespace dorvalin {

struct UnitKind {
  std::int8_t level = 0;  ///< 1 for + and -, 2 for * / × ÷ §, 3 for ^, 0 for anything else
  std::int8_t depth = 0;  ///< what a bracket adds to it
  bool plain = false;     ///< may belong to numbers and level 2 operators
  bool mark = false;      ///< operator, bracket or postfix
};

inline constexpr auto kUnitKinds = [] {
  std::array<UnitKind, 256> kinds;
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    const auto unit = static_cast<char16_t>(i);
    UnitKind& kind = kinds[i];
    kind.level = unit == u'+' || unit == u'-'                                                   ? 1
                 : unit == u'*' || unit == u'/' || unit == u'×' || unit == u'÷' || unit == u'§' ? 2
                 : unit == u'^'                                                                 ? 3
                                                                                                : 0;
    kind.depth = unit == u'(' ? 1 : unit == u')' ? -1 : 0;
    kind.plain = (unit >= u'*' && unit <= u'9') || unit == u' ' || kind.level == 2;
    kind.mark = kind.level != 0 || kind.depth != 0 || IsPostfix(unit);
  }
  return kinds;
}();

[[nodiscard]] inline UnitKind KindOf(char16_t unit) {
  return unit < kUnitKinds.size() ? kUnitKinds[unit] : UnitKind{};
}

}  // namespace dorvalin
