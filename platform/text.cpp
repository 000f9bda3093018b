#include "platform/text.h"

#include <algorithm>

#include "platform/letters.h"

namespace platform {
namespace {

constexpr LetterTable kToLower = MakeLetterTable(true);
constexpr LetterTable kToUpper = MakeLetterTable(false);

bool EqualIgnoringCase(std::u16string_view a, std::u16string_view b) {
  return std::ranges::equal(a, b, {}, LowerUnit, LowerUnit);
}

}  // namespace

char16_t LowerUnit(char16_t unit) { return unit < kLettersEnd ? kToLower[unit] : unit; }
char16_t UpperUnit(char16_t unit) { return unit < kLettersEnd ? kToUpper[unit] : unit; }

std::u16string Lower(std::u16string_view text) {
  std::u16string result(text);
  std::ranges::transform(result, result.begin(), LowerUnit);
  return result;
}

std::u16string Upper(std::u16string_view text) {
  std::u16string result(text);
  std::ranges::transform(result, result.begin(), UpperUnit);
  return result;
}

std::u16string_view Trim(std::u16string_view text) {
  while (text.starts_with(u' ')) text.remove_prefix(1);
  while (text.ends_with(u' ')) text.remove_suffix(1);
  return text;
}

std::size_t Find(std::u16string_view text, std::u16string_view what, Case compare,
                 std::size_t from) {
  if (compare == Case::Exact || what.empty()) return text.find(what, from);
  const char16_t first = LowerUnit(what[0]);
  const char16_t firstUpper = UpperUnit(first);
  for (auto at = from; at + what.size() <= text.size(); ++at) {
    const char16_t unit = text[at];
    const bool mayBeHere = unit == first || unit == firstUpper;
    if (mayBeHere && EqualIgnoringCase(text.substr(at, what.size()), what)) return at;
  }
  return text.npos;
}

std::u16string ReplaceAll(std::u16string_view text, std::u16string_view what,
                          std::u16string_view by, Case compare) {
  if (what.empty()) return std::u16string(text);
  std::u16string result;
  std::size_t done = 0;
  for (auto hit = Find(text, what, compare); hit != text.npos;
       hit = Find(text, what, compare, done)) {
    result.append(text, done, hit - done).append(by);
    done = hit + what.size();
  }
  return result.append(text, done);
}

}  // namespace platform
