// The screen: every shown window painted in order, as it stands at the moment of asking.
#pragma once

#include <map>

#include "platform/screen.h"

namespace platform {

class MemoryDesktop;

class MemoryScreen : public Screen {
 public:
  explicit MemoryScreen(MemoryDesktop& desktop) : desktop_(desktop) {}

  platform::Size Size() override;
  int Depth() override;
  Colour SystemColourOf(SystemColour colour) override;
  std::optional<Surface> Capture(const Rect& area) override;
  std::optional<Colour> ColourAt(Point p) override;

  void SetSize(platform::Size size) { size_ = size; }
  platform::Size SizeNow() const { return size_; }
  void SetDepth(int depth) { depth_ = depth; }
  void SetColour(SystemColour which, Colour colour) { colours_[which] = colour; }
  /// The whole screen, whatever fails.
  [[nodiscard]] Surface Compose();

 private:
  void ComposeInto(Surface& screen, const Rect& area);
  /// The screen, of which only this area is up to date.
  const Surface& Composed(const Rect& area);

  MemoryDesktop& desktop_;
  Surface scratch_;  ///< kept, since a large one costs more to make than to paint
  platform::Size size_{1024, 768};
  int depth_ = 32;
  std::map<SystemColour, Colour> colours_;
};

}  // namespace platform
