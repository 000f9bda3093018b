#include "platform/memory/collation.h"

#include <tuple>

#include "platform/text.h"

namespace platform {
namespace {

// Of the small letters from U+00E0 on.
constexpr std::u16string_view kBaseLetters = u"aaaaaaæceeeeiiiiðnooooo÷ouuuuyþy";

std::u16string Letters(std::u16string_view text) {
  std::u16string letters;
  for (const char16_t unit : text) {
    const char16_t lower = LowerUnit(unit);
    if (lower == u'ß') {
      letters += u"ss";
    } else if (lower >= u'à' && lower <= u'ÿ') {
      letters += kBaseLetters[lower - u'à'];
    } else {
      letters += lower;
    }
  }
  return letters;
}

}  // namespace

bool SortsBefore(std::u16string_view a, std::u16string_view b) {
  // Small letters have the higher codes, so the sides are exchanged for the last word.
  return std::tuple(Letters(a), Lower(a), b) < std::tuple(Letters(b), Lower(b), a);
}

}  // namespace platform
