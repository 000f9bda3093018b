#include "calculator/words.h"

#include <bit>
#include <cstdint>
#include <random>

#include "calculator/arithmetic.h"
#include "platform/text.h"

namespace dorvalin {
namespace {

bool IsWord(std::u16string_view text, std::u16string_view lowerCase) {
  if (text.size() != lowerCase.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (platform::LowerUnit(text[i]) != lowerCase[i]) return false;
  return true;
}

double Random(platform::Clock& clock) {
  const double seconds = platform::SecondsSinceMidnight(clock.Now());
  std::mt19937_64 generator(std::bit_cast<std::uint64_t>(seconds));
  return std::uniform_real_distribution<double>(0, 1)(generator);
}

/// The value's index among the caller's words, 0 for none.
int FindNamed(const CStringDoubleStack* vars, std::u16string_view text) {
  return vars ? vars->ItemFromText(platform::Lower(text)) : 0;
}

/// Without the caller's words. A number is none of these, which its first character tells.
std::optional<double> OwnWord(std::u16string_view text, const Words& words) {
  switch (platform::LowerUnit(text.front())) {
    case u'a':
      return IsWord(text, u"ans") ? std::optional(words.ans) : std::nullopt;
    case u'e':
      return text == u"e" ? std::optional(std::exp(1.0)) : std::nullopt;
    case u'p':
      return IsWord(text, u"pi") ? std::optional(kPi) : std::nullopt;
    case u'r':
      return IsWord(text, u"ran") ? std::optional(Random(words.environment.clock)) : std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace

Solved SolveWord(std::u16string_view text, const Words& words) {
  if (const auto own = OwnWord(text, words)) return {kSolved, *own};
  if (const int named = FindNamed(words.vars, text)) return {kSolved, words.vars->ItemValue(named)};
  const auto number = platform::ParseNumber(text, words.environment.numbers);
  return number ? Solved{kSolved, *number} : Failure(kOperatorFailed);
}

}  // namespace dorvalin
