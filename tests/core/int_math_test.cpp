#include "core/int_math.h"

#include <gtest/gtest.h>

namespace mc {
namespace {

// Day and year counts before an epoch fall into the cycle before it.
TEST(IntMath, FloorDivisionGoesDownAndItsRemainderStaysInTheCycle) {
  EXPECT_EQ(FloorDiv(38, 19), 2);
  EXPECT_EQ(FloorDiv(37, 19), 1);
  EXPECT_EQ(FloorDiv(0, 19), 0);
  EXPECT_EQ(FloorDiv(-1, 19), -1);
  EXPECT_EQ(FloorDiv(-19, 19), -1);
  EXPECT_EQ(FloorDiv(-20, 19), -2);
  EXPECT_EQ(FloorMod(37, 19), 18);
  EXPECT_EQ(FloorMod(-1, 19), 18);
  EXPECT_EQ(FloorMod(-19, 19), 0);
  EXPECT_EQ(FloorMod(-20, 19), 18);
  // Day counts beyond 32 bits.
  EXPECT_EQ(FloorDiv(-5'000'000'000LL, 7), -714'285'715LL);
  EXPECT_EQ(FloorMod(-5'000'000'000LL, 7), 5);
  EXPECT_EQ(FloorDiv(5'000'000'000LL, 7), 714'285'714LL);
  static_assert(FloorMod(-146, 210) == 64);
}

}  // namespace
}  // namespace mc
