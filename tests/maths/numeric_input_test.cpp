// The evaluator of numeric input boxes, the number texts both evaluators
// share, and the decimal-aware reading of the home location at start.
#include <gtest/gtest.h>

#include "core/ini_file.h"
#include "maths/expression.h"
#include "maths/random.h"
#include "support/program_test.h"

namespace mc::test {
namespace {

class NumericInput : public test::ProgramTest {
 protected:
  void UseDecimalComma() {
    p.ctx.settings.decimalSeparator = ',';
    p.ctx.settings.usesDecimalPoint = false;
  }
  // The value, or "! " and the message.
  std::string Eval(std::string_view text) {
    p.sink.Clear();
    double v = EvalNumericInput(p.ctx, text);
    if (v < 0) {
      EXPECT_EQ(v, -1);
      EXPECT_EQ(p.sink.messages.size(), 1u);
      return "! " + p.sink.Last();
    }
    EXPECT_TRUE(p.sink.messages.empty());
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.15g", v);
    return buf;
  }
};

TEST_F(NumericInput, NumbersAndSimpleExpressions) {
  EXPECT_EQ(Eval("1E3"), "1000");
  EXPECT_EQ(Eval("2*(3+4)"), "14");
  EXPECT_EQ(Eval("  12.5  "), "12.5");
  EXPECT_EQ(Eval(".5"), "0.5");
  EXPECT_EQ(Eval("2^3^2"), "64");
  EXPECT_EQ(Eval("-2^2+5"), "1");
  EXPECT_EQ(Eval("2^(-1)"), "0.5");
  EXPECT_EQ(Eval("+3"), "3");
  EXPECT_EQ(Eval("10/4"), "2.5");
  EXPECT_EQ(Eval("1.5E-3*2E3"), "3");
  EXPECT_EQ(Eval("(((7)))"), "7");
}

TEST_F(NumericInput, EveryRefusal) {
  EXPECT_EQ(Eval(""), "! Missing input data.");
  EXPECT_EQ(Eval("   "), "! Missing input data.");
  EXPECT_EQ(Eval("0"), "! Number entered is not positive.");
  EXPECT_EQ(Eval("-5"), "! Number entered is not positive.");
  EXPECT_EQ(Eval("2-2"), "! Number entered is not positive.");
  EXPECT_EQ(Eval("1,5"),
            "! Incorrect decimal point symbol detected for current Windows regional settings.");
  EXPECT_EQ(Eval("1e3"), "! Invalid character in input string.");
  EXPECT_EQ(Eval("2 + 3"), "! Invalid character in input string.");
  EXPECT_EQ(Eval("x"), "! Invalid character in input string.");
  EXPECT_EQ(Eval("1.2.3"), "! Invalid numeric value.");
  EXPECT_EQ(Eval("E5"), "! Invalid numeric value.");
  EXPECT_EQ(Eval("1E400"), "! Invalid numeric value.");
  EXPECT_EQ(Eval("(2+3"), "! Missing or unmatched parentheses.");
  EXPECT_EQ(Eval("2+3)"), "! Missing or unmatched parentheses.");
  EXPECT_EQ(Eval("1/0"), "! Denominator = 0 error using /, \\ or mod.");
  EXPECT_EQ(Eval("2^-1"), "! Invalid arithmetic expression.");
  EXPECT_EQ(Eval("2*"), "! Invalid arithmetic expression.");
  EXPECT_EQ(Eval("-"), "! Invalid arithmetic expression.");
  EXPECT_EQ(Eval("(2)(3)"), "! Invalid arithmetic expression.");
  EXPECT_EQ(Eval("(-8)^(1/3)"), "! With x^y, if x<0 then y must be an integer.");
  EXPECT_EQ(Eval("0^0"), "! With x^y, if x=0 then y must be positive.");
  EXPECT_EQ(Eval("1E300*1E300"), "! Overflow error (ProcNum = 2790).");
  std::string many = "1";
  for (int i = 0; i < 150; ++i) many += "+1";
  EXPECT_EQ(Eval(many), "! Tokens array subscript exceeds MaxSub.");
}

TEST_F(NumericInput, DecimalComma) {
  UseDecimalComma();
  EXPECT_EQ(Eval("1,5*2"), "3");
  EXPECT_EQ(Eval("1.5"),
            "! Incorrect decimal point symbol detected for current Windows regional settings.");
}

TEST_F(NumericInput, DefaultNumberTextKeepsFifteenDigits) {
  EXPECT_EQ(DefaultNumberText(1.0 / 3, '.'), "0.333333333333333");
  EXPECT_EQ(DefaultNumberText(-2.5, ','), "-2,5");
  EXPECT_EQ(DefaultNumberText(123456789012345.0, '.'), "123456789012345");
  EXPECT_EQ(DefaultNumberText(1e15, '.'), "1E+15");
  EXPECT_EQ(DefaultNumberText(123456789012345678.0, '.'), "1.23456789012346E+17");
  EXPECT_EQ(DefaultNumberText(0.0001, '.'), "0.0001");
  EXPECT_EQ(DefaultNumberText(0.00001234, '.'), "1.234E-05");
  EXPECT_EQ(DefaultNumberText(-0.0, '.'), "0");
}

TEST_F(NumericInput, DecimalNumbersWithEitherSeparator) {
  EXPECT_EQ(ParseDecimalNumber("51.5", '.'), 51.5);
  EXPECT_EQ(ParseDecimalNumber("51,5", '.'), 51.5);
  EXPECT_EQ(ParseDecimalNumber(" -0.1275 ", ','), -0.1275);
  EXPECT_EQ(ParseDecimalNumber("+5.5", ','), 5.5);
  EXPECT_EQ(ParseDecimalNumber("-10", '.'), -10);
  EXPECT_EQ(ParseDecimalNumber("1.2,3", '.'), std::nullopt);
  EXPECT_EQ(ParseDecimalNumber("", '.'), std::nullopt);
  EXPECT_EQ(ParseDecimalNumber("N51", '.'), std::nullopt);
}

TEST(StartUpCoordinates, HomeLocationReadWithEitherSeparator) {
  TestProgram p;
  UpdateIniFile(p.ctx, 0, "Latitude", "51,4779");
  UpdateIniFile(p.ctx, 0, "Longitude", "-0.0015");
  UpdateIniFile(p.ctx, 0, "Time Zone", "5,5");
  p.sink.Clear();
  p.Start();
  EXPECT_FLOAT_EQ(p.ctx.settings.homeLatitude, 51.4779f);
  EXPECT_FLOAT_EQ(p.ctx.settings.homeLongitude, -0.0015f);
  EXPECT_FLOAT_EQ(p.ctx.settings.homeTimeZone, 5.5f);
}

TEST(NextRandom, ShuffledSourceInRangeAndSeededByTheClock) {
  TestProgram a, b;
  std::vector<double> first, second;
  for (int i = 0; i < 500; ++i) {
    double x = NextRandom(a.ctx);
    ASSERT_GE(x, 0);
    ASSERT_LT(x, 1);
    first.push_back(x);
    second.push_back(NextRandom(b.ctx));
  }
  EXPECT_EQ(first, second);  // the same clock, the same run
  double sum = 0;
  for (double x : first) sum += x;
  EXPECT_NEAR(sum / 500, 0.5, 0.05);
  // Reseeding starts again; another moment gives another run.
  EXPECT_EQ(NextRandom(a.ctx, -1), NextRandom(b.ctx, -1));
  b.clock.Advance(1);
  EXPECT_NE(NextRandom(a.ctx, -1), NextRandom(b.ctx, -1));
}

}  // namespace
}  // namespace mc::test
