// The solver in its plainest form: it walks and recurses as the rules read, and takes exponential
// time for some terms. The product's solver must give the same answers.
#pragma once

#include <string>
#include <string_view>

#include "calculator/modSolve.h"

namespace dorvalin {

class PlainSolver {
 public:
  PlainSolver(double ans, const CStringDoubleStack* vars, const SolveEnvironment& environment)
      : ans_(ans), vars_(vars), environment_(environment) {}

  int Solve(const std::u16string& term, double& result, int start = 0, int length = -1) const;

 private:
  int SolveSplit(const std::u16string& term, int level, double& left, double& right, char16_t& op,
                 int start, int length) const;
  int SolveFunction(const std::u16string& name, const std::u16string& term, double& result,
                    int start, int length) const;
  int SolvePostfix(const std::u16string& term, char16_t postfix, double& left, double& result,
                   int start, int length) const;
  int SolveGroups(const std::u16string& term, double& left, double& result, int start,
                  int length) const;
  int SolveLeaf(const std::u16string& text, double& result) const;

  double ans_;
  const CStringDoubleStack* vars_;
  const SolveEnvironment& environment_;
};

}  // namespace dorvalin
