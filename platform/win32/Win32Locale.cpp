#include "platform/win32/Win32Locale.h"

#include <algorithm>
#include <cmath>

#include "platform/singlebyte.h"
#include "platform/win32/times.h"
#include "platform/win32/wide.h"

namespace platform {
namespace {

// Pictures and texts of the regional settings are short; longer ones are not rendered.
constexpr int kRoom = 512;

char16_t SettingOr(LCTYPE which, char16_t otherwise) {
  wchar_t text[kRoom] = {};
  const int length = ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, which, text, kRoom);
  return length > 1 ? static_cast<char16_t>(text[0]) : otherwise;
}

std::u16string Date(const DateTime& when, DWORD flags, const wchar_t* picture) {
  const SYSTEMTIME time = SystemTimeOf(when);
  wchar_t text[kRoom] = {};
  ::GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, flags, &time, picture, text, kRoom, nullptr);
  return Text(text);
}

std::u16string Time(const DateTime& when, DWORD flags) {
  const SYSTEMTIME time = SystemTimeOf(when);
  wchar_t text[kRoom] = {};
  ::GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, flags, &time, nullptr, text, kRoom);
  return Text(text);
}

/// What a text says of a day and a time, as the days since the one that the system counts from.
std::optional<DATE> DaysOf(std::u16string_view text) {
  // Not constant for the sake of the system's type; it does not write.
  std::u16string own(text);
  DATE days = 0;
  if (FAILED(::VarDateFromStr(WideBuffer(own), LOCALE_USER_DEFAULT, 0, &days))) return {};
  return days;
}

/// The calendar's day of such a number; none before the calendar's first.
std::optional<DateTime> DateOf(DATE days) {
  constexpr double kFirstDay = -109205;
  constexpr std::uint64_t kTicksPerDay = 864'000'000'000;
  // The time of day is the fraction on both sides of zero, never a part of the whole number.
  const double day = std::trunc(days) - kFirstDay;
  if (day < 0) return {};
  const std::uint64_t ticks = static_cast<std::uint64_t>(day) * kTicksPerDay;
  const FILETIME time{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
  SYSTEMTIME parts{};
  if (!::FileTimeToSystemTime(&time, &parts)) return {};
  return DateTimeOf(parts);
}

DateTime TimeOf(DATE days) {
  const long seconds = std::lround(std::abs(days - std::trunc(days)) * 24 * 60 * 60);
  DateTime time;
  time.hour = static_cast<int>(seconds / 3600);
  time.minute = static_cast<int>(seconds / 60 % 60);
  time.second = static_cast<int>(seconds % 60);
  return time;
}

/// The page on which every byte is one character: the machine's own, or Western European where that
/// one has characters of several bytes.
UINT SingleBytePage() {
  constexpr UINT kWesternEuropean = 1252;
  CPINFO info{};
  return ::GetCPInfo(CP_ACP, &info) && info.MaxCharSize == 1 ? CP_ACP : kWesternEuropean;
}

char16_t UnitOf(UINT page, char byte) {
  wchar_t unit = 0;
  ::MultiByteToWideChar(page, 0, &byte, 1, &unit, 1);
  return static_cast<char16_t>(unit);
}

}  // namespace

Win32Locale::Win32Locale() {
  const UINT page = SingleBytePage();
  for (std::size_t i = 0; i < units_.size(); ++i) {
    const char byte = static_cast<char>(i);
    units_[i] = UnitOf(page, byte);
    bytes_[i] = {units_[i], byte};
  }
  std::ranges::sort(bytes_);
}

NumberFormat Win32Locale::Numbers() {
  return {SettingOr(LOCALE_SDECIMAL, u','), SettingOr(LOCALE_STHOUSAND, u'.')};
}

std::u16string Win32Locale::FormatDate(const DateTime& when, std::u16string_view picture) {
  return picture.empty() ? std::u16string() : Date(when, 0, Terminated(picture));
}

std::u16string Win32Locale::LongDate(const DateTime& when) {
  return Date(when, DATE_LONGDATE, nullptr);
}

std::u16string Win32Locale::ShortDate(const DateTime& when) {
  return Date(when, DATE_SHORTDATE, nullptr);
}

std::u16string Win32Locale::LongTime(const DateTime& when) { return Time(when, 0); }

std::u16string Win32Locale::ShortTime(const DateTime& when) { return Time(when, TIME_NOSECONDS); }

std::optional<DateTime> Win32Locale::ParseDate(std::u16string_view text) {
  const auto days = DaysOf(text);
  // A time alone is read as one of the day that the system counts from.
  const bool namesDate = days && std::trunc(*days) != 0;
  return namesDate ? DateOf(*days) : std::nullopt;
}

std::optional<DateTime> Win32Locale::ParseTime(std::u16string_view text) {
  const auto days = DaysOf(text);
  return days ? std::optional(TimeOf(*days)) : std::nullopt;
}

char Win32Locale::ByteOf(char16_t unit) const {
  const auto at = std::ranges::lower_bound(bytes_, std::pair{unit, char{}},
                                           [](auto a, auto b) { return a.first < b.first; });
  return at != bytes_.end() && at->first == unit ? at->second : '?';
}

std::string Win32Locale::ToAnsi(std::u16string_view text) {
  return ToSingleByte(text, [this](char16_t unit) { return ByteOf(unit); });
}

std::u16string Win32Locale::FromAnsi(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  std::ranges::transform(bytes, text.begin(),
                         [this](char byte) { return units_[static_cast<unsigned char>(byte)]; });
  return text;
}

}  // namespace platform
