// The palettes that the user finds at the first start.

#include <set>

#include "colours/CPalette.h"
#include "colours/notations.h"
#include "platform/text.h"
#include "tests/support/WithData.h"
#include "tests/support/delivered.h"

namespace dorvalin {
namespace {

class DeliveredPalettes : public WithData {
 protected:
  void SetUp() override {
    for (const auto& [name, bytes] : DeliveredFiles(DORVALIN_DATA "/Palettes")) {
      files.Put(u"C:\\Programme\\Dorvalin\\Palettes\\" + platform::FromUtf8(name) + u".dvl", bytes);
    }
    InitPalettes();
    for (const auto& palette : Palettes()) palette->Init();
  }

  std::vector<Rgb> ColorsOf(std::u16string_view title) {
    std::vector<Rgb> colors;
    for (const auto& palette : Palettes()) {
      for (int i = 1; palette->Title == title && i <= palette->Colors->Count(); ++i) {
        const auto field = palette->Colors->Item(i);
        if (field != kEmptyField) colors.push_back(Rgb::Of(field));
      }
    }
    return colors;
  }
};

TEST_F(DeliveredPalettes, AreSeededAndFillWholeRowsOfThePanel) {
  EXPECT_EQ(Palettes().size(), 5u);
  for (const auto& palette : Palettes()) {
    SCOPED_TRACE(platform::ToUtf8(palette->Title));
    const int count = palette->Colors->Count();
    EXPECT_EQ(count % 8, 0);
    EXPECT_EQ(files.BytesOf(palette->File)->size(), 1u + 4u * static_cast<unsigned>(count));
    for (int i = 1; i <= count; ++i) {
      EXPECT_GE(palette->Colors->Item(i), kEmptyField);
      EXPECT_LE(palette->Colors->Item(i), 0xFFFFFF);
    }
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(DeliveredPalettes, HoldWhatTheirNamesSay) {
  std::set<std::int32_t> web;
  for (const Rgb color : ColorsOf(u"Webfarben")) {
    EXPECT_TRUE(color.r % 51 == 0 && color.g % 51 == 0 && color.b % 51 == 0);
    web.insert(color.Value());
  }
  EXPECT_EQ(web.size(), 216u);

  const auto greys = ColorsOf(u"Graustufen");
  EXPECT_EQ(greys.front(), (Rgb{255, 255, 255}));
  EXPECT_EQ(greys.back(), (Rgb{0, 0, 0}));
  for (std::size_t i = 1; i < greys.size(); ++i) {
    EXPECT_TRUE(greys[i].r == greys[i].g && greys[i].g == greys[i].b);
    EXPECT_LT(greys[i].r, greys[i - 1].r);
  }
  for (const Rgb color : ColorsOf(u"Pastell")) EXPECT_GT(color.r + color.g + color.b, 3 * 150);
}

}  // namespace
}  // namespace dorvalin
