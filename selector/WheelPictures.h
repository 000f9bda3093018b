// The sprites of the bubbles: a sheet of 3 columns and 9 rows of 32 x 32.
//
//            x 0          x 32      x 64
//   row 0    soft mask    -         hard mask
//   row i    normal       hover     active        of function i
#pragma once

#include "platform/surface.h"

namespace dorvalin {

enum class BubbleLook { Normal = 0, Hover = 32, Active = 64 };

inline constexpr platform::Point kSoftMask{0, 0};
inline constexpr platform::Point kHardMask{64, 0};

[[nodiscard]] platform::Point SpriteAt(int function, BubbleLook look);

/// The sheet, unpacked once in the life of the program; empty when that fails.
[[nodiscard]] const platform::Surface& BubbleSheet();

}  // namespace dorvalin
