#include "tests/calculator/PlainSolver.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <map>

#include "platform/text.h"

namespace dorvalin {
namespace {

const double kPi = 3.14159265358979;

/// The character at a position counted from 1.
char16_t Mid(const std::u16string& term, int position) {
  return term[static_cast<std::size_t>(position - 1)];
}

std::u16string Cut(const std::u16string& term, int first, int length) {
  return term.substr(static_cast<std::size_t>(first - 1), static_cast<std::size_t>(length));
}

bool IsOneOf(char16_t unit, std::u16string_view set) { return set.find(unit) != set.npos; }

bool Assign(double& result, double value) {
  if (!std::isfinite(value)) return false;
  result = value;
  return true;
}

bool ToLong(double value, std::int64_t& whole) {
  whole = std::fabs(value) < 1e10 ? std::llrint(value) : INT64_MAX;
  return whole >= INT32_MIN && whole <= INT32_MAX;
}

int Modulo(double left, double right, double& result) {
  std::int64_t dividend = 0, divisor = 0;
  if (!ToLong(left, dividend) || !ToLong(right, divisor) || divisor == 0) return -3;
  result = static_cast<double>(dividend % divisor);
  return 1;
}

double Rnd(double x) {
  std::int64_t whole = 0;
  return ToLong(x, whole) ? static_cast<double>(whole) : NAN;
}

double Asin(double x) {
  return x == 1 ? kPi / 2 : x == -1 ? -kPi / 2 : std::atan(x / std::sqrt(1 - x * x));
}

double Acos(double x) {
  return x == 1 ? 0 : x == -1 ? kPi : std::atan(-x / std::sqrt(1 - x * x)) + 2 * std::atan(1.0);
}

using Table = std::map<std::u16string, std::function<double(double)>>;

const Table& Functions() {
  static const auto atn = [](double x) { return std::atan(x); };
  static const auto sqr = [](double x) { return std::sqrt(x); };
  static const auto none = [](double) { return NAN; };
  static const Table table = {
      {u"sin", [](double x) { return std::sin(x); }},
      {u"cos", [](double x) { return std::cos(x); }},
      {u"tan", [](double x) { return std::tan(x); }},
      {u"sinh", [](double x) { return (std::exp(x) - std::exp(-x)) / 2; }},
      {u"cosh", [](double x) { return (std::exp(x) + std::exp(-x)) / 2; }},
      {u"tanh",
       [](double x) { return (std::exp(x) - std::exp(-x)) / (std::exp(x) + std::exp(-x)); }},
      {u"invtan", atn},
      {u"atn", atn},
      {u"atan", atn},
      {u"invsin", Asin},
      {u"asin", Asin},
      {u"invcos", Acos},
      {u"acos", Acos},
      {u"log", [](double x) { return std::log(x) / std::log(10.0); }},
      {u"ln", [](double x) { return std::log(x); }},
      {u"ld", [](double x) { return std::log(x) / std::log(2.0); }},
      {u"abs", [](double x) { return std::fabs(x); }},
      {u"int", [](double x) { return std::floor(x); }},
      {u"fix", [](double x) { return std::trunc(x); }},
      {u"rnd", Rnd},
      {u"exp", [](double x) { return std::exp(x); }},
      {u"sqr", sqr},
      {u"sqrt", sqr},
      {u"root", none},
      {u"rt", none},
  };
  return table;
}

int Factorial(double x, double& result) {
  const double whole = std::trunc(x);
  const double n = std::fabs(whole) <= 2147483648.0 && whole != 2147483648.0 ? whole : 0;
  if (n < 0) return -4;
  double product = 1;
  for (double i = 2; i <= n && std::isfinite(product); ++i) product *= i;
  return Assign(result, product) ? 1 : -4;
}

int Combine(char16_t op, double left, double right, double& result) {
  if (op == u'+') return Assign(result, left + right) ? 1 : -3;
  if (op == u'-') return Assign(result, left - right) ? 1 : -3;
  if (op == u'*' || op == u'×') return Assign(result, left * right) ? 1 : -3;
  if (op == u'^') return Assign(result, std::pow(left, right)) ? 1 : -3;
  if (right == 0) return -6;
  if (op == u'§') return Modulo(left, right, result);
  return Assign(result, left / right) ? 1 : -3;
}

}  // namespace

int PlainSolver::Solve(const std::u16string& term, double& result, int start, int length) const {
  if (length == -1) length = static_cast<int>(term.size());
  while (length != 0 && Mid(term, start + length) == u' ') --length;
  while (length != 0 && Mid(term, start + 1) == u' ') ++start, --length;
  if (length == 0) return -2;

  double left = 0, right = 0;
  char16_t op = 0;
  int status = SolveSplit(term, 1, left, right, op, start, length);
  if (status < 0) return status;
  if (status == 1) return Combine(op, left, right, result);

  const int end = start + length;
  for (int p = start + 1; p <= end; ++p) {
    const char16_t c = Mid(term, p);
    if (IsOneOf(c, u"×÷§ ") || (c >= 42 && c <= 57)) continue;
    if (Solve(term, left, start, p - start - 1) >= 0 &&
        Solve(term, right, p - 1, end - p + 1) >= 0) {
      Assign(result, left * right);
      return 1;
    }
    break;
  }
  for (int level = 2; level <= 3; ++level) {
    status = SolveSplit(term, level, left, right, op, start, length);
    if (status < 0) return status;
    if (status == 1) return Combine(op, left, right, result);
  }
  const char16_t last = Mid(term, end);
  if (IsOneOf(last, u"²³!°%")) return SolvePostfix(term, last, left, result, start, length - 1);
  return SolveGroups(term, left, result, start, length);
}

int PlainSolver::SolvePostfix(const std::u16string& term, char16_t postfix, double& left,
                              double& result, int start, int length) const {
  const int status = Solve(term, left, start, length);
  if (status < 0) return status;
  if (postfix == u'!') return Factorial(left, result);
  if (postfix == u'²') Assign(result, std::pow(left, 2.0));
  if (postfix == u'³') Assign(result, std::pow(left, 3.0));
  if (postfix == u'°') Assign(result, (left / 360 + left / 360) * kPi);
  if (postfix == u'%') Assign(result, left / 100);
  return postfix == u'°' ? 0 : 1;
}

int PlainSolver::SolveGroups(const std::u16string& term, double& left, double& result, int start,
                             int length) const {
  const int end = start + length;
  double right = 0;
  std::u16string name;
  int status = 0, open = 0, depth = 0;
  for (int p = start + 1; p <= end; ++p) {
    const char16_t c = Mid(term, p);
    if (c == u'(' && depth == 0 && p != start + 1) {
      const std::u16string before = Cut(term, start + 1, p - start - 1);
      name = platform::Lower(platform::Trim(before));
      if (!Functions().contains(name)) {
        if ((status = Solve(before, left)) < 0) return status;
        if ((status = Solve(term, right, p, end - p - 1)) < 0) return status;
        Assign(result, left * right);
        return 1;
      }
    }
    if (c == u'(' && depth++ == 0) open = p;
    if (c != u')' || --depth != 0) continue;
    status = name.empty() ? Solve(term, left, open, p - open - 1)
                          : SolveFunction(name, term, left, open, p - open - 1);
    if (status < 0) return status;
    if (p == end) return result = left, 1;
    if ((status = Solve(term, right, p, end - p)) < 0) return status;
    Assign(result, left * right);
    return 1;
  }
  if (depth != 0) return -1;
  return SolveLeaf(Cut(term, start + 1, length), result);
}

int PlainSolver::SolveLeaf(const std::u16string& text, double& result) const {
  const std::u16string low = platform::Lower(text);
  if (low == u"pi") return result = kPi, 1;
  if (low == u"ans") return result = ans_, 1;
  if (text == u"e") return result = std::exp(1.0), 1;
  const int named = vars_ ? vars_->ItemFromText(low) : 0;
  if (named) return result = vars_->ItemValue(named), 1;
  const auto number = platform::ParseNumber(text, environment_.numbers);
  return number ? (result = *number, 1) : -3;
}

int PlainSolver::SolveSplit(const std::u16string& term, int level, double& left, double& right,
                            char16_t& op, int start, int length) const {
  const std::u16string_view set = level == 1 ? u"+-" : level == 2 ? u"*/×÷§" : u"^";
  const int end = start + length;
  int depth = 0, status = 0, i = end;
  for (; i > start; --i) {
    const char16_t c = Mid(term, i);
    if (depth == 0 && IsOneOf(c, set)) {
      if (i == start + 1 && level != 1) return -5;
      if (i == start + 1) {
        left = 0;
        break;
      }
      int before = i - 1;
      while (before > start + 1 && Mid(term, before) == u' ') --before;
      if (level == 1 && IsOneOf(Mid(term, before), u"+-*/÷×^E§")) continue;
      if ((status = Solve(term, left, start, i - 1 - start)) < 0) return status;
      break;
    }
    if (c == u'(') ++depth;
    if (c == u')') --depth;
  }
  if (i == start) return depth != 0 ? -1 : 0;
  if (i == end) return -5;
  if ((status = Solve(term, right, i, end - i)) < 0) return status;
  op = Mid(term, i);
  return 1;
}

int PlainSolver::SolveFunction(const std::u16string& name, const std::u16string& term,
                               double& result, int start, int length) const {
  if (name == u"rt" || name == u"root") return -2;
  const int status = Solve(term, result, start, length);
  if (status != 1) return status;
  return Assign(result, Functions().at(name)(result)) ? 1 : -4;
}

}  // namespace dorvalin
