// How a character of a rich text looks.
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"

namespace platform {

struct RichFormat {
  Font font;
  Colour colour = 0x000000;
  Alignment alignment = Alignment::Left;  ///< of its whole line
  friend bool operator==(const RichFormat&, const RichFormat&) = default;
};

/// A text with a format for each of its units.
struct RichContent {
  std::u16string text;
  std::vector<RichFormat> formats;
};

}  // namespace platform
