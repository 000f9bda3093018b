#include "core/AccessGestures.h"

#include <cstdlib>

namespace dorvalin {
namespace {

using platform::Button;
using platform::Input;
using platform::Point;

constexpr int kScrollPause = 3;  // ticks between two looks at a held Scroll Lock
constexpr int kScrollScanCode = 69;

int Travel(Point a, Point b) { return std::abs(a.x - b.x) + std::abs(a.y - b.y); }

// The user's press has toggled the lock: an up and a down toggle it back, so that the gesture
// leaves state and lamp as they were. The physical release then ends the injected press.
void ToggleScrollLockBack(Input& input) {
  input.InjectKey(platform::key::kScrollLock, kScrollScanCode, true, Input::KeyEdge::Up);
  input.InjectKey(platform::key::kScrollLock, kScrollScanCode, true, Input::KeyEdge::Down);
}

}  // namespace

AccessGestures::Verdict AccessGestures::Tick(const Settings& settings, Input& input) {
  static constexpr Hold kBoth{3, 7}, kMiddle{3, 7}, kRight{4, 7};
  // Users drag and select with the left button: longest hold, smallest travel.
  static constexpr Hold kLeft{5, 3};

  bool show = false;
  if (settings.BothBtn) {
    const bool down = input.ButtonDown(Button::Left) && input.ButtonDown(Button::Right);
    show |= Watch(down, BothCount, kBoth, false, input);
  }
  const bool scrollFired = settings.ScrollKey && WatchScrollLock(input);
  show |= scrollFired;
  if (settings.MiddleBtn) {
    show |= Watch(input.ButtonDown(Button::Middle), MiddleCount, kMiddle, scrollFired, input);
  }
  if (settings.RightBtn) {
    show |= Watch(input.ButtonDown(Button::Right), RightCount, kRight, scrollFired, input);
  }
  if (settings.LeftBtn) {
    show |= Watch(input.ButtonDown(Button::Left), LeftCount, kLeft, scrollFired, input);
  }
  if (ScrollHold > 0) --ScrollHold;
  return show ? Verdict::ShowWheel : Verdict::Nothing;
}

bool AccessGestures::WatchScrollLock(Input& input) {
  if (!input.KeyDown(platform::key::kScrollLock) || ScrollHold != 0) return false;
  ScrollHold = kScrollPause;
  ToggleScrollLockBack(input);
  return true;
}

bool AccessGestures::Watch(bool down, int& count, const Hold& hold, bool scrollFired,
                           Input& input) {
  if (!down) {
    count = 0;
    return false;
  }
  return count >= 0 && !scrollFired && Count(count, hold, input);
}

bool AccessGestures::Count(int& count, const Hold& hold, Input& input) {
  if (count == 0) StartPos = input.PointerPosition();
  if (++count != hold.threshold) return false;
  count = -1;
  return Travel(input.PointerPosition(), StartPos) < hold.limit;
}

}  // namespace dorvalin
