// One frame of the wheel, ring and column, beside the bare copy of the same bytes: no painter that
// begins with the screen behind it can be faster than that copy.
#include <benchmark/benchmark.h>

#include <cstring>

#include "core/ProgramState.h"
#include "platform/drawing.h"
#include "platform/memory/MemoryDesktop.h"
#include "selector/WheelPainter.h"

namespace dorvalin {
namespace {

using platform::Size;
using platform::Surface;

/// A wheel's window over a captured screen.
struct Wheel {
  explicit Wheel(Size size) : canvas(size), background(size) {
    FillRect(background, background.Area(), 0x336699);
  }
  platform::MemoryDesktop desktop;
  platform::DesktopScope scope{desktop};
  ProgramState program;
  ProgramStateScope programScope{program};
  Surface canvas, background;
};

void Paint(benchmark::State& state, Wheel& wheel, WheelFrame frame) {
  frame.background = &wheel.background;
  for (auto _ : state) {
    PaintWheel(wheel.canvas, frame);
    benchmark::ClobberMemory();
  }
}

void Copy(benchmark::State& state, Size size) {
  Wheel wheel(size);
  const auto bytes = sizeof(platform::Pixel) * size.width * size.height;
  for (auto _ : state) {
    std::memcpy(wheel.canvas.Row(0), wheel.background.Row(0), bytes);
    benchmark::ClobberMemory();
  }
}

WheelFrame RingFrame() {
  return {.places = RingPlaces(kRestRadius, TargetRotation(3, false)), .active = 3, .caption = {}};
}

void RingAtRest(benchmark::State& state) {
  Wheel wheel(kRingSize);
  Paint(state, wheel, RingFrame());
}
void RingWithCaption(benchmark::State& state) {
  Wheel wheel(kRingSize);
  WheelFrame frame = RingFrame();
  frame.hover = 4;
  frame.caption = u"Farben";
  Paint(state, wheel, frame);
}
void RingWhileItOpens(benchmark::State& state) {
  Wheel wheel(kRingSize);
  WheelFrame frame = RingFrame();
  frame.opacity = 170;
  Paint(state, wheel, frame);
}
void RingInPlainMasks(benchmark::State& state) {
  Wheel wheel(kRingSize);
  WheelFrame frame = RingFrame();
  frame.plainMasks = true;
  Paint(state, wheel, frame);
}
void RingCopied(benchmark::State& state) { Copy(state, kRingSize); }

void ColumnAtRest(benchmark::State& state) {
  Wheel wheel(kColumnSize);
  Paint(state, wheel, {.places = ColumnPlaces(3, {}), .active = 3, .caption = {}});
}
void ColumnCopied(benchmark::State& state) { Copy(state, kColumnSize); }

BENCHMARK(RingAtRest);
BENCHMARK(RingWithCaption);
BENCHMARK(RingWhileItOpens);
BENCHMARK(RingInPlainMasks);
BENCHMARK(RingCopied);
BENCHMARK(ColumnAtRest);
BENCHMARK(ColumnCopied);

}  // namespace
}  // namespace dorvalin
