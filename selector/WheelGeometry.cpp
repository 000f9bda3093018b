#include "selector/WheelGeometry.h"

#include <algorithm>
#include <cmath>

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;
using platform::Size;

constexpr double kPi = 3.14159265358979;
constexpr int kSpacing = 40;  // between two bubbles of the column
constexpr int kHitRadiusSquared = 17 * 17;
constexpr int kRightMargin = 20;  // what a ring keeps free for a sidebar
constexpr double kTurnStep = 6;   // degrees a frame

double HomeAngle(int index) { return 360.0 / kFunctionCount * (index - 1.0); }

int Rounded(double value) { return static_cast<int>(std::nearbyint(value)); }

double Normal(double degrees) {
  if (degrees >= 360) return degrees - 360;
  return degrees < 0 ? degrees + 360 : degrees;
}

}  // namespace

BubblePlaces RingPlaces(int radius, double rotation) {
  constexpr platform::Point kCentre{kRingSize.width / 2, kRingSize.height / 2};
  BubblePlaces places;
  for (int i = 1; i <= kFunctionCount; ++i) {
    const double angle = (HomeAngle(i) + rotation + 90) / 180 * kPi;
    places[i - 1] = {Rounded(radius * std::cos(angle) + kCentre.x),
                     Rounded(radius * std::sin(angle) + kCentre.y)};
  }
  return places;
}

BubblePlaces ColumnPlaces(int activeBubble, const ColumnSlide& slide) {
  constexpr int kRest = 26, kActiveRest = 16, kFirst = 16;
  BubblePlaces places;
  for (int i = 1; i <= kFunctionCount; ++i) {
    int x = kRest;
    if (i == activeBubble) {
      x = kActiveRest + slide.active;
    } else if (i == slide.oldBubble) {
      x = kActiveRest + slide.old;
    }
    places[i - 1] = {slide.all + x, (i - 1) * kSpacing + kFirst};
  }
  return places;
}

double TargetRotation(int index, bool flipped) {
  const double target = -HomeAngle(index) + (flipped ? 180 : 0);
  return target < 0 ? target + 360 : target;
}

int BubbleAt(const BubblePlaces& places, Point p) {
  for (int i = 1; i <= kFunctionCount; ++i) {
    const Point d = places[i - 1] - p;
    if (d.x * d.x + d.y * d.y <= kHitRadiusSquared) return i;
  }
  return 0;
}

RingPlace PlaceRing(Point pointer, Size screen) {
  int left = std::max(pointer.x - kRingSize.width / 2, 0);
  int top = std::max(pointer.y - kRingSize.height / 2, 0);
  left = std::min(left, screen.width - kRightMargin - kRingSize.width);
  top = std::min(top, screen.height - kRingSize.height);
  return {Rect::At({left, top}, kRingSize), top + kRingSize.height / 2 > screen.height / 2};
}

Rect PlaceColumn(Size screen) {
  return Rect::At({screen.width - kColumnSize.width, (screen.height - kColumnSize.height) / 2},
                  kColumnSize);
}

RingTurn::RingTurn(double from, double to) : at_(from), target_(to), step_(kTurnStep) {
  if (target_ < at_) target_ += 360;
  if (target_ - at_ > 180) {
    target_ -= 360;
    step_ = -kTurnStep;
  }
}

std::optional<double> RingTurn::Next() {
  at_ += step_;
  const bool before = step_ > 0 ? at_ < target_ : at_ > target_;
  return before ? std::optional(at_) : std::nullopt;
}

double RingTurn::Target() const { return Normal(target_); }

}  // namespace dorvalin
