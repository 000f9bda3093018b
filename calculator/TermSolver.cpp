#include "calculator/TermSolver.h"

#include "calculator/units.h"
#include "platform/text.h"

namespace dorvalin {

TermSolver::TermSolver(std::u16string_view text, const Words& words)
    : text_(text), words_(words), map_(text, &memory_) {
  frames_.reserve(8);
}

Solved TermSolver::Solve(Range range) {
  const std::size_t base = frames_.size();
  asked_ = range;
  Next next = Open();
  while (next == Next::Part || frames_.size() > base)
    next = next == Next::Part ? Open() : Settle(Continue(frames_.back(), solved_));
  return solved_;
}

TermSolver::Next TermSolver::Ask(Frame& frame, Part part, Range range) {
  frame.awaited = part;
  asked_ = range;
  return Next::Part;
}

TermSolver::Next TermSolver::Answer(Solved solved) {
  solved_ = solved;
  return Next::Done;
}

TermSolver::Next TermSolver::Open() {
  const Range range = Trimmed(asked_);
  if (range.Empty()) return Answer(Failure(kNothingToSolve));
  if (map_.IsLeaf(range)) return Answer(SolveWord(Text(range), words_));
  // However it is cut, its leftmost part does not balance either.
  if (!map_.Balances(range)) return Answer(Failure(kBracketsDoNotBalance));
  if (Remembers()) {
    const auto found = remembered_.find(KeyOf(range));
    if (found != remembered_.end()) return Answer(found->second);
  }
  Frame& frame = frames_.emplace_back();
  frame.range = range;
  return Settle(Begin(frame));
}

// A range that is solved leaves the stack.
TermSolver::Next TermSolver::Settle(Next next) {
  if (next == Next::Part) return next;
  if (Remembers()) remembered_.emplace(KeyOf(frames_.back().range), solved_);
  frames_.pop_back();
  return next;
}

// The order of what follows is what users know as precedence.

TermSolver::Next TermSolver::Begin(Frame& frame) {
  Next next;
  if (Splits(frame, 1, next)) return next;
  return BeginFactor(frame);
}

bool TermSolver::Splits(Frame& frame, int level, Next& next) {
  const Split split = FindSplit(frame.range, level);
  if (split.kind == Split::Kind::None) return false;
  frame.at = split.at;
  if (split.kind == Split::Kind::Between) {
    next = Ask(frame, Part::LeftOperand, {frame.range.begin, split.at});
  } else if (level == 1) {
    frame.left = 0;
    next = AskRightOperand(frame);
  } else {
    next = Answer(Failure(kOperandMissing));
  }
  return true;
}

TermSolver::Split TermSolver::FindSplit(Range range, int level) const {
  if (const int cut = map_.LastCut(range, level); cut != TermMap::kNone)
    return {Split::Kind::Between, cut};
  const bool leading =
      !range.Empty() && KindOf(Unit(range.begin)).level == level && map_.Balances(range);
  return {leading ? Split::Kind::Leading : Split::Kind::None, range.begin};
}

TermSolver::Next TermSolver::AskRightOperand(Frame& frame) {
  if (frame.at + 1 == frame.range.end) return Answer(Failure(kOperandMissing));
  return Ask(frame, Part::RightOperand, {frame.at + 1, frame.range.end});
}

// Only the first character that is not of plain arithmetic is tried: "2 pi" is a product there, and
// "2e3" is none, because "e3" is nothing.
TermSolver::Next TermSolver::BeginFactor(Frame& frame) {
  frame.at = map_.FirstWord(frame.range);
  if (frame.at == frame.range.begin || frame.at == frame.range.end) return BeginTightParts(frame);
  return Ask(frame, Part::Factor, {frame.range.begin, frame.at});
}

TermSolver::Next TermSolver::BeginTightParts(Frame& frame) {
  Next next;
  if (Splits(frame, 2, next) || Splits(frame, 3, next)) return next;
  const int last = frame.range.end - 1;
  if (IsPostfix(Unit(last))) return Ask(frame, Part::PostfixOperand, {frame.range.begin, last});
  return BeginGroup(frame);
}

TermSolver::Next TermSolver::BeginGroup(Frame& frame) {
  const int open = map_.FirstGroup(frame.range);
  if (open == frame.range.end) return Answer(SolveWord(Text(frame.range), words_));
  if (open > frame.range.begin) return BeginCall(frame, open);
  frame.at = map_.GroupEnd(open);
  return Ask(frame, Part::Group, {open + 1, frame.at - 1});
}

TermSolver::Next TermSolver::BeginCall(Frame& frame, int open) {
  const Range name{frame.range.begin, open};
  frame.function = FindFunction(platform::Lower(Text(Trimmed(name))));
  if (!frame.function) {
    frame.at = open;
    return Ask(frame, Part::NoFunction, name);
  }
  if (!frame.function->apply) return Answer(Failure(kNothingToSolve));
  frame.at = map_.GroupEnd(open);
  return Ask(frame, Part::Group, {open + 1, frame.at - 1});
}

TermSolver::Next TermSolver::Continue(Frame& frame, Solved part) {
  if (frame.awaited == Part::Factor || frame.awaited == Part::SilentProduct)
    return AfterFactor(frame, part);
  if (part.Failed()) return Answer(part);
  const double right = part.ValueOr(0);
  switch (frame.awaited) {
    case Part::LeftOperand:
      frame.left = part.ValueOr(frame.left);
      return AskRightOperand(frame);
    case Part::RightOperand:
      return Answer(ApplyOperator(Unit(frame.at), frame.left, right));
    case Part::PostfixOperand:
      return Answer(ApplyPostfix(Unit(frame.range.end - 1), part.ValueOr(frame.left)));
    case Part::Group:
      return AfterGroup(frame, part);
    case Part::NoFunction:
      frame.left = part.ValueOr(frame.left);
      // The last character is taken for the closing bracket, whatever it is.
      return Ask(frame, Part::LastGroup, {frame.at + 1, frame.range.end - 1});
    default:
      return Answer({kSolved, frame.left * right});
  }
}

// A failure here is none yet: the range is cut in another way.
TermSolver::Next TermSolver::AfterFactor(Frame& frame, Solved part) {
  if (part.Failed()) {
    ++failures_;
    return BeginTightParts(frame);
  }
  if (frame.awaited == Part::SilentProduct) return Answer({kSolved, frame.left * part.ValueOr(0)});
  frame.left = part.ValueOr(frame.left);
  return Ask(frame, Part::SilentProduct, {frame.at, frame.range.end});
}

TermSolver::Next TermSolver::AfterGroup(Frame& frame, Solved part) {
  const Solved group = frame.function ? CallFunction(*frame.function, part, frame.left) : part;
  if (group.Failed()) return Answer(group);
  frame.left = group.ValueOr(frame.left);
  if (frame.at == frame.range.end) return Answer({kSolved, frame.left});
  return Ask(frame, Part::BehindGroup, {frame.at, frame.range.end});
}

std::uint64_t TermSolver::KeyOf(Range range) {
  return static_cast<std::uint64_t>(range.begin) << 32 | static_cast<std::uint32_t>(range.end);
}

}  // namespace dorvalin
