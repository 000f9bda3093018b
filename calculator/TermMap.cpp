#include "calculator/TermMap.h"

#include "calculator/units.h"

namespace dorvalin {
namespace {

// Behind one of these a + or - is a sign; a capital E is that of a number's exponent.
bool MakesSign(char16_t before) { return before == u'E' || KindOf(before).level != 0; }

}  // namespace

TermMap::TermMap(std::u16string_view text, std::pmr::memory_resource* memory)
    : places_(text.size() + 1, memory) {
  MarkBefore(text);
  MarkBehind(text);
}

// Brackets take the depth through fewer values than there are places, so that a place for each of
// them, above and below zero, has its number.
int& TermMap::LastOfDepth(int depth) {
  return At(depth < 0 ? depth + static_cast<int>(places_.size()) : depth).lastOfDepth;
}

// From left to right: a place knows the cuts that the last place of its depth knew, and the
// operator in between. Only at brackets is that place another one than the place before.
void TermMap::MarkBefore(std::u16string_view text) {
  const int length = static_cast<int>(text.size());
  int depth = 0;
  int mark = kNone;
  Cuts cuts = kNoCuts;
  char16_t before = 0;  // Blanks do not part an operator from its sign.
  for (int i = 0; i < length; ++i) {
    const char16_t unit = text[static_cast<std::size_t>(i)];
    const UnitKind kind = KindOf(unit);
    At(i).nextAtDepth = i + 1;
    if (kind.depth != 0) {
      At(i).nextAtDepth = length + 1;
      LastOfDepth(depth) = i;
      depth += kind.depth;
      const int last = LastOfDepth(depth);
      cuts = last == kNone ? kNoCuts : At(last).lastCut;
      if (last != kNone) At(last).nextAtDepth = i + 1;
    }
    if (kind.mark) mark = i;
    const int level = kind.level == 1 && MakesSign(before) ? 0 : kind.level;
    cuts = {level == 1 ? i : cuts[0], level == 2 ? i : cuts[1], level == 3 ? i : cuts[2]};
    Place& next = At(i + 1);
    next.depth = depth;
    next.lastCut = cuts;
    next.lastMark = mark;
    if (unit != u' ') before = unit;
  }
}

// From right to left, in the same way.
void TermMap::MarkBehind(std::u16string_view text) {
  const int length = static_cast<int>(text.size());
  const int beyond = length + 1;
  At(length).nextWord = At(length).nextGroup = beyond;
  int word = beyond, group = beyond;
  for (int i = length - 1; i >= 0; --i) {
    const UnitKind kind = KindOf(text[static_cast<std::size_t>(i)]);
    Place& place = At(i);
    if (kind.depth > 0) group = i;
    if (kind.depth < 0)
      group = place.nextAtDepth == beyond ? beyond : At(place.nextAtDepth).nextGroup;
    if (!kind.plain) word = i;
    place.nextWord = word;
    place.nextGroup = group;
  }
}

}  // namespace dorvalin
