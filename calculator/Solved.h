// What solving a range of a term came to.
#pragma once

#include <cmath>

#include "calculator/modSolve.h"

namespace dorvalin {

/// Small enough to be handed on in registers.
struct Solved {
  int status = kSolved;
  /// No finite number: none. A success without a value leaves the caller's variable as it was: an
  /// overflow that no one looks at, as in squares.
  double value = 0;

  [[nodiscard]] bool Failed() const { return status < 0; }
  [[nodiscard]] double ValueOr(double unwritten) const {
    return std::isfinite(value) ? value : unwritten;
  }
};

[[nodiscard]] inline Solved Failure(int status) { return {status, HUGE_VAL}; }

/// For the steps at which an arithmetic error is looked for: it shows as no finite number.
[[nodiscard]] inline Solved Checked(double value, int statusOfError) {
  return std::isfinite(value) ? Solved{kSolved, value} : Failure(statusOfError);
}

}  // namespace dorvalin
