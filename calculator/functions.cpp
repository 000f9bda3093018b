#include <algorithm>
#include <cmath>
#include <limits>

#include "calculator/arithmetic.h"

namespace dorvalin {
namespace {

constexpr double kError = std::numeric_limits<double>::quiet_NaN();

double ArcSine(double x) {
  if (x == 1) return kPi / 2;
  if (x == -1) return -kPi / 2;
  return std::atan(x / std::sqrt(1 - x * x));
}

double ArcCosine(double x) {
  if (x == 1) return 0;
  if (x == -1) return kPi;
  return std::atan(-x / std::sqrt(1 - x * x)) + 2 * std::atan(1.0);
}

// By their definitions: where e to the x overflows, so do they, also the tangent.
double HyperbolicSine(double x) { return (std::exp(x) - std::exp(-x)) / 2; }
double HyperbolicCosine(double x) { return (std::exp(x) + std::exp(-x)) / 2; }
double HyperbolicTangent(double x) {
  return (std::exp(x) - std::exp(-x)) / (std::exp(x) + std::exp(-x));
}

double DecimalLogarithm(double x) { return std::log(x) / std::log(10.0); }
double BinaryLogarithm(double x) { return std::log(x) / std::log(2.0); }

double Rounded(double x) {
  const auto rounded = RoundToLong(x);
  return rounded ? *rounded : kError;
}

// `root` and `rt` were meant to take two arguments, which a term cannot write.
constexpr Function kFunctions[] = {
    {u"sin", [](double x) { return std::sin(x); }},
    {u"cos", [](double x) { return std::cos(x); }},
    {u"tan", [](double x) { return std::tan(x); }},
    {u"log", DecimalLogarithm},
    {u"abs", [](double x) { return std::fabs(x); }},
    {u"int", [](double x) { return std::floor(x); }},
    {u"fix", [](double x) { return std::trunc(x); }},
    {u"ln", [](double x) { return std::log(x); }},
    {u"ld", BinaryLogarithm},
    {u"exp", [](double x) { return std::exp(x); }},
    {u"rnd", Rounded},
    {u"sqr", [](double x) { return std::sqrt(x); }},
    {u"sqrt", [](double x) { return std::sqrt(x); }},
    {u"invsin", ArcSine},
    {u"invcos", ArcCosine},
    {u"invtan", [](double x) { return std::atan(x); }},
    {u"atn", [](double x) { return std::atan(x); }},
    {u"acos", ArcCosine},
    {u"asin", ArcSine},
    {u"atan", [](double x) { return std::atan(x); }},
    {u"root", nullptr},
    {u"rt", nullptr},
    {u"sinh", HyperbolicSine},
    {u"cosh", HyperbolicCosine},
    {u"tanh", HyperbolicTangent},
};

}  // namespace

const Function* FindFunction(std::u16string_view name) {
  const auto found = std::find_if(std::begin(kFunctions), std::end(kFunctions),
                                  [name](const Function& f) { return f.name == name; });
  return found == std::end(kFunctions) ? nullptr : found;
}

Solved CallFunction(const Function& function, Solved argument, double unwritten) {
  if (argument.status != kSolved) return argument;
  return Checked(function.apply(argument.ValueOr(unwritten)), kFunctionFailed);
}

}  // namespace dorvalin
