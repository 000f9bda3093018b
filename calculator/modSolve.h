// Solves one line of text, a term such as "2 (3+4)²" or "sin(90°) § 7", to a Double.
//
// A term is cut, not parsed: at its last + or - first, then between a number and what is multiplied
// with it silently, then at its last * / × ÷ §, at its last ^, at a postfix, at a bracket. All that
// users see of precedence and signs follows from that order.
//
// Texts of any length and nesting give a status; nothing is thrown.
#pragma once

#include <string_view>

#include "platform/clock.h"
#include "platform/numbers.h"
#include "stacks/CStringDoubleStack.h"

namespace dorvalin {

inline constexpr int kSolved = 1;
/// Solved too, by the degree postfix. A function takes no argument of this status: it hands the
/// argument back as it is.
inline constexpr int kSolvedDegrees = 0;
inline constexpr int kBracketsDoNotBalance = -1;
inline constexpr int kNothingToSolve = -2;
inline constexpr int kOperatorFailed = -3;
inline constexpr int kFunctionFailed = -4;
inline constexpr int kOperandMissing = -5;
inline constexpr int kDivisorIsZero = -6;

/// What the solver asks of the desktop.
struct SolveEnvironment {
  platform::NumberFormat numbers;  ///< how the user writes numbers
  platform::Clock& clock;          ///< seeds the random numbers of "ran"
};

/// Solves the `length` characters behind the first `start` ones; a length of -1 is the whole
/// text's. A range that reaches beyond the text ends with it. Returns a status; a negative one is a
/// failure, which leaves `result` as it was. So does a square or a cube too large for a Double,
/// although its status is kSolved. `ans` is the value of the word "ans", `vars` (or nullptr) holds
/// further words.
int Solve(std::u16string_view term, double& result, double ans, const CStringDoubleStack* vars,
          int start, int length, const SolveEnvironment& environment);

/// Cuts a range at its last operator of a level (1: + -, 2: * / × ÷ §, 3: ^) and solves both sides.
/// Returns 1 if it cut, 0 if there is no such operator, or a failure.
int SolveSplit(std::u16string_view term, int level, double& left, double& right, char16_t& op,
               double ans, int start, int length, const CStringDoubleStack* vars,
               const SolveEnvironment& environment);

/// Solves a range into `result` and applies the function of that lower-case name to it in place. A
/// function that fails leaves the argument there.
int SolveFunction(std::u16string_view name, std::u16string_view term, double& result, double ans,
                  const CStringDoubleStack* vars, int start, int length,
                  const SolveEnvironment& environment);

/// Of x without its fraction. Fails for negative numbers and from 171 on, but beyond the range of
/// 32-bit integers the factorial is 1.
int SolveFactorial(double x, double& result);

/// What the user is shown; empty for a status that is no failure.
[[nodiscard]] std::u16string_view SolveErrorText(int status);

}  // namespace dorvalin
