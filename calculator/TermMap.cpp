#include "calculator/TermMap.h"

#include <cstdint>

#include "calculator/arithmetic.h"

namespace dorvalin {
namespace {

/// What a character is to the map.
struct Kind {
  std::int8_t level = 0;  ///< of an operator
  std::int8_t depth = 0;  ///< what a bracket adds to it
  bool plain = false;     ///< may belong to numbers and level 2 operators
  bool mark = false;      ///< operator, bracket or postfix
};

constexpr Kind KindOf(char16_t unit) {
  Kind kind;
  kind.level = unit == u'+' || unit == u'-'                                                   ? 1
               : unit == u'*' || unit == u'/' || unit == u'×' || unit == u'÷' || unit == u'§' ? 2
               : unit == u'^'                                                                 ? 3
                                                                                              : 0;
  kind.depth = unit == u'(' ? 1 : unit == u')' ? -1 : 0;
  kind.plain = (unit >= u'*' && unit <= u'9') || unit == u' ' || kind.level == 2;
  kind.mark = kind.level != 0 || kind.depth != 0 || IsPostfix(unit);
  return kind;
}

constexpr std::size_t kKnownUnits = 256;
constexpr auto kKinds = [] {
  std::array<Kind, kKnownUnits> kinds;
  for (std::size_t unit = 0; unit < kKnownUnits; ++unit)
    kinds[unit] = KindOf(static_cast<char16_t>(unit));
  return kinds;
}();

Kind LookUp(char16_t unit) { return unit < kKnownUnits ? kKinds[unit] : Kind{}; }

// Behind one of these a + or - is a sign; a capital E is that of a number's exponent.
bool MakesSign(char16_t before) { return before == u'E' || LookUp(before).level != 0; }

/// A place for each depth that the text can reach; without brackets that is one.
class PlaceByDepth {
 public:
  PlaceByDepth(std::u16string_view text, int none, std::pmr::memory_resource* memory)
      : deepest_(text.find_first_of(u"()") == text.npos ? 0 : text.size()),
        places_(2 * deepest_ + 1, none, memory) {}

  int& operator[](int depth) {
    return places_[deepest_ + static_cast<std::size_t>(static_cast<std::ptrdiff_t>(depth))];
  }

 private:
  std::size_t deepest_;
  std::pmr::vector<int> places_;
};

}  // namespace

int TermMap::LevelOf(char16_t unit) { return LookUp(unit).level; }

TermMap::TermMap(std::u16string_view text, std::pmr::memory_resource* memory)
    : places_(text.size() + 1, memory) {
  MarkCuts(text, memory);
  MarkNext(text, memory);
}

// From left to right: a place knows the cuts that the last place of its depth knew, and the
// operator in between. Only at brackets is that place another one than the place before.
void TermMap::MarkCuts(std::u16string_view text, std::pmr::memory_resource* memory) {
  PlaceByDepth last(text, -1, memory);
  char16_t before = 0;  // Blanks do not part an operator from its sign.
  for (int i = 0; i < Length(); ++i) {
    const char16_t unit = text[static_cast<std::size_t>(i)];
    const Kind kind = LookUp(unit);
    Place& place = At(i + 1);
    place.depth = At(i).depth + kind.depth;
    int known = i;
    if (kind.depth != 0) {
      last[At(i).depth] = i;
      known = last[place.depth];
    }
    if (known >= 0) place.lastCut = At(known).lastCut;
    if (kind.level > 1 || (kind.level == 1 && !MakesSign(before)))
      place.lastCut[static_cast<std::size_t>(kind.level - 1)] = i;
    if (unit != u' ') before = unit;
  }
}

// From right to left, in the same way.
void TermMap::MarkNext(std::u16string_view text, std::pmr::memory_resource* memory) {
  const int none = Length() + 1;
  PlaceByDepth next(text, none, memory);
  Place& last = At(Length());
  last.nextWord = last.nextMark = last.nextGroup = last.nextAtDepth = none;
  for (int i = Length() - 1; i >= 0; --i) {
    const char16_t unit = text[static_cast<std::size_t>(i)];
    const Kind kind = LookUp(unit);
    const Place& right = At(i + 1);
    Place& place = At(i);
    place.nextAtDepth = i + 1;
    if (kind.depth != 0) {
      next[right.depth] = i + 1;
      place.nextAtDepth = next[place.depth];
    }
    place.nextWord = kind.plain ? right.nextWord : i;
    place.nextMark = kind.mark ? i : right.nextMark;
    place.nextGroup = unit == u'('               ? i
                      : place.nextAtDepth < none ? At(place.nextAtDepth).nextGroup
                                                 : none;
  }
}

}  // namespace dorvalin
