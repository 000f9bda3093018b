#include "look/modMixBlt.h"

#include <functional>
#include <random>

#include "core/colours.h"
#include "tests/support/DesktopTest.h"

namespace dorvalin {
namespace {

using platform::Colour;
using platform::Pixel;
using platform::Point;
using platform::Rect;
using platform::Surface;

int Plain(int a, int b, int weight) { return (a * weight + b * (255 - weight)) / 255; }
int Channel(Pixel p, int shift) { return (p >> shift) & 0xFF; }

class Mixing : public DesktopTest {
 protected:
  int Between(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
  Surface Noise(platform::Size size) {
    Surface surface(size);
    for (int y = 0; y < size.height; ++y)
      for (int x = 0; x < size.width; ++x) surface.Row(y)[x] = static_cast<Pixel>(random_());
    return surface;
  }

 private:
  std::mt19937 random_{11};
};

// Every pair of channels with every weight, by the eight-channel way (the even part of a row) and
// by the plain one (the last pixels of a row).
TEST_F(Mixing, DividesExactly) {
  constexpr int kWidth = 259;
  Surface a({kWidth, 256}), b({kWidth, 256}), mask({kWidth, 256}), mixed({kWidth, 256});
  for (int y = 0; y < 256; ++y)
    for (int x = 0; x < kWidth; ++x) {
      a.Row(y)[x] = Pixel(x & 0xFF) * 0x010101;
      b.Row(y)[x] = Pixel(y) * 0x010101;
    }
  for (int weight = 0; weight < 256 && !HasFailure(); ++weight) {
    FillRect(mask, mask.Area(), Colour(weight) * 0x010101);
    SoftBlt(mixed, mixed.Area(), {a, {}}, {b, {}}, {mask, {}});
    for (int y = 0; y < 256; ++y)
      for (int x = 0; x < kWidth; ++x)
        if (mixed.Row(y)[x] != Pixel(Plain(x & 0xFF, y, weight)) * 0x010101) {
          ADD_FAILURE() << "a " << (x & 0xFF) << " b " << y << " weight " << weight;
          break;
        }
  }
}

/// One routine, and what it is to give for a channel of source, background and mask.
struct Routine {
  const char* name;
  std::function<bool(Surface&, const Rect&, PixelsAt, PixelsAt, PixelsAt, Colour, Colour,
                     std::uint8_t)>
      draw;
  std::function<int(int s, int b, int m, int colourA, int colourB, int alpha)> channel;
};

const Routine kRoutines[] = {
    {"SoftBlt",
     [](auto& d, auto& r, auto s, auto b, auto m, auto, auto, auto) {
       return SoftBlt(d, r, s, b, m);
     },
     [](int s, int b, int m, int, int, int) { return Plain(s, b, m); }},
    {"SoftBltAlpha",
     [](auto& d, auto& r, auto s, auto b, auto m, auto, auto, auto alpha) {
       return SoftBltAlpha(d, r, s, b, m, alpha);
     },
     [](int s, int b, int m, int, int, int alpha) { return Plain(s, b, m * alpha / 255); }},
    {"InvSoftBlt",
     [](auto& d, auto& r, auto s, auto b, auto m, auto, auto, auto alpha) {
       return InvSoftBlt(d, r, s, b, m, alpha);
     },
     [](int s, int b, int m, int, int, int alpha) { return Plain(s, b, (255 - m) * alpha / 255); }},
    {"ColorBlt",
     [](auto& d, auto& r, auto, auto b, auto, auto colour, auto, auto alpha) {
       return ColorBlt(d, r, b, colour, alpha);
     },
     [](int, int b, int, int colour, int, int alpha) { return Plain(colour, b, alpha); }},
    {"KeyBlt",
     [](auto& d, auto& r, auto s, auto, auto m, auto colour, auto, auto) {
       return KeyBlt(d, r, s, colour, m);
     },
     [](int s, int, int m, int colour, int, int) { return m < 255 ? Plain(s, colour, m) : s; }},
    {"TwoColorBlt",
     [](auto& d, auto& r, auto, auto, auto m, auto a, auto b, auto) {
       return TwoColorBlt(d, r, a, b, m);
     },
     [](int, int, int m, int a, int b, int) { return Plain(a, b, m); }},
};

// Random places that cross every edge; sources that are the destination itself, moved or not.
TEST_F(Mixing, AgreesWithThePlainFormulaWhereverItIsDrawn) {
  for (int i = 0; i < 6000; ++i) {
    const Routine& routine = kRoutines[i % std::size(kRoutines)];
    Surface drawn = Noise({20, 16});
    const Surface before = drawn.Clone(), sheet = Noise({24, 14});
    const bool inPlace = Between(0, 2) == 0;
    const Surface& background = inPlace ? drawn : sheet;
    const Rect area =
        Rect::At({Between(-6, 18), Between(-6, 14)}, {Between(-2, 24), Between(0, 18)});
    const Point source{Between(-4, 20), Between(-4, 12)}, mask{Between(-4, 20), Between(-4, 12)};
    const Point behind = i % 2 ? area.Origin() : Point{Between(-4, 20), Between(-4, 12)};
    const Colour a = Pixel(Between(0, 0xFFFFFF)), b = Pixel(Between(0, 0xFFFFFF));
    const auto alpha = static_cast<std::uint8_t>(Between(0, 255));
    const std::string name = routine.name;
    const bool reads[] = {name != "ColorBlt" && name != "TwoColorBlt",
                          name != "KeyBlt" && name != "TwoColorBlt", name != "ColorBlt"};

    ASSERT_TRUE(routine.draw(drawn, area, {sheet, source}, {background, behind}, {sheet, mask}, a,
                             b, alpha));

    const Surface& backgroundBefore = inPlace ? before : sheet;
    for (int y = 0; y < 16; ++y)
      for (int x = 0; x < 20; ++x) {
        const Point in = Point{x, y} - area.Origin();
        const auto missing = [&](bool read, const Surface& surface, Point at) {
          return read && !surface.Area().Contains(at + in);
        };
        Pixel expected = before.At({x, y});
        if (area.Contains(Point{x, y}) && !missing(reads[0], sheet, source) &&
            !missing(reads[1], backgroundBefore, behind) && !missing(reads[2], sheet, mask)) {
          expected = reads[1] ? backgroundBefore.At(behind + in) & 0xFF000000 : 0;
          for (int shift = 0; shift < 24; shift += 8) {
            const auto of = [&](bool read, const Surface& surface, Point at) {
              return read ? Channel(surface.At(at + in), shift) : 0;
            };
            expected |= Pixel(routine.channel(
                            of(reads[0], sheet, source), of(reads[1], backgroundBefore, behind),
                            of(reads[2], sheet, mask), Channel(platform::PixelFromColour(a), shift),
                            Channel(platform::PixelFromColour(b), shift), alpha))
                        << shift;
          }
        }
        ASSERT_EQ(drawn.At({x, y}), expected)
            << name << " at " << x << ", " << y << " of case " << i;
      }
  }
}

TEST_F(Mixing, DrawsOnlyOnScreensOfEnoughColours) {
  const Surface sheet = Noise({8, 8});
  for (const auto& [depth, draws] : {std::pair{0, false},
                                     {1, false},
                                     {8, false},
                                     {15, false},
                                     {16, true},
                                     {24, true},
                                     {32, true}}) {
    desktop.screen().SetDepth(depth);
    for (const Routine& routine : kRoutines) {
      SCOPED_TRACE(testing::Message() << routine.name << " at " << depth << " bits");
      Surface drawn({8, 8});
      EXPECT_EQ(routine.draw(drawn, drawn.Area(), {sheet, {}}, {sheet, {}}, {sheet, {}}, 0x123456,
                             0x654321, 100),
                draws);
      EXPECT_EQ(drawn.At({3, 3}) != 0, draws);
    }
  }
}

TEST(Colours, BlendAndRound) {
  EXPECT_EQ(BlendColor(0xFF8000, 0x0080FF, 0.5), 0x808080u);
  EXPECT_EQ(BlendColor(0x112233, 0xFFFFFF, 1), 0x112233u);
  EXPECT_EQ(BlendColor(0x112233, 0xFFFFFF, 0), 0xFFFFFFu);
  EXPECT_EQ(CeilLong(2.0), 2);
  EXPECT_EQ(CeilLong(2.1), 3);
  EXPECT_EQ(CeilLong(-2.1), -2);
}

}  // namespace
}  // namespace dorvalin
