#include "selector/WheelGeometry.h"

#include <gtest/gtest.h>

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;
using platform::Size;

constexpr Size kScreens[] = {{800, 600}, {1024, 768}, {1920, 1080}, {3840, 2160}};

TEST(Ring, TheActiveBubblePointsStraightToTheHost) {
  for (int function = 1; function <= kFunctionCount; ++function) {
    for (const bool flipped : {false, true}) {
      SCOPED_TRACE(testing::Message() << function << (flipped ? " flipped" : ""));
      const double rotation = TargetRotation(function, flipped);
      EXPECT_GE(rotation, 0);
      EXPECT_LT(rotation, 360);
      const Point bubble = RingPlaces(kRestRadius, rotation)[function - 1];
      EXPECT_EQ(bubble, (Point{60, flipped ? 60 - 43 : 60 + 43}));
    }
  }
}

TEST(Ring, FunctionsFollowEachOtherClockwise) {
  const BubblePlaces places = RingPlaces(kRestRadius, 0);
  const Point expected[] = {{60, 103}, {30, 90}, {17, 60},  {30, 30},
                            {60, 17},  {90, 30}, {103, 60}, {90, 90}};
  for (int i = 0; i < kFunctionCount; ++i) EXPECT_EQ(places[i], expected[i]) << i + 1;
  EXPECT_EQ(RingPlaces(19, 6)[0], (Point{58, 79})) << "on their way";
}

TEST(Column, SlidesAsAWholeAndBubbleByBubble) {
  const BubblePlaces places = ColumnPlaces(3, {.all = 5, .active = 8, .old = 2, .oldBubble = 7});
  EXPECT_EQ(places[0].x, 5 + 26);
  EXPECT_EQ(places[2].x, 5 + 16 + 8);
  EXPECT_EQ(places[6].x, 5 + 16 + 2);
  EXPECT_EQ(places[7], (Point{5 + 26, 16 + 7 * 40}));
}

TEST(HitTest, ReachesSeventeenPixelsAndTheFirstBubbleWins) {
  BubblePlaces places = ColumnPlaces(0, {});
  EXPECT_EQ(BubbleAt(places, {26 + 17, 16}), 1);
  EXPECT_EQ(BubbleAt(places, {26 + 18, 16}), 0);
  EXPECT_EQ(BubbleAt(places, {26 + 8, 16 + 15}), 1) << "8, 15, 17";
  EXPECT_EQ(BubbleAt(places, {26 + 9, 16 + 15}), 0);
  EXPECT_EQ(BubbleAt(places, {26, 16 + 40 - 17}), 2);
  places[4] = places[1];
  EXPECT_EQ(BubbleAt(places, places[1]), 2);
}

TEST(PlacedRing, IsOnTheScreenAndClearOfTheRightEdgeForEveryPointer) {
  for (const Size screen : kScreens) {
    const Rect free{0, 0, screen.width - 20, screen.height};
    for (int y = 0; y < screen.height; y += y % 7 == 0 ? 1 : 6) {
      for (int x = 0; x < screen.width; x += 9) {
        const RingPlace place = PlaceRing({x, y}, screen);
        ASSERT_TRUE(free.Contains(place.bounds)) << x << ", " << y;
        ASSERT_EQ(place.bounds.Size(), kRingSize);
        ASSERT_EQ(place.flipped, place.bounds.Middle().y > screen.height / 2) << x << ", " << y;
      }
    }
  }
}

struct PlaceCase {
  const char* name;
  Point pointer;
  Point corner;
  bool flipped;
};

const PlaceCase kPlaces[] = {
    {"middle of the screen", {512, 384}, {452, 324}, false},
    {"just below it", {512, 385}, {452, 325}, true},
    {"top left", {0, 0}, {0, 0}, false},
    {"top right", {1023, 0}, {884, 0}, false},
    {"bottom left", {0, 767}, {0, 648}, true},
    {"bottom right", {1023, 767}, {884, 648}, true},
    {"20 pixels before it would be moved", {944, 300}, {884, 240}, false},
};

TEST(PlacedRing, StandsAroundThePointerAsFarAsItCan) {
  for (const PlaceCase& c : kPlaces) {
    const RingPlace place = PlaceRing(c.pointer, {1024, 768});
    EXPECT_EQ(place.bounds.Origin(), c.corner) << c.name;
    EXPECT_EQ(place.flipped, c.flipped) << c.name;
  }
}

TEST(PlacedColumn, TouchesTheRightEdgeHalfwayDown) {
  EXPECT_EQ(PlaceColumn({1024, 768}), (Rect{977, 228, 1024, 540}));
}

/// The frames of a turn before the last, which shows the target itself; backward ones are negative.
int StepsOf(double from, double to) {
  RingTurn turn(from, to);
  int steps = 0;
  double last = from;
  while (const auto next = turn.Next()) {
    steps += *next > last ? 1 : -1;
    last = *next;
  }
  EXPECT_EQ(turn.Target(), to);
  return steps;
}

TEST(ATurn, GoesTheShorterWayInStepsOfSixDegrees) {
  EXPECT_EQ(StepsOf(90, 90), 0);
  EXPECT_EQ(StepsOf(0, 45), 7);
  EXPECT_EQ(StepsOf(45, 0), -7);
  EXPECT_EQ(StepsOf(315, 45), 14);
  EXPECT_EQ(StepsOf(45, 315), -14);
  EXPECT_EQ(StepsOf(0, 225), -22);
  EXPECT_EQ(StepsOf(0, 180), 29) << "half a turn goes forward";
  EXPECT_EQ(StepsOf(180, 0), 29);
}

}  // namespace
}  // namespace dorvalin
