#include "selector/WheelGeometry.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;
using platform::Size;

constexpr Point kMiddle{60, 60};
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
}

TEST(Ring, BubblesKeepTheirDistanceFromTheMiddleAtEveryAngle) {
  for (int radius : {19, 28, 43}) {
    for (int degrees = 0; degrees < 360; ++degrees) {
      for (const Point place : RingPlaces(radius, degrees)) {
        const Point d = place - kMiddle;
        EXPECT_NEAR(d.x * d.x + d.y * d.y, radius * radius, 2 * radius) << degrees;
      }
    }
  }
}

// The last function is read from the registry, where anything can stand.
TEST(Ring, NumbersThatAreNoFunctionAreNoTrouble) {
  for (int function : {-2147483647 - 1, -1, 0, 9, 2147483647}) {
    (void)RingPlaces(kRestRadius, TargetRotation(function, false));
    RingTurn turn(TargetRotation(function, true), 45);
    int steps = 0;
    while (turn.Next() && steps < 100) ++steps;
    EXPECT_LE(steps, 61) << function;
  }
}

TEST(Column, TheActiveBubbleStandsTowardTheHost) {
  const BubblePlaces places = ColumnPlaces(3, {});
  for (int i = 1; i <= kFunctionCount; ++i) {
    EXPECT_EQ(places[i - 1], (Point{i == 3 ? 16 : 26, (i - 1) * 40 + 16})) << i;
  }
}

TEST(Column, SlidesAsAWholeAndBubbleByBubble) {
  const BubblePlaces places = ColumnPlaces(3, {.all = 5, .active = 8, .old = 2, .oldBubble = 7});
  EXPECT_EQ(places[0].x, 5 + 26);
  EXPECT_EQ(places[2].x, 5 + 16 + 8);
  EXPECT_EQ(places[6].x, 5 + 16 + 2);
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

/// The signed way of a turn, in steps of 6 degrees.
int StepsOf(double from, double to) {
  RingTurn turn(from, to);
  int steps = 0;
  double last = from;
  while (const auto next = turn.Next()) {
    steps += *next > last ? 1 : -1;
    last = *next;
  }
  return steps;
}

TEST(ATurn, GoesTheShorterWayAndHalfATurnForward) {
  for (int from = 0; from < 360; from += 45) {
    for (int to = 0; to < 360; to += 45) {
      SCOPED_TRACE(testing::Message() << from << " to " << to);
      const int forward = (to - from + 360) % 360;
      // The last step is the target itself.
      const int expected = forward == 0     ? 0
                           : forward <= 180 ? (forward + 5) / 6 - 1
                                            : -((360 - forward + 5) / 6 - 1);
      EXPECT_EQ(StepsOf(from, to), expected);
      EXPECT_EQ(RingTurn(from, to).Target(), to);
    }
  }
}

}  // namespace
}  // namespace dorvalin
