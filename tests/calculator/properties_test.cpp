// What holds for every term, tried on many thousand random ones.
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

#include "platform/text.h"
#include "tests/calculator/PlainSolver.h"
#include "tests/calculator/random_terms.h"
#include "tests/calculator/solving.h"

namespace dorvalin {
namespace {

constexpr double kAns = -0.75;

CStringDoubleStack NamedValues() {
  CStringDoubleStack vars;
  vars.AddItem(4, u"v");
  return vars;
}

void ExpectSame(const Answer& answer, const Answer& other) {
  EXPECT_EQ(answer.status, other.status);
  EXPECT_EQ(std::bit_cast<std::uint64_t>(answer.value), std::bit_cast<std::uint64_t>(other.value))
      << answer.value << " and " << other.value;
}

/// Calls `check` with `count` terms, one half of them likely to be solved.
template <class Check>
void ForRandomTerms(int count, Check check) {
  std::mt19937 chance(20240607);
  for (int i = 0; i < count && !testing::Test::HasFailure(); ++i) {
    const std::u16string term =
        i % 2 ? AnyTerm(chance, 1 + chance() % 12) : LikelyTerm(chance, 1 + i / 2 % 4);
    SCOPED_TRACE(platform::ToUtf8(term));
    check(term);
  }
}

TEST(AnyTerm, IsSolvedAsThePlainSolverDoes) {
  FixedClock clock;
  const SolveEnvironment environment{kGerman, clock};
  const CStringDoubleStack vars = NamedValues();
  const PlainSolver plain(kAns, &vars, environment);
  int solved = 0;
  ForRandomTerms(100000, [&](const std::u16string& term) {
    Answer expected;
    expected.status = plain.Solve(term, expected.value);
    solved += expected.status >= 0;
    ExpectSame(SolveGerman(term, kAns, &vars), expected);
  });
  EXPECT_GT(solved, 20000) << "random terms are to be solvable often enough";
}

TEST(AnyTerm, ThatFailsLeavesTheResultAlone) {
  ForRandomTerms(20000, [](const std::u16string& term) {
    const Answer answer = SolveGerman(term);
    if (answer.status < 0) {
      EXPECT_EQ(answer.value, kUntouched);
    }
  });
}

TEST(AnyTerm, MayHaveBlanksAroundItsOperators) {
  ForRandomTerms(20000, [](const std::u16string& term) {
    std::u16string spaced;
    for (const char16_t unit : term) {
      const bool isOperator = std::u16string_view(u"+-*/×÷§^").find(unit) != term.npos;
      // Behind a capital E a sign is part of the number, which has no blanks in it.
      const bool apart = isOperator && (spaced.empty() || spaced.back() != u'E');
      spaced += apart ? std::u16string{u' ', unit, u' '} : std::u16string{unit};
    }
    ExpectSame(SolveGerman(spaced), SolveGerman(term));
  });
}

bool BracketsPair(std::u16string_view term) {
  int depth = 0;
  for (const char16_t unit : term) {
    depth += (unit == u'(') - (unit == u')');
    if (depth < 0) return false;
  }
  return depth == 0;
}

// The degree postfix loses its status in brackets, and where nothing is written zero is.
TEST(AnyTerm, MayStandInBracketsAsAWhole) {
  ForRandomTerms(20000, [](const std::u16string& term) {
    if (!BracketsPair(term)) return;
    Answer bare = SolveGerman(term);
    if (bare.status >= 0 && bare.value == kUntouched) bare.value = 0;
    if (bare.status == 0) bare.status = 1;
    ExpectSame(SolveGerman(u"(" + term + u")"), bare);
  });
}

TEST(AnyTerm, GroupsToTheLeftAmongOperatorsOfOneLevel) {
  const std::u16string_view kLevels[] = {u"+-", u"*/×÷§", u"^"};
  std::mt19937 chance(7);
  ForRandomTerms(20000, [&](const std::u16string& term) {
    if (!BracketsPair(term)) return;
    const std::u16string_view level = kLevels[chance() % 3];
    const char16_t first = level[chance() % level.size()], second = level[chance() % level.size()];
    const std::u16string left = u"(" + term + u")" + first + u"(7)";
    const std::u16string right = std::u16string{second} + u"(2)";
    ExpectSame(SolveGerman(left + right), SolveGerman(u"(" + left + u")" + right));
  });
}

}  // namespace
}  // namespace dorvalin
