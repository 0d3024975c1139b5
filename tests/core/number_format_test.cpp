#include "core/number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mc {
namespace {

TEST(FormatSigFigs, WholeNumbersAreWrittenPlainUpToTheLimit) {
  EXPECT_EQ(FormatSigFigs(7, 100), "100");
  EXPECT_EQ(FormatSigFigs(3, -42), "-42");
  EXPECT_EQ(FormatSigFigs(3, 0), "0");
  EXPECT_EQ(FormatSigFigs(2, 123456789012345), "123456789012345");
  // 1E15 is past the limit of the plain route and takes the exponent mask.
  EXPECT_EQ(FormatSigFigs(14, 1e15), "1.0E15");
}

TEST(FormatSigFigs, RoundsToTheFiguresAndChoosesTheMaskByMagnitude) {
  EXPECT_EQ(FormatSigFigs(7, 1234.5), "1234.5");
  EXPECT_EQ(FormatSigFigs(3, 1234.5), "1230");
  EXPECT_EQ(FormatSigFigs(3, 3.14159265), "3.14");
  EXPECT_EQ(FormatSigFigs(5, 2.718281828), "2.7183");
  EXPECT_EQ(FormatSigFigs(4, -0.5), "-0.5");
  EXPECT_EQ(FormatSigFigs(2, 99.96), "100");
  EXPECT_EQ(FormatSigFigs(14, 0.1), "0.1");
  EXPECT_EQ(FormatSigFigs(6, 123456.75), "123457");
  EXPECT_EQ(FormatSigFigs(14, 1.0 / 3.0), "0.3333333333333");  // thirteen decimals below 10
}

TEST(FormatSigFigs, SmallAndHugeValuesUseTheExponentForm) {
  EXPECT_EQ(FormatSigFigs(7, 0.05), "5.0E-02");
  EXPECT_EQ(FormatSigFigs(3, 0.012345), "1.23E-02");
  EXPECT_EQ(FormatSigFigs(4, 6.02214076e23), "6.022E23");
  EXPECT_EQ(FormatSigFigs(3, -1.5e-300), "-1.5E-300");
}

TEST(FormatSigFigs, NeverWritesInfinity) {
  EXPECT_EQ(FormatSigFigs(1, 1.7e308), "1.7E308");  // rounding up would pass the largest double
  EXPECT_EQ(FormatSigFigs(5, std::numeric_limits<double>::infinity()), "Overflow");
  EXPECT_EQ(FormatWithMask(std::nan(""), "0.0"), "Overflow");
}

TEST(FormatSigFigs, WritesTheUsersDecimalSeparator) {
  EXPECT_EQ(FormatSigFigs(7, 1234.5, ','), "1234,5");
  EXPECT_EQ(FormatSigFigs(7, 0.05, ','), "5,0E-02");
}

TEST(FormatWithMask, HonoursForcedAndOptionalDigits) {
  EXPECT_EQ(FormatWithMask(3.14159, "##0.00"), "3.14");
  EXPECT_EQ(FormatWithMask(3.1, "##0.00#"), "3.10");
  EXPECT_EQ(FormatWithMask(0.5, "#.##"), ".5");
  EXPECT_EQ(FormatWithMask(7, "000"), "007");
  EXPECT_EQ(FormatWithMask(2451545.25, "########.0000"), "2451545.2500");
  EXPECT_EQ(FormatWithMask(-0.0001, "0.00"), "0.00");
}

TEST(IsStrictNumeric, RejectsTheOtherSeparatorAnywhere) {
  EXPECT_TRUE(IsStrictNumeric("12.5"));
  EXPECT_TRUE(IsStrictNumeric(" -3 "));
  EXPECT_TRUE(IsStrictNumeric("1e5"));
  EXPECT_TRUE(IsStrictNumeric(".5"));
  EXPECT_FALSE(IsStrictNumeric("1,000"));
  EXPECT_FALSE(IsStrictNumeric("12,5"));
  EXPECT_FALSE(IsStrictNumeric(""));
  EXPECT_FALSE(IsStrictNumeric("."));
  EXPECT_FALSE(IsStrictNumeric("5 5"));
  EXPECT_FALSE(IsStrictNumeric("1e"));
  EXPECT_FALSE(IsStrictNumeric("abc"));
  EXPECT_TRUE(IsStrictNumeric("12,5", ','));
  EXPECT_FALSE(IsStrictNumeric("12.5", ','));
  EXPECT_DOUBLE_EQ(*ParseStrictNumber("12,5", ','), 12.5);
}

}  // namespace
}  // namespace mc
