#include "look/modStretchBrd.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/drawing.h"

namespace dorvalin {
namespace {

using platform::Rect;
using platform::Surface;

constexpr int kMargin = 3;

/// A picture whose nine cells are the letters a to i, row by row.
Surface Lettered(platform::Size size, const BorderCells& cells) {
  Surface picture(size);
  const int x[] = {0, cells.Left, size.width - cells.Right, size.width};
  const int y[] = {0, cells.Top, size.height - cells.Bottom, size.height};
  for (int cell = 0; cell < 9; ++cell)
    FillRect(picture, {x[cell % 3], y[cell / 3], x[cell % 3 + 1], y[cell / 3 + 1]},
             static_cast<platform::Colour>('a' + cell));
  return picture;
}

/// The letters met from one point to another, each with the number of its pixels; "." is untouched.
std::string Along(const Surface& surface, platform::Point from, platform::Point step, int count) {
  std::string met;
  for (int i = 0, run = 0; i < count; ++i) {
    const auto letterAt = [&](int k) {
      const auto colour =
          platform::ColourFromPixel(surface.At({from.x + step.x * k, from.y + step.y * k}));
      return colour == 0 ? '.' : static_cast<char>(colour);
    };
    ++run;
    if (i + 1 < count && letterAt(i + 1) == letterAt(i)) continue;
    if (!met.empty()) met += ' ';
    met += letterAt(i) + std::to_string(run);
    run = 0;
  }
  return met;
}

constexpr BorderCells kSkin{10, 10, 11, 11}, kNoTop{10, 0, 11, 11}, kNone{0, 0, 0, 0};

struct StretchCase {
  const char* label;
  platform::Size size;
  BorderCells cells;     ///< left, top, right, bottom
  const char* firstRow;  ///< from the left border of the area to its right border
  const char* middleRow;
  const char* firstColumn;
  bool centreFellAway;
};

const StretchCase kCases[] = {
    {"roomy", {40, 50}, kSkin, "a10 b19 c11", "d10 e19 f11", "a10 d29 g11", false},
    // Borders shrink in proportion.
    {"too narrow", {15, 50}, kSkin, "a7 c8", "d7 f8", "a10 d29 g11", true},
    {"too low as well", {15, 15}, kSkin, "a7 c8", "g7 i8", "a7 g8", true},
    // No edges above and below, and no centre.
    {"wide as both borders", {21, 50}, kSkin, "a10 c11", "d10 f11", "a10 d29 g11", true},
    // The left border is measured against the height.
    {"low, without a top", {60, 21}, kNoTop, "d10 .39 f11", "g10 h39 i11", "d10 g11", true},
    {"one pixel higher", {60, 22}, kNoTop, "d10 e39 f11", "g10 h39 i11", "d11 g11", false},
    {"all is centre", {30, 20}, kNone, "e30", "e30", "e20", false},
    {"one pixel wide", {1, 30}, kSkin, "c1", "f1", "c10 f9 i11", true},
};

/// As met along a line when the centre is not drawn: what lay under it stays.
std::string WithoutCentre(std::string met) {
  std::ranges::replace(met, 'e', '.');
  return met;
}

TEST(StretchBorder, CutsAndStretches) {
  for (const StretchCase& c : kCases) {
    SCOPED_TRACE(c.label);
    const Surface picture = Lettered({81, 81}, c.cells);
    const Rect area = Rect::At({kMargin, kMargin}, c.size);
    for (const bool centre : {true, false}) {
      Surface drawn({c.size.width + 2 * kMargin, c.size.height + 2 * kMargin});
      const bool fellAway = StretchBorder(drawn, area, picture, picture.Area(), c.cells,
                                          platform::RasterOp::SrcCopy, centre);
      EXPECT_EQ(fellAway, c.centreFellAway);
      const auto expected = [&](const char* met) { return centre ? met : WithoutCentre(met); };
      EXPECT_EQ(Along(drawn, area.Origin(), {1, 0}, c.size.width), expected(c.firstRow));
      EXPECT_EQ(Along(drawn, {kMargin, area.Middle().y}, {1, 0}, c.size.width),
                expected(c.middleRow));
      EXPECT_EQ(Along(drawn, area.Origin(), {0, 1}, c.size.height), expected(c.firstColumn));
      const std::string outside = "." + std::to_string(drawn.Width());
      EXPECT_EQ(Along(drawn, {0, kMargin - 1}, {1, 0}, drawn.Width()), outside);
      EXPECT_EQ(Along(drawn, {0, area.bottom}, {1, 0}, drawn.Width()), outside);
    }
  }
}

TEST(StretchBorder, DrawsNothingWithoutRoom) {
  const Surface picture = Lettered({81, 81}, kSkin);
  for (const platform::Size size :
       {platform::Size{0, 0}, {0, 20}, {20, 0}, {-5, 30}, {30, -5}, {-40, -40}}) {
    Surface drawn({60, 60});
    StretchBorder(drawn, Rect::At({30, 30}, size), picture, picture.Area(), kSkin,
                  platform::RasterOp::SrcCopy, true);
    for (int y = 0; y < 60; ++y)
      EXPECT_EQ(Along(drawn, {0, y}, {1, 0}, 60), ".60") << size.width << " x " << size.height;
  }
}

}  // namespace
}  // namespace dorvalin
