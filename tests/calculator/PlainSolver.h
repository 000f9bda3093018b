// How terms are cut, in its plainest form: it walks and recurses as the rules read, and takes
// exponential time for some terms. The product's solver must give the same answers. Numbers, words
// and operators are the product's own: what they come to is told by the tables of terms.
#pragma once

#include <string_view>

#include "calculator/arithmetic.h"
#include "calculator/words.h"

namespace dorvalin {

class PlainSolver {
 public:
  explicit PlainSolver(const Words& words) : words_(words) {}

  int Solve(std::u16string_view term, double& result);

  /// The term takes too long: its status means nothing.
  [[nodiscard]] bool GaveUp() const { return steps_ > kMostSteps; }

 private:
  static constexpr int kMostSteps = 2000;

  int Split(std::u16string_view term, int level, double& left, double& right, char16_t& op);
  int SolveGroups(std::u16string_view term, double& left, double& result);
  int Call(const Function& function, std::u16string_view argument, double& result);

  const Words& words_;
  int steps_ = 0;
};

}  // namespace dorvalin
