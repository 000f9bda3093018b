#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <string>

#include "platform/text.h"

namespace platform {
namespace {

constexpr NumberFormat kGerman{u',', u'.'};
constexpr NumberFormat kEnglish{u'.', u','};
constexpr NumberFormat kFrench{u',', u'\u00A0'};

struct ReadCase {
  const char* label;
  std::u16string text;
  std::optional<double> german;
  std::optional<double> english;
};

TEST(ParseNumber, ReadsTheUsersSpelling) {
  const std::u16string zeros(400, u'0');
  const double kLargest = std::numeric_limits<double>::max();
  const double kSmallest = std::numeric_limits<double>::denorm_min();
  const ReadCase kCases[] = {
      {"digits", u"42", 42, 42},
      {"comma", u"2,5", 2.5, 25},
      {"point", u"2.5", 25, 2.5},
      {"grouping", u"1.234.567,25", 1234567.25, std::nullopt},
      {"grouping behind the decimal separator", u"1,234.567", std::nullopt, 1234.567},
      {"grouping that is not in threes", u"1.2.3", 123, std::nullopt},
      {"grouping in front", u".5", std::nullopt, .5},
      {"no zero in front", u",5", .5, std::nullopt},
      {"nothing behind the separator", u"5,", 5, 5},
      {"separator only", u",", std::nullopt, std::nullopt},
      {"signs", u"-5", -5, -5},
      {"plus", u"+5", 5, 5},
      {"two signs", u"-+5", std::nullopt, std::nullopt},
      {"two pluses", u"++5", std::nullopt, std::nullopt},
      {"sign only", u"-", std::nullopt, std::nullopt},
      {"blanks at the ends", u"  7 ", 7, 7},
      {"blanks inside", u"1 2", std::nullopt, std::nullopt},
      {"exponents", u"1E3", 1000, 1000},
      {"small e", u"25e-2", .25, .25},
      {"exponent with plus", u"1E+3", 1000, 1000},
      {"exponent without digits", u"1E", std::nullopt, std::nullopt},
      {"exponent with a sign only", u"1E+", std::nullopt, std::nullopt},
      {"exponent alone", u"E5", std::nullopt, std::nullopt},
      {"nothing", u"", std::nullopt, std::nullopt},
      {"words", u"inf", std::nullopt, std::nullopt},
      {"no number either", u"nan", std::nullopt, std::nullopt},
      {"hexadecimal", u"0x10", std::nullopt, std::nullopt},
      {"digits of other scripts", u"\u0661\uFF11", std::nullopt, std::nullopt},
      {"nearest to what is written", u"9007199254740993", 9007199254740992, 9007199254740992},
      {"largest", u"17976931348623157E292", kLargest, kLargest},
      {"too large", u"18E307", std::nullopt, std::nullopt},
      {"too large, written out", u"1" + zeros, std::nullopt, std::nullopt},
      {"far too large", u"1E99999999999999999999", std::nullopt, std::nullopt},
      {"long, but not too large", u"1" + zeros + u"E-400", 1, 1},
      {"smallest", u"49E-325", kSmallest, kSmallest},
      {"too small", u"1E-400", 0, 0},
      {"too small, written out", u"0," + zeros + u"1", 0, 1},
      {"far too small", u"-1E-99999999999999999999", 0, 0},
      {"long, but not too small", u"0," + zeros + u"1E401", 1, std::nullopt},
      {"zero with any exponent", u"0E99999999999999999999", 0, 0},
  };
  for (const ReadCase& row : kCases) {
    SCOPED_TRACE(row.label);
    EXPECT_EQ(ParseNumber(row.text, kGerman), row.german);
    EXPECT_EQ(ParseNumber(row.text, kEnglish), row.english);
  }
  EXPECT_EQ(ParseNumber(u"1\u00A0234,5", kFrench), 1234.5);
}

struct WriteCase {
  double value;
  const char16_t* text;
};

TEST(FormatNumber, WritesFifteenDigitsAtMost) {
  const WriteCase kCases[] = {
      {0, u"0"},
      {-0.0, u"0"},
      {7, u"7"},
      {-2.5, u"-2,5"},
      {0.1 + 0.2, u"0,3"},
      {1234567.25, u"1234567,25"},
      {1.0 / 3, u"0,333333333333333"},
      {2.0 / 3, u"0,666666666666667"},
      {100, u"100"},
      {123456789012345, u"123456789012345"},
      {999999999999999, u"999999999999999"},
      {1e15, u"1E+15"},
      {999999999999999.9, u"1E+15"},
      {-1.5e300, u"-1,5E+300"},
      {0.0001, u"0,0001"},
      {0.00001, u"1E-05"},
      {1.25e-300, u"1,25E-300"},
  };
  for (const WriteCase& row : kCases) EXPECT_EQ(FormatNumber(row.value, kGerman), row.text);
  EXPECT_EQ(FormatNumber(-2.5, kEnglish), u"-2.5");
}

TEST(FormatNumber, IsReadBackToFifteenDigits) {
  std::mt19937_64 chance(1);
  for (int i = 0; i < 20000; ++i) {
    const double value =
        std::ldexp(static_cast<double>(chance() >> 11), static_cast<int>(chance() % 1950) - 1020);
    const auto text = FormatNumber(value, kGerman);
    const auto read = ParseNumber(text, kGerman);
    ASSERT_TRUE(read) << ToUtf8(text);
    EXPECT_NEAR(*read / value, 1, 5.1e-15) << ToUtf8(text);
    EXPECT_EQ(FormatNumber(*read, kGerman), text);
  }
}

}  // namespace
}  // namespace platform
