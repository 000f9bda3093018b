// Where a term may be cut, found once for all its ranges.
#pragma once

#include <algorithm>
#include <array>
#include <memory_resource>
#include <string_view>
#include <vector>

namespace dorvalin {

/// Part of a term: the characters from `begin` to before `end`, counted from 0.
struct Range {
  int begin = 0;
  int end = 0;

  [[nodiscard]] bool Empty() const { return begin >= end; }
};

/// Tells of any range of the text, without walking it, what a walk over the range would meet first.
/// Ranges may begin and end inside of brackets; what counts is the depth relative to their ends.
class TermMap {
 public:
  static constexpr int kLevels = 3;
  static constexpr int kNone = -1;

  TermMap(std::u16string_view text, std::pmr::memory_resource* memory);

  [[nodiscard]] bool Balances(Range range) const {
    return At(range.begin).depth == At(range.end).depth;
  }

  /// The last operator of the level outside of brackets that is no sign, kNone without one. An
  /// operator at the very beginning cuts nothing and is not told.
  [[nodiscard]] int LastCut(Range range, int level) const {
    const int cut = At(range.end).lastCut[static_cast<std::size_t>(level - 1)];
    return cut > range.begin ? cut : kNone;
  }

  /// The first character that cannot belong to numbers and level 2 operators, `range.end` for none.
  [[nodiscard]] int FirstWord(Range range) const {
    return std::min(At(range.begin).nextWord, range.end);
  }

  /// The first bracket that opens outside of other brackets, `range.end` for none.
  [[nodiscard]] int FirstGroup(Range range) const {
    return std::min(At(range.begin).nextGroup, range.end);
  }

  /// Behind the bracket that closes the group opened at `open`, in a range that balances.
  [[nodiscard]] int GroupEnd(int open) const { return At(open).nextAtDepth; }

  /// Is there no operator, bracket or postfix in the range, and no number in front of a word?
  [[nodiscard]] bool IsLeaf(Range range) const {
    const Place& first = At(range.begin);
    return At(range.end).lastMark < range.begin &&
           (first.nextWord == range.begin || first.nextWord >= range.end);
  }

 private:
  using Cuts = std::array<int, kLevels>;
  static constexpr Cuts kNoCuts{kNone, kNone, kNone};

  /// What is known of the place in front of a character, or behind the last one. The next of
  /// something is beyond the text if there is none.
  struct Place {
    int depth = 0;           ///< brackets open in front of it
    Cuts lastCut = kNoCuts;  ///< the nearest at the same depth before it
    int lastMark = kNone;    ///< operator, bracket or postfix
    int nextWord = 0;
    int nextGroup = 0;
    int nextAtDepth = 0;      ///< the next place of the same depth
    int lastOfDepth = kNone;  ///< not of this place: of the depth with its number, met so far
  };

  Place& At(int place) { return places_[static_cast<std::size_t>(place)]; }
  const Place& At(int place) const { return places_[static_cast<std::size_t>(place)]; }

  int& LastOfDepth(int depth);
  void MarkBefore(std::u16string_view text);
  void MarkBehind(std::u16string_view text);

  std::pmr::vector<Place> places_;
};

}  // namespace dorvalin
