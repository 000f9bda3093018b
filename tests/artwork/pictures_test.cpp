#include "artwork/pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace dorvalin {
namespace {

using platform::Pixel;
using platform::Point;
using platform::Size;
using platform::Surface;

constexpr int kCell = 32;
constexpr Pixel kBlack = 0, kWhite = 0xFFFFFF;

bool IsGrey(Pixel p) { return (p >> 16) == (p & 0xFF) && (p >> 8 & 0xFF) == (p & 0xFF); }

template <typename Each>
void ForCell(int size, Each each) {
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) each(Point{x, y});
}

TEST(Pictures, HaveTheSizesOfTheirLayouts) {
  const std::pair<Picture, Size> kSizes[] = {
      {Picture::picSrc, {96, 288}}, {Picture::picComm, {96, 32}},
      {Picture::picVerl, {50, 40}}, {Picture::picButtons, {76, 180}},
      {Picture::picDot, {30, 39}},  {Picture::ctlRoundBrdMask, {80, 80}},
      {Picture::imgNote, {64, 64}}, {Picture::imgPicErr, {64, 64}},
      {Picture::imgLink, {64, 64}},
  };
  for (const auto& [which, size] : kSizes)
    EXPECT_EQ(PictureSurface(which).Size(), size) << "picture " << int(which);
}

TEST(Pictures, AreReadTheRightWayUp) {
  const Surface dots = PictureSurface(Picture::picDot);
  EXPECT_EQ(dots.At({7, 0}), kWhite) << "corner of the bullet's mask, at the top";
  EXPECT_EQ(dots.At({29, 38}), kWhite) << "corner of the check mark's mask, at the bottom";
  const Surface bubbles = PictureSurface(Picture::picSrc);
  const Pixel folder = bubbles.At({16, 6 * kCell + 19});
  EXPECT_GT(folder >> 16, (folder & 0xFF) + 0x40) << "yellow, so red and blue are not swapped";
}

class Bubbles : public testing::Test {
 protected:
  const Surface sheet = PictureSurface(Picture::picSrc);
  const Surface strip = PictureSurface(Picture::picComm);
};

TEST_F(Bubbles, AreSolidInTheMiddleAndGoneInTheCorners) {
  ForCell(kCell, [&](Point p) {
    SCOPED_TRACE(testing::Message() << p.x << ", " << p.y);
    const Pixel soft = sheet.At(p), hard = sheet.At({p.x + 2 * kCell, p.y});
    const int dx = 2 * p.x - 31, dy = 2 * p.y - 31, reach = dx * dx + dy * dy;
    EXPECT_TRUE(IsGrey(soft));
    EXPECT_TRUE(soft == kWhite || reach > 26 * 26);
    EXPECT_TRUE(soft == kBlack || reach < 2 * 31 * 31);
    EXPECT_EQ(hard, (soft & 0xFF) < 128 ? kWhite : kBlack)
        << "keeps the background where it is faint";
  });
}

// A drawing that reaches over the rim would be cut off by the mask.
TEST_F(Bubbles, NoDrawingReachesBeyondTheMask) {
  for (int column = 0; column < 3; ++column) {
    const Point origin{column * kCell, 0};
    const Pixel halo = sheet.At(origin + Point{0, kCell});
    ForCell(kCell, [&](Point p) {
      if (sheet.At(p) != kBlack) return;
      EXPECT_EQ(strip.At(origin + p), halo) << "at " << p.x << ", " << p.y;
      for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(sheet.At(origin + p + Point{0, row * kCell}), halo)
            << "row " << row << ", column " << column << " at " << p.x << ", " << p.y;
      }
    });
  }
}

TEST_F(Bubbles, NoTwoLookAlike) {
  const auto differing = [this](Point a, Point b) {
    int count = 0;
    ForCell(kCell, [&](Point p) { count += sheet.At(a + p) != sheet.At(b + p); });
    return count;
  };
  for (int row = 1; row <= 8; ++row) {
    for (int column = 0; column < 3; ++column) {
      const Point here{column * kCell, row * kCell};
      const Point next_state{(column + 1) % 3 * kCell, row * kCell};
      const Point next_function{column * kCell, row % 8 * kCell + kCell};
      EXPECT_GT(differing(here, next_state), 400) << row << ", " << column;
      EXPECT_GT(differing(here, next_function), 100) << row << ", " << column;
    }
  }
}

// Where the mask keeps the background, an image that is not black would invert it.
TEST(Dots, EveryImageIsBlackWhereItsMaskIsWhite) {
  const struct {
    const char* label;
    Size size;
    Point mask, image;
  } kSprites[] = {
      {"up arrow", {15, 8}, {15, 7}, {0, 7}},
      {"down arrow", {15, 8}, {15, 15}, {0, 15}},
      {"bullet", {7, 7}, {7, 0}, {0, 0}},
      {"check mark", {15, 16}, {15, 23}, {0, 23}},
  };
  const Surface sheet = PictureSurface(Picture::picDot);
  for (const auto& sprite : kSprites) {
    bool shown = false;
    for (int y = 0; y < sprite.size.height; ++y) {
      for (int x = 0; x < sprite.size.width; ++x) {
        const Pixel mask = sheet.At(sprite.mask + Point{x, y});
        const Pixel image = sheet.At(sprite.image + Point{x, y});
        EXPECT_TRUE(mask == kBlack || mask == kWhite) << sprite.label;
        EXPECT_EQ(image & mask, kBlack) << sprite.label << " at " << x << ", " << y;
        shown |= mask == kBlack;
      }
    }
    EXPECT_TRUE(shown) << sprite.label;
  }
}

TEST(Fade, RisesToTheMiddleAndFallsBehindIt) {
  const Surface fade = PictureSurface(Picture::picVerl);
  for (int y = 1; y < 20; ++y) EXPECT_GT(fade.At({0, y}), fade.At({0, y - 1})) << y;
  for (int y = 21; y < 40; ++y) EXPECT_LT(fade.At({0, y}), fade.At({0, y - 1})) << y;
  for (int y = 0; y < 40; ++y) {
    EXPECT_TRUE(IsGrey(fade.At({0, y})));
    for (int x = 1; x < 50; ++x) EXPECT_EQ(fade.At({x, y}), fade.At({0, y})) << x << ", " << y;
  }
}

// What is stretched along an edge must not change along it, or it would smear.
void ExpectEvenEdges(Picture which, int top, int height, int left, int right) {
  const Surface s = PictureSurface(which);
  for (int x = left; x < s.Width() - right; ++x)
    for (int y = top; y < top + height; ++y)
      EXPECT_EQ(s.At({x, y}), s.At({left, y})) << "at " << x << ", " << y;
}

TEST(Borders, StretchSidewaysWithoutSmearing) {
  for (int top = 0; top < 180; top += 30) ExpectEvenEdges(Picture::picButtons, top, 30, 6, 6);
  ExpectEvenEdges(Picture::ctlRoundBrdMask, 0, 80, 10, 11);
}

bool HasInk(const platform::Icon& icon) {
  return std::any_of(icon->pixels.begin(), icon->pixels.end(),
                     [](std::uint32_t p) { return p >> 24 == 0xFF; });
}

TEST(Icons, HoldEachOfTheirSizes) {
  for (Picture which :
       {Picture::icoPrograms, Picture::icoBold, Picture::icoItalic, Picture::icoUnderline,
        Picture::icoLeft, Picture::icoCentre, Picture::icoRight}) {
    for (int width : {16, 32}) {
      const auto icon = PictureIcon(which, width);
      ASSERT_TRUE(icon) << int(which);
      EXPECT_EQ(icon->size, (Size{width, width}));
      EXPECT_TRUE(HasInk(icon)) << int(which);
    }
  }
  EXPECT_TRUE(PictureIcon(Picture::imgPicker, 16));
  EXPECT_FALSE(PictureIcon(Picture::imgPicker, 32));
  EXPECT_FALSE(PictureIcon(Picture::picSrc, 32)) << "a bitmap holds none";
  EXPECT_TRUE(PictureSurface(Picture::icoBold).Empty()) << "and an icon no bitmap";
}

TEST(Icons, LinkOverlaysLeaveAllButTheLowerLeftToWhatTheyLieOn) {
  for (const auto& [which, width] :
       {std::pair{Picture::imgLinkIcon, 16}, std::pair{Picture::imgLgLinkIcon, 32}}) {
    const auto icon = PictureIcon(which, width);
    ASSERT_TRUE(icon && HasInk(icon));
    ForCell(width, [&, &icon = icon, width = width](Point p) {
      if (p.x < width / 2 && p.y >= width / 2) return;
      EXPECT_EQ(icon->pixels[std::size_t(p.y) * width + p.x] >> 24, 0u) << p.x << ", " << p.y;
    });
  }
}

TEST(Pointers, PointWithAPixelThatIsSeen) {
  for (Picture which : {Picture::curHand, Picture::curUp, Picture::curDown, Picture::curNew,
                        Picture::curFill, Picture::imgCopy, Picture::imgDrag}) {
    const auto file = PictureBytes(which);
    EXPECT_EQ(int(file[2]), 2) << "a pointer file";
    const std::size_t x = std::size_t(file[10]), y = std::size_t(file[12]);
    const auto image = PictureIcon(which, 32);
    ASSERT_TRUE(image);
    EXPECT_GT(image->pixels[y * 32 + x] >> 24, 0x7Fu) << "pointer " << int(which);
  }
  EXPECT_FALSE(HasInk(PictureIcon(Picture::curEmpty, 32)));
}

}  // namespace
}  // namespace dorvalin
