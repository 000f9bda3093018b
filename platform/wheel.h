// Turns of a mouse wheel.
#pragma once

namespace platform {

/// Gathers turns to whole notches: fine wheels report parts of one.
class WheelNotches {
 public:
  static constexpr int kNotch = 120;
  /// Notches that are full now, mostly 0 for a part of one. Turning back begins anew.
  int Take(int turn) {
    if ((turn < 0) != (rest_ < 0)) rest_ = 0;
    rest_ += turn;
    const int notches = rest_ / kNotch;
    rest_ %= kNotch;
    return notches;
  }

 private:
  int rest_ = 0;
};

}  // namespace platform
