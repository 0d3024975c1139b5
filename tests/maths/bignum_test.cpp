#include "maths/bignum.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace mc {
namespace {

class BigNumTest : public ::testing::Test {
 protected:
  BigNumTest() : p(false) {}
  test::TestProgram p;
};

TEST_F(BigNumTest, AddsIntegersAndDecimalsWithCarries) {
  Context& c = p.ctx;
  EXPECT_EQ(LongAdd(c, "0.5", "0.5"), "1");
  EXPECT_EQ(LongAdd(c, "123", "877"), "1000");
  EXPECT_EQ(LongAdd(c, "0.1", "0.02"), "0.12");
  EXPECT_EQ(LongAdd(c, "1.25", "2.75"), "4");
  EXPECT_EQ(LongAdd(c, "0", "00042"), "42");
  EXPECT_EQ(LongAdd(c, ".5", "1"), "1.5");
  // Carries across many limbs.
  EXPECT_EQ(LongAdd(c, std::string(120, '9'), "1"), "1" + std::string(120, '0'));
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(BigNumTest, MultipliesWithScalesAdded) {
  Context& c = p.ctx;
  EXPECT_EQ(LongMul(c, "0", "123456789"), "0");
  EXPECT_EQ(LongMul(c, "1", "98765"), "98765");
  EXPECT_EQ(LongMul(c, "12.5", "0.4"), "5");
  EXPECT_EQ(LongMul(c, "0.001", "0.001"), "0.000001");
  EXPECT_EQ(LongMul(c, "99999", "9999"), "999890001");  // a 9-digit total
  const std::string nines(60, '9');
  EXPECT_EQ(LongMul(c, nines, nines), std::string(59, '9') + "8" + std::string(59, '0') + "1");
  // A 7-digit operand against a long one.
  EXPECT_EQ(LongMul(c, "1000000", "1" + std::string(20000, '0')), "1" + std::string(20006, '0'));
}

TEST_F(BigNumTest, FollowsTheUsersDecimalSeparator) {
  p.ctx.settings.decimalSeparator = ',';
  EXPECT_EQ(LongAdd(p.ctx, "0,5", "0,25"), "0,75");
  EXPECT_EQ(LongMul(p.ctx, "2,5", "2,5"), "6,25");
  EXPECT_EQ(LongAdd(p.ctx, "0.5", "1"), "-1");  // a point is no separator here
  EXPECT_EQ(p.sink.Last(), "Non-digit character detected.");
}

TEST_F(BigNumTest, FailureValuePassesOnWithoutAnotherMessage) {
  EXPECT_EQ(LongAdd(p.ctx, "-1", "5"), "-1");
  EXPECT_EQ(LongMul(p.ctx, "5", "-1"), "-1");
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_EQ(LongMul(p.ctx, "12a", "5"), "-1");
  EXPECT_EQ(LongAdd(p.ctx, "", "5"), "-1");
  EXPECT_EQ(LongAdd(p.ctx, "1.2.3", "5"), "-1");
  EXPECT_EQ(p.sink.messages.size(), 3u);
  EXPECT_EQ(p.sink.messages[0].caption, "Error Detected!");
}

TEST_F(BigNumTest, CleanDecimalAndInsertPoint) {
  Context& c = p.ctx;
  EXPECT_EQ(CleanDecimal(c, ".5"), "0.5");
  EXPECT_EQ(CleanDecimal(c, "007.500"), "7.5");
  EXPECT_EQ(CleanDecimal(c, "3."), "3");
  EXPECT_EQ(CleanDecimal(c, "0.000"), "0");
  EXPECT_EQ(CleanDecimal(c, "000"), "0");
  EXPECT_EQ(InsertPoint(c, "5", 3, false), "0.005");
  EXPECT_EQ(InsertPoint(c, "12300", 2, true), "123");
  EXPECT_EQ(InsertPoint(c, "12345", 0, true), "12345");
}

}  // namespace
}  // namespace mc
