// The frame that windows have on the in-process desktop, ours and those of other programs alike:
//
//   +--------------------------+
//   | title                [x] |
//   |+------------------------+|
//   ||         inside         ||
#pragma once

#include <string_view>

#include "platform/surface.h"

namespace platform {

class WindowFrame {
 public:
  explicit WindowFrame(const Rect& window) : window_(window) {}

  /// What the frame takes of the window at its left and top, and altogether.
  static constexpr Point kOffset{3, 22};
  static constexpr Size kTaken{6, 25};

  Rect TitleBar() const;
  Rect CloseBox() const;
  Rect Inside() const;
  void Paint(Surface& screen, std::u16string_view title, bool active) const;

 private:
  Rect window_;
};

}  // namespace platform
