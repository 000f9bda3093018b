// Long, deep and malicious terms, and random ones: each is solved, in time that grows with its
// length. A term that took exponential time would never end here.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "tests/calculator/fuzz_solve.h"
#include "tests/calculator/random_terms.h"
#include "tests/calculator/solving.h"

namespace dorvalin {
namespace {

std::u16string Nested(std::u16string_view open, std::u16string_view inside,
                      std::u16string_view close, int depth) {
  return Repeat(open, depth).append(inside).append(Repeat(close, depth));
}

struct HostileCase {
  const char* label;
  std::u16string term;
  int status;
  double value = kUntouched;
};

TEST(HostileTerms, AreSolved) {
  const HostileCase kCases[] = {
      {"silent products around a name that is none", Nested(u"2(", u"x", u")", 200), -3},
      {"silent products around a number", Nested(u"1(", u"3", u")", 200), 1, 3},
      {"silent products around an operator without operand", Nested(u"2(3+", u"4*", u")", 200), -5},
      {"functions around a name that is none", Nested(u"2sin(", u"x", u")", 200), -3},
      {"words as factors, never closed", Repeat(u"2(pi", 200), -1},
      {"words and exponents in a row", Repeat(u"2e*3x^", 80) + u"1", -3},
      {"groups in a row with a flaw at the end", Repeat(u"2(3)", 124) + u"x", -1},
      {"powers of products with a flaw in each", Repeat(u"2x^2*", 100) + u"1", -3},
      {"a long sum", Repeat(u"1+", 4999) + u"12", 1, 5011},
      {"a long product", Repeat(u"1*", 4999) + u"12", 1, 12},
      {"a long sum of exponents", Repeat(u"1E2+", 2499) + u"1E2", 1, 250000},
      {"a long product of words", Repeat(u"e/e*", 2500) + u"1", 1, 1},
      {"a long row of signs", Repeat(u"-", 10000) + u"5", 1, 5},
      {"a long row of percents", u"0" + Repeat(u"%", 9999), 1, 0},
      {"a long number", Repeat(u"0", 9999) + u"7", 1, 7},
      {"blanks", Repeat(u" ", 10000) + u"7" + Repeat(u" ", 10000), 1, 7},
      {"5000 brackets", Nested(u"(", u"7", u")", 5000), 1, 7},
      {"5000 brackets, one missing", Nested(u"(", u"7", u")", 5000) + u")", -1},
      {"5000 silent products", Nested(u"1(", u"7", u")", 5000), 1, 7},
      {"5000 silent products that fail", Nested(u"1(", u"x", u")", 5000), -3},
      {"5000 functions", Nested(u"abs(-", u"7", u")", 5000), 1, 7},
      {"100000 brackets", Nested(u"(", u"7", u")", 100000), 1, 7},
      {"brackets the wrong way round", Repeat(u")(", 5000), -3},
  };
  for (const HostileCase& row : kCases) {
    SCOPED_TRACE(row.label);
    const Answer answer = SolveGerman(row.term);
    EXPECT_EQ(answer.status, row.status);
    EXPECT_EQ(answer.value, row.value);
  }
}

TEST(RandomTerms, AreSolvedAsThePlainSolverDoes) {
  std::mt19937 chance(20240607);
  int solved = 0;
  for (int i = 0; i < 50000; ++i) solved += TryTerm(LikelyTerm(chance, 1 + i % 4)) >= 0;
  EXPECT_GT(solved, 10000) << "random terms are to be solvable often enough";
}

TEST(RandomTerms, OfAnyBytesKeepTheSolversPromises) {
  std::mt19937 chance(500);
  for (std::size_t size = 0; size < 400; ++size) {
    for (int i = 0; i < (size < 20 ? 2500 : 5); ++i) {
      std::vector<std::uint8_t> bytes(size);
      for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(chance());
      LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
  }
}

// Few kinds of tokens make deeper trouble than many.
TEST(RandomTerms, OfAFewTokensEndWithAStatus) {
  std::mt19937 chance(3);
  for (int i = 0; i < 2000; ++i) {
    std::u16string_view kinds[4];
    for (std::u16string_view& kind : kinds) kind = Tokens()[chance() % Tokens().size()];
    std::u16string term;
    while (term.size() < 250) term += kinds[chance() % 4];
    TryTerm(term);
    TryTerm(term + Repeat(u")", 250));
  }
}

}  // namespace
}  // namespace dorvalin
