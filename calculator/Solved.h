// What solving a range of a term came to.
#pragma once

#include <cmath>
#include <optional>

#include "calculator/modSolve.h"

namespace dorvalin {

/// A success without a value leaves the caller's variable as it was: an overflow that no one looks
/// at, as in squares.
struct Solved {
  int status = kSolved;
  std::optional<double> value;

  [[nodiscard]] bool Failed() const { return status < 0; }
};

[[nodiscard]] inline Solved Failure(int status) { return {status, std::nullopt}; }

/// An arithmetic error shows as a result that is no finite number.
[[nodiscard]] inline Solved ValueOr(double value, int statusOfError) {
  return std::isfinite(value) ? Solved{kSolved, value} : Failure(statusOfError);
}

/// For the steps at which nobody looks for an error.
[[nodiscard]] inline Solved ValueIfFinite(double value, int status = kSolved) {
  return {status, std::isfinite(value) ? std::optional(value) : std::nullopt};
}

}  // namespace dorvalin
