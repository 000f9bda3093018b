// Terms from bytes or from chance: well-formed ones and others.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace dorvalin {

/// Everything that means something in a term, and some that means nothing. The large numbers make
/// overflows, the letter x and foo failures.
inline const std::vector<std::u16string_view>& Tokens() {
  static const std::vector<std::u16string_view> tokens = {
      u"1",  u"2",  u"3",   u"7",    u"0",    u"2,5", u"1E200", u"1E5", u"+",    u"-",   u"*",
      u"/",  u"×",  u"÷",   u"§",    u"^",    u"(",   u")",     u"(",   u")",    u"²",   u"³",
      u"!",  u"°",  u"%",   u" ",    u"pi",   u"e",   u"E",     u"x",   u"foo",  u"Ans", u"sin",
      u"ln", u"rt", u"sqr", u"acos", u"rnd(", u"(2)", u",",     u".",   u"tanh", u"v",   u"€"};
  return tokens;
}

/// Mostly solvable: operators between operands, brackets in pairs, here and there a flaw.
inline std::u16string LikelyTerm(std::mt19937& chance, int depth) {
  static const std::vector<std::u16string_view> operands = {
      u"1", u"2", u"3,5", u"7", u"0", u"1E200", u"2E2", u"pi", u"e", u"ans", u"v", u"x"};
  static const std::vector<std::u16string_view> operators = {
      u"+", u"-", u"*", u"/", u"×", u"÷", u"§", u"^", u"", u"", u" ", u"-", u"*-", u" - "};
  static const std::vector<std::u16string_view> calls = {u"(",     u"(",   u"sin(", u"sqr(",
                                                         u"abs (", u"rt(", u"x(",   u"acos("};
  static const std::vector<std::u16string_view> postfixes = {u"",  u"",  u"",  u"",  u"²",
                                                             u"³", u"!", u"°", u"%", u" "};
  const auto pick = [&chance](const auto& from) { return from[chance() % from.size()]; };
  const std::uint32_t kind = depth > 0 ? static_cast<std::uint32_t>(chance() % 4) : 3;
  std::u16string term;
  if (kind < 2) {
    term = LikelyTerm(chance, depth - 1);
    term += pick(operators);
    term += LikelyTerm(chance, depth - 1);
  } else if (kind == 2) {
    term = pick(calls);
    term += LikelyTerm(chance, depth - 1);
    term += u')';
  } else {
    term = pick(operands);
  }
  return term.append(pick(postfixes));
}

}  // namespace dorvalin
