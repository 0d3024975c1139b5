// Moon phases and delta T against published values.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "calendars/gregorian.h"

#include "timeplace/ephemeris.h"

namespace mc {
namespace {

constexpr double kMinute = 1.0 / 1440;

TEST(MoonPhaseMoment, MatchesPublishedPhases) {
  // Meeus, Astronomical Algorithms, example 49.a: the new moon of February
  // 1977, k = -283, JDE 2443192.65118 (1977 Feb 18 3h37m42s TD).
  EXPECT_NEAR(MoonPhaseMoment(-283.0f), 2443192.65118, 0.5 * kMinute);
  // Example 49.b: the last quarter of January 2044, k = 544.75, JDE 2467636.49186.
  EXPECT_NEAR(MoonPhaseMoment(544.75f), 2467636.49186, 0.5 * kMinute);
  // Almanac phases of January 2000 (Universal Time plus 64 s): new moon
  // 6 Jan 18:14, first quarter 14 Jan 13:34, full moon 21 Jan 04:40.
  const double dt = 64.0 / 86400;
  EXPECT_NEAR(MoonPhaseMoment(0.0f), 2451550.25972 + dt, 2 * kMinute);
  EXPECT_NEAR(MoonPhaseMoment(0.25f), 2451558.06528 + dt, 2 * kMinute);
  EXPECT_NEAR(MoonPhaseMoment(0.5f), 2451564.69444 + dt, 2 * kMinute);
}

TEST(MoonPhaseMoment, PhasesFollowInOrderAcrossTheCenturies) {
  // Every quarter lies 6 to 9 days after the one before, from 1645 to 3000.
  for (int k = -4390; k < 12370; k += 37) {
    double previous = MoonPhaseMoment(static_cast<float>(k));
    for (int q = 1; q <= 4; ++q) {
      double next = MoonPhaseMoment(static_cast<float>(k + q * 0.25));
      EXPECT_GT(next - previous, 6.0) << k << " " << q;
      EXPECT_LT(next - previous, 9.0) << k << " " << q;
      previous = next;
    }
  }
}

TEST(DeltaT, FollowsThePolynomialsInsideTheRangeOnly) {
  double s = -1;
  // Mid-January 2000 (Y = 2000.04): 63.87 s.
  ASSERT_TRUE(DeltaT(2451560.0, s));
  EXPECT_NEAR(s, 63.87, 0.01);
  // Published values: 1700 about 9 s, 1800 about 14 s, 1900 about -3 s,
  // 1950 about 29 s; the pieces of the polynomial meet without jumps.
  struct Case {
    double jd, seconds, tolerance;
  } cases[] = {{2341972.5, 8.8, 1},
               {2378496.5, 13.7, 1},
               {2415020.5, -2.8, 0.5},
               {2433282.5, 29.1, 0.5},
               {2469807.5, 93, 3}};
  for (const auto& c : cases) {
    ASSERT_TRUE(DeltaT(c.jd, s));
    EXPECT_NEAR(s, c.seconds, c.tolerance) << c.jd;
  }
  // From 2150 the whole year is used: every day of 2200 gives one value.
  double first = 0, last = 0;
  ASSERT_TRUE(DeltaT(2524593.5, first));       // 1 January 2200
  ASSERT_TRUE(DeltaT(2524593.5 + 364, last));  // 31 December 2200
  EXPECT_DOUBLE_EQ(first, last);
  EXPECT_NEAR(first, -20 + 32 * 3.8 * 3.8, 1e-9);
  // Before 1583 and after 3000 nothing is set.
  s = 123;
  EXPECT_FALSE(DeltaT(2299160.5, s));  // 1582
  EXPECT_FALSE(DeltaT(2817152.5, s));  // 3001
  EXPECT_EQ(s, 123);
}

TEST(SunRiseSet, MatchesTheAlmanacAndCoversPolarDays) {
  std::string rise, set;
  // London, 21 June 2024: 04:43 and 21:21 summer time, 03:43 and 20:21 UT.
  SunRiseSet(21, 6, 2024, 51.5f, -0.13f, 0, rise, set);
  EXPECT_EQ(rise, "Sunrise 03:43");
  EXPECT_EQ(set, "Sunset 20:21");
  // The time zone moves the clock times by whole hours.
  SunRiseSet(21, 6, 2024, 51.5f, -0.13f, 1, rise, set);
  EXPECT_EQ(rise, "Sunrise 04:43");
  // On the equator at Greenwich, every day: near 06:00 and 18:00.
  for (int month = 1; month <= 12; ++month) {
    SunRiseSet(15, month, 2024, 0, 0, 0, rise, set);
    ASSERT_EQ(rise.substr(0, 8), "Sunrise ") << month;
    ASSERT_EQ(set.substr(0, 7), "Sunset ") << month;
    EXPECT_TRUE(rise >= "Sunrise 05:40" && rise <= "Sunrise 06:20") << rise;
    EXPECT_TRUE(set >= "Sunset 17:40" && set <= "Sunset 18:20") << set;
  }
  SunRiseSet(21, 6, 2024, 70, 0, 0, rise, set);
  EXPECT_EQ(rise, "Sun up all day");
  EXPECT_EQ(set, "");
  SunRiseSet(21, 12, 2024, 70, 0, 0, rise, set);
  EXPECT_EQ(rise, "Sun down all day");
  EXPECT_EQ(set, "");
  // Where the polar day begins or ends one of the two events goes missing.
  int oneEvent = 0;
  for (int day = 1; day <= 31; ++day) {
    SunRiseSet(day, 5, 2024, 69.5f, 0, 0, rise, set);
    oneEvent += rise == "No sunrise" || set == "No sunset";
  }
  EXPECT_GE(oneEvent, 1);
}

TEST(MoonRiseSet, EachLunationMissesOneRiseAndOneSet) {
  // The Moon rises about 50 minutes later each day, so that in a year some
  // twelve or thirteen days have no moonrise and as many no moonset.
  std::string rise, set;
  int noRise = 0, noSet = 0, twice = 0;
  for (int day = 1; day <= 366; ++day) {
    JD jd = GregorianToJD(1, 1, 2024) + day - 1;
    int month = 1;
    while (month < 12 && GregorianToJD(1, month + 1, 2024) <= jd) ++month;
    int d = jd - GregorianToJD(1, month, 2024) + 1;
    MoonRiseSet(d, month, 2024, 40, 0, 0, rise, set);
    noRise += rise == "No moonrise";
    noSet += set == "No moonset";
    ASSERT_TRUE(rise == "No moonrise" || rise.substr(0, 9) == "Moonrise ") << rise;
    ASSERT_TRUE(set == "No moonset" || set.substr(0, 8) == "Moonset ") << set;
    // Far north the Moon can cross the horizon twice the same way in a day.
    MoonRiseSet(d, month, 2024, 65, 0, 0, rise, set);
    twice += rise == "Moon rises twice" || set == "Moon sets twice";
  }
  EXPECT_GE(noRise, 11);
  EXPECT_LE(noRise, 14);
  EXPECT_GE(noSet, 11);
  EXPECT_LE(noSet, 14);
  EXPECT_GE(twice, 1);
}

TEST(SunDepressionTime, SunriseAndTwilights) {
  // London, 21 June 2024: sunrise 03:43 UT, sunset 20:21 UT; civil twilight
  // begins some fifty minutes before sunrise, nautical before that.
  EXPECT_EQ(SunDepressionTime(21, 6, 2024, 51.5f, -0.13f, 0, 90.63333f, "Rise"), "03:44");
  EXPECT_EQ(SunDepressionTime(21, 6, 2024, 51.5f, -0.13f, 0, 90.63333f, "Set"), "20:19");
  EXPECT_EQ(SunDepressionTime(21, 6, 2024, 51.5f, -0.13f, 0, 96, "Rise"), "02:54");
  EXPECT_LT(SunDepressionTime(21, 6, 2024, 51.5f, -0.13f, 0, 102, "Rise"), "02:54");
  // No astronomical night in London at midsummer; no day at 70 north in December.
  EXPECT_EQ(SunDepressionTime(21, 6, 2024, 51.5f, -0.13f, 0, 108, "Rise"), "Sun up all day");
  EXPECT_EQ(SunDepressionTime(21, 12, 2024, 70, 0, 0, 90.63333f, "Rise"), "Sun down all day");
}

TEST(SolarNoon, FollowsTheEquationOfTime) {
  // Early November the sundial runs 16.4 minutes ahead; mid-February 14.2 behind.
  EXPECT_NEAR(EquationOfTime(GregorianToJD(3, 11, 2024)) * 1440, 16.4, 0.2);
  EXPECT_NEAR(EquationOfTime(GregorianToJD(11, 2, 2024)) * 1440, -14.2, 0.2);
  EXPECT_NEAR(SolarNoon(GregorianToJD(3, 11, 2024), 0, 0), 12 - 16.4 / 60, 0.01);
  // 15 degrees east is an hour earlier by the Sun, a zone an hour later by the clock.
  EXPECT_NEAR(SolarNoon(GregorianToJD(3, 11, 2024), 15, 1), 12 - 16.4 / 60, 0.01);
}

TEST(ClockText, RoundsMinutesAndNeverShows24) {
  EXPECT_EQ(ClockText(6.5), "06:30");
  EXPECT_EQ(ClockText(6 + 29.5 / 60), "06:29");  // a half rounds down
  EXPECT_EQ(ClockText(6 + 29.51 / 60), "06:30");
  EXPECT_EQ(ClockText(6 + 29.49 / 60), "06:29");
  EXPECT_EQ(ClockText(9 + 59.7 / 60), "10:00");
  EXPECT_EQ(ClockText(23 + 59.7 / 60), "23:59");
}

}  // namespace
}  // namespace mc
