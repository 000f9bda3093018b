// Solves the ranges of one term, without recursion and each range once.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "calculator/Solved.h"
#include "calculator/TermMap.h"
#include "calculator/arithmetic.h"
#include "calculator/words.h"

namespace dorvalin {

/// Lives for one call of the solver; text and words outlive it.
class TermSolver {
 public:
  TermSolver(std::u16string_view text, const Words& words);

  [[nodiscard]] Solved Solve(Range range);

  /// Where a level of operators cuts a range: `at` is the operator, also a leading one.
  struct Split {
    enum class Kind { None, Leading, Between } kind = Kind::None;
    int at = 0;
  };
  [[nodiscard]] Split FindSplit(Range range, int level) const;
  [[nodiscard]] const TermMap& Map() const { return map_; }
  [[nodiscard]] Range Whole() const { return {0, static_cast<int>(text_.size())}; }

 private:
  /// The part of a range whose solution comes next.
  enum class Part : std::uint8_t {
    LeftOperand,
    RightOperand,
    Factor,         // a number in front of what it is multiplied with silently
    SilentProduct,  // what it is multiplied with
    PostfixOperand,
    Group,
    BehindGroup,
    NoFunction,  // text in front of a group that is no function's name
    LastGroup,   // the group behind it
  };

  /// A range on its way.
  struct Frame {
    Range range;
    Part awaited = Part::LeftOperand;
    int at = 0;                          ///< the place that parts the range, by `awaited`
    const Function* function = nullptr;  ///< called with the group
    // Attempts that fail may leave a value here, which a later part without one does not replace.
    double left = 0;
  };

  /// Either `asked_` is to be solved next, or `solved_` is what the current range gives.
  enum class Next : std::uint8_t { Part, Done };
  Next Ask(Frame& frame, Part part, Range range);
  Next Answer(Solved solved);

  Next Open();
  Next Settle(Next next);

  Next Begin(Frame& frame);
  bool Splits(Frame& frame, int level, Next& next);
  Next AskRightOperand(Frame& frame);
  Next BeginFactor(Frame& frame);
  Next BeginTightParts(Frame& frame);
  Next BeginGroup(Frame& frame);
  Next BeginCall(Frame& frame, int open);

  Next Continue(Frame& frame, Solved part);
  Next AfterFactor(Frame& frame, Solved part);
  Next AfterGroup(Frame& frame, Solved part);

  char16_t Unit(int at) const { return text_[static_cast<std::size_t>(at)]; }
  std::u16string_view Text(Range range) const {
    return text_.substr(static_cast<std::size_t>(range.begin),
                        static_cast<std::size_t>(range.end - range.begin));
  }
  Range Trimmed(Range range) const {
    while (!range.Empty() && Unit(range.end - 1) == u' ') --range.end;
    while (!range.Empty() && Unit(range.begin) == u' ') ++range.begin;
    return range;
  }

  bool Remembers() const { return failures_ > kFailuresToRepeat; }
  static std::uint64_t KeyOf(Range range);

  std::u16string_view text_;
  const Words& words_;
  // Everyday terms fit; only long ones take memory from the heap.
  alignas(std::max_align_t) std::array<std::byte, 4096> room_;
  std::pmr::monotonic_buffer_resource memory_{room_.data(), room_.size()};
  TermMap map_;
  std::pmr::vector<Frame> frames_{&memory_};
  Range asked_;
  Solved solved_;
  // A silent product that fails has its range solved again in another way, and so have the ranges
  // in it. A few such repetitions cost less than remembering what each range gave.
  static constexpr int kFailuresToRepeat = 4;
  int failures_ = 0;
  std::pmr::unordered_map<std::uint64_t, Solved> remembered_{&memory_};
};

}  // namespace dorvalin
