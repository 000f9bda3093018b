#include "platform/memory/MemoryLocale.h"

#include "platform/memory/moments.h"
#include "platform/text.h"
#include "platform/timepicture.h"

namespace platform {
namespace {

std::u16string DayField(const DateTime& when, std::size_t width, const Calendar& calendar) {
  if (width <= 2) return Digits(when.day, width);
  const auto name = calendar.days[static_cast<std::size_t>(DayOfWeek(when) - 1)];
  return std::u16string(width == 3 ? name.substr(0, calendar.shortDay) : name);
}

std::u16string MonthField(const DateTime& when, std::size_t width, const Calendar& calendar) {
  if (width <= 2) return Digits(when.month, width);
  const auto name = calendar.months[static_cast<std::size_t>(when.month - 1)];
  return std::u16string(width == 3 ? name.substr(0, 3) : name);
}

std::u16string YearField(const DateTime& when, std::size_t width) {
  return width <= 2 ? Digits(when.year % 100, width) : Digits(when.year, 4);
}

std::optional<std::u16string> DateField(const DateTime& when, char16_t letter, std::size_t width,
                                        const Calendar& calendar) {
  switch (letter) {
    case u'd':
      return DayField(when, width, calendar);
    case u'M':
      return MonthField(when, width, calendar);
    case u'y':
      return YearField(when, width);
    default:
      return std::nullopt;
  }
}

}  // namespace

NumberFormat MemoryLocale::Numbers() {
  return German() ? NumberFormat{u',', u'.'} : NumberFormat{u'.', u','};
}

const Calendar& MemoryLocale::CalendarInUse() const {
  return German() ? GermanCalendar() : EnglishCalendar();
}

std::u16string MemoryLocale::FormatDate(const DateTime& when, std::u16string_view picture) {
  return FillPicture(picture, [&](char16_t letter, std::size_t width) {
    return DateField(when, letter, width, CalendarInUse());
  });
}

std::u16string MemoryLocale::LongDate(const DateTime& when) {
  return FormatDate(when, German() ? u"dddd, d. MMMM yyyy" : u"dddd, MMMM d, yyyy");
}

std::u16string MemoryLocale::ShortDate(const DateTime& when) {
  return FormatDate(when, German() ? u"dd.MM.yyyy" : u"M/d/yyyy");
}

std::u16string MemoryLocale::LongTime(const DateTime& when) {
  return FormatTime(when, German() ? u"HH:mm:ss" : u"h:mm:ss tt");
}

std::u16string MemoryLocale::ShortTime(const DateTime& when) {
  return FormatTime(when, German() ? u"HH:mm" : u"h:mm tt");
}

std::optional<DateTime> MemoryLocale::ParseDate(std::u16string_view text) {
  if (faults_.Fails("Locale.ParseDate")) return std::nullopt;
  const auto moment = ReadMoment(text, CalendarInUse(), clock_.Now().year);
  return moment ? moment->date : std::nullopt;
}

std::optional<DateTime> MemoryLocale::ParseTime(std::u16string_view text) {
  if (faults_.Fails("Locale.ParseTime")) return std::nullopt;
  const auto moment = ReadMoment(text, CalendarInUse(), clock_.Now().year);
  return moment ? std::optional(moment->time.value_or(DateTime{})) : std::nullopt;
}

std::string MemoryLocale::ToAnsi(std::u16string_view text) { return ToWindows1252(text); }
std::u16string MemoryLocale::FromAnsi(std::string_view bytes) { return FromWindows1252(bytes); }

}  // namespace platform
