// Equinoxes, solstices and the Sun's longitude against published values.
#include <gtest/gtest.h>

#include <cmath>

#include "calendars/astro.h"

namespace mc {
namespace {

constexpr double kMinute = 1.0 / 1440;

// Signed difference of two longitudes, in degrees, in -180 .. 180.
double AngleDiff(double a, double b) {
  return std::remainder(a - b, 360.0);
}

TEST(SeasonMoment, MatchesPublishedMomentsWithinAFewMinutes) {
  // Meeus, Astronomical Algorithms, example 27.a: June solstice 1962.
  EXPECT_NEAR(SeasonMoment(1962, Season::JuneSolstice), 2437837.39245, 2 * kMinute);
  // The almanac's moments in Universal Time, plus delta T (64 s in 2000, 69 s
  // in 2024) to dynamical time.
  struct Case {
    int year;
    Season season;
    double jdUt;
  } cases[] = {
      {2000, Season::MarchEquinox, 2451623.81597},      // 20 Mar 07:35 UT
      {2000, Season::JuneSolstice, 2451716.57500},      // 21 Jun 01:48 UT
      {2000, Season::SeptemberEquinox, 2451810.22778},  // 22 Sep 17:28 UT
      {2000, Season::DecemberSolstice, 2451900.06736},  // 21 Dec 13:37 UT
      {2024, Season::MarchEquinox, 2460389.62917},      // 20 Mar 03:06 UT
      {2024, Season::DecemberSolstice, 2460665.88889},  // 21 Dec 09:20 UT
  };
  for (const auto& c : cases) {
    double deltaT = (c.year == 2000 ? 64.0 : 69.0) / 86400;
    EXPECT_NEAR(SeasonMoment(c.year, c.season), c.jdUt + deltaT, 2 * kMinute)
        << c.year << " season " << static_cast<int>(c.season);
  }
}

TEST(SeasonMoment, FallsWhereTheSunsLongitudeSaysForAllCenturies) {
  // The two series are independent: at each season moment from 1600 to 3000
  // the Sun stands at 0, 90, 180 or 270 degrees within a few minutes of time
  // (the Sun moves 0.0007 degrees a minute).
  double worst = 0;
  for (int year = 1600; year <= 3000; year += 7) {
    for (int s = 0; s < 4; ++s) {
      double moment = SeasonMoment(year, static_cast<Season>(s));
      double off = std::fabs(AngleDiff(ApparentSolarLongitude(moment), 90.0 * s));
      worst = std::max(worst, off);
    }
  }
  EXPECT_LT(worst, 0.004);  // under six minutes of time
}

TEST(ApparentSolarLongitude, MatchesThePublishedSeasonsAndStaysInRange) {
  // At the almanac's equinoxes and solstices (Universal Time to the minute,
  // plus delta T) the Sun stands at 0, 90, 180, 270 degrees within 0.001
  // degree, about a minute and a half of time.
  struct Case {
    double jdTT, target;
  } cases[] = {{2451623.81597 + 64 / 86400.0, 0},   {2451716.57500 + 64 / 86400.0, 90},
               {2451810.22778 + 64 / 86400.0, 180}, {2451900.06736 + 64 / 86400.0, 270},
               {2460389.62917 + 69 / 86400.0, 0},   {2460665.88889 + 69 / 86400.0, 270}};
  for (const auto& c : cases)
    EXPECT_NEAR(AngleDiff(ApparentSolarLongitude(c.jdTT), c.target), 0.0, 0.001) << c.jdTT;
  // At J2000 the Sun stands near 280.37 degrees; the result always lies in
  // 0 <= L < 360, also across the wrap at the March equinox.
  EXPECT_NEAR(ApparentSolarLongitude(2451545.0), 280.37, 0.02);
  double eq = SeasonMoment(2024, Season::MarchEquinox);
  for (double m = eq - 0.01; m < eq + 0.01; m += 0.0005) {
    double l = ApparentSolarLongitude(m);
    EXPECT_GE(l, 0.0);
    EXPECT_LT(l, 360.0);
  }
  EXPECT_GT(ApparentSolarLongitude(eq - 0.01), 359.0);
  EXPECT_LT(ApparentSolarLongitude(eq + 0.01), 1.0);
}

TEST(ApparentSolarLongitude, AdvancesAboutOneDegreeADay) {
  for (double m = 2440000.5; m < 2470000; m += 997) {
    double step = AngleDiff(ApparentSolarLongitude(m + 1), ApparentSolarLongitude(m));
    EXPECT_GT(step, 0.95);
    EXPECT_LT(step, 1.02);
  }
}

}  // namespace
}  // namespace mc
