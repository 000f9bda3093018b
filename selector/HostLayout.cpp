#include "selector/HostLayout.h"

#include <algorithm>

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;
using platform::Size;

constexpr int kFrame = 3;  // raised edge and its gap
constexpr int kFrames = 2 * kFrame;
constexpr int kRowGap = 2;         // between button row and panel
constexpr int kWheelOverlap = 20;  // the active bubble rests on the host's edge
constexpr int kColumnOverlap = 17;
constexpr int kBubbleHalf = 16;

Rect Button(int left, int top) { return Rect::At({left, top}, {kHostButton, kHostButton}); }

void LayOutVertical(HostParts& parts, Size client, const HostState& state) {
  const int left = client.width - kFrame - kHostButton;
  parts.btnFree = Button(left, kFrame);
  parts.btnMenu = Button(left, kFrame + kHostButton + 1);
  parts.showMenu = state.hasMenu;
  parts.showTitle = false;
}

void LayOutRow(HostParts& parts, Size client, const HostState& state) {
  const int top = state.below ? client.height - kFrame - kHostButton : kFrame;
  const int closeLeft = client.width - kFrame - kHostButton;
  const int freeLeft = state.menuFunction ? closeLeft : closeLeft - kHostButton - 2;
  parts.btnClose = Button(closeLeft, top);
  parts.btnFree = Button(freeLeft, top);
  parts.btnRight = Button(freeLeft - kHostButton - 2, top);
  parts.btnMenu = Button(kFrame, top);
  parts.showClose = true;
  parts.showRight = !state.free;
  parts.showMenu = state.hasMenu;
  parts.titleLeft = state.hasMenu ? kFrames + kHostButton + 1 : kFrames;
  parts.titleMiddle = top + kHostButton / 2;
  parts.titleRight = (state.free ? closeLeft : parts.btnRight.left) - kRowGap;
}

Rect PanelArea(Size client, const HostSizes& sizes, const HostState& state) {
  const int inner = state.vertical ? client.width - ButtonWidth : client.width;
  const int row = state.vertical ? 0 : kHostButton + kRowGap;
  const int top = state.vertical || state.below ? kFrame : kHostButton + kFrame + kRowGap;
  return Rect::At({kFrame, top}, {inner - kFrames, client.height - kFrames - row - sizes.labelRow});
}

}  // namespace

Size HostSize(const HostSizes& sizes, bool vertical) {
  if (vertical) {
    return {sizes.panel.width + ButtonWidth + kFrames,
            sizes.panel.height + sizes.labelRow + kFrames};
  }
  return {sizes.panel.width + kFrames,
          sizes.panel.height + kHostButton + sizes.labelRow + kFrames + kRowGap};
}

Point PlaceAtRing(Size host, const Rect& ring, bool below, Size screen) {
  int x = std::max(ring.left + (ring.Width() - host.width) / 2, 0);
  if (x + host.width > screen.width) x = screen.width - host.width;
  const int y = below ? ring.top - host.height + kWheelOverlap : ring.bottom - kWheelOverlap;
  return {x, y};
}

Point PlaceAtColumn(Size host, const Rect& column, int bubbleY, Size screen) {
  constexpr int kAbove = 25, kBelow = 75;
  int y = std::max(column.top + bubbleY - host.height / 2, column.top - kAbove);
  const int lowest = column.bottom + kBelow;
  if (y + host.height > lowest) y = std::max(lowest - host.height, 0);
  if (y + host.height > screen.height) y = screen.height - host.height;
  return {column.left - host.width + kColumnOverlap, y};
}

HostParts LayOutHost(Size client, const HostSizes& sizes, const HostState& state) {
  HostParts parts;
  parts.panel = PanelArea(client, sizes, state);
  if (state.vertical) {
    LayOutVertical(parts, client, state);
  } else {
    LayOutRow(parts, client, state);
  }
  const int top = state.below ? parts.panel.bottom : client.height - kFrame - sizes.labelRow;
  parts.labels = {kFrame, top, parts.panel.right, top + sizes.labelRow};
  return parts;
}

Point BubbleInHost(const Rect& host, const Rect& wheel, int bubbleY, const HostState& state) {
  if (state.vertical) {
    return {host.Width() - kColumnOverlap, bubbleY + wheel.top - host.top - kBubbleHalf};
  }
  const int x = wheel.left + wheel.Width() / 2 - host.left - kBubbleHalf;
  return {x, state.below ? host.Height() + 2 - kWheelOverlap - 1 : -13};
}

Rect FreedBounds(const Rect& bounds, const HostSizes& sizes, const HostState& state) {
  const int row = kHostButton + kRowGap;
  Rect freed = bounds;
  if (state.vertical) {
    freed.top -= row;
    freed.right -= ButtonWidth;
  }
  if (state.below) freed = freed.Moved({0, -(row - sizes.labelRow)});
  return freed;
}

}  // namespace dorvalin
