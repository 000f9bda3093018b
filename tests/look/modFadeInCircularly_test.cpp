#include "look/modFadeInCircularly.h"

#include "tests/look/LookTest.h"

namespace dorvalin {
namespace {

using platform::Point;

class FadeIn : public LookTest {
 protected:
  static constexpr platform::Size kSize{200, 150};

  /// How far to the right of the point the window is seen.
  int SeenToTheRightOf(Point inWindow) {
    int reach = 0;
    while (reach < 1000 &&
           desktop.windows().WindowAt(OnScreen(platform::Rect::At(inWindow, {})).Origin() +
                                      Point{reach, 0}) == window.get())
      ++reach;
    return reach;
  }

  std::vector<int> reaches;
};

TEST_F(FadeIn, GrowsStepByStepAndTakesNoFocus) {
  platform::TopWindowEvents otherEvents;
  const auto other = desktop.windows().NewTopWindow({}, otherEvents);
  other->SetBounds({600, 400, 700, 500});
  window->Hide();
  other->Show(platform::ShowMode::Activate);
  const auto watch = desktop.pump().NewTimer(1, [&] {
    reaches.push_back(SeenToTheRightOf({60, 70}));
  });
  watch->SetEnabled(true);
  desktop.clock().Advance(20ms);
  const auto begin = desktop.clock().SinceStart();

  FadeInCircle(*window, {60, 70}, kSize, 20, HiResMilliseconds(20));

  // The farthest corner is 161 pixels away.
  EXPECT_EQ(reaches, (std::vector{20, 40, 60, 80, 100, 120, 140, 140}));
  EXPECT_GE(desktop.clock().SinceStart() - begin, 160ms);
  EXPECT_EQ(desktop.windows().ForegroundWindow().ours, other.get());
  EXPECT_EQ(desktop.windows().WindowAt(kWindow.Origin()), window.get());
  other->Close();
}

TEST_F(FadeIn, ReachesTheFarthestCornerFromOutside) {
  int steps = 0;
  bool corner = false;
  const auto watch = desktop.pump().NewTimer(1, [&] {
    ++steps;
    corner = desktop.windows().WindowAt(kWindow.Origin() + Point{198, 148}) == window.get();
  });
  watch->SetEnabled(true);
  desktop.clock().Advance(20ms);
  FadeInCircle(*window, {-100, -50}, kSize, 1, HiResMilliseconds(20));
  EXPECT_EQ(steps, 360);
  EXPECT_TRUE(corner);
}

}  // namespace
}  // namespace dorvalin
