#include "look/ctlRoundBrd.h"

#include "core/colours.h"
#include "tests/look/LookTest.h"

namespace dorvalin {
namespace {

using platform::Colour;
using platform::SystemColour;

class RoundBorder : public LookTest {
 protected:
  static constexpr Colour kFace = 0xC8D0D4, kShadow = 0x808080, kWindowColour = 0xFFFFFF;

  RoundBorder() {
    desktop.screen().SetColour(SystemColour::ButtonFace, kFace);
    desktop.screen().SetColour(SystemColour::ButtonShadow, kShadow);
    desktop.screen().SetColour(SystemColour::Window, kWindowColour);
  }
  static Colour At(const ctlRoundBrd& border, platform::Point p) {
    return platform::ColourFromPixel(border.hdc().At(p));
  }
  /// Whether the colour is met somewhere from the left rim to the middle.
  static bool CrossesColour(const ctlRoundBrd& border, Colour colour) {
    for (int x = 0; x < border.hdc().Width() / 2; ++x)
      if (At(border, {x, border.hdc().Height() / 2}) == colour) return true;
    return false;
  }
};

TEST_F(RoundBorder, IsAFrameOfLightWithAShadowAndRoundCorners) {
  const ctlRoundBrd border(*window, {10, 10, 130, 110});
  EXPECT_TRUE(CrossesColour(border, BlendColor(kFace, kWindowColour, 0.5)));
  const int right = border.hdc().Width() - 1, bottom = border.hdc().Height() - 1;
  for (const platform::Point corner : {platform::Point{0, 0}, {right, 0}, {0, bottom}, {60, 50}})
    EXPECT_EQ(At(border, corner), kFace) << corner.x << ", " << corner.y;
  bool shadow = false;
  for (int y = border.hdc().Height() / 2; y <= bottom; ++y) {
    const Colour colour = At(border, {60, y});
    shadow |= (colour & 0xFF) < (kFace & 0xFF);
  }
  EXPECT_TRUE(shadow);
}

TEST_F(RoundBorder, IsARectangleWithSharpCornersOnAScreenOfFewColours) {
  desktop.screen().SetDepth(8);
  const ctlRoundBrd border(*window, {10, 10, 130, 110});
  for (const platform::Point rim :
       {platform::Point{0, 0}, {119, 0}, {0, 99}, {119, 99}, {60, 0}, {0, 50}, {119, 50}, {60, 99}})
    EXPECT_EQ(At(border, rim), kShadow) << rim.x << ", " << rim.y;
  EXPECT_EQ(At(border, {1, 50}), kWindowColour);
  EXPECT_EQ(At(border, {60, 50}), kFace);
}

TEST_F(RoundBorder, FollowsItsSizeAlsoWhenThatChangedUnseen) {
  desktop.screen().SetDepth(8);
  ctlRoundBrd sharp(*window, {10, 10, 130, 110});
  sharp.Window()->SetBounds({10, 10, 80, 80});
  EXPECT_EQ(At(sharp, {69, 69}), kShadow);
  sharp.Window()->SetVisible(false);
  sharp.Window()->SetBounds({10, 10, 60, 60});
  sharp.Window()->SetVisible(true);
  EXPECT_EQ(At(sharp, {49, 49}), kShadow);
  EXPECT_EQ(At(sharp, {25, 25}), kFace);
}

}  // namespace
}  // namespace dorvalin
