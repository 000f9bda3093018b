#include "platform/memory/MemoryLocale.h"

#include <array>

#include "platform/text.h"

namespace platform {
namespace {

struct CalendarNames {
  std::array<std::u16string_view, 12> months;
  std::array<std::u16string_view, 7> days;  ///< Monday first
  std::size_t shortDay;                     ///< length of a day's short name
};

constexpr CalendarNames kGerman{
    {u"Januar", u"Februar", u"März", u"April", u"Mai", u"Juni", u"Juli", u"August", u"September",
     u"Oktober", u"November", u"Dezember"},
    {u"Montag", u"Dienstag", u"Mittwoch", u"Donnerstag", u"Freitag", u"Samstag", u"Sonntag"},
    2};
constexpr CalendarNames kEnglish{
    {u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August", u"September",
     u"October", u"November", u"December"},
    {u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday", u"Sunday"},
    3};

std::u16string Digits(int number, std::size_t width = 1) {
  const std::string digits = std::to_string(number);
  std::u16string result(digits.size() < width ? width - digits.size() : 0, u'0');
  return result.append(digits.begin(), digits.end());
}

std::u16string DayField(const DateTime& when, std::size_t width, const CalendarNames& names) {
  if (width <= 2) return Digits(when.day, width);
  const auto name = names.days[static_cast<std::size_t>(DayOfWeek(when) - 1)];
  return std::u16string(width == 3 ? name.substr(0, names.shortDay) : name);
}

std::u16string MonthField(const DateTime& when, std::size_t width, const CalendarNames& names) {
  if (width <= 2) return Digits(when.month, width);
  const auto name = names.months[static_cast<std::size_t>(when.month - 1)];
  return std::u16string(width == 3 ? name.substr(0, 3) : name);
}

std::u16string YearField(const DateTime& when, std::size_t width) {
  return width <= 2 ? Digits(when.year % 100, width) : Digits(when.year, 4);
}

/// The text in quotes that begins at `at`; moves behind its end.
std::u16string_view Quoted(std::u16string_view picture, std::size_t& at) {
  const auto begin = at + 1;
  const auto end = std::min(picture.find(u'\'', begin), picture.size());
  at = end + 1;
  return picture.substr(begin, end - begin);
}

std::u16string RenderDate(const DateTime& when, std::u16string_view picture,
                          const CalendarNames& names) {
  std::u16string result;
  for (std::size_t at = 0; at < picture.size();) {
    const char16_t letter = picture[at];
    if (letter == u'\'') {
      result += Quoted(picture, at);
      continue;
    }
    const auto end = std::min(picture.find_first_not_of(letter, at), picture.size());
    const auto width = end - at;
    if (letter == u'd') {
      result += DayField(when, width, names);
    } else if (letter == u'M') {
      result += MonthField(when, width, names);
    } else if (letter == u'y') {
      result += YearField(when, width);
    } else {
      result += picture.substr(at, width);
    }
    at = end;
  }
  return result;
}

std::u16string RenderTime(const DateTime& when, bool seconds, bool german) {
  const int hour = german ? when.hour : (when.hour + 11) % 12 + 1;
  std::u16string result = Digits(hour, german ? 2 : 1) + u":" + Digits(when.minute, 2);
  if (seconds) result += u":" + Digits(when.second, 2);
  if (!german) result += when.hour < 12 ? u" AM" : u" PM";
  return result;
}

}  // namespace

NumberFormat MemoryLocale::Numbers() {
  return German() ? NumberFormat{u',', u'.'} : NumberFormat{u'.', u','};
}

std::u16string MemoryLocale::FormatDate(const DateTime& when, std::u16string_view picture) {
  return RenderDate(when, picture, German() ? kGerman : kEnglish);
}

std::u16string MemoryLocale::LongDate(const DateTime& when) {
  return FormatDate(when, German() ? u"dddd, d. MMMM yyyy" : u"dddd, MMMM d, yyyy");
}

std::u16string MemoryLocale::ShortDate(const DateTime& when) {
  return FormatDate(when, German() ? u"dd.MM.yyyy" : u"M/d/yyyy");
}

std::u16string MemoryLocale::LongTime(const DateTime& when) {
  return RenderTime(when, true, German());
}

std::u16string MemoryLocale::ShortTime(const DateTime& when) {
  return RenderTime(when, false, German());
}

std::string MemoryLocale::ToAnsi(std::u16string_view text) { return ToWindows1252(text); }
std::u16string MemoryLocale::FromAnsi(std::string_view bytes) { return FromWindows1252(bytes); }

}  // namespace platform
