#include "platform/screen.h"

namespace platform {

EdgeColours SystemEdgeColours(Screen& screen) {
  return {.light = screen.SystemColourOf(SystemColour::ButtonHighlight),
          .face = screen.SystemColourOf(SystemColour::Light),
          .shadow = screen.SystemColourOf(SystemColour::ButtonShadow),
          .darkShadow = screen.SystemColourOf(SystemColour::DarkShadow)};
}

}  // namespace platform
