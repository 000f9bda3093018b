#include "calculator/modSolve.h"

#include <algorithm>

#include "calculator/TermSolver.h"

namespace dorvalin {
namespace {

// Nothing outside of a range has a say in what it gives.
std::u16string_view Part(std::u16string_view term, int start, int length) {
  const int size = static_cast<int>(term.size());
  if (length == -1) length = size;
  if (start < 0 || start > size || length < 0) return {};
  return term.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
}

/// A success without a value changes nothing.
int HandOver(Solved solved, double& result) {
  if (!solved.Failed()) result = solved.ValueOr(result);
  return solved.status;
}

}  // namespace

int Solve(std::u16string_view term, double& result, double ans, const CStringDoubleStack* vars,
          int start, int length, const SolveEnvironment& environment) {
  const Words words{ans, vars, environment};
  TermSolver solver(Part(term, start, length), words);
  return HandOver(solver.Solve(solver.Whole()), result);
}

int SolveSplit(std::u16string_view term, int level, double& left, double& right, char16_t& op,
               double ans, int start, int length, const CStringDoubleStack* vars,
               const SolveEnvironment& environment) {
  const std::u16string_view part = Part(term, start, length);
  const Words words{ans, vars, environment};
  TermSolver solver(part, words);
  const Range whole = solver.Whole();
  const TermSolver::Split split = solver.FindSplit(whole, level);
  if (split.kind == TermSolver::Split::Kind::None)
    return solver.Map().Balances(whole) ? 0 : kBracketsDoNotBalance;
  if (split.kind == TermSolver::Split::Kind::Leading) {
    if (level != 1) return kOperandMissing;
    left = 0;
  } else if (const int status = HandOver(solver.Solve({0, split.at}), left); status < 0) {
    return status;
  }
  if (split.at + 1 == whole.end) return kOperandMissing;
  if (const int status = HandOver(solver.Solve({split.at + 1, whole.end}), right); status < 0)
    return status;
  op = part[static_cast<std::size_t>(split.at)];
  return 1;
}

int SolveFunction(std::u16string_view name, std::u16string_view term, double& result, double ans,
                  const CStringDoubleStack* vars, int start, int length,
                  const SolveEnvironment& environment) {
  const Function* function = FindFunction(name);
  if (function && !function->apply) return kNothingToSolve;
  const int status = Solve(term, result, ans, vars, start, length, environment);
  if (status != kSolved || !function) return status;
  return HandOver(CallFunction(*function, {status, result}, result), result);
}

std::u16string_view SolveErrorText(int status) {
  switch (status) {
    case kBracketsDoNotBalance:
      return u"BRACKET ERROR";
    case kNothingToSolve:
    case kOperandMissing:
      return u"SYNTAX ERROR";
    case kOperatorFailed:
      return u"ERROR";
    case kFunctionFailed:
      return u"MATHEMATICAL ERROR";
    case kDivisorIsZero:
      return u"ERROR: DIV÷0";
    default:
      return {};
  }
}

}  // namespace dorvalin
