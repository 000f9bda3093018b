// The palettes that the user finds at the first start.

#include "colours/CPalette.h"
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

}  // namespace
}  // namespace dorvalin
