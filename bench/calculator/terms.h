// Twenty terms as users type them every day, in the spelling of the solver and of its peers.
#pragma once

namespace dorvalin {

struct BenchTerm {
  const char16_t* term;
  const char* peer;
};

inline constexpr BenchTerm kBenchTerms[] = {
    {u"1+1", "1+1"},
    {u"6*7", "6*7"},
    {u"12.5*4", "12.5*4"},
    {u"100-17.95", "100-17.95"},
    {u"1234/12", "1234/12"},
    {u"19.99*3+4.95", "19.99*3+4.95"},
    {u"250*1.19", "250*1.19"},
    {u"89/1.19", "89/1.19"},
    {u"(3+4)*5", "(3+4)*5"},
    {u"2(3+4)", "2*(3+4)"},
    {u"15%", "15/100"},
    {u"2^10", "2^10"},
    {u"3.5²", "3.5^2"},
    {u"sqr(2)", "sqrt(2)"},
    {u"sin(0.5)", "sin(0.5)"},
    {u"2pi*6", "2*pi*6"},
    {u"-3*-4", "-3*-4"},
    {u"1E3/8", "1E3/8"},
    {u"(1+2)*(3+4)/(5+6)", "(1+2)*(3+4)/(5+6)"},
    {u"sqr(3^2+4^2)+10", "sqrt(3^2+4^2)+10"},
};

}  // namespace dorvalin
