#include "selector/HostLayout.h"

#include <gtest/gtest.h>

#include "selector/WheelGeometry.h"

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;
using platform::Size;

constexpr Size kScreen{1024, 768};
constexpr int kLabelRow = 15;
constexpr Size kPanels[] = {{207, 164}, {120, 90}, {300, 220}, {430, 260}};

HostSizes SizesFor(Size panel) { return {.panel = panel, .labelRow = kLabelRow}; }

struct Standing {
  const char* name;
  HostState state;
};

const Standing kStandings[] = {
    {"below the ring", {}},
    {"above the ring", {.below = true}},
    {"beside the column", {.vertical = true}},
    {"free", {.free = true}},
    {"with a menu", {.hasMenu = true}},
    {"above, with a menu", {.below = true, .hasMenu = true}},
    {"beside, with a menu", {.vertical = true, .hasMenu = true}},
    {"the menu function", {.menuFunction = true}},
};

TEST(AHost, GivesItsPanelWhatItWantsWhereverItStands) {
  for (const Size panel : kPanels) {
    for (const Standing& s : kStandings) {
      SCOPED_TRACE(s.name);
      const HostSizes sizes = SizesFor(panel);
      const Size client = HostSize(sizes, s.state.vertical);
      const HostParts parts = LayOutHost(client, sizes, s.state);
      const Rect inside = Rect::At({}, client).Grown(-3);
      EXPECT_EQ(parts.panel.Size(), panel);
      EXPECT_TRUE(inside.Contains(parts.panel));
      EXPECT_TRUE(inside.Contains(parts.labels));
      EXPECT_EQ(parts.labels.Height(), kLabelRow);
      EXPECT_TRUE(parts.labels.Intersected(parts.panel).Empty());
    }
  }
}

TEST(AHost, LaysItsButtonsBesideEachOtherAndOverNothing) {
  for (const Standing& s : kStandings) {
    SCOPED_TRACE(s.name);
    const HostSizes sizes = SizesFor(kPanels[0]);
    const Size client = HostSize(sizes, s.state.vertical);
    const HostParts parts = LayOutHost(client, sizes, s.state);
    std::vector<Rect> shown;
    if (parts.showClose) shown.push_back(parts.btnClose);
    if (parts.showRight) shown.push_back(parts.btnRight);
    if (parts.showMenu) shown.push_back(parts.btnMenu);
    if (!s.state.free && !s.state.menuFunction) shown.push_back(parts.btnFree);
    for (std::size_t i = 0; i < shown.size(); ++i) {
      EXPECT_EQ(shown[i].Size(), (Size{17, 17}));
      EXPECT_TRUE(Rect::At({}, client).Grown(-3).Contains(shown[i]));
      EXPECT_TRUE(shown[i].Intersected(parts.panel).Empty());
      EXPECT_TRUE(shown[i].Intersected(parts.labels).Empty());
      for (std::size_t j = 0; j < i; ++j) EXPECT_TRUE(shown[i].Intersected(shown[j]).Empty());
    }
  }
}

TEST(AHost, ShowsTheButtonsOfItsPlace) {
  const auto parts = [](HostState state) {
    const HostSizes sizes = SizesFor(kPanels[0]);
    return LayOutHost(HostSize(sizes, state.vertical), sizes, state);
  };
  EXPECT_TRUE(parts({}).showClose && parts({}).showRight);
  EXPECT_FALSE(parts({}).showMenu);
  EXPECT_FALSE(parts({.vertical = true}).showClose || parts({.vertical = true}).showRight);
  EXPECT_TRUE(parts({.free = true}).showClose);
  EXPECT_FALSE(parts({.free = true}).showRight);
  EXPECT_EQ(parts({.menuFunction = true}).btnRight.right, parts({}).btnFree.right)
      << "without the free button the next one moves up";
}

TEST(AHost, StandsWhollyOnTheScreenBesideEveryRing) {
  for (const Size panel : kPanels) {
    for (int y = 0; y < kScreen.height; y += 7) {
      for (int x = 0; x < kScreen.width; x += 7) {
        const RingPlace ring = PlaceRing({x, y}, kScreen);
        const Size size = HostSize(SizesFor(panel), false);
        const Rect host = Rect::At(PlaceAtRing(size, ring.bounds, ring.flipped, kScreen), size);
        ASSERT_TRUE(Rect::At({}, kScreen).Contains(host)) << x << ", " << y;
        ASSERT_EQ(host.Intersected(ring.bounds).Height(), 20) << x << ", " << y;
      }
    }
  }
}

TEST(AHost, StandsWhollyOnTheScreenBesideEveryBubbleOfTheColumn) {
  for (const Size screen : {kScreen, Size{800, 600}, Size{640, 480}}) {
    const Rect column = PlaceColumn(screen);
    for (const Size panel : kPanels) {
      for (const Point bubble : ColumnPlaces(0, {})) {
        const Size size = HostSize(SizesFor(panel), true);
        const Rect host = Rect::At(PlaceAtColumn(size, column, bubble.y, screen), size);
        EXPECT_TRUE(Rect::At({}, screen).Contains(host)) << bubble.y;
        EXPECT_EQ(host.right, column.left + 17);
        EXPECT_GE(host.top, column.top - 25);
        EXPECT_TRUE(host.bottom <= column.bottom + 75 || host.top == column.top - 25);
      }
    }
  }
}

TEST(TheBubble, LiesOverTheWheelsOwnWhereverTheHostStands) {
  const HostSizes sizes = SizesFor(kPanels[2]);
  for (const Point pointer : {Point{512, 200}, {0, 0}, {1023, 100}, {1023, 767}, {300, 767}}) {
    const RingPlace ring = PlaceRing(pointer, kScreen);
    const HostState state{.below = ring.flipped};
    const Size size = HostSize(sizes, false);
    const Rect host = Rect::At(PlaceAtRing(size, ring.bounds, ring.flipped, kScreen), size);
    const Point centre = RingPlaces(43, TargetRotation(3, ring.flipped))[2];
    const Point onRing = ring.bounds.Origin() + centre - Point{16, 16};
    const Point onHost = host.Origin() + BubbleInHost(host, ring.bounds, centre.y, state);
    EXPECT_EQ(onHost, onRing);
  }
  const Rect column = PlaceColumn(kScreen);
  for (int function = 1; function <= kFunctionCount; ++function) {
    const Point centre = ColumnPlaces(function, {})[function - 1];
    const Size size = HostSize(sizes, true);
    const Rect host = Rect::At(PlaceAtColumn(size, column, centre.y, kScreen), size);
    const HostState state{.vertical = true};
    const Point onColumn = column.Origin() + centre - Point{16, 16};
    EXPECT_EQ(host.Origin() + BubbleInHost(host, column, centre.y, state), onColumn);
  }
}

// Where the panel was on the screen it is after the freeing; only one place keeps an old formula.
TEST(AFreedHost, KeepsItsPanelInPlace) {
  const HostSizes sizes = SizesFor(kPanels[0]);
  for (const Standing& s : kStandings) {
    if (s.state.free) continue;
    SCOPED_TRACE(s.name);
    const Rect bounds = Rect::At({300, 400}, HostSize(sizes, s.state.vertical));
    const Rect freed = FreedBounds(bounds, sizes, s.state);
    HostState after = s.state;
    after.free = true;
    after.vertical = after.below = false;
    EXPECT_EQ(freed.Size(), HostSize(sizes, false));
    const Point before = bounds.Origin() + LayOutHost(bounds.Size(), sizes, s.state).panel.Origin();
    const Point now = freed.Origin() + LayOutHost(freed.Size(), sizes, after).panel.Origin();
    // Above the ring the labels lay between panel and buttons; the shift counts them off.
    const Point expected{0, s.state.below ? kLabelRow : 0};
    EXPECT_EQ(now - before, expected);
  }
}

}  // namespace
}  // namespace dorvalin
