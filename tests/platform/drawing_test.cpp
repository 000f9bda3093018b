#include "platform/drawing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace platform {
namespace {

constexpr Colour kInk = 0x0000FF;

/// A small surface as text: "#" is ink, "." untouched, any other letter the colour of that number.
std::vector<std::string> Picture(const Surface& surface) {
  std::vector<std::string> rows;
  for (int y = 0; y < surface.Height(); ++y) {
    std::string row;
    for (int x = 0; x < surface.Width(); ++x) {
      const Colour colour = ColourFromPixel(surface.At({x, y}));
      row += colour == kInk ? '#' : colour == 0 ? '.' : static_cast<char>(colour);
    }
    rows.push_back(row);
  }
  return rows;
}

using Rows = std::vector<std::string>;

TEST(Surfaces, AreEmptyAfterAMoveAndWithoutASize) {
  Surface first({3, 2});
  const Surface second = std::move(first);
  EXPECT_EQ(first.Size(), Size{});  // NOLINT: that is what is promised
  EXPECT_EQ(second.Size(), (Size{3, 2}));
  EXPECT_TRUE(Surface({0, 5}).Empty());
  EXPECT_TRUE(Surface({5, -1}).Empty());
}

TEST(Drawing, LinesEndBeforeTheirLastPoint) {
  Surface s({6, 5});
  DrawLine(s, {0, 0}, {5, 0}, kInk);
  DrawLine(s, {5, 4}, {5, 0}, kInk);
  DrawLine(s, {0, 1}, {3, 4}, kInk);
  EXPECT_EQ(Picture(s), (Rows{"#####.",  //
                              "#....#",  //
                              ".#...#",  //
                              "..#..#",  //
                              ".....#"}));
}

TEST(Drawing, AFlatLineStepsInItsMiddleInAllDirections) {
  for (const auto& [from, to] : {std::pair{Point{0, 0}, Point{5, 1}},
                                 {Point{5, 1}, Point{0, 0}},
                                 {Point{0, 1}, Point{5, 0}}}) {
    Surface s({6, 2});
    DrawLine(s, from, to, kInk);
    const Rows rows = Picture(s);
    const std::string& first = rows[from.y];
    const std::string& second = rows[to.y];
    EXPECT_EQ(std::count(first.begin(), first.end(), '#'), 3) << from.x << ", " << from.y;
    EXPECT_EQ(std::count(second.begin(), second.end(), '#'), 2) << from.x << ", " << from.y;
  }
}

TEST(Drawing, DiscsAreRound) {
  Surface s({12, 7});
  DrawCircle(s, {1, 1}, 1, kInk);
  DrawCircle(s, {1, 5}, 0, kInk);
  DrawCircle(s, {7, 3}, 3, kInk);
  DrawCircle(s, {1, 3}, -1, kInk);
  EXPECT_EQ(Picture(s), (Rows{".#....###...",  //
                              "###..#####..",  //
                              ".#..#######.",  //
                              "....#######.",  //
                              "....#######.",  //
                              ".#...#####..",  //
                              "......###..."}));
}

TEST(Drawing, PolygonsOwnTheirLeftAndUpperEdges) {
  const Point square[] = {{1, 1}, {4, 1}, {4, 3}, {1, 3}};
  const Point neighbour[] = {{4, 1}, {6, 1}, {6, 3}, {4, 3}};
  const Point triangle[] = {{0, 3}, {6, 3}, {3, 6}};
  Surface s({7, 6});
  FillPolygon(s, square, 'a');
  FillPolygon(s, neighbour, 'b');
  FillPolygon(s, triangle, kInk);
  EXPECT_EQ(Picture(s), (Rows{".......",  //
                              ".aaabb.",  //
                              ".aaabb.",  //
                              "######.",  //
                              ".####..",  //
                              "..##..."}));
}

TEST(Drawing, RaisedAndSunkenEdgesLightTheOppositeSides) {
  const EdgeColours colours{.light = 'l', .face = 'f', .shadow = 's', .darkShadow = 'd'};
  Surface raised({6, 5}), sunken({6, 5});
  DrawEdge(raised, raised.Area(), Edge::Raised, colours);
  DrawEdge(sunken, sunken.Area(), Edge::Sunken, colours);
  EXPECT_EQ(Picture(raised), (Rows{"fffffd",  //
                                   "flllsd",  //
                                   "fl..sd",  //
                                   "fssssd",  //
                                   "dddddd"}));
  EXPECT_EQ(Picture(sunken), (Rows{"sssssl",  //
                                   "sdddfl",  //
                                   "sd..fl",  //
                                   "sffffl",  //
                                   "llllll"}));
}

TEST(Drawing, FramesLieInsideTheirRectangle) {
  Surface s({5, 4});
  FrameRect(s, {1, 0, 5, 4}, kInk);
  FrameRect(s, {2, 2, 2, 4}, 'x');
  EXPECT_EQ(Picture(s), (Rows{".####", ".#..#", ".#..#", ".####"}));
}

// Nothing may be written beside the surface; the sanitizers see what this cannot.
TEST(Drawing, IsClippedOnEverySide) {
  const auto icon = std::make_shared<IconPixels>(IconPixels{{2, 2}, {~0u, ~0u, ~0u, ~0u}});
  for (const Point at : {Point{-3, -3}, {3, -3}, {-3, 3}, {3, 3}, {-40, 2}, {2, 40}}) {
    Surface s({4, 4});
    const Rect area = Rect::At(at, {5, 5});
    const Point corners[] = {at, at + Point{9, 2}, at + Point{2, 9}};
    FillRect(s, area, kInk);
    FrameRect(s, area, kInk);
    DrawEdge(s, area, Edge::Raised, {});
    DrawLine(s, at, at + Point{9, 7}, kInk);
    DrawCircle(s, at, 6, kInk);
    FillPolygon(s, corners, kInk);
    DrawIcon(s, at, icon, {5, 5});
  }
  Surface none;
  FillRect(none, {0, 0, 5, 5}, kInk);
  DrawCircle(none, {0, 0}, 5, kInk);
}

TEST(Drawing, IconsAreMixedByTheirAlphaAndStretched) {
  const auto icon = std::make_shared<IconPixels>(IconPixels{{2, 1}, {0xFF112233, 0x80FFFFFF}});
  Surface s({5, 2});
  FillRect(s, s.Area(), 0x000000);
  DrawIcon(s, {1, 0}, icon, {4, 2});
  DrawIcon(s, {0, 0}, nullptr, {4, 2});
  DrawIcon(s, {0, 0}, icon, {0, 2});
  const std::vector<Pixel> kRow{0, 0x112233, 0x112233, 0x808080, 0x808080};
  for (int y = 0; y < 2; ++y) EXPECT_EQ(std::vector(s.Row(y), s.Row(y) + 5), kRow);
}

}  // namespace
}  // namespace platform
