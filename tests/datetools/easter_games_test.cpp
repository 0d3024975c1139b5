#include <gtest/gtest.h>

#include "calendars/gregorian.h"
#include "datetools/easter.h"
#include "datetools/games.h"

namespace mc {
namespace {

TEST(Easter, KnownYearsInBothReckonings) {
  auto g = [](int y) {
    EasterDate e = ComputeEaster(y, CalType::Greg);
    return e.month * 100 + e.day;
  };
  EXPECT_EQ(g(2026), 405);
  EXPECT_EQ(g(2038), 425);
  EXPECT_EQ(g(2285), 322);
  EXPECT_EQ(g(1583), 410);
  EXPECT_EQ(g(2000), 423);
  EXPECT_EQ(g(1818), 322);
  EasterDate j = ComputeEaster(2026, CalType::Jul);
  EXPECT_EQ(j.month * 100 + j.day, 330);  // a Julian date: 12 April Gregorian
}

// Easter is always a Sunday between 22 March and 25 April.
TEST(Easter, AlwaysASundayInItsWindow) {
  for (int y = 1583; y <= 9999; ++y) {
    EasterDate e = ComputeEaster(y, CalType::Greg);
    JD jd = GregorianToJD(e.day, e.month, y);
    ASSERT_EQ(WeekdayOfJD(jd), 1) << y;
    ASSERT_GE(jd, GregorianToJD(22, 3, y)) << y;
    ASSERT_LE(jd, GregorianToJD(25, 4, y)) << y;
  }
  for (int y = 600; y <= 9999; ++y) {
    EasterDate e = ComputeEaster(y, CalType::Jul);
    ASSERT_EQ(WeekdayOfJD(JulianToJD(e.day, e.month, y)), 1) << y;
  }
}

TEST(Games, EachYearFindsItsOwnGames) {
  using V = std::vector<std::string>;
  EXPECT_EQ(GamesLinesOfYear(1916), V{});  // cancelled
  EXPECT_EQ(GamesLinesOfYear(1906),
            V{"The year of the intercalated modern Olympic Games in Athens."});
  // After the war years every table would slip if indexed by a formula.
  EXPECT_EQ(GamesLinesOfYear(1948),
            (V{"The year of the modern Summer Olympic Games XIV in London, England.",
               "The year of the Winter Olympic Games V in St. Moritz, Switzerland."}));
  EXPECT_EQ(GamesLinesOfYear(1950),
            (V{"The year of the British Empire Games IV in Auckland, New Zealand.",
               "The year of the European Athletics Championships in Brussels, Belgium."}));
  EXPECT_EQ(GamesLinesOfYear(1994),
            (V{"The year of the Winter Olympic Games XVII in Lillehammer, Norway.",
               "The year of the Commonwealth Games XV in Victoria, Canada.",
               "The year of the European Athletics Championships in Helsinki, Finland."}));
  EXPECT_EQ(GamesLinesOfYear(2022),
            (V{"The year of the Winter Olympic Games XXIV in Beijing, China.",
               "The year of the Commonwealth Games XXII in Birmingham, England.",
               "The year of the World Athletics Championships in Eugene, Oregon, USA."}));
  EXPECT_EQ(GamesLinesOfYear(1969),
            (V{"The year of the European Athletics Championships in Athens, Greece."}));
  EXPECT_EQ(GamesLinesOfYear(2026), V{});
}

}  // namespace
}  // namespace mc
