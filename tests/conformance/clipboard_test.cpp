// What is put on the clipboard, and a clipboard that another program holds.
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

class OnClipboard : public Conformance {
 protected:
  platform::Clipboard& clipboard() { return desktop().clipboard(); }
};

TEST_F(OnClipboard, AllFormsAreOfferedAtOnceUntilItIsCleared) {
  const auto format = clipboard().Register(u"Dorvalin Conformance Format");
  platform::DataContent content;
  content.text = u"Größe\r\n5 €";
  content.richText = "{\\rtf1 Gr\\'f6\\'dfe}";
  content.files = {u"C:\\Dorvalin Conformance\\ä.txt", u"C:\\"};
  content.registered[format] = std::string("\0\1\2", 3);
  content.registered[0] = "a format whose name could not be registered";
  content.picture.emplace(platform::Size{3, 2});
  content.picture->At({2, 1}) = 0x112233;
  ASSERT_EQ(clipboard().Put(content), platform::ClipboardResult::Done);
  EXPECT_TRUE(clipboard().OffersText() && clipboard().OffersRichText());
  EXPECT_TRUE(clipboard().OffersFiles() && clipboard().OffersPicture());
  EXPECT_TRUE(clipboard().Offers(format));
  EXPECT_FALSE(clipboard().Offers(0));
  EXPECT_EQ(clipboard().Text(), content.text);
  EXPECT_EQ(clipboard().RichText(), content.richText);
  EXPECT_EQ(clipboard().Files(), content.files);
  EXPECT_EQ(clipboard().Registered(format), content.registered[format]);
  const auto picture = clipboard().Picture();
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Size(), (platform::Size{3, 2}));
  EXPECT_EQ(picture->At({2, 1}) & 0xFFFFFF, 0x112233u);
  ASSERT_EQ(clipboard().Clear(), platform::ClipboardResult::Done);
  EXPECT_FALSE(clipboard().OffersText());
  EXPECT_FALSE(clipboard().Text());
  EXPECT_FALSE(clipboard().RichText());
  EXPECT_TRUE(clipboard().Files().empty());
}

TEST_F(OnClipboard, ANameHasOneNumber) {
  const auto format = clipboard().Register(u"Dorvalin Conformance Format");
  EXPECT_NE(format, 0u);
  EXPECT_EQ(clipboard().Register(u"DORVALIN conformance format"), format);
  EXPECT_NE(clipboard().Register(u"Dorvalin Conformance Format 2"), format);
  EXPECT_EQ(clipboard().Register(u""), 0u);
}

// Only reading and writing want it for themselves.
TEST_F(OnClipboard, WhileAnotherProgramHoldsItTheContentStaysAndIsNotRead) {
  platform::DataContent content;
  content.text = u"alt";
  ASSERT_EQ(clipboard().Put(content), platform::ClipboardResult::Done);
  under().HoldClipboard(true);
  content.text = u"neu";
  EXPECT_EQ(clipboard().Put(content), platform::ClipboardResult::Busy);
  EXPECT_EQ(clipboard().Clear(), platform::ClipboardResult::Busy);
  EXPECT_TRUE(clipboard().OffersText());
  EXPECT_FALSE(clipboard().Text());
  under().HoldClipboard(false);
  EXPECT_EQ(clipboard().Text(), u"alt");
}

}  // namespace
}  // namespace conformance
