#include "tests/calculator/PlainSolver.h"

#include <algorithm>

#include "platform/text.h"

namespace dorvalin {
namespace {

using View = std::u16string_view;

bool IsOneOf(char16_t unit, View set) { return set.find(unit) != set.npos; }

bool IsPlain(char16_t unit) { return IsOneOf(unit, u"×÷§ ") || (unit >= u'*' && unit <= u'9'); }

/// A success without a value changes nothing.
int HandOver(Solved solved, double& result) {
  if (!solved.Failed()) result = solved.ValueOr(result);
  return solved.status;
}

}  // namespace

int PlainSolver::Solve(View term, double& result) {
  if (++steps_ > kMostSteps) return kNothingToSolve;
  term = platform::Trim(term);
  if (term.empty()) return kNothingToSolve;

  double left = 0, right = 0;
  char16_t op = 0;
  int status = Split(term, 1, left, right, op);
  if (status < 0) return status;
  if (status == 1) return HandOver(ApplyOperator(op, left, right), result);

  const auto word =
      static_cast<std::size_t>(std::ranges::find_if_not(term, IsPlain) - term.begin());
  if (word < term.size() && Solve(term.substr(0, word), left) >= 0 &&
      Solve(term.substr(word), right) >= 0)
    return HandOver({kSolved, left * right}, result);

  for (int level = 2; level <= 3; ++level) {
    status = Split(term, level, left, right, op);
    if (status < 0) return status;
    if (status == 1) return HandOver(ApplyOperator(op, left, right), result);
  }
  if (!IsPostfix(term.back())) return SolveGroups(term, left, result);
  status = Solve(term.substr(0, term.size() - 1), left);
  return status < 0 ? status : HandOver(ApplyPostfix(term.back(), left), result);
}

int PlainSolver::Split(View term, int level, double& left, double& right, char16_t& op) {
  static constexpr View kOperators[] = {u"+-", u"*/×÷§", u"^"};
  int depth = 0, status = 0;
  std::size_t end = term.size();
  for (; end > 0; --end) {
    op = term[end - 1];
    if (depth == 0 && IsOneOf(op, kOperators[level - 1])) {
      if (end == 1 && level != 1) return kOperandMissing;
      if (end == 1) {
        left = 0;
        break;
      }
      View before = term.substr(0, end - 1);
      while (before.size() > 1 && before.ends_with(u' ')) before.remove_suffix(1);
      if (level == 1 && IsOneOf(before.back(), u"+-*/÷×^E§")) continue;
      if ((status = Solve(term.substr(0, end - 1), left)) < 0) return status;
      break;
    }
    depth += (op == u'(') - (op == u')');
  }
  if (end == 0) return depth != 0 ? kBracketsDoNotBalance : 0;
  if (end == term.size()) return kOperandMissing;
  status = Solve(term.substr(end), right);
  return status < 0 ? status : 1;
}

int PlainSolver::SolveGroups(View term, double& left, double& result) {
  const Function* function = nullptr;
  double right = 0;
  int status = 0, depth = 0;
  std::size_t open = 0;
  for (std::size_t at = 0; at < term.size(); ++at) {
    if (term[at] == u'(' && depth == 0 && at > 0) {
      const View name = term.substr(0, at);
      function = FindFunction(platform::Lower(platform::Trim(name)));
      if (!function) {
        if ((status = Solve(name, left)) < 0) return status;
        // The last character is taken for the closing bracket, whatever it is.
        if ((status = Solve(term.substr(at + 1, term.size() - at - 2), right)) < 0) return status;
        return HandOver({kSolved, left * right}, result);
      }
    }
    if (term[at] == u'(' && depth++ == 0) open = at + 1;
    if (term[at] != u')' || --depth != 0) continue;
    const View inside = term.substr(open, at - open);
    status = function ? Call(*function, inside, left) : Solve(inside, left);
    if (status < 0) return status;
    if (at + 1 == term.size()) return HandOver({kSolved, left}, result);
    if ((status = Solve(term.substr(at + 1), right)) < 0) return status;
    return HandOver({kSolved, left * right}, result);
  }
  return depth != 0 ? kBracketsDoNotBalance : HandOver(SolveWord(term, words_), result);
}

int PlainSolver::Call(const Function& function, View argument, double& result) {
  if (!function.apply) return kNothingToSolve;
  const int status = Solve(argument, result);
  if (status != kSolved) return status;
  return HandOver(CallFunction(function, {kSolved, result}, result), result);
}

}  // namespace dorvalin
