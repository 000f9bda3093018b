#include "core/AccessGestures.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "tests/support/Allocations.h"

namespace dorvalin {
namespace {

using platform::Button;
using platform::Point;
using enum AccessGestures::Verdict;

/// A hand on the buttons that counts how often it is looked at.
class CountedInput : public platform::Input {
 public:
  std::set<Button> down;
  bool scrollDown = false;
  Point pointer{500, 400};
  int calls = 0;
  std::vector<KeyEdge> injected;

  bool ButtonDown(Button button) override { return ++calls, down.contains(button); }
  bool KeyDown(int virtualKey) override {
    return ++calls, virtualKey == platform::key::kScrollLock && scrollDown;
  }
  platform::Modifiers ModifiersDown() override { return ++calls, platform::Modifiers{}; }
  Point PointerPosition() override { return ++calls, pointer; }
  void MovePointer(Point p) override { pointer = p; }
  void SetWaitPointer(bool) override {}
  void InjectKey(int virtualKey, int scanCode, bool extended, KeyEdge edge) override {
    EXPECT_EQ(virtualKey, platform::key::kScrollLock);
    EXPECT_EQ(scanCode, 69);
    EXPECT_TRUE(extended);
    injected.push_back(edge);
  }
  bool Type(const std::vector<platform::KeyStroke>&) override { return true; }
};

constexpr Settings Only(bool Settings::*gesture) {
  Settings settings{.MiddleBtn = false, .BothBtn = false, .ScrollKey = false};
  settings.*gesture = true;
  return settings;
}

constexpr Settings kAll{.LeftBtn = true, .RightBtn = true};

class Gestures : public testing::Test {
 protected:
  /// Which of the coming ticks (from 1) ask for the wheel.
  std::vector<int> FiringTicks(const Settings& settings, int ticks) {
    std::vector<int> fired;
    for (int tick = 1; tick <= ticks; ++tick) {
      if (gestures.Tick(settings, input) == ShowWheel) fired.push_back(tick);
    }
    return fired;
  }

  CountedInput input;
  AccessGestures gestures;
};

using Ticks = std::vector<int>;

struct HoldCase {
  const char* name;
  bool Settings::*gesture;
  std::set<Button> buttons;
  int firesAt;
  int limit;  ///< travel in pixels that refuses it
};

const HoldCase kHolds[] = {
    {"both buttons", &Settings::BothBtn, {Button::Left, Button::Right}, 3, 7},
    {"middle button", &Settings::MiddleBtn, {Button::Middle}, 3, 7},
    {"right button", &Settings::RightBtn, {Button::Right}, 4, 7},
    {"left button", &Settings::LeftBtn, {Button::Left}, 5, 3},
};

TEST_F(Gestures, AHoldFiresOnceAtItsTickHoweverLongItLasts) {
  for (const HoldCase& c : kHolds) {
    SCOPED_TRACE(c.name);
    gestures = {};
    input.down = c.buttons;
    EXPECT_EQ(FiringTicks(Only(c.gesture), 1000), Ticks{c.firesAt});
  }
}

TEST_F(Gestures, AHoldThatMovedIsRefusedUntilItsButtonWasUp) {
  for (const HoldCase& c : kHolds) {
    const struct {
      Point by;
      bool refused;
    } moves[] = {
        {{c.limit - 1, 0}, false}, {{-1, 2 - c.limit}, false}, {{c.limit, 0}, true},
        {{0, -c.limit}, true},     {{1 - c.limit, 1}, true},
    };
    for (const auto& move : moves) {
      SCOPED_TRACE(testing::Message() << c.name << " by " << move.by.x << ", " << move.by.y);
      gestures = {};
      input.down = c.buttons;
      EXPECT_EQ(FiringTicks(Only(c.gesture), c.firesAt - 1), Ticks{});
      input.pointer = input.pointer + move.by;
      EXPECT_EQ(FiringTicks(Only(c.gesture), 40), move.refused ? Ticks{} : Ticks{1});

      input.down.clear();
      EXPECT_EQ(FiringTicks(Only(c.gesture), 1), Ticks{});
      input.down = c.buttons;
      EXPECT_EQ(FiringTicks(Only(c.gesture), 9), Ticks{c.firesAt});
    }
  }
}

TEST_F(Gestures, OnlyTheTwoEndsOfTheTravelCount) {
  input.down = {Button::Middle};
  (void)FiringTicks(kAll, 1);
  input.pointer = {900, 10};
  (void)FiringTicks(kAll, 1);
  input.pointer = {500, 400};
  EXPECT_EQ(FiringTicks(kAll, 1), Ticks{1});
}

TEST_F(Gestures, ShortPressesLeaveNoTrace) {
  for (int n = 0; n < 10; ++n) {
    input.down = {Button::Left, Button::Right, Button::Middle};
    EXPECT_EQ(FiringTicks(kAll, n % 2), Ticks{}) << "one tick sees it, or none";
    input.down.clear();
    EXPECT_EQ(FiringTicks(kAll, 1), Ticks{});
    EXPECT_EQ(gestures.MiddleCount, 0);
  }
}

TEST_F(Gestures, BothButtonsAreARightAndALeftHoldWhereTheirGestureIsOff) {
  Settings settings = kAll;
  settings.BothBtn = false;
  input.down = {Button::Left, Button::Right};
  EXPECT_EQ(FiringTicks(settings, 20), (Ticks{4, 5}));
}

TEST_F(Gestures, ASecondButtonMovesTheStartOfTheFirstHold) {
  input.down = {Button::Middle};
  (void)FiringTicks(kAll, 1);
  input.pointer = {700, 400};
  input.down.insert(Button::Left);
  (void)FiringTicks(kAll, 1);
  EXPECT_EQ(gestures.StartPos, (Point{700, 400}));
  EXPECT_EQ(FiringTicks(kAll, 1), Ticks{1}) << "measured from where the second button went down";
}

TEST_F(Gestures, AHeldScrollLockFiresEveryThirdTickAndIsToggledBackEachTime) {
  input.scrollDown = true;
  EXPECT_EQ(FiringTicks(kAll, 10), (Ticks{1, 4, 7, 10}));
  using enum platform::Input::KeyEdge;
  EXPECT_EQ(input.injected, (std::vector{Up, Down, Up, Down, Up, Down, Up, Down}));
}

TEST_F(Gestures, InATickOfScrollLockTheLaterHoldsStandStillButThoseThatEndedAreReset) {
  input.down = {Button::Middle, Button::Right};
  (void)FiringTicks(kAll, 2);
  input.scrollDown = true;
  input.down = {Button::Middle};
  EXPECT_EQ(FiringTicks(kAll, 1), Ticks{1});
  EXPECT_EQ(gestures.MiddleCount, 2);
  EXPECT_EQ(gestures.RightCount, 0);
  EXPECT_EQ(FiringTicks(kAll, 1), Ticks{1}) << "the middle button's third tick";
}

TEST_F(Gestures, TheTwoButtonHoldHasHadItsTurnInATickOfScrollLock) {
  Settings settings = kAll;
  settings.RightBtn = settings.LeftBtn = false;
  input.down = {Button::Left, Button::Right};
  (void)FiringTicks(settings, 1);
  input.scrollDown = true;
  (void)FiringTicks(settings, 1);
  EXPECT_EQ(gestures.BothCount, 2);
}

TEST_F(Gestures, AnIdleTickCostsOneCallAGestureAndNoMemory) {
  const struct {
    const char* name;
    Settings settings;
    int calls;
  } cases[] = {
      {"all", kAll, 5},
      {"as installed", {}, 3},
      {"one", Only(&Settings::RightBtn), 1},
      {"none", {.MiddleBtn = false, .BothBtn = false, .ScrollKey = false}, 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    input.calls = 0;
    const auto before = Allocations();
    for (int n = 0; n < 100; ++n) (void)gestures.Tick(c.settings, input);
    EXPECT_EQ(Allocations(), before);
    EXPECT_EQ(input.calls, 100 * c.calls);
  }
}

}  // namespace
}  // namespace dorvalin
