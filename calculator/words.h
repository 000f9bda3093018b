// What the smallest parts of a term stand for: words and numbers.
#pragma once

#include <string_view>

#include "calculator/Solved.h"

namespace dorvalin {

/// What a term's words stand for.
struct Words {
  double ans;
  const CStringDoubleStack* vars;  ///< may be nullptr
  const SolveEnvironment& environment;
};

/// Of a text that is not empty and has no blanks at its ends.
[[nodiscard]] Solved SolveWord(std::u16string_view text, const Words& words);

}  // namespace dorvalin
