#include "platform/win32/Win32Locale.h"

#include <algorithm>

#include "platform/text.h"
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

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

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

char Win32Locale::ByteOf(char16_t unit) const {
  const auto at = std::ranges::lower_bound(bytes_, std::pair{unit, char{}},
                                           [](auto a, auto b) { return a.first < b.first; });
  return at != bytes_.end() && at->first == unit ? at->second : '?';
}

std::string Win32Locale::ToAnsi(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    bytes.push_back(ByteOf(text[i]));
    // The two units of a pair are one character that the page lacks.
    const bool pair =
        IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    if (pair) ++i;
  }
  return bytes;
}

std::u16string Win32Locale::FromAnsi(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  std::ranges::transform(bytes, text.begin(),
                         [this](char byte) { return units_[static_cast<unsigned char>(byte)]; });
  return text;
}

}  // namespace platform
