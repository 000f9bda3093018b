#include "calculator/CalculatorKeys.h"

namespace dorvalin {
namespace {

constexpr int kTopRow = 87, kMiddleRow = 113, kBottomRow = 139;
constexpr int kColumn = 26;

constexpr platform::Colour kOperator = 0x00C000;
constexpr platform::Colour kSign = 0x808000;
constexpr platform::Colour kValue = 0xC00000;
constexpr platform::Colour kBracket = 0xC000C0;
constexpr platform::Colour kFunction = 0x0000C0;

constexpr CalculatorKey Key(int column, int row, std::u16string_view caption,
                            std::u16string_view tag, platform::Colour colour) {
  return {{column * kColumn, row}, caption, tag, colour};
}

// The three arc keys insert names that the solver does not have; they always have.
constexpr std::array<CalculatorKey, 24> kKeys = {
    Key(0, kTopRow, u"+", u"+", kOperator),
    Key(1, kTopRow, u"-", u"-", kOperator),
    Key(2, kTopRow, u"×", u"×", kOperator),
    Key(3, kTopRow, u"÷", u"÷", kOperator),
    Key(4, kTopRow, u"a^b", u"^", kOperator),
    Key(3, kMiddleRow, u"Sqr", u"sqr()", kFunction),
    Key(4, kMiddleRow, u"log", u"log()", kFunction),
    Key(5, kMiddleRow, u"ln", u"ln()", kFunction),
    Key(0, kBottomRow, u"sin", u"sin()", kFunction),
    Key(1, kBottomRow, u"cos", u"cos()", kFunction),
    Key(2, kBottomRow, u"tan", u"tan()", kFunction),
    Key(3, kBottomRow, u"sin`¹", u"arcsin()", kFunction),
    Key(4, kBottomRow, u"cos`¹", u"arccos()", kFunction),
    Key(5, kBottomRow, u"tan`¹", u"arctan()", kFunction),
    Key(7, kBottomRow, u"Pi", u"Pi", kValue),
    Key(7, kMiddleRow, u"e", u"e", kValue),
    Key(7, kTopRow, u"Ans", u"Ans", kValue),
    Key(0, kMiddleRow, u"(", u"(", kBracket),
    Key(1, kMiddleRow, u")", u")", kBracket),
    Key(6, kMiddleRow, u"!", u"!", kSign),
    Key(6, kBottomRow, u"°", u"°", kSign),
    Key(6, kTopRow, u"(-x)", u"(-)", kSign),
    Key(2, kMiddleRow, u"()", u"()", kBracket),
    Key(5, kTopRow, u"mod", u"mod", kOperator),
};

}  // namespace

const std::array<CalculatorKey, 24>& CalculatorKeys() { return kKeys; }

int CaretAdvance(std::u16string_view tag) {
  const int length = static_cast<int>(tag.size());
  return length > 1 && tag.ends_with(u')') ? length - 1 : length;
}

}  // namespace dorvalin
