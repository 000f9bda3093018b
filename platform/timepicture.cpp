#include "platform/timepicture.h"

#include <algorithm>

namespace platform {
namespace {

/// The text in quotes that begins at `at`; moves behind its end.
std::u16string_view Quoted(std::u16string_view picture, std::size_t& at) {
  const auto begin = at + 1;
  const auto end = std::min(picture.find(u'\'', begin), picture.size());
  at = end + 1;
  return picture.substr(begin, end - begin);
}

std::optional<std::u16string> TimeField(const DateTime& when, char16_t letter, std::size_t length) {
  switch (letter) {
    case u'h':
      return Digits((when.hour + 11) % 12 + 1, length);
    case u'H':
      return Digits(when.hour, length);
    case u'm':
      return Digits(when.minute, length);
    case u's':
      return Digits(when.second, length);
    case u't':
      return when.hour < 12 ? u"AM" : u"PM";
    default:
      return std::nullopt;
  }
}

}  // namespace

std::u16string FillPicture(std::u16string_view picture, const PictureField& field) {
  std::u16string result;
  for (std::size_t at = 0; at < picture.size();) {
    const char16_t letter = picture[at];
    if (letter == u'\'') {
      result += Quoted(picture, at);
      continue;
    }
    const auto end = std::min(picture.find_first_not_of(letter, at), picture.size());
    const auto run = picture.substr(at, end - at);
    result += field(letter, run.size()).value_or(std::u16string(run));
    at = end;
  }
  return result;
}

std::u16string Digits(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  std::u16string result(digits.size() < width ? width - digits.size() : 0, u'0');
  return result.append(digits.begin(), digits.end());
}

std::u16string FormatTime(const DateTime& when, std::u16string_view picture) {
  return FillPicture(picture, [&when](char16_t letter, std::size_t length) {
    return TimeField(when, letter, length);
  });
}

}  // namespace platform
