// The screen, and text on surfaces.
#include <algorithm>

#include "platform/drawing.h"
#include "platform/textdrawing.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

using platform::Colour;
using platform::Font;
using platform::Size;
using platform::SystemColour;
using platform::TextFormat;

class OnScreen : public Conformance {
 protected:
  platform::Screen& screen() { return desktop().screen(); }
};

TEST_F(OnScreen, ACaptureHasTheSizeThatWasAskedForAndIsBlackBesideTheScreen) {
  const Size size = screen().Size();
  ASSERT_FALSE(size.Empty());
  const auto part =
      screen().Capture({size.width - 3, size.height - 2, size.width + 5, size.height + 4});
  ASSERT_TRUE(part);
  EXPECT_EQ(part->Size(), (Size{8, 6}));
  for (const Point beside : {Point{3, 0}, Point{7, 5}, Point{0, 2}}) {
    EXPECT_EQ(part->At(beside) & 0xFFFFFF, 0u) << beside.x << " " << beside.y;
  }
  EXPECT_EQ(platform::ColourFromPixel(part->At(Point{2, 1}) & 0xFFFFFF),
            screen().ColourAt({size.width - 1, size.height - 1}));
  EXPECT_FALSE(screen().ColourAt({size.width, 0}));
  EXPECT_FALSE(screen().ColourAt({0, -1}));
}

TEST_F(OnScreen, ColoursAreFullAndTellTextFromItsBackground) {
  EXPECT_TRUE(screen().Depth() == 16 || screen().Depth() == 24 || screen().Depth() == 32);
  const std::pair<SystemColour, SystemColour> kReadable[] = {
      {SystemColour::WindowText, SystemColour::Window},
      {SystemColour::HighlightText, SystemColour::Highlight},
      {SystemColour::ButtonText, SystemColour::ButtonFace},
      {SystemColour::GrayText, SystemColour::ButtonFace},
      {SystemColour::TipText, SystemColour::TipBackground},
      {SystemColour::ButtonHighlight, SystemColour::ButtonShadow},
      {SystemColour::Light, SystemColour::DarkShadow}};
  for (const auto& [front, back] : kReadable) {
    const Colour colours[] = {screen().SystemColourOf(front), screen().SystemColourOf(back)};
    EXPECT_NE(colours[0], colours[1]) << static_cast<int>(front);
    for (const Colour colour : colours) EXPECT_LE(colour, 0xFFFFFFu);
  }
}

class OfText : public Conformance {
 protected:
  static constexpr Rect kPlace{20, 20, 320, 120};
  platform::TextDrawing& text() { return desktop().text(); }

  /// What a text covers that is drawn in the place on a larger white ground.
  Rect InkOf(std::u16string_view words, const Font& font, const TextFormat& format,
             const Rect& place = kPlace) {
    platform::Surface surface(Size{340, 140});
    platform::FillRect(surface, surface.Area(), 0xFFFFFF);
    text().Draw(surface, place, words, font, 0, format);
    Rect ink{surface.Width(), surface.Height(), 0, 0};
    for (int y = 0; y < surface.Height(); ++y) {
      for (int x = 0; x < surface.Width(); ++x) {
        if ((surface.At({x, y}) & 0xFFFFFF) == 0xFFFFFF) continue;
        ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1),
               std::max(ink.bottom, y + 1)};
      }
    }
    return ink;
  }
};

TEST_F(OfText, ALineStaysInTheBoxThatWasMeasured) {
  using H = TextFormat::Horizontal;
  using V = TextFormat::Vertical;
  const std::pair<H, V> kAlignments[] = {
      {H::Left, V::Top}, {H::Centre, V::Centre}, {H::Right, V::Bottom}};
  const Font kFonts[] = {
      {u"Tahoma", 8}, {u"Tahoma", 8, true}, {u"Arial", 20}, {u"gibt es nicht", 10}};
  for (const Font& font : kFonts) {
    for (const auto* words : {u"Hallo", u"Größe 5 €", u"x"}) {
      const Size size = text().Measure(words, font);
      for (const auto& [horizontal, vertical] : kAlignments) {
        SCOPED_TRACE(testing::Message() << platform::ToUtf8(words) << " in " << font.points
                                        << " at " << static_cast<int>(horizontal));
        const Point room{kPlace.Width() - size.width, kPlace.Height() - size.height};
        const int part = static_cast<int>(horizontal);
        const Rect box =
            Rect::At(kPlace.Origin() + Point{room.x * part / 2, room.y * part / 2}, size);
        TextFormat format;
        format.horizontal = horizontal;
        format.vertical = vertical;
        const Rect ink = InkOf(words, font, format);
        ASSERT_FALSE(ink.Empty());
        // Soft edges may reach over by a pixel.
        EXPECT_TRUE(box.Grown(1).Contains(ink));
        EXPECT_GE(ink.Width() + 6, size.width) << "and fills it";
      }
    }
  }
}

TEST_F(OfText, BrokenTextTakesTheHeightThatWasMeasured) {
  const Font font{u"Tahoma", 8};
  constexpr std::u16string_view kWords = u"ein zwei drei vier fünf sechs sieben acht";
  const int line = text().Measure(u"x", font).height;
  TextFormat format;
  format.wordBreak = true;
  const Rect narrow{20, 20, 100, 130};
  const int height = text().MeasureHeight(kWords, font, narrow.Width());
  EXPECT_GE(height, 3 * line);
  EXPECT_EQ(text().MeasureHeight(kWords, font, 1000), line);
  const Rect ink = InkOf(kWords, font, format, narrow);
  EXPECT_TRUE(Rect::At(narrow.Origin(), {narrow.Width(), height}).Contains(ink));
  EXPECT_GT(ink.bottom, narrow.top + height - line);
  EXPECT_EQ(text().MeasureHeight(u"eins\r\nzwei\nx", font, 1000), 3 * line);
}

TEST_F(OfText, WhatDoesNotFitIsCutAtTheEdgeOrWithDots) {
  const Font font{u"Tahoma", 8};
  const Rect tight{20, 20, 60, 26};
  TextFormat format;
  EXPECT_TRUE(tight.Contains(InkOf(u"sehr viel mehr, als passt", font, format, tight)));
  format.ellipsis = true;
  const Rect row{20, 20, 80, 60};
  const Rect ink = InkOf(u"WWWWWWWWWWWWWWWWWW", font, format, row);
  EXPECT_TRUE(row.Contains(ink));
  EXPECT_EQ(InkOf(u"WW", font, format, row), InkOf(u"WW", font, {}, row))
      << "no dots where it fits";
}

TEST_F(OfText, AnAccessMarkUnderlinesOrStandsForItself) {
  const Font font{u"Tahoma", 8};
  TextFormat marked;
  marked.accessKeys = true;
  const auto width = [&](std::u16string_view words, const TextFormat& format) {
    return InkOf(words, font, format).Width();
  };
  EXPECT_EQ(width(u"H&HH", marked), width(u"HHH", {}));
  EXPECT_GT(width(u"H&HH", {}), width(u"HHH", {}));
  EXPECT_EQ(width(u"H&&H", marked), width(u"H&H", {}));
  EXPECT_GT(InkOf(u"&H", font, marked).bottom, InkOf(u"H", font, marked).bottom);
}

TEST_F(OfText, FacesAreListedOnceAndEachIsItself) {
  const auto faces = text().Faces();
  ASSERT_FALSE(faces.empty());
  EXPECT_TRUE(std::ranges::is_sorted(faces, {}, platform::Lower));
  EXPECT_EQ(std::ranges::adjacent_find(faces), faces.end());
  EXPECT_TRUE(std::ranges::none_of(faces, [](const auto& face) { return face.starts_with(u'@'); }));
  for (const auto& face : faces) {
    EXPECT_EQ(platform::Lower(text().Resolve({face, 10}).face), platform::Lower(face));
  }
}

TEST_F(OfText, AMissingFaceBecomesAnotherAndSymbolsTellThemselves) {
  const auto missing = text().Resolve({u"gibt es nicht", 8});
  EXPECT_NE(missing.face, u"");
  EXPECT_NE(missing.face, u"gibt es nicht");
  EXPECT_EQ(platform::Lower(text().Resolve({u"TAHOMA", 8}).face), u"tahoma");
  EXPECT_NE(text().Resolve({u"Tahoma", 8}).charset, platform::kSymbolCharset);
  EXPECT_EQ(text().Resolve({u"Symbol", 8}).charset, platform::kSymbolCharset);
}

}  // namespace
}  // namespace conformance
