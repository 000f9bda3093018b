// Terms as users type them, with what they come to.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "platform/numbers.h"
#include "platform/text.h"
#include "tests/calculator/solving.h"

namespace dorvalin {
namespace {

constexpr double kAns = 42;
constexpr double kPi = 3.14159265358979;
const double kE = std::exp(1.0);
const double kQuarter = (90.0 / 360 + 90.0 / 360) * kPi;

struct TermCase {
  const char* label;
  const char16_t* term;
  int status;
  double value = kUntouched;
};

// Numbers with a fraction stand with the decimal point here; the German run turns it round.
const TermCase kTerms[] = {
    {"empty", u"", -2},
    {"blanks only", u"   ", -2},
    {"sum", u"1+2", 1, 3},
    {"products go before sums", u"2+3*4", 1, 14},
    {"differences group to the left", u"7-2-1", 1, 4},
    {"quotients group to the left", u"8/2/2", 1, 2},
    {"powers group to the left, too", u"2^3^2", 1, 64},
    {"typed and printed operators", u"6×7÷2*3/9", 1, 7},

    {"a sign binds weaker than a power", u"-2^2", 1, -4},
    {"a sign in an exponent", u"2^-2", 1, 0.25},
    {"a sign behind a minus", u"3--2", 1, 5},
    {"a sign behind a times", u"2*-3", 1, -6},
    {"a leading plus", u"+5", 1, 5},
    {"a sign behind an operator and blanks", u"2 * - 3", 1, -6},
    {"a sign only", u"-", -5},
    {"nothing behind the operator", u"5-", -5},
    {"nothing in front of a times", u"*5", -5},
    {"nothing behind a times", u"5*", -5},
    {"nothing in front of a power", u"^2", -5},
    {"the left failure is the one reported", u"foo+5/0", -3},
    {"the left failure, the other way round", u"5/0+foo", -6},

    {"number and group", u"2(3+4)", 1, 14},
    {"group and number", u"(3+4)2", 1, 14},
    {"group and group", u"(2)(3)", 1, 6},
    {"number and word", u"2pi", 1, 2 * kPi},
    {"number, blank and group", u"2 (3)", 1, 6},
    {"a silent product binds weaker than a quotient", u"6/2pi", 1, 3 * kPi},
    {"a silent product with a group, too", u"6/2(1+2)", 1, 9},
    {"word and group", u"pi(2)", 1, 2 * kPi},
    {"word and group, last character unseen", u"pi(2)3", -1},
    {"group and more behind it", u"(2)3*4", 1, 24},

    {"no function", u"foo(2)", -3},
    {"arc with c is no function", u"arcsin(1)", -3},
    {"asin at its end", u"asin(1)", 1, kPi / 2},
    {"asin at its other end", u"asin(-1)", 1, -kPi / 2},
    {"acos at its ends", u"acos(1)+acos(-1)", 1, kPi},
    {"root never works", u"root(8)", -2},
    {"nor does rt, whatever its argument", u"rt(foo)", -2},
    {"an empty argument", u"sin()", -2},
    {"names in any case, blanks in front of the bracket", u"ABS  (-2)", 1, 2},

    {"divided by zero", u"5/0", -6},
    {"zero by zero", u"0/0", -6},
    {"the printed sign", u"5÷0", -6},
    {"remainder by zero", u"5 § 0", -6},
    {"remainder by what rounds to zero", u"5 § 0.4", -3},
    {"remainders round first, halves to even", u"7.5 § 2", 1, 0},
    {"a sign is no part of the dividend", u"-7 § 3", 1, -1},
    {"a sign behind the remainder operator", u"7 § -3", 1, 1},
    {"the dividend's sign counts", u"(-7) § 3", 1, -1},
    {"remainder beyond 32 bits", u"2147483648 § 2", -3},
    {"remainder of the smallest number", u"(-2147483648) § -1", 1, 0},

    {"a bracket not closed", u"(1+2", -1},
    {"a bracket not opened", u"1+2)", -1},
    {"brackets the wrong way round", u")(", -3},
    {"an empty group", u"()", -2},

    {"factorial", u"5!", 1, 120},
    {"factorial of 0", u"0!", 1, 1},
    {"factorial cuts the fraction", u"3.7!", 1, 6},
    {"the sign comes after the factorial", u"-1!", 1, -1},
    {"factorial of a negative number", u"(-1)!", -4},
    {"of a negative fraction", u"(-0.5)!", 1, 1},
    {"the last factorial that is not too large", u"170!", 1, 7.257415615307994e306},
    {"the first that is", u"171!", -4},
    {"beyond 32 bits it counts as 0", u"1E10!", 1, 1},
    {"also below them", u"(-2147483649)!", 1, 1},
    {"at the edge of 32 bits", u"2147483647!", -4},

    {"square", u"3²", 1, 9},
    {"cube", u"2³", 1, 8},
    {"a postfix takes what is in front of it", u"3!²", 1, 36},
    {"a power comes before a factorial", u"2^3!", 1, 64},
    {"so does a product", u"2×3!", 1, 12},
    {"a square too large says nothing", u"1E200²", 1, kUntouched},
    {"in a group it counts as 0", u"(1E200²)", 1, 0},
    {"also as an argument", u"cos(1E200²)", 1, 1},
    {"a product too large says so", u"1E200*1E200", -3},
    {"a silent one does not", u"(1E200)(1E200)", 1, kUntouched},
    {"a power too large says so", u"10^309", -3},
    {"no power of a negative number", u"(-8)^0.5", -3},
    {"zero has no negative power", u"0^-1", -3},
    {"but a power of 0", u"0^0", 1, 1},
    {"a value that a failed attempt left behind", u"2E200²*3", 1, 6},

    {"percent", u"50%", 1, 0.5},
    {"percent of nothing else", u"100+50%", 1, 100.5},
    {"nothing may follow a percent sign", u"50%3", -3},

    {"degrees", u"90°", 0, kQuarter},
    {"no sine of degrees", u"sin(90°)", 1, kQuarter},
    {"but of a sum with them", u"sin(90°+0)", 1, 1},
    {"and of a group of them", u"sin((90°))", 1, 1},

    {"sine", u"sin(1)", 1, std::sin(1)},
    {"cosine", u"cos(1)", 1, std::cos(1)},
    {"tangent", u"tan(1)", 1, std::tan(1)},
    {"hyperbolic sine", u"sinh(1)", 1, std::sinh(1)},
    {"hyperbolic cosine", u"cosh(1)", 1, std::cosh(1)},
    {"hyperbolic tangent", u"tanh(1)", 1, std::tanh(1)},
    {"it overflows as its parts do", u"tanh(1000)", -4},
    {"arc sine", u"asin(1/2)", 1, std::asin(.5)},
    {"by its other name", u"invsin(1/2)", 1, std::asin(.5)},
    {"beyond 1", u"asin(2)", -4},
    {"arc cosine", u"acos(1/2)", 1, std::acos(.5)},
    {"by its other name", u"invcos(1/2)", 1, std::acos(.5)},
    {"arc tangent", u"atan(2)", 1, std::atan(2)},
    {"by its other names", u"atn(2)+invtan(2)", 1, 2 * std::atan(2)},
    {"power of e", u"exp(2)", 1, std::exp(2)},
    {"natural logarithm", u"ln(5)", 1, std::log(5)},
    {"decimal logarithm", u"log(100)", 1, 2},
    {"binary logarithm", u"ld(8)", 1, 3},
    {"logarithm of 0", u"log(0)", -4},
    {"root of a negative number", u"sqr(-1)", -4},
    {"root by its long name", u"sqrt(16)", 1, 4},
    {"rounding halves to even, down", u"rnd(2.5)", 1, 2},
    {"rounding halves to even, up", u"rnd(3.5)", 1, 4},
    {"rounding beyond 32 bits", u"rnd(2147483647.5)", -4},
    {"the next smaller integer", u"int(-2.5)", 1, -3},
    {"the integer part", u"fix(-2.5)", 1, -2},

    {"exponent with its sign", u"1E+5", 1, 100000},
    {"exponent, then a sum", u"2E+3+1", 1, 2001},
    {"negative exponent", u"25E-2", 1, 0.25},
    {"small e without a sign is an exponent", u"2e3", 1, 2000},
    {"small e with a sign is Euler's number", u"2e+3", 1, 2 * kE + 3},
    {"twice Euler's number", u"2e", 1, 2 * kE},
    {"Euler's number", u"e", 1, kE},
    {"has no capital letter", u"E", -3},
    {"pi in capitals", u"PI", 1, kPi},
    {"the last answer", u"ANS", 1, kAns},
    {"a fraction without its zero", u".5+.5", 1, 1},
    {"two decimal separators", u"1.2.3", -3},
    {"a blank in a number", u"1 2", -3},
};

std::u16string WithDecimalComma(std::u16string term) {
  for (char16_t& unit : term)
    if (unit == u'.') unit = u',';
  return term;
}

TEST(Terms, GiveTheirStatusAndValueInEitherLocale) {
  for (const TermCase& row : kTerms) {
    SCOPED_TRACE(std::string(row.label) + ": " + platform::ToUtf8(row.term));
    for (const Answer& answer :
         {SolveIn(kEnglish, row.term, kAns), SolveGerman(WithDecimalComma(row.term), kAns)}) {
      EXPECT_EQ(answer.status, row.status);
      EXPECT_DOUBLE_EQ(answer.value, row.value);
    }
  }
}

TEST(Terms, NamedValuesComeBehindTheWordsAndInFrontOfNumbers) {
  CStringDoubleStack vars;
  vars.AddItem(7, u"Breite");
  vars.AddItem(8, u"pi");
  vars.AddItem(9, u"10");
  EXPECT_EQ(SolveGerman(u"2 BREITE", 0, &vars).value, 14);
  EXPECT_EQ(SolveGerman(u"breite(2)", 0, &vars).value, 14);
  EXPECT_EQ(SolveGerman(u"pi", 0, &vars).value, kPi);
  EXPECT_EQ(SolveGerman(u"10", 0, &vars).value, 9);
  EXPECT_EQ(SolveGerman(u"hoehe", 0, &vars).status, -3);
}

TEST(Terms, RandomNumbersComeFromTheTimeOfDay) {
  FixedClock clock;
  const auto random = [&clock](std::u16string_view term) {
    double result = -1;
    EXPECT_EQ(Solve(term, result, 0, nullptr, 0, -1, {kGerman, clock}), 1);
    return result;
  };
  const double first = random(u"Ran"), again = random(u"ran");
  clock.now.millisecond += 1;
  const double later = random(u"ran");
  EXPECT_GE(first, 0);
  EXPECT_LT(first, 1);
  EXPECT_EQ(first, again);
  EXPECT_NE(first, later);
}

TEST(Terms, ARangeIsSolvedByItself) {
  FixedClock clock;
  const SolveEnvironment environment{kGerman, clock};
  const std::u16string_view term = u"(12+34)*5";
  double result = kUntouched;
  EXPECT_EQ(Solve(term, result, 0, nullptr, 1, 5, environment), 1);
  EXPECT_EQ(result, 46);
  // The character in front of a range makes no sign of what it begins with.
  EXPECT_EQ(Solve(u"2*-3", result, 0, nullptr, 2, 2, environment), 1);
  EXPECT_EQ(result, -3);
  EXPECT_EQ(Solve(term, result, 0, nullptr, 8, -1, environment), 1);
  EXPECT_EQ(result, 5);
  for (const auto& [start, length] : {std::pair{1, 0}, {9, 1}, {10, 1}, {-1, 3}, {2, -2}})
    EXPECT_EQ(Solve(term, result, 0, nullptr, start, length, environment), -2);
  EXPECT_EQ(result, 5);
}

TEST(SolveSplit, CutsAtTheLastOperatorOfItsLevel) {
  FixedClock clock;
  const SolveEnvironment environment{kGerman, clock};
  const struct {
    const char* label;
    const char16_t* term;
    int level, status;
    double left, right;
    char16_t op;
  } kRows[] = {
      {"level 1", u"9-(2+3)-1*2", 1, 1, 4, 2, u'-'},
      {"level 2", u"2*(3*4)÷5", 2, 1, 24, 5, u'÷'},
      {"level 3", u"2^3^2", 3, 1, 8, 2, u'^'},
      {"a leading sign", u"-3", 1, 1, 0, 3, u'-'},
      {"no operator of the level", u"2*3", 1, 0, kUntouched, kUntouched, u'?'},
      {"unbalanced", u"(2*3", 1, -1, kUntouched, kUntouched, u'?'},
      {"leading operator", u"*3", 2, -5, kUntouched, kUntouched, u'?'},
      {"nothing behind it", u"3*", 2, -5, 3, kUntouched, u'?'},
      {"left fails", u"x+3", 1, -3, kUntouched, kUntouched, u'?'},
      {"right fails", u"3+x", 1, -3, 3, kUntouched, u'?'},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    double left = kUntouched, right = kUntouched;
    char16_t op = u'?';
    EXPECT_EQ(SolveSplit(row.term, row.level, left, right, op, 0, 0, -1, nullptr, environment),
              row.status);
    EXPECT_EQ(left, row.left);
    EXPECT_EQ(right, row.right);
    EXPECT_EQ(op, row.op);
  }
}

TEST(SolveFunction, AppliesAFunctionToARange) {
  FixedClock clock;
  const SolveEnvironment environment{kGerman, clock};
  double result = kUntouched;
  EXPECT_EQ(SolveFunction(u"abs", u"xx2-5", result, 0, nullptr, 2, 3, environment), 1);
  EXPECT_EQ(result, 3);
  EXPECT_EQ(SolveFunction(u"sin", u"90°", result, 0, nullptr, 0, -1, environment), 0);
  EXPECT_EQ(result, kQuarter);
  EXPECT_EQ(SolveFunction(u"root", u"8", result, 0, nullptr, 0, -1, environment), -2);
  EXPECT_EQ(SolveFunction(u"sqr", u"0-4", result, 0, nullptr, 0, -1, environment), -4);
  EXPECT_EQ(result, -4) << "the argument stays";
}

TEST(SolveErrorText, NamesFailuresOnly) {
  const std::u16string_view kTexts[] = {u"ERROR: DIV÷0",
                                        u"SYNTAX ERROR",
                                        u"MATHEMATICAL ERROR",
                                        u"ERROR",
                                        u"SYNTAX ERROR",
                                        u"BRACKET ERROR",
                                        u"",
                                        u""};
  for (int status = -6; status <= 1; ++status)
    EXPECT_EQ(SolveErrorText(status), kTexts[status + 6]) << status;
}

}  // namespace
}  // namespace dorvalin
