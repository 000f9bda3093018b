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

  /// Either the range to be solved next, or the solution of the current one.
  struct Step {
    bool asks = false;
    Range range;
    Solved solved;
  };
  static Step Ask(Range range) { return {true, range, {}}; }
  static Step Answer(const Solved& solved) { return {false, {}, solved}; }
  static Step Ask(Frame& frame, Part part, Range range);

  Step Open(Range range);
  Step Resume(const Solved& part);
  Step Settle(const Step& step);

  Step Begin(Frame& frame);
  bool Splits(Frame& frame, int level, Step& step) const;
  Step AskRightOperand(Frame& frame) const;
  Step BeginFactor(Frame& frame);
  Step BeginTightParts(Frame& frame);
  Step BeginGroup(Frame& frame) const;

  Step Continue(Frame& frame, const Solved& part);
  Step AfterFactor(Frame& frame, const Solved& part);
  Step AfterGroup(Frame& frame, const Solved& part) const;

  char16_t Unit(int at) const { return text_[static_cast<std::size_t>(at)]; }
  std::u16string_view Text(Range range) const;
  Range Trimmed(Range range) const;

  static std::uint64_t KeyOf(Range range);

  std::u16string_view text_;
  const Words& words_;
  // Everyday terms fit; only long ones take memory from the heap.
  alignas(std::max_align_t) std::array<std::byte, 4096> room_;
  std::pmr::monotonic_buffer_resource memory_{room_.data(), room_.size()};
  TermMap map_;
  std::pmr::vector<Frame> frames_{&memory_};
  // A silent product that fails has its range solved again in another way, and so have the ranges
  // in it: from the first such failure on, what a range gave is remembered.
  bool remembers_ = false;
  std::pmr::unordered_map<std::uint64_t, Solved> remembered_{&memory_};
};

}  // namespace dorvalin
