#include "colours/notations.h"

#include <gtest/gtest.h>

#include <future>
#include <vector>

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

// Under the sanitizers a sample has to do; it hits every value of every channel.
#if defined(__SANITIZE_ADDRESS__)
constexpr std::int32_t kStep = 251;
#else
constexpr std::int32_t kStep = 1;
#endif

/// The first colour that a style does not read back; none for a style that is inverse.
std::optional<std::int32_t> FirstLost(Notation style) {
  for (std::int32_t value = 0; value <= 0xFFFFFF; value += kStep) {
    const auto read = TextToColor(ColorToText(Rgb::Of(value), style), style);
    if (!read || read->Value() != value) return value;
  }
  return std::nullopt;
}

TEST(Notations, ReadEveryColourBackThatTheyWrote) {
  std::vector<std::future<std::optional<std::int32_t>>> sweeps;
  for (const auto style : kAll) {
    sweeps.push_back(std::async(std::launch::async, FirstLost, style));
  }
  for (const auto style : kAll) {
    EXPECT_EQ(sweeps[static_cast<std::size_t>(style)].get(), std::nullopt)
        << static_cast<int>(style);
  }
}

struct Spelling {
  std::u16string_view text;
  std::optional<Rgb> color;
};

void ExpectSpellings(Notation style, std::initializer_list<Spelling> spellings) {
  for (const auto& [text, color] : spellings) {
    const auto read = TextToColor(text, style);
    EXPECT_EQ(read, color) << static_cast<int>(style) << " \"" << platform::ToUtf8(text) << '"';
  }
}

constexpr auto kInvalid = std::nullopt;

TEST(Notations, HtmlFillsUpFromTheLeft) {
  ExpectSpellings(Notation::Html, {
                                      {u"#000000", Rgb{0, 0, 0}},
                                      {u"#ff8000", Rgb{255, 128, 0}},
                                      {u"#F", Rgb{15, 0, 0}},
                                      {u"#FF8", Rgb{255, 8, 0}},
                                      {u"#FF80001234", Rgb{255, 128, 0}},
                                      {u"#", kInvalid},
                                      {u"", kInvalid},
                                      {u"abc", kInvalid},
                                      {u"FF8000", kInvalid},
                                      {u" #FF8000", kInvalid},
                                      {u"#FG8000", kInvalid},
                                      {u"#FF80-1", kInvalid},
                                      {u"#FF 000", kInvalid},
                                  });
}

TEST(Notations, JavaFillsUpFromTheRight) {
  ExpectSpellings(Notation::Java, {
                                      {u"0xFF8000", Rgb{255, 128, 0}},
                                      {u"0xFF", Rgb{0, 0, 255}},
                                      {u"0x1FF", Rgb{0, 1, 255}},
                                      {u"0x", Rgb{0, 0, 0}},
                                      {u"0xFF8000FF", Rgb{255, 128, 0}},
                                      {u"0XFF8000", kInvalid},
                                      {u"0", kInvalid},
                                      {u"", kInvalid},
                                      {u"abc", kInvalid},
                                      {u"0xGG", kInvalid},
                                  });
}

TEST(Notations, CBasicAndDelphiReadOneNumber) {
  ExpectSpellings(Notation::C, {
                                   {u"0x0080FF", Rgb{255, 128, 0}},
                                   {u"0X0080ff", Rgb{255, 128, 0}},
                                   {u"0xFFFF", Rgb{255, 255, 0}},
                                   {u"0x", kInvalid},
                                   {u"0x1000000", kInvalid},
                                   {u"0xFFFFFFFF", kInvalid},
                                   {u"0x000000FF0", kInvalid},  // nine digits
                                   {u"abc", kInvalid},
                                   {u"", kInvalid},
                               });
  ExpectSpellings(Notation::VisualBasic, {
                                             {u"&H0080FF&", Rgb{255, 128, 0}},
                                             {u"&h80ff", Rgb{255, 128, 0}},
                                             {u"&HFFFF", Rgb{255, 255, 0}},
                                             {u"&HFF&&", kInvalid},
                                             {u"&H&", kInvalid},
                                             {u"&H", kInvalid},
                                             {u"&", kInvalid},
                                             {u"abc", kInvalid},
                                             {u"", kInvalid},
                                         });
  ExpectSpellings(Notation::Delphi, {
                                        {u"$FF", Rgb{255, 0, 0}},
                                        {u"$00FF0000", Rgb{0, 0, 255}},
                                        {u"$FFFF", Rgb{255, 255, 0}},
                                        {u"$01000000", kInvalid},
                                        {u"$80000000", kInvalid},
                                        {u"$", kInvalid},
                                        {u"$FF FF", kInvalid},
                                        {u"abc", kInvalid},
                                        {u"", kInvalid},
                                    });
}

TEST(Notations, DecimalNumbersHaveTheirRanges) {
  ExpectSpellings(Notation::Triple, {
                                        {u"255\t128\t0", Rgb{255, 128, 0}},
                                        {u"12", Rgb{12, 0, 0}},
                                        {u"12\t13", Rgb{12, 13, 0}},
                                        {u" 1 \t2\t3", Rgb{1, 2, 3}},
                                        {u"256\t1\t1", kInvalid},
                                        {u"1\t-1\t1", kInvalid},
                                        {u"1\t2\t3\t4", kInvalid},
                                        {u"1\t\t3", kInvalid},
                                        {u"1\t", kInvalid},
                                        {u"1\t2\t3\t", kInvalid},
                                        {u"99999999999999999999", kInvalid},
                                        {u"rot", kInvalid},
                                        {u"", kInvalid},
                                    });
  ExpectSpellings(Notation::Decimal, {
                                         {u"33023", Rgb{255, 128, 0}},
                                         {u"0", Rgb{0, 0, 0}},
                                         {u"16777215", Rgb{255, 255, 255}},
                                         {u"16777216", kInvalid},
                                         {u"-1", kInvalid},
                                         {u"4294967297", kInvalid},
                                         {u"12a", kInvalid},
                                         {u"", kInvalid},
                                     });
}

TEST(Notations, ANumberThatIsNoNotationReadsAndWritesNothing) {
  const auto none = static_cast<Notation>(7);
  EXPECT_EQ(ColorToText({1, 2, 3}, none), u"");
  EXPECT_EQ(TextToColor(u"1", none), std::nullopt);
}

}  // namespace
}  // namespace dorvalin
