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
  Pixel Soft(Point p) const { return sheet.At(p); }
  Pixel Hard(Point p) const { return sheet.At({p.x + 2 * kCell, p.y}); }
  const Surface sheet = PictureSurface(Picture::picSrc);
  const Surface strip = PictureSurface(Picture::picComm);
};

TEST_F(Bubbles, AreSolidInTheMiddleAndGoneInTheCorners) {
  for (Point corner : {Point{0, 0}, Point{31, 0}, Point{0, 31}, Point{31, 31}})
    EXPECT_EQ(Soft(corner), kBlack);
  ForCell(kCell, [&](Point p) {
    EXPECT_TRUE(IsGrey(Soft(p))) << p.x << ", " << p.y;
    const int dx = 2 * p.x - 31, dy = 2 * p.y - 31;
    if (dx * dx + dy * dy > 26 * 26) return;
    EXPECT_EQ(Soft(p), kWhite) << p.x << ", " << p.y;
  });
}

TEST_F(Bubbles, HardMaskKeepsTheBackgroundExactlyWhereTheSoftOneIsFaint) {
  ForCell(kCell, [&](Point p) {
    EXPECT_EQ(Hard(p), (Soft(p) & 0xFF) < 128 ? kWhite : kBlack) << p.x << ", " << p.y;
  });
}

// A drawing that reaches over the rim would be cut off by the mask.
TEST_F(Bubbles, NoDrawingReachesBeyondTheMask) {
  for (int column = 0; column < 3; ++column) {
    const Pixel halo = sheet.At({column * kCell, kCell});
    const auto expect_halo = [&](const Surface& surface, int row) {
      ForCell(kCell, [&](Point p) {
        if (Soft(p) != kBlack) return;
        EXPECT_EQ(surface.At({column * kCell + p.x, row * kCell + p.y}), halo)
            << "row " << row << ", column " << column << " at " << p.x << ", " << p.y;
      });
    };
    for (int row = 1; row <= 8; ++row) expect_halo(sheet, row);
    expect_halo(strip, 0);
  }
}

int DifferingPixels(const Surface& surface, Point a, Point b) {
  int count = 0;
  ForCell(kCell, [&](Point p) { count += surface.At(a + p) != surface.At(b + p); });
  return count;
}

TEST_F(Bubbles, NoTwoLookAlike) {
  for (int row = 1; row <= 8; ++row) {
    for (int column = 0; column < 3; ++column) {
      const Point here{column * kCell, row * kCell};
      const Point next_state{(column + 1) % 3 * kCell, row * kCell};
      const Point next_function{column * kCell, row % 8 * kCell + kCell};
      EXPECT_GT(DifferingPixels(sheet, here, next_state), 400) << row << ", " << column;
      EXPECT_GT(DifferingPixels(sheet, here, next_function), 100) << row << ", " << column;
    }
  }
}

struct Sprite {
  const char* label;
  Size size;
  Point mask, image;
};
constexpr Sprite kSprites[] = {
    {"up arrow", {15, 8}, {15, 7}, {0, 7}},
    {"down arrow", {15, 8}, {15, 15}, {0, 15}},
    {"bullet", {7, 7}, {7, 0}, {0, 0}},
    {"check mark", {15, 16}, {15, 23}, {0, 23}},
};

// Where the mask keeps the background, an image that is not black would invert it.
TEST(Dots, EveryImageIsBlackWhereItsMaskIsWhite) {
  const Surface sheet = PictureSurface(Picture::picDot);
  for (const Sprite& sprite : kSprites) {
    int shown = 0;
    ForCell(16, [&](Point p) {
      if (p.x >= sprite.size.width || p.y >= sprite.size.height) return;
      const Pixel mask = sheet.At(sprite.mask + p), image = sheet.At(sprite.image + p);
      EXPECT_TRUE(mask == kBlack || mask == kWhite) << sprite.label;
      EXPECT_EQ(image & mask, kBlack) << sprite.label << " at " << p.x << ", " << p.y;
      shown += mask == kBlack;
    });
    EXPECT_GT(shown, sprite.size.width * sprite.size.height / 6) << sprite.label;
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

struct Border {
  Surface picture;
  int top, height, left, upper, right, lower;
};

// What is stretched along an edge must not change along it, or it would smear.
void ExpectEvenEdges(const Border& b) {
  const Surface& s = b.picture;
  for (int x = b.left; x < s.Width() - b.right; ++x)
    for (int y = b.top; y < b.top + b.height; ++y)
      EXPECT_EQ(s.At({x, y}), s.At({b.left, y})) << "at " << x << ", " << y;
}

TEST(Buttons, StretchSidewaysWithoutSmearing) {
  for (int top : {0, 60, 90, 120})
    ExpectEvenEdges({PictureSurface(Picture::picButtons), top, 30, 6, 6, 6, 8});
  for (int top : {30, 150})
    ExpectEvenEdges({PictureSurface(Picture::picButtons), top, 30, 6, 8, 6, 6});
}

TEST(RoundedFrame, LeavesTheMiddleAndTheCornersToTheFace) {
  const Surface mask = PictureSurface(Picture::ctlRoundBrdMask);
  ExpectEvenEdges({mask.Clone(), 0, 80, 10, 10, 11, 11});
  for (Point corner : {Point{0, 0}, Point{79, 0}, Point{0, 79}, Point{79, 79}})
    EXPECT_EQ(mask.At(corner), kWhite);
  for (int y = 10; y < 70; ++y)
    for (int x = 10; x < 70; ++x) EXPECT_EQ(mask.At({x, y}), kWhite) << x << ", " << y;
  const Pixel kLine[] = {0x7F7F7F, kBlack, 0x7F7F7F, kWhite};
  for (int depth = 0; depth < 4; ++depth) {
    for (Point p :
         {Point{40, depth}, Point{depth, 40}, Point{40, 79 - depth}, Point{79 - depth, 40}})
      EXPECT_EQ(mask.At(p), kLine[depth]) << "at " << p.x << ", " << p.y;
  }
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

TEST(Pictures, AreOnlyWhatTheyAre) {
  EXPECT_TRUE(PictureSurface(Picture::icoBold).Empty());
  EXPECT_FALSE(PictureIcon(Picture::picSrc, 32));
}

}  // namespace
}  // namespace dorvalin
