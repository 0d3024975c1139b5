#include "calendars/hebrew.h"

#include <gtest/gtest.h>

#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "support/program_test.h"
#include "sweep.h"

namespace mc::test {
namespace {

class Hebrew : public test::ProgramTest {};

TEST_F(Hebrew, EveryDateOfTheSupportedYearsRoundTrips) {
  EXPECT_GT(SweepYears(engine(), CalType::Heb, 3768, 13759, 29, 30), 0);
}

// Year lengths and weekdays of the new year show any fault in the
// postponements.
TEST_F(Hebrew, YearLengthsAndNewYearWeekdays) {
  for (int y = 3700; y <= 13760; ++y) {
    const int length = HebrewYearLength(y);
    const bool leap = IsHebrewLeap(y);
    ASSERT_TRUE(leap ? length >= 383 && length <= 385 : length >= 353 && length <= 355)
        << y << ": " << length;
    const HebrewNewYearDay ny = HebrewNewYear(y);
    ASSERT_NE(ny.weekday, 1) << y;
    ASSERT_NE(ny.weekday, 4) << y;
    ASSERT_NE(ny.weekday, 6) << y;
    ASSERT_EQ(ny.weekday, WeekdayOfJD(HebrewToJD(1, 1, y))) << y;
  }
}

TEST_F(Hebrew, MoladArithmetic) {
  EXPECT_EQ(MoladAdd({0, 6, 23, 1079}, {0, 0, 0, 1}), (MoladSpan{1, 0, 0, 0}));
  // 235 months make the 19-year cycle; 12 make a common year.
  const MoladSpan month{4, 1, 12, 793};
  EXPECT_EQ(MoladMultiply(month, 235), (MoladSpan{991, 2, 16, 595}));
  EXPECT_EQ(MoladMultiply(month, 12), (MoladSpan{50, 4, 8, 876}));
  EXPECT_EQ(MoladMultiply(month, 0), (MoladSpan{}));
  const int expected[20] = {0, 0, 0, 1, 1, 1, 2, 2, 3, 3, 3, 4, 4, 4, 5, 5, 5, 6, 6, 7};
  for (int n = 0; n <= 19; ++n) EXPECT_EQ(LeapMonthsInCycle(n), expected[n]) << n;
  // The new year sums the molad in parts at once; the span sum agrees.
  for (int y = 1; y <= 13760; ++y) {
    const MoladSpan f = MoladOfTishri(y);
    const HebrewNewYearDay ny = HebrewNewYear(y);
    ASSERT_EQ(ny.hours, f.hours) << y;
    ASSERT_EQ(ny.parts, f.parts) << y;
    ASSERT_GE(ny.days - (7 * f.weeks + f.days + 1), 0) << y;
    ASSERT_LE(ny.days - (7 * f.weeks + f.days + 1), 2) << y;
  }
  EXPECT_EQ(MoladOfTishri(1), (MoladSpan{0, 0, 5, 204}));
}

TEST_F(Hebrew, KnownDates) {
  EXPECT_EQ(HebrewToJD(1, 1, 1), 347998);
  EXPECT_EQ(WeekdayOfJD(347998), 2);  // a Monday
  EXPECT_EQ(HebrewToJD(1, 1, 5785), GregorianToJD(3, 10, 2024));
  EXPECT_EQ(HebrewToJD(1, 1, 5787), GregorianToJD(12, 9, 2026));
  EXPECT_EQ(HebrewToJD(15, 8, 5786), GregorianToJD(2, 4, 2026));   // Pesach
  EXPECT_EQ(HebrewToJD(14, 7, 5784), GregorianToJD(24, 3, 2024));  // Purim in Adar II
  EXPECT_EQ(HebrewToJD(14, 6, 5785), GregorianToJD(14, 3, 2025));  // Purim in a common year
  EXPECT_EQ(engine().JDToDate(CalType::Heb, GregorianToJD(23, 11, 2026)), (CalDate{13, 3, 5787}));
}

TEST_F(Hebrew, MonthLengths) {
  CalendarEngine& e = engine();
  EXPECT_FALSE(e.IsLeapYear(CalType::Heb, 5785));
  EXPECT_EQ(e.DaysInMonth(CalType::Heb, 5785, 7), 29);  // answered though the month is absent
  EXPECT_EQ(e.DaysInMonth(CalType::Heb, 5785, 6), 29);
  EXPECT_EQ(e.DaysInMonth(CalType::Heb, 5784, 6), 30);
  EXPECT_EQ(e.DaysInMonth(CalType::Heb, 5784, 14), 0);
  // Cheshvan and Kislev follow the year's length.
  for (int y = 5780; y < 5800; ++y) {
    int length = HebrewYearLength(y);
    EXPECT_EQ(e.DaysInMonth(CalType::Heb, y, 2), length % 10 == 5 ? 30 : 29) << y;
    EXPECT_EQ(e.DaysInMonth(CalType::Heb, y, 3), length % 10 == 3 ? 29 : 30) << y;
  }
}

// Date text translates Adar II ("6L") now that the calendar has rules.
TEST_F(Hebrew, DateTextReadsAdarTwo) {
  auto d = ParseDateText(p.ctx, CalType::Heb, "1/6L/5765");
  ASSERT_TRUE(d);
  EXPECT_EQ(*d, (CalDate{1, 7, 5765}));
  EXPECT_EQ(FormatDateText(p.ctx, CalType::Heb, *d), "1/6L/5765");
  EXPECT_FALSE(ParseDateText(p.ctx, CalType::Heb, "1/6L/5766"));
  EXPECT_EQ(p.sink.Last(), "Invalid month value.");
  EXPECT_TRUE(ParseDateText(p.ctx, CalType::Heb, "30/2/5785"));   // a year of 355 days
  EXPECT_FALSE(ParseDateText(p.ctx, CalType::Heb, "30/2/5786"));  // a year of 354
  EXPECT_EQ(p.sink.Last(), "Invalid day value.");
}

}  // namespace
}  // namespace mc::test
