// Points, sizes and rectangles in screen or window pixels; y grows downward.
#pragma once

#include <algorithm>
#include <cstdint>

namespace platform {

struct Point {
  int x = 0;
  int y = 0;
  friend bool operator==(const Point&, const Point&) = default;
  friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
  friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
};

struct Size {
  int width = 0;
  int height = 0;
  friend bool operator==(const Size&, const Size&) = default;
  bool Empty() const { return width <= 0 || height <= 0; }
};

/// Half-open: `right` and `bottom` belong to the neighbour.
struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  static constexpr Rect At(Point origin, Size size) {
    return {origin.x, origin.y, origin.x + size.width, origin.y + size.height};
  }
  friend bool operator==(const Rect&, const Rect&) = default;

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  Point Origin() const { return {left, top}; }
  platform::Size Size() const { return {Width(), Height()}; }
  Point Middle() const { return {left + Width() / 2, top + Height() / 2}; }
  bool Empty() const { return left >= right || top >= bottom; }
  bool Contains(Point p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
  bool Contains(const Rect& r) const {
    return r.left >= left && r.right <= right && r.top >= top && r.bottom <= bottom;
  }
  /// The common part; empty (all zero) where there is none.
  Rect Intersected(const Rect& r) const {
    const Rect common{std::max(left, r.left), std::max(top, r.top), std::min(right, r.right),
                      std::min(bottom, r.bottom)};
    return common.Empty() ? Rect{} : common;
  }
  Rect Moved(Point by) const { return {left + by.x, top + by.y, right + by.x, bottom + by.y}; }
  Rect Grown(int by) const { return {left - by, top - by, right + by, bottom + by}; }
};

/// Forms and dialogs are designed in twips, at a fixed 15 to the pixel.
inline constexpr int kTwipsPerPixel = 15;
constexpr int PixelsFromTwips(int twips) { return twips / kTwipsPerPixel; }
constexpr int TwipsFromPixels(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace platform
