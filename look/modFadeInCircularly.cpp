#include "look/modFadeInCircularly.h"

#include <algorithm>
#include <cmath>

#include "platform/desktop.h"
#include "platform/pump.h"

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;

int LastRadius(Point centre, platform::Size size) {
  int farthest = 0;
  for (const Point corner :
       {Point{0, 0}, Point{size.width, 0}, Point{0, size.height}, Point{size.width, size.height}}) {
    const Point d = corner - centre;
    const double distance = std::hypot(d.x, d.y);
    farthest = std::max(farthest, static_cast<int>(distance));
  }
  return farthest;
}

}  // namespace

void FadeInCircle(platform::TopWindow& window, Point centre, platform::Size size, int step,
                  HiResTime delay) {
  const int last = LastRadius(centre, size);
  for (int r = step; r <= last; r += step) {
    const HiResTime start = HiResTimer();
    window.SetEllipseRegion(Rect{centre.x - r, centre.y - r, centre.x + r, centre.y + r});
    // Hidden first: a window that stands already would flash up whole.
    if (r == step) {
      window.Hide();
      window.Show(platform::ShowMode::NoActivate);
    }
    platform::TheDesktop().pump().DoEvents();
    SpinUntil(start + delay);
  }
  window.SetEllipseRegion(std::nullopt);
}

}  // namespace dorvalin
