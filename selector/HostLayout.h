// Where a host window stands beside its wheel, and where its parts lie in it. Pure geometry.
//
//   attached below the ring        Below (above the ring)      vertical (beside the column)
//
//   +--[B]------( )---[R W C]-+    +------------------------+  +-------------------+--+
//   | title                   |    | panel                  |  | panel             |W |
//   | panel                   |    |                        |  |                   |B |
//   |                         |    | F1 = Hilfe     address |  |                   ( )
//   | F1 = Hilfe      address |    | title                  |  |                   |  |
//   +-------------------------+    +--[B]-----( )--[R W C]--+  | F1        address |  |
//                                                              +-------------------+--+
//   C close, W free, R to the sidebar, B menu, ( ) the active bubble sinking into the edge
#pragma once

#include <optional>

#include "platform/geometry.h"

namespace dorvalin {

inline constexpr int kHostButton = 17;  ///< pixels, square
inline constexpr int ButtonWidth = kHostButton + 1;

struct HostSizes {
  platform::Size panel;  ///< what the panel wants
  int labelRow = 0;      ///< `LabelRow`: the label's height and 2
};

[[nodiscard]] platform::Size HostSize(const HostSizes& sizes, bool vertical);

[[nodiscard]] platform::Point PlaceAtRing(platform::Size host, const platform::Rect& ring,
                                          bool below, platform::Size screen);
/// `bubbleY` is the centre of the active bubble inside the column.
[[nodiscard]] platform::Point PlaceAtColumn(platform::Size host, const platform::Rect& column,
                                            int bubbleY, platform::Size screen);

/// How the host stands.
struct HostState {
  bool vertical = false;
  bool below = false;
  bool free = false;
  bool hasMenu = false;
  bool menuFunction = false;  ///< its panel cannot be set free
};

struct HostParts {
  platform::Rect panel;
  platform::Rect btnClose, btnFree, btnRight, btnMenu;
  bool showClose = false, showRight = false, showMenu = false;
  int titleLeft = 0;  ///< and the middle line of the title's text
  int titleMiddle = 0;
  int titleRight = 0;
  bool showTitle = true;
  platform::Rect labels;  ///< the row of the two labels
};

[[nodiscard]] HostParts LayOutHost(platform::Size client, const HostSizes& sizes,
                                   const HostState& state);

/// Top left of the active bubble's picture in the host.
[[nodiscard]] platform::Point BubbleInHost(const platform::Rect& host, const platform::Rect& wheel,
                                           int bubbleY, const HostState& state);

/// The bounds of a host that is set free: its panel stays where it was on the screen, except that
/// one above the ring moves down by the row of labels, which goes below it.
[[nodiscard]] platform::Rect FreedBounds(const platform::Rect& bounds, const HostSizes& sizes,
                                         const HostState& state);

}  // namespace dorvalin
