#include "calendars/gregorian.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace mc {
namespace {

class GregorianTest : public ::testing::Test {
 protected:
  GregorianTest() : p(false), engine(Calendars(p.ctx)) {}
  test::TestProgram p;
  CalendarEngine& engine;
};

TEST_F(GregorianTest, KnownDays) {
  EXPECT_EQ(GregorianToJD(15, 10, 1582), 2299161);
  EXPECT_EQ(JulianToJD(4, 10, 1582), 2299160);
  EXPECT_EQ(GregorianToJD(1, 1, 2000), 2451545);
  EXPECT_EQ(GregorianToJD(31, 12, 9999), 5373484);
  EXPECT_EQ(JulianToJD(1, 1, 7), 1723615);
  EXPECT_EQ(WeekdayOfJD(2299161), 6);                      // a Friday
  EXPECT_EQ(WeekdayOfJD(GregorianToJD(23, 11, 2026)), 2);  // a Monday
  EXPECT_EQ(engine.DaysInMonth(CalType::Greg, 2000, 2), 29);
  EXPECT_EQ(engine.DaysInMonth(CalType::Greg, 1900, 2), 28);
  EXPECT_EQ(engine.DaysInMonth(CalType::Jul, 1900, 2), 29);
  EXPECT_EQ(engine.DaysInMonth(CalType::Greg, 2000, 13), 0);
  EXPECT_EQ(engine.DaysInMonth(CalType::Greg, 2000, 0), 0);
}

// Every day of both calendars' whole ranges: consecutive day numbers give the next date,
// and each date converts back to its day number.
void SweepRoundTrip(CalendarEngine& engine, CalType type, int firstYear, int lastYear) {
  JD jd = engine.DateToJD(type, 1, 1, firstYear);
  for (int y = firstYear; y <= lastYear; ++y) {
    ASSERT_EQ(engine.IsLeapYear(type, y), engine.DaysInMonth(type, y, 2) == 29) << y;
    for (int m = 1; m <= 12; ++m) {
      for (int d = 1; d <= engine.DaysInMonth(type, y, m); ++d, ++jd) {
        ASSERT_EQ(engine.DateToJD(type, d, m, y), jd) << d << '/' << m << '/' << y;
        CalDate back = engine.JDToDate(type, jd);
        ASSERT_EQ(back, (CalDate{d, m, y})) << jd;
      }
    }
  }
}

TEST_F(GregorianTest, RoundTripsOverTheWholeRange) {
  SweepRoundTrip(engine, CalType::Greg, 1582, 9999);
  SweepRoundTrip(engine, CalType::Jul, 7, 9999);
}

TEST_F(GregorianTest, UnknownCodesAnswerNothing) {
  CalDate d{9, 9, 9};
  EXPECT_FALSE(engine.JDToDate(CalType::Paw, 2451545, d));
  EXPECT_EQ(d, (CalDate{9, 9, 9}));
  EXPECT_EQ(engine.DateToJD(CalType::Oly1, 1, 1, 1), 0);
  EXPECT_FALSE(engine.IsLeapYear(CalType::May, 2000));
}

TEST_F(GregorianTest, DayInMonthNumberFindsFestivalDays) {
  EXPECT_EQ(DayInMonthNumber(p.ctx, "November", "Thursday", "Fourth", 2026), 26);
  EXPECT_EQ(DayInMonthNumber(p.ctx, " May ", "Monday", "Last", 2026), 25);
  EXPECT_EQ(DayInMonthNumber(p.ctx, "May", "Monday", "Penultimate", 2026), 18);
  EXPECT_EQ(DayInMonthNumber(p.ctx, "March", "Sunday", "Second", 2026), 8);
  EXPECT_EQ(DayInMonthNumber(p.ctx, "February", "Sunday", "Fifth", 2026), 0);  // no fifth
  EXPECT_EQ(DayInMonthNumber(p.ctx, "February", "Sunday", "Fifth", 2032), 29);
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_EQ(DayInMonthNumber(p.ctx, "Sept", "Monday", "Umpteenth", 2026), 0);
  EXPECT_EQ(p.sink.Last(), "Illegal call of function DayInMonthNumber.");
  EXPECT_EQ(MonthNumberOfName("December"), 12);
  EXPECT_EQ(MonthNumberOfName("dec"), 0);
}

TEST_F(GregorianTest, NearestWeekdayShiftMovesByTheRule) {
  // Wednesday 25 November 2026, looking for a Monday (2).
  auto shift = [&](const char* rule, int day) {
    return NearestWeekdayShift(engine, rule, day, 11, 2026, 2);
  };
  EXPECT_EQ(shift("Before", 25), (CalDate{23, 11, 2026}));
  EXPECT_EQ(shift("OnBefore", 23), (CalDate{23, 11, 2026}));
  EXPECT_EQ(shift("Before", 23), (CalDate{16, 11, 2026}));
  EXPECT_EQ(shift("After", 23), (CalDate{30, 11, 2026}));
  EXPECT_EQ(shift("OnAfter", 25), (CalDate{30, 11, 2026}));
  EXPECT_EQ(shift("Nearest", 25), (CalDate{23, 11, 2026}));  // two back beats five on
  EXPECT_EQ(shift("Nearest", 27), (CalDate{30, 11, 2026}));  // three on beats four back
  EXPECT_EQ(shift("Nearest", 26), (CalDate{23, 11, 2026}));  // four on counts backwards
  EXPECT_EQ(shift("Sideways", 25), (CalDate{25, 11, 2026}));
}

}  // namespace
}  // namespace mc
