#include "selector/frmAni.h"

#include <cmath>

#include "core/HiResTimer.h"
#include "platform/desktop.h"
#include "platform/raster.h"
#include "platform/screen.h"
#include "selector/WheelPainter.h"

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;
using platform::TheDesktop;

constexpr double kDegreesPerStep = 360.0 / 32;
constexpr int kSteps = 16;
constexpr HiResTime kStepTime = HiResSeconds(0.03);

int Between(int from, int to, double progress) {
  return from + static_cast<int>(std::nearbyint((to - from) * progress));
}

Rect Around(const Rect& a, const Rect& b) {
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

}  // namespace

frmAni::frmAni() : Form("frmAni", {.topMost = true}) {}

void frmAni::Init(const Start& start) {
  ring_ = start.ring;
  column_ = PlaceColumn(TheDesktop().screen().Size());
  rotation_ = start.rotation;
  active_ = start.active;
  const Rect area = Around(ring_, column_);
  auto captured = TheDesktop().screen().Capture(area);
  if (!captured) return;
  background_ = std::move(*captured);
  // The capture shows the ring; the screen under it is put back.
  BitBlt(background_, ring_.Moved({-area.left, -area.top}), *start.behindRing, {0, 0},
         platform::RasterOp::SrcCopy);
  Window().SetBounds(area);
  Draw(PlacesAt(0));
  Show(platform::ShowMode::NoActivate);
}

platform::Surface frmAni::ScreenBehind(const Rect& area) const {
  if (background_.Empty()) return {};
  platform::Surface part(area.Size());
  BitBlt(part, part.Area(), background_, area.Origin() - Window().Bounds().Origin(),
         platform::RasterOp::SrcCopy);
  return part;
}

void frmAni::InLine() {
  if (background_.Empty()) return;
  for (int step = 1; step <= kSteps; ++step) {
    const HiResTime start = HiResTimer();
    rotation_ += kDegreesPerStep;
    Draw(PlacesAt(static_cast<double>(step) / kSteps));
    SpinUntil(start + kStepTime);
  }
}

BubblePlaces frmAni::PlacesAt(double progress) const {
  const Point origin = Window().Bounds().Origin();
  const BubblePlaces ring = RingPlaces(kRestRadius, rotation_);
  const BubblePlaces line = ColumnPlaces(active_, {});
  BubblePlaces places;
  for (std::size_t i = 0; i < places.size(); ++i) {
    const Point from = ring[i] + ring_.Origin() - origin;
    const Point to = line[i] + column_.Origin() - origin;
    places[i] = {Between(from.x, to.x, progress), Between(from.y, to.y, progress)};
  }
  return places;
}

void frmAni::Draw(const BubblePlaces& places) {
  PaintWheel(Window().Canvas(),
             {.background = &background_, .places = places, .active = active_, .caption = {}});
  Window().Refresh();
}

}  // namespace dorvalin
