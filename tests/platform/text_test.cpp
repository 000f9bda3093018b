#include "platform/text.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(Text, LettersFindTheirOtherCaseAndBack) {
  const std::pair<char16_t, char16_t> letters[] = {
      {u'A', u'a'}, {u'Ä', u'ä'}, {u'Ÿ', u'ÿ'}, {u'Œ', u'œ'}, {u'Ň', u'ň'}, {u'Ž', u'ž'},
      {u'Σ', u'σ'}, {u'Ό', u'ό'}, {u'Я', u'я'}, {u'Џ', u'џ'}, {u'Ứ', u'ứ'}};
  for (const auto& [upper, lower] : letters) {
    EXPECT_EQ(LowerUnit(upper), lower) << ToUtf8({&upper, 1});
    EXPECT_EQ(UpperUnit(lower), upper) << ToUtf8({&lower, 1});
  }
  for (const char16_t other : u"×÷ßſı1_[{€\xD83D") {
    EXPECT_EQ(LowerUnit(other), other) << ToUtf8({&other, 1});
    EXPECT_EQ(UpperUnit(other), other) << ToUtf8({&other, 1});
  }
  EXPECT_EQ(Upper(u"größe 5 €"), u"GRÖßE 5 €");
  for (char32_t unit = 0; unit < 0x10000; ++unit) {
    const auto letter = static_cast<char16_t>(unit);
    EXPECT_EQ(LowerUnit(LowerUnit(letter)), LowerUnit(letter)) << int(unit);
  }
}

TEST(Text, FindAndReplaceHonourTheCase) {
  EXPECT_EQ(Find(u"%Tag% %TAG%", u"%TAG%", Case::Exact), 6u);
  EXPECT_EQ(Find(u"%Tag% %TAG%", u"%TAG%", Case::Ignore), 0u);
  EXPECT_EQ(Find(u"%Tag% %TAG%", u"%tag%", Case::Ignore, 1), 6u);
  EXPECT_EQ(Find(u"ab", u"abc", Case::Ignore), std::u16string_view::npos);
  EXPECT_EQ(Find(u"ab", u"b", Case::Ignore, 3), std::u16string_view::npos);
  EXPECT_EQ(ReplaceAll(u"aAa", u"a", u"aa"), u"aaAaa");
  EXPECT_EQ(ReplaceAll(u"aAa", u"A", u"", Case::Ignore), u"");
  EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"b"), u"ba");
  EXPECT_EQ(ReplaceAll(u"abc", u"", u"x"), u"abc");
}

TEST(Text, TrimTakesBlanksOnly) {
  EXPECT_EQ(Trim(u"  a b \t "), u"a b \t");
  EXPECT_EQ(Trim(u"   "), u"");
}

TEST(Text, Utf8GoesBothWaysAndMarksWhatIsIllFormed) {
  const std::u16string text = u"aß€😀";
  EXPECT_EQ(ToUtf8(text), "a\xC3\x9F\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
  EXPECT_EQ(ToUtf8(u"\xDE00x"), "\xEF\xBF\xBDx");

  const std::pair<std::string_view, std::u16string_view> illFormed[] = {
      {"\xFFz", u"\xFFFDz"},             // no lead byte
      {"\xE2\x82", u"\xFFFD"},           // cut off
      {"\xE2x", u"\xFFFDx"},             // the tail is missing
      {"\xC0\xAFz", u"\xFFFDz"},         // longer than needed
      {"\xED\xA0\x80z", u"\xFFFDz"},     // a surrogate
      {"\xF4\x90\x80\x80z", u"\xFFFDz"}  // beyond the last character
  };
  for (const auto& [bytes, expected] : illFormed) EXPECT_EQ(FromUtf8(bytes), expected);
}

}  // namespace
}  // namespace platform
