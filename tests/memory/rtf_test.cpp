// Rich Text of other programs, read and written again.
#include "platform/memory/Rtf.h"

#include <gtest/gtest.h>

#include "platform/text.h"

namespace platform {
namespace {

struct RtfCase {
  const char* label;
  const char* source;
  const char16_t* text;
  const char* bold;  ///< a mark under each bold unit
};

const RtfCase kCases[] = {
    {"plain with bold", R"({\rtf1\ansi a\b b\b0 c\par})", u"abc", " b "},
    {"formats end with their group", R"({\rtf1 {\b a}b})", u"ab", "b "},
    {"ANSI and Unicode characters", R"({\rtf1\ansi \'e4\u8364?\uc0\u-10179\u-8704})", u"ä€😀",
     "    "},
    {"tables and unknown groups hold no text",
     R"({\rtf1{\fonttbl{\f0\fnil Arial;}}{\*\generator X;}{\info{\author A}}x})", u"x", " "},
    {"line ends, tabs and quotes", R"({\rtf1 a\par b\line c\tab d\lquote\rquote\par })",
     u"a\r\nb\r\nc\td‘’", "           "},
    {"escaped braces", R"({\rtf1 \{\\\}})", u"{\\}", "   "},
    {"a source that stops short", R"({\rtf1 a{\b b)", u"ab", " b"},
};

std::string BoldMarks(const RichContent& content) {
  std::string marks;
  for (const RichFormat& format : content.formats) marks += format.font.bold ? 'b' : ' ';
  return marks;
}

TEST(Rtf, ReadsAndWritesAgain) {
  for (const RtfCase& test : kCases) {
    SCOPED_TRACE(test.label);
    const auto read = ReadRtf(test.source, {});
    ASSERT_TRUE(read);
    EXPECT_EQ(ToUtf8(read->text), ToUtf8(test.text));
    EXPECT_EQ(BoldMarks(*read), test.bold);
    const auto again = ReadRtf(WriteRtf(*read), {});
    ASSERT_TRUE(again);
    EXPECT_EQ(again->text, read->text);
    EXPECT_EQ(again->formats, read->formats);
  }
}

TEST(Rtf, KeepsEveryProperty) {
  RichFormat format;
  format.font = {u"Courier New", 10.5, true, true, true, true};
  format.colour = 0x123456;
  format.alignment = Alignment::Right;
  RichContent content{u"a\r\nb", {format, format, format, RichFormat{}}};
  const auto again = ReadRtf(WriteRtf(content), {});
  ASSERT_TRUE(again);
  EXPECT_EQ(again->formats, content.formats);
}

TEST(Rtf, EveryTruncationIsReadOnceItSaysWhatItIs) {
  const std::string_view whole =
      R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}{\colortbl ;\red1;}\f0\cf1\u8364?\'e4\b x\par})";
  for (std::size_t n = 0; n < whole.size(); ++n) {
    SCOPED_TRACE(n);
    const auto read = ReadRtf(whole.substr(0, n), {});
    ASSERT_EQ(read.has_value(), n >= std::string_view("{\\rtf").size());
    if (!read) continue;
    EXPECT_EQ(read->text.size(), read->formats.size());
  }
}

}  // namespace
}  // namespace platform
