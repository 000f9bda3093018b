#include "calculator/arithmetic.h"

#include <cmath>

namespace dorvalin {
namespace {

Solved Quotient(double left, double right) {
  return right == 0 ? Failure(kDivisorIsZero) : Checked(left / right, kOperatorFailed);
}

// Only an exact zero is a zero divisor; one that rounds to zero is an ordinary error.
Solved Modulo(double left, double right) {
  if (right == 0) return Failure(kDivisorIsZero);
  const auto dividend = RoundToLong(left);
  const auto divisor = RoundToLong(right);
  if (!dividend || !divisor || *divisor == 0) return Failure(kOperatorFailed);
  // In 64 bits, because the smallest number has no quotient by -1 in 32.
  return {kSolved, static_cast<double>(std::int64_t{*dividend} % *divisor)};
}

Solved Factorial(double x) {
  double product = 0;
  const int status = SolveFactorial(x, product);
  return status < 0 ? Failure(status) : Solved{status, product};
}

}  // namespace

Solved ApplyOperator(char16_t op, double left, double right) {
  switch (op) {
    case u'+':
      return Checked(left + right, kOperatorFailed);
    case u'-':
      return Checked(left - right, kOperatorFailed);
    case u'*':
    case u'×':
      return Checked(left * right, kOperatorFailed);
    case u'/':
    case u'÷':
      return Quotient(left, right);
    case u'§':
      return Modulo(left, right);
    default:
      return Checked(std::pow(left, right), kOperatorFailed);
  }
}

Solved ApplyPostfix(char16_t postfix, double operand) {
  switch (postfix) {
    case u'²':
      return {kSolved, std::pow(operand, 2.0)};
    case u'³':
      return {kSolved, std::pow(operand, 3.0)};
    case u'!':
      return Factorial(operand);
    case u'°':
      return {kSolvedDegrees, (operand / 360 + operand / 360) * kPi};
    default:
      return {kSolved, operand / 100};
  }
}

std::optional<std::int32_t> RoundToLong(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= INT32_MIN && rounded <= INT32_MAX)) return std::nullopt;
  return static_cast<std::int32_t>(rounded);
}

int SolveFactorial(double x, double& result) {
  const double whole = std::trunc(x);
  // A number that is no 32-bit integer counts as 0: its conversion fails and nobody looks.
  const int n = whole >= INT32_MIN && whole <= INT32_MAX ? static_cast<int>(whole) : 0;
  if (n < 0) return kFunctionFailed;
  double product = 1;
  for (int i = 2; i <= n; ++i) {
    product *= i;
    if (!std::isfinite(product)) return kFunctionFailed;
  }
  result = product;
  return kSolved;
}

}  // namespace dorvalin
