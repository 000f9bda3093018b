#include "selector/HostLayout.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "selector/WheelGeometry.h"

namespace dorvalin {
namespace {

using platform::Point;
using platform::Rect;
using platform::Size;

constexpr Size kScreen{1024, 768};
constexpr int kLabelRow = 15;
constexpr Point kBubbleHalf{16, 16};
constexpr Size kPanels[] = {{207, 164}, {120, 90}, {300, 220}, {430, 260}};

HostSizes SizesFor(Size panel) { return {.panel = panel, .labelRow = kLabelRow}; }

struct Standing {
  const char* name;
  HostState state;
  std::string_view buttons;  ///< Close, Right, Free, Menu
};

const Standing kStandings[] = {
    {"below the ring", {}, "CRF"},
    {"above the ring", {.below = true}, "CRF"},
    {"beside the column", {.vertical = true}, "F"},
    {"free", {.free = true}, "C"},
    {"with a menu", {.hasMenu = true}, "CRFM"},
    {"above, with a menu", {.below = true, .hasMenu = true}, "CRFM"},
    {"beside, with a menu", {.vertical = true, .hasMenu = true}, "FM"},
    {"the menu function", {.menuFunction = true}, "CR"},
};

TEST(AHost, GivesItsPanelWhatItWantsAndLaysNothingOverAnother) {
  for (const Size panel : kPanels) {
    for (const Standing& s : kStandings) {
      SCOPED_TRACE(s.name);
      const HostSizes sizes = SizesFor(panel);
      const Size client = HostSize(sizes, s.state.vertical);
      const HostParts parts = LayOutHost(client, sizes, s.state);
      EXPECT_EQ(parts.panel.Size(), panel);
      EXPECT_EQ(parts.labels.Height(), kLabelRow);
      const auto listed = [&](char button) { return s.buttons.find(button) != s.buttons.npos; };
      const struct {
        char name;
        bool shown;
        Rect bounds;
      } buttons[] = {{'C', parts.showClose, parts.btnClose},
                     {'R', parts.showRight, parts.btnRight},
                     {'F', listed('F'), parts.btnFree},
                     {'M', parts.showMenu, parts.btnMenu}};
      std::vector<Rect> taken = {parts.panel, parts.labels};
      for (const auto& button : buttons) {
        EXPECT_EQ(button.shown, listed(button.name)) << button.name;
        if (!button.shown) continue;
        EXPECT_EQ(button.bounds.Size(), (Size{17, 17})) << button.name;
        taken.push_back(button.bounds);
      }
      for (std::size_t i = 0; i < taken.size(); ++i) {
        EXPECT_TRUE(Rect::At({}, client).Grown(-3).Contains(taken[i]));
        for (std::size_t j = 0; j < i; ++j) EXPECT_TRUE(taken[i].Intersected(taken[j]).Empty());
      }
    }
  }
}

TEST(AHost, OfTheMenuHasTheNextButtonWhereOthersSetFree) {
  const auto parts = [](HostState state) {
    const HostSizes sizes = SizesFor(kPanels[0]);
    return LayOutHost(HostSize(sizes, false), sizes, state);
  };
  EXPECT_EQ(parts({.menuFunction = true}).btnRight, parts({}).btnFree);
}

// The bubble of the host lies over the wheel's own, as if it sank into the host's edge.
TEST(AHost, StandsWhollyOnTheScreenUnderTheBubbleOfEveryRing) {
  for (const Size panel : kPanels) {
    for (int y = 0; y < kScreen.height; y += 7) {
      for (int x = 0; x < kScreen.width; x += 7) {
        SCOPED_TRACE(testing::Message() << x << ", " << y);
        const RingPlace ring = PlaceRing({x, y}, kScreen);
        const Size size = HostSize(SizesFor(panel), false);
        const Rect host = Rect::At(PlaceAtRing(size, ring.bounds, ring.flipped, kScreen), size);
        ASSERT_TRUE(Rect::At({}, kScreen).Contains(host));
        ASSERT_EQ(host.Intersected(ring.bounds).Height(), 20);
        ASSERT_TRUE(host.left == 0 || host.right == kScreen.width ||
                    host.Middle().x == ring.bounds.Middle().x);
        const Point bubble = RingPlaces(kRestRadius, TargetRotation(3, ring.flipped))[2];
        const HostState state{.below = ring.flipped};
        ASSERT_EQ(host.Origin() + BubbleInHost(host, ring.bounds, bubble.y, state),
                  ring.bounds.Origin() + bubble - kBubbleHalf);
      }
    }
  }
}

TEST(AHost, StandsWhollyOnTheScreenUnderEveryBubbleOfTheColumn) {
  for (const Size screen : {kScreen, Size{800, 600}, Size{640, 480}}) {
    const Rect column = PlaceColumn(screen);
    for (const Size panel : kPanels) {
      for (int function = 1; function <= kFunctionCount; ++function) {
        SCOPED_TRACE(function);
        const Point bubble = ColumnPlaces(function, {})[function - 1];
        const Size size = HostSize(SizesFor(panel), true);
        const Rect host = Rect::At(PlaceAtColumn(size, column, bubble.y, screen), size);
        EXPECT_TRUE(Rect::At({}, screen).Contains(host));
        EXPECT_EQ(host.right, column.left + 17);
        EXPECT_GE(host.top, column.top - 25);
        EXPECT_TRUE(host.bottom <= column.bottom + 75 || host.top == column.top - 25);
        EXPECT_EQ(host.Origin() + BubbleInHost(host, column, bubble.y, {.vertical = true}),
                  column.Origin() + bubble - kBubbleHalf);
      }
    }
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
