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

void CompareWithPlain(const std::u16string& term, const Answer& answer) {
  FixedClock clock;
  const SolveEnvironment environment{kGerman, clock};
  Answer plain;
  plain.status = PlainSolver(0, nullptr, environment).Solve(term, plain.value);
  Require(answer.status == plain.status, "another status than the plain solver's", term);
  Require(SameBits(answer.value, plain.value), "another value than the plain solver's", term);
}

}  // namespace
}  // namespace dorvalin

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace dorvalin;
  // Beyond this length the plain solver may take too long.
  constexpr std::size_t kShort = 20;
  const std::u16string term = TermOf(data, size);
  const Answer answer = SolveGerman(term);
  Require(answer.status >= -6 && answer.status <= 1, "no status", term);
  Require(answer.status >= 0 || SameBits(answer.value, kUntouched), "result changed", term);
  Require(answer.status >= 0 || !SolveErrorText(answer.status).empty(), "no text", term);
  if (term.size() <= kShort) CompareWithPlain(term, answer);
  return 0;
}
