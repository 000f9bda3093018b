#include "colours/notations.h"

#include <gtest/gtest.h>

#include "platform/text.h"

namespace dorvalin {
namespace {

constexpr Notation kAll[] = {Notation::Html,        Notation::C,      Notation::Java,
                             Notation::VisualBasic, Notation::Delphi, Notation::Triple,
                             Notation::Decimal};

TEST(Notations, WriteAColourInSevenWays) {
  const std::u16string_view expected[] = {u"#FF8000",   u"0x0080FF",    u"0xFF8000", u"&H0080FF&",
                                          u"$000080FF", u"255\t128\t0", u"33023"};
  for (const auto style : kAll) {
    EXPECT_EQ(ColorToText({255, 128, 0}, style), expected[static_cast<int>(style)]);
  }
}

TEST(Notations, ReadTheColoursBackThatTheyWrote) {
  constexpr std::int32_t kStep = 97;  // hits every value of every channel
  for (const auto style : kAll) {
    for (std::int32_t value = 0; value <= 0xFFFFFF; value += kStep) {
      const auto written = ColorToText(Rgb::Of(value), style);
      ASSERT_EQ(TextToColor(written, style), Rgb::Of(value)) << platform::ToUtf8(written);
    }
  }
}

constexpr auto kInvalid = std::nullopt;

struct Spelling {
  Notation style;
  std::u16string_view text;
  std::optional<Rgb> color;
};

constexpr Spelling kSpellings[] = {
    // HTML fills up from the left,
    {Notation::Html, u"#000000", Rgb{0, 0, 0}},
    {Notation::Html, u"#ff8000", Rgb{255, 128, 0}},
    {Notation::Html, u"#F", Rgb{15, 0, 0}},
    {Notation::Html, u"#FF8", Rgb{255, 8, 0}},
    {Notation::Html, u"#FF80001234", Rgb{255, 128, 0}},
    {Notation::Html, u"#", kInvalid},
    {Notation::Html, u"FF8000", kInvalid},
    {Notation::Html, u" #FF8000", kInvalid},
    {Notation::Html, u"#FG8000", kInvalid},
    {Notation::Html, u"#FF80-1", kInvalid},
    {Notation::Html, u"#FF 000", kInvalid},
    // Java from the right.
    {Notation::Java, u"0xFF8000", Rgb{255, 128, 0}},
    {Notation::Java, u"0xFF", Rgb{0, 0, 255}},
    {Notation::Java, u"0x1FF", Rgb{0, 1, 255}},
    {Notation::Java, u"0x", Rgb{0, 0, 0}},
    {Notation::Java, u"0xFF8000FF", Rgb{255, 128, 0}},
    {Notation::Java, u"0XFF8000", kInvalid},
    {Notation::Java, u"0", kInvalid},
    {Notation::Java, u"0xGG", kInvalid},
    // C, Basic and Delphi read one number.
    {Notation::C, u"0X0080ff", Rgb{255, 128, 0}},
    {Notation::C, u"0xFFFF", Rgb{255, 255, 0}},
    {Notation::C, u"0x", kInvalid},
    {Notation::C, u"0x1000000", kInvalid},
    {Notation::C, u"0xFFFFFFFF", kInvalid},
    {Notation::C, u"0x000000FF0", kInvalid},  // nine digits
    {Notation::VisualBasic, u"&h80ff", Rgb{255, 128, 0}},
    {Notation::VisualBasic, u"&HFFFF", Rgb{255, 255, 0}},
    {Notation::VisualBasic, u"&HFF&&", kInvalid},
    {Notation::VisualBasic, u"&H&", kInvalid},
    {Notation::VisualBasic, u"&H", kInvalid},
    {Notation::VisualBasic, u"&", kInvalid},
    {Notation::Delphi, u"$FF", Rgb{255, 0, 0}},
    {Notation::Delphi, u"$00FF0000", Rgb{0, 0, 255}},
    {Notation::Delphi, u"$01000000", kInvalid},
    {Notation::Delphi, u"$80000000", kInvalid},
    {Notation::Delphi, u"$", kInvalid},
    {Notation::Delphi, u"$FF FF", kInvalid},
    // Decimal numbers have their ranges.
    {Notation::Triple, u"12", Rgb{12, 0, 0}},
    {Notation::Triple, u"12\t13", Rgb{12, 13, 0}},
    {Notation::Triple, u" 1 \t2\t3", Rgb{1, 2, 3}},
    {Notation::Triple, u"256\t1\t1", kInvalid},
    {Notation::Triple, u"1\t-1\t1", kInvalid},
    {Notation::Triple, u"1\t2\t3\t4", kInvalid},
    {Notation::Triple, u"1\t\t3", kInvalid},
    {Notation::Triple, u"1\t", kInvalid},
    {Notation::Triple, u"1\t2\t3\t", kInvalid},
    {Notation::Triple, u"99999999999999999999", kInvalid},
    {Notation::Decimal, u"16777215", Rgb{255, 255, 255}},
    {Notation::Decimal, u"16777216", kInvalid},
    {Notation::Decimal, u"-1", kInvalid},
    {Notation::Decimal, u"4294967297", kInvalid},
    {Notation::Decimal, u"12a", kInvalid},
};

TEST(Notations, ReadWhatUsersSpell) {
  for (const auto& [style, text, color] : kSpellings) {
    EXPECT_EQ(TextToColor(text, style), color) << int(style) << ' ' << platform::ToUtf8(text);
  }
  for (const auto style : kAll) {
    EXPECT_EQ(TextToColor(u"", style), kInvalid) << int(style);
    EXPECT_EQ(TextToColor(u"abc", style), kInvalid) << int(style);
  }
}

TEST(Notations, ANumberThatIsNoNotationReadsAndWritesNothing) {
  const auto none = static_cast<Notation>(7);
  EXPECT_EQ(ColorToText({1, 2, 3}, none), u"");
  EXPECT_EQ(TextToColor(u"1", none), std::nullopt);
}

}  // namespace
}  // namespace dorvalin
