#include "calculator/TermMap.h"

#include <algorithm>

namespace dorvalin {
namespace {

// Behind one of these a + or - is a sign; a capital E is that of a number's exponent.
bool MakesSign(char16_t before) { return before == u'E' || TermMap::LevelOf(before) != 0; }

bool IsPlain(char16_t unit) {
  return (unit >= u'*' && unit <= u'9') || unit == u' ' || TermMap::LevelOf(unit) == 2;
}

int DepthStep(char16_t unit) { return unit == u'(' ? 1 : unit == u')' ? -1 : 0; }

}  // namespace

TermMap::ByDepth::ByDepth(int length, int none, std::pmr::memory_resource* memory)
    : length_(length), entries_(2 * static_cast<std::size_t>(length) + 1, none, memory) {}

TermMap::TermMap(std::u16string_view text, std::pmr::memory_resource* memory)
    : places_(text.size() + 1, memory) {
  MarkCuts(text, memory);
  MarkGroups(text, memory);
}

int TermMap::LevelOf(char16_t unit) {
  switch (unit) {
    case u'+':
    case u'-':
      return 1;
    case u'*':
    case u'/':
    case u'×':
    case u'÷':
    case u'§':
      return 2;
    case u'^':
      return 3;
    default:
      return 0;
  }
}

bool TermMap::Balances(Range range) const { return At(range.begin).depth == At(range.end).depth; }

int TermMap::LastCut(Range range, int level) const {
  const int cut = At(range.end).lastCut[static_cast<std::size_t>(level - 1)];
  return cut > range.begin ? cut : -1;
}

int TermMap::FirstWord(Range range) const { return std::min(At(range.begin).nextWord, range.end); }

int TermMap::FirstGroup(Range range) const {
  return std::min(At(range.begin).nextGroup, range.end);
}

int TermMap::GroupEnd(int open) const { return At(open).nextAtDepth; }

// From left to right: a place knows the cuts that the last place of its depth knew, and the
// operator in between.
void TermMap::MarkCuts(std::u16string_view text, std::pmr::memory_resource* memory) {
  ByDepth last(Length(), -1, memory);
  last[0] = 0;
  char16_t before = 0;  // Blanks do not part an operator from its sign.
  for (int i = 0; i < Length(); ++i) {
    const char16_t unit = text[static_cast<std::size_t>(i)];
    Place& place = At(i + 1);
    place.depth = At(i).depth + DepthStep(unit);
    if (const int known = last[place.depth]; known >= 0) place.lastCut = At(known).lastCut;
    const int level = LevelOf(unit);
    if (level > 1 || (level == 1 && !MakesSign(before)))
      place.lastCut[static_cast<std::size_t>(level - 1)] = i;
    last[place.depth] = i + 1;
    if (unit != u' ') before = unit;
  }
}

// From right to left, in the same way.
void TermMap::MarkGroups(std::u16string_view text, std::pmr::memory_resource* memory) {
  const int none = Length() + 1;
  ByDepth next(Length(), none, memory);
  for (int i = Length(); i >= 0; --i) {
    Place& place = At(i);
    place.nextAtDepth = next[place.depth];
    place.nextGroup = place.nextAtDepth < none ? At(place.nextAtDepth).nextGroup : none;
    place.nextWord = i < Length() ? At(i + 1).nextWord : none;
    next[place.depth] = i;
    if (i == Length()) continue;
    const char16_t unit = text[static_cast<std::size_t>(i)];
    if (unit == u'(') place.nextGroup = i;
    if (!IsPlain(unit)) place.nextWord = i;
  }
}

}  // namespace dorvalin
