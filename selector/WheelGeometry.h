// Where the bubbles of a wheel stand, and where the wheel stands on the screen.
//
//   ring, 120 x 120, radius 43            column, 47 x 312
//
//            (5)                                (1)
//        (6)     (4)                            (2)
//      (7)    .    (3)                        (3)      the active bubble, 10 pixels to the left
//        (8)     (2)                            (4)
//            (1)      the active bubble,        ...
//         [ host ]    straight below            (8)
//
// The ring is turned by Rotation degrees so that the active bubble points to the host; in the lower
// half of the screen it is flipped: active bubble above, host above it.
#pragma once

#include <array>
#include <optional>

#include "platform/geometry.h"
#include "selector/FunctionTable.h"

namespace dorvalin {

inline constexpr platform::Size kRingSize{120, 120};
inline constexpr platform::Size kColumnSize{47, 312};
inline constexpr int kRestRadius = 43;
inline constexpr int kBubbleSize = 32;

/// Centres of the bubbles inside the window; index 0 is function 1.
using BubblePlaces = std::array<platform::Point, kFunctionCount>;

[[nodiscard]] BubblePlaces RingPlaces(int radius, double rotation);

/// The moving parts of a column, in pixels to the right of their rest.
struct ColumnSlide {
  int all = 0;        ///< of the whole column, while it comes or goes
  int active = 0;     ///< of the bubble that becomes active
  int old = 0;        ///< of the one that was; counts only while `oldBubble` is set
  int oldBubble = 0;  ///< function index, 0 for none
};
[[nodiscard]] BubblePlaces ColumnPlaces(int activeBubble, const ColumnSlide& slide);

/// Degrees from 0 up to 360 at which the function's bubble points to the host.
[[nodiscard]] double TargetRotation(int index, bool flipped);

/// The function whose bubble is at the point; 0 for none. The first of two wins.
[[nodiscard]] int BubbleAt(const BubblePlaces& places, platform::Point p);

struct RingPlace {
  platform::Rect bounds;
  bool flipped;  ///< the centre lies in the lower half of the screen
};
/// Around the pointer, wholly on the screen and clear of the right edge, where the sidebar is.
[[nodiscard]] RingPlace PlaceRing(platform::Point pointer, platform::Size screen);
[[nodiscard]] platform::Rect PlaceColumn(platform::Size screen);

/// The turns of a ring from one rotation to another, by the shorter way; half a turn goes forward.
class RingTurn {
 public:
  RingTurn(double from, double to);
  /// The next rotation on the way, none when the target comes next.
  [[nodiscard]] std::optional<double> Next();
  /// Where it ends, from 0 up to 360.
  [[nodiscard]] double Target() const;

 private:
  double at_;
  double target_;
  double step_;
};

}  // namespace dorvalin
