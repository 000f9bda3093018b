// The mixes for one sprite of the wheel and for one whole wheel, beside pixman doing the same
// arithmetic: component-alpha compositing, whose exact rounding costs what exact division costs.
#include <benchmark/benchmark.h>
#include <pixman.h>

#include <random>
#include <vector>

#include "core/colours.h"
#include "look/modMixBlt.h"
#include "look/modStretchBrd.h"
#include "platform/memory/MemoryDesktop.h"

namespace dorvalin {
namespace {

using platform::Pixel;
using platform::Rect;
using platform::Size;
using platform::Surface;

constexpr Pixel kOpaque = 0xFF000000;
constexpr std::uint8_t kAlpha = 200;

Surface Noise(Size size) {
  static std::mt19937 random(7);
  Surface surface(size);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) surface.Row(y)[x] = kOpaque | Pixel(random());
  return surface;
}

/// Every channel times alpha, the alpha channel holding it.
Surface Premultiplied(const Surface& surface, std::uint8_t alpha) {
  Surface scaled = surface.Clone();
  for (int y = 0; y < scaled.Height(); ++y)
    for (int x = 0; x < scaled.Width(); ++x) {
      Pixel& p = scaled.Row(y)[x];
      Pixel result = Pixel{alpha} << 24;
      for (int shift = 0; shift < 24; shift += 8)
        result |= Pixel{ScaleByte(static_cast<std::uint8_t>(p >> shift), alpha)} << shift;
      p = result;
    }
  return scaled;
}

struct Pictures {
  explicit Pictures(const benchmark::State& state)
      : size{int(state.range(0)), int(state.range(0))},
        area(Rect::At({}, size)),
        source(Noise(size)),
        mask(Noise(size)),
        destination(Noise(size)) {}

  platform::MemoryDesktop desktop;
  platform::DesktopScope scope{desktop};
  Size size;
  Rect area;
  Surface source, mask, destination;
};

/// A surface as pixman sees it; shares the pixels.
class Image {
 public:
  Image(Surface& surface, pixman_format_code_t format)
      : image_(pixman_image_create_bits(format, surface.Width(), surface.Height(), surface.Row(0),
                                        surface.Width() * 4)) {}
  explicit Image(pixman_color_t colour) : image_(pixman_image_create_solid_fill(&colour)) {}
  ~Image() { pixman_image_unref(image_); }
  Image(const Image&) = delete;
  Image& operator=(const Image&) = delete;

  Image& WithWeightsPerChannel() {
    pixman_image_set_component_alpha(image_, 1);
    return *this;
  }
  pixman_image_t* get() const { return image_; }

 private:
  pixman_image_t* image_;
};

void Over(const Image& source, const Image* mask, const Image& destination, Size size) {
  pixman_image_composite32(PIXMAN_OP_OVER, source.get(), mask ? mask->get() : nullptr,
                           destination.get(), 0, 0, 0, 0, 0, 0, size.width, size.height);
}

void CountPixels(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(0));
}

void SoftBlt_Ours(benchmark::State& state) {
  Pictures p(state);
  for (auto _ : state)
    SoftBlt(p.destination, p.area, {p.source, {}}, {p.destination, {}}, {p.mask, {}});
  CountPixels(state);
}
void SoftBlt_Pixman(benchmark::State& state) {
  Pictures p(state);
  const Image source(p.source, PIXMAN_x8r8g8b8), destination(p.destination, PIXMAN_x8r8g8b8);
  Image mask(p.mask, PIXMAN_a8r8g8b8);
  mask.WithWeightsPerChannel();
  for (auto _ : state) Over(source, &mask, destination, p.size);
  CountPixels(state);
}

void SoftBltAlpha_Ours(benchmark::State& state) {
  Pictures p(state);
  for (auto _ : state)
    SoftBltAlpha(p.destination, p.area, {p.source, {}}, {p.destination, {}}, {p.mask, {}}, kAlpha);
  CountPixels(state);
}
void SoftBltAlpha_Pixman(benchmark::State& state) {
  Pictures p(state);
  Surface scaled = Premultiplied(p.source, kAlpha);
  const Image source(scaled, PIXMAN_a8r8g8b8), destination(p.destination, PIXMAN_x8r8g8b8);
  Image mask(p.mask, PIXMAN_a8r8g8b8);
  mask.WithWeightsPerChannel();
  for (auto _ : state) Over(source, &mask, destination, p.size);
  CountPixels(state);
}

constexpr platform::Colour kColour = 0x4080C0;
pixman_color_t PixmanColour(platform::Colour colour, std::uint8_t alpha) {
  const auto channel = [&](int shift) {
    return static_cast<std::uint16_t>(((colour >> shift) & 0xFF) * 257 * alpha / 255);
  };
  return {channel(0), channel(8), channel(16), static_cast<std::uint16_t>(alpha * 257)};
}

void ColorBlt_Ours(benchmark::State& state) {
  Pictures p(state);
  for (auto _ : state) ColorBlt(p.destination, p.area, {p.destination, {}}, kColour, kAlpha);
  CountPixels(state);
}
void ColorBlt_Pixman(benchmark::State& state) {
  Pictures p(state);
  const Image source(PixmanColour(kColour, kAlpha)), destination(p.destination, PIXMAN_x8r8g8b8);
  for (auto _ : state) Over(source, nullptr, destination, p.size);
  CountPixels(state);
}

void TwoColorBlt_Ours(benchmark::State& state) {
  Pictures p(state);
  for (auto _ : state) TwoColorBlt(p.destination, p.area, kColour, 0xFFFFFF, {p.mask, {}});
  CountPixels(state);
}
void TwoColorBlt_Pixman(benchmark::State& state) {
  Pictures p(state);
  const Image source(PixmanColour(kColour, 255)), destination(p.destination, PIXMAN_x8r8g8b8);
  Image mask(p.mask, PIXMAN_a8r8g8b8);
  mask.WithWeightsPerChannel();
  for (auto _ : state) {
    pixman_fill(p.destination.Row(0), p.size.width, 32, 0, 0, p.size.width, p.size.height,
                0xFFFFFF);
    Over(source, &mask, destination, p.size);
  }
  CountPixels(state);
}

BENCHMARK(SoftBlt_Ours)->Arg(32)->Arg(640);
BENCHMARK(SoftBlt_Pixman)->Arg(32)->Arg(640);
BENCHMARK(SoftBltAlpha_Ours)->Arg(32)->Arg(640);
BENCHMARK(SoftBltAlpha_Pixman)->Arg(32)->Arg(640);
BENCHMARK(ColorBlt_Ours)->Arg(32)->Arg(640);
BENCHMARK(ColorBlt_Pixman)->Arg(32)->Arg(640);
BENCHMARK(TwoColorBlt_Ours)->Arg(32)->Arg(640);
BENCHMARK(TwoColorBlt_Pixman)->Arg(32)->Arg(640);

/// A button of the program, and a wide one.
void NinePartStretch(benchmark::State& state) {
  const Surface skin = Noise({76, 180});
  Surface button({int(state.range(0)), int(state.range(1))});
  for (auto _ : state)
    StretchBorder(button, button.Area(), skin, {0, 60, 76, 90}, {6, 6, 6, 8},
                  platform::RasterOp::SrcCopy, true);
}
BENCHMARK(NinePartStretch)->Args({17, 17})->Args({105, 20})->Args({320, 40});

/// One frame of the wheel: what lies behind it, and eight bubbles mixed over that.
void WheelFrame(benchmark::State& state) {
  platform::MemoryDesktop desktop;
  const platform::DesktopScope scope(desktop);
  const Surface behind = Noise({120, 120}), sheet = Noise({96, 288});
  Surface wheel({120, 120});
  for (auto _ : state) {
    platform::BitBlt(wheel, wheel.Area(), behind, {}, platform::RasterOp::SrcCopy);
    for (int i = 0; i < 8; ++i) {
      const platform::Point at{11 * i, 88 - 11 * i};
      SoftBlt(wheel, Rect::At(at, {32, 32}), {sheet, {32, 32 * i}}, {wheel, at}, {sheet, {}});
    }
  }
}
BENCHMARK(WheelFrame);

}  // namespace
}  // namespace dorvalin
