// Pictures from files, which may hold anything.
#include "platform/pictures.h"
#include "platform/files.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

constexpr std::u16string_view kFile = u"C:\\Dorvalin Conformance.bmp";

/// Two pixels above each other, in 24 bits: the upper one is 0x112233, the lower one 0x445566.
const std::string kBitmap(
    "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0"
    "\x28\0\0\0\1\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x08\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
    "\x66\x55\x44\0\x33\x22\x11\0",
    62);

class InPictures : public Conformance {
 protected:
  ~InPictures() override { (void)desktop().files().Delete(kFile); }
  std::optional<platform::Surface> Load(std::string_view bytes) {
    EXPECT_EQ(desktop().files().Write(kFile, bytes), platform::FileStatus::Done);
    return desktop().pictures().Load(kFile);
  }
};

TEST_F(InPictures, ABitmapIsReadPixelByPixel) {
  const auto picture = Load(kBitmap);
  ASSERT_TRUE(picture);
  ASSERT_EQ(picture->Size(), (platform::Size{1, 2}));
  EXPECT_EQ(picture->At(Point{0, 0}) & 0xFFFFFF, 0x112233u);
  EXPECT_EQ(picture->At(Point{0, 1}) & 0xFFFFFF, 0x445566u);
}

TEST_F(InPictures, WhatIsNoWholeBitmapIsNone) {
  for (std::size_t length = 0; length < kBitmap.size(); ++length) {
    EXPECT_FALSE(Load(std::string_view(kBitmap).substr(0, length))) << length;
  }
  EXPECT_FALSE(Load("kein Bild, nur Text"));
  EXPECT_FALSE(desktop().pictures().Load(u"C:\\fehlt.bmp"));
}

}  // namespace
}  // namespace conformance
