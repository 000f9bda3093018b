// A font by its properties; the desktop finds the nearest it has.
#pragma once

#include <string>

namespace platform {

struct Font {
  std::u16string face = u"MS Sans Serif";
  double points = 8;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeOut = false;
  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace platform
