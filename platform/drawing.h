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
/// A filled disc, 2 x radius + 1 pixels across; a radius below 0 draws nothing.
void DrawCircle(Surface& surface, Point centre, int radius, Colour colour);
/// Fills the pixels whose middles lie inside, the corners being middles of pixels themselves; of
/// its edges the left and upper ones belong to it. Where it crosses itself, inside and outside
/// alternate.
void FillPolygon(Surface& surface, std::span<const Point> corners, Colour colour);

/// The colours of a raised or sunken edge, as the system has them.
struct EdgeColours {
  Colour light = 0xFFFFFF;
  Colour face = 0xC0C0C0;  ///< the outer light of a raised edge
  Colour shadow = 0x808080;
  Colour darkShadow = 0x000000;
};
enum class Edge { Raised, Sunken };
/// Two pixels wide, inside the rectangle; the inside is left alone.
void DrawEdge(Surface& surface, const Rect& area, Edge edge, const EdgeColours& colours);

/// Mixes the icon over the surface by its alpha, stretched to `size` (nearest pixel) where that
/// differs. No icon, or an empty size, draws nothing.
void DrawIcon(Surface& surface, Point at, const Icon& icon, Size size);

}  // namespace platform
