#include "tests/calculator/fuzz_solve.h"

#include <bit>
#include <cstdio>
#include <cstdlib>

#include "platform/text.h"
#include "tests/calculator/PlainSolver.h"
#include "tests/calculator/random_terms.h"
#include "tests/calculator/solving.h"

namespace dorvalin {
namespace {

constexpr double kAns = -0.75;

const CStringDoubleStack& NamedValues() {
  static const CStringDoubleStack vars = [] {
    CStringDoubleStack v;
    v.AddItem(4, u"v");
    return v;
  }();
  return vars;
}

/// Most bytes stand for a token of the solver's language, some for any character.
std::u16string TermOf(const std::uint8_t* data, std::size_t size) {
  std::u16string term;
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] < 224)
      term += Tokens()[data[i] % Tokens().size()];
    else
      term += static_cast<char16_t>(data[i] * 257);
  }
  return term;
}

void Require(bool promise, const char* what, std::u16string_view term) {
  if (promise) return;
  std::fprintf(stderr, "%s: %s\n", what, platform::ToUtf8(term).c_str());
  std::abort();
}

bool SameBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

void CompareWithPlain(std::u16string_view term, const Answer& answer) {
  FixedClock clock;
  const SolveEnvironment environment{kGerman, clock};
  const Words words{kAns, &NamedValues(), environment};
  PlainSolver solver(words);
  Answer plain;
  plain.status = solver.Solve(term, plain.value);
  if (solver.GaveUp()) return;
  Require(answer.status == plain.status, "another status than the plain solver's", term);
  Require(SameBits(answer.value, plain.value), "another value than the plain solver's", term);
}

}  // namespace

int TryTerm(std::u16string_view term) {
  const Answer answer = SolveGerman(term, kAns, &NamedValues());
  Require(answer.status >= -6 && answer.status <= 1, "no status", term);
  Require(answer.status >= 0 || SameBits(answer.value, kUntouched), "result changed", term);
  CompareWithPlain(term, answer);
  return answer.status;
}

}  // namespace dorvalin

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  dorvalin::TryTerm(dorvalin::TermOf(data, size));
  return 0;
}
