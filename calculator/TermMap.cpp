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

/// A place for each depth that the text can reach. It takes no memory before the first bracket
/// asks.
class PlaceByDepth {
 public:
  PlaceByDepth(std::size_t deepest, std::pmr::memory_resource* memory)
      : deepest_(deepest), places_(memory) {}

  int& operator[](int depth) {
    if (places_.empty()) places_.resize(2 * deepest_ + 1, TermMap::kNone);
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
  PlaceByDepth last(text.size(), memory);
  int depth = 0;
  Cuts cuts = kNoCuts;
  char16_t before = 0;  // Blanks do not part an operator from its sign.
  for (int i = 0; i < Length(); ++i) {
    const char16_t unit = text[static_cast<std::size_t>(i)];
    const Kind kind = LookUp(unit);
    if (kind.depth != 0) {
      last[depth] = i;
      depth += kind.depth;
      cuts = last[depth] == kNone ? kNoCuts : At(last[depth]).lastCut;
    }
    const int level = kind.level == 1 && MakesSign(before) ? 0 : kind.level;
    cuts = {level == 1 ? i : cuts[0], level == 2 ? i : cuts[1], level == 3 ? i : cuts[2]};
    At(i + 1).depth = depth;
    At(i + 1).lastCut = cuts;
    if (unit != u' ') before = unit;
  }
}

// From right to left, in the same way.
void TermMap::MarkNext(std::u16string_view text, std::pmr::memory_resource* memory) {
  PlaceByDepth next(text.size(), memory);
  const int beyond = Length() + 1;
  int word = beyond, mark = beyond, group = beyond;
  for (int i = Length(); i >= 0; --i) {
    const Kind kind = i < Length() ? LookUp(text[static_cast<std::size_t>(i)]) : Kind{};
    Place& place = At(i);
    place.nextAtDepth = i + 1;
    if (kind.depth != 0) {
      next[At(i + 1).depth] = i + 1;
      const int known = next[place.depth];
      place.nextAtDepth = known == kNone ? beyond : known;
      group = kind.depth > 0 ? i : known == kNone ? beyond : At(known).nextGroup;
    }
    if (!kind.plain && i < Length()) word = i;
    if (kind.mark) mark = i;
    place.nextWord = word;
    place.nextMark = mark;
    place.nextGroup = group;
  }
}

}  // namespace dorvalin
