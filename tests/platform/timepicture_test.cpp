#include "platform/timepicture.h"

#include <gtest/gtest.h>

#include "platform/text.h"

namespace platform {
namespace {

TEST(TimePicture, HoursCountToTwelveOrToTwentyFour) {
  struct Case {
    int hour;
    const char16_t* picture;
    const char16_t* expected;
  };
  const Case kCases[] = {
      {15, u"h:mm tt", u"3:05 PM"},
      {9, u"hh:mm:ss tt", u"09:05:02 AM"},
      {0, u"h:mm", u"12:05"},
      {0, u"H:mm tt", u"0:05 AM"},
      {12, u"h tt", u"12 PM"},
      {15, u"HHmm", u"1505"},
      {7, u"HH:m:s", u"07:5:2"},
      {15, u"H 'Uhr' mm", u"15 Uhr 05"},
      {15, u"'h", u"h"},
      {15, u"d.M. H''", u"d.M. 15"},
      {15, u"", u""},
  };
  for (const auto& [hour, picture, expected] : kCases) {
    const DateTime when{2026, 3, 9, hour, 5, 2, 0};
    EXPECT_EQ(FormatTime(when, picture), expected) << ToUtf8(picture);
  }
}

}  // namespace
}  // namespace platform
