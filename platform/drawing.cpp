#include "platform/drawing.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace platform {
namespace {

void FillRow(Surface& surface, int y, int begin, int end, Pixel pixel) {
  if (y < 0 || y >= surface.Height()) return;
  begin = std::max(begin, 0);
  end = std::min(end, surface.Width());
  if (begin < end) std::fill(surface.Row(y) + begin, surface.Row(y) + end, pixel);
}

void SetPixel(Surface& surface, Point p, Pixel pixel) {
  if (surface.Area().Contains(p)) surface.At(p) = pixel;
}

/// Left and top in one colour, right and bottom in another, which also owns the shared corners.
void DrawEdgeRing(Surface& surface, const Rect& r, Colour leftTop, Colour rightBottom) {
  FillRect(surface, {r.left, r.top, r.right, r.top + 1}, leftTop);
  FillRect(surface, {r.left, r.top, r.left + 1, r.bottom}, leftTop);
  FillRect(surface, {r.left, r.bottom - 1, r.right, r.bottom}, rightBottom);
  FillRect(surface, {r.right - 1, r.top, r.right, r.bottom}, rightBottom);
}

/// The greatest x such that x * x <= square.
int RootFloor(std::int64_t square) {
  std::int64_t x = 0;
  while ((x + 1) * (x + 1) <= square) ++x;
  return static_cast<int>(x);
}

/// Where the edges of the polygon cross the middle of a row, ascending; at most one per edge.
void FindCrossings(std::span<const Point> corners, int y, std::vector<double>& crossings) {
  crossings.clear();
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Point a = corners[i];
    const Point b = corners[(i + 1) % corners.size()];
    if ((a.y <= y) == (b.y <= y)) continue;
    crossings.push_back(a.x + (double(y) - a.y) * (double(b.x) - a.x) / (double(b.y) - a.y));
  }
  std::sort(crossings.begin(), crossings.end());
}

int CeilToInt(double v) {
  const int whole = static_cast<int>(v);
  return whole < v ? whole + 1 : whole;
}

std::uint32_t MixChannel(std::uint32_t over, std::uint32_t under, std::uint32_t alpha) {
  return (over * alpha + under * (255 - alpha)) / 255;
}

Pixel MixOver(Pixel under, std::uint32_t over) {
  const std::uint32_t alpha = over >> 24;
  Pixel mixed = under & 0xFF000000;
  for (int shift = 0; shift < 24; shift += 8)
    mixed |= MixChannel((over >> shift) & 0xFF, (under >> shift) & 0xFF, alpha) << shift;
  return mixed;
}

}  // namespace

void FillRect(Surface& surface, const Rect& area, Colour colour) {
  const Rect seen = area.Intersected(surface.Area());
  for (int y = seen.top; y < seen.bottom; ++y)
    FillRow(surface, y, seen.left, seen.right, PixelFromColour(colour));
}

void FrameRect(Surface& surface, const Rect& area, Colour colour) {
  if (!area.Empty()) DrawEdgeRing(surface, area, colour, colour);
}

void DrawLine(Surface& surface, Point from, Point to, Colour colour) {
  const Point step{from.x < to.x ? 1 : -1, from.y < to.y ? 1 : -1};
  const std::int64_t width = std::abs(std::int64_t{to.x} - from.x);
  const std::int64_t height = std::abs(std::int64_t{to.y} - from.y);
  std::int64_t error = width - height;
  for (Point p = from; p != to;) {
    SetPixel(surface, p, PixelFromColour(colour));
    const std::int64_t doubled = 2 * error;
    if (doubled > -height) error -= height, p.x += step.x;
    if (doubled < width) error += width, p.y += step.y;
  }
}

void DrawCircle(Surface& surface, Point centre, int radius, Colour colour) {
  // A little more than the radius itself, or every disc would end in four single pixels.
  const std::int64_t reach = std::int64_t{radius} * radius + std::max(radius - 1, 0);
  for (int dy = -radius; dy <= radius; ++dy) {
    const int half = RootFloor(reach - std::int64_t{dy} * dy);
    FillRow(surface, centre.y + dy, centre.x - half, centre.x + half + 1, PixelFromColour(colour));
  }
}

void FillPolygon(Surface& surface, std::span<const Point> corners, Colour colour) {
  if (corners.empty()) return;
  const auto [top, bottom] = std::minmax_element(corners.begin(), corners.end(),
                                                 [](Point a, Point b) { return a.y < b.y; });
  std::vector<double> crossings;
  const int end = std::min(bottom->y, surface.Height());
  for (int y = std::max(top->y, 0); y < end; ++y) {
    FindCrossings(corners, y, crossings);
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
      FillRow(surface, y, CeilToInt(crossings[i]), CeilToInt(crossings[i + 1]),
              PixelFromColour(colour));
  }
}

void DrawEdge(Surface& surface, const Rect& area, Edge edge, const EdgeColours& colours) {
  if (area.Empty()) return;
  const Rect inner = area.Grown(-1);
  if (edge == Edge::Raised) {
    DrawEdgeRing(surface, area, colours.face, colours.darkShadow);
    if (!inner.Empty()) DrawEdgeRing(surface, inner, colours.light, colours.shadow);
  } else {
    DrawEdgeRing(surface, area, colours.shadow, colours.light);
    if (!inner.Empty()) DrawEdgeRing(surface, inner, colours.darkShadow, colours.face);
  }
}

void DrawIcon(Surface& surface, Point at, const Icon& icon, Size size) {
  if (!icon || icon->size.Empty() || size.Empty()) return;
  const Rect seen = Rect::At(at, size).Intersected(surface.Area());
  for (int y = seen.top; y < seen.bottom; ++y) {
    const std::int64_t row = std::int64_t{y - at.y} * icon->size.height / size.height;
    const std::uint32_t* pixels = icon->pixels.data() + row * icon->size.width;
    Pixel* out = surface.Row(y);
    for (int x = seen.left; x < seen.right; ++x)
      out[x] = MixOver(out[x], pixels[std::int64_t{x - at.x} * icon->size.width / size.width]);
  }
}

}  // namespace platform
