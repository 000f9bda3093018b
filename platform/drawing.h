// Lines and shapes on a surface, clipped to it.
#pragma once

#include <span>

#include "platform/icon.h"
#include "platform/surface.h"

namespace platform {

void FillRect(Surface& surface, const Rect& area, Colour colour);
/// A frame one pixel wide inside the rectangle.
void FrameRect(Surface& surface, const Rect& area, Colour colour);
/// The last point is not drawn, so that polylines do not draw a corner twice.
void DrawLine(Surface& surface, Point from, Point to, Colour colour);
void DrawCircle(Surface& surface, Point centre, int radius, Colour colour);
void FillPolygon(Surface& surface, std::span<const Point> corners, Colour colour);

/// The colours of a raised or sunken edge, as the system has them.
struct EdgeColours {
  Colour light = 0xFFFFFF;
  Colour face = 0xC0C0C0;
  Colour shadow = 0x808080;
  Colour darkShadow = 0x000000;
};
enum class Edge { Raised, Sunken };
/// Two pixels wide, inside the rectangle; the inside is left alone.
void DrawEdge(Surface& surface, const Rect& area, Edge edge, const EdgeColours& colours);

/// Mixes the icon over the surface by its alpha, stretched to `size` where that differs.
void DrawIcon(Surface& surface, Point at, const Icon& icon, Size size);

}  // namespace platform
