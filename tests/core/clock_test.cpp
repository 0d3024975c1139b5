#include "core/clock.h"

#include <gtest/gtest.h>

#include "core/locale_facts.h"

namespace mc {
namespace {

TEST(Clock, AddMillisecondsCarriesThroughDaysMonthsAndLeapYears) {
  LocalDateTime t{2024, 2, 28, 23, 59, 59, 500};
  EXPECT_EQ(AddMilliseconds(t, 500), (LocalDateTime{2024, 2, 29, 0, 0, 0, 0}));
  EXPECT_EQ(AddMilliseconds(t, 86'400'000), (LocalDateTime{2024, 2, 29, 23, 59, 59, 500}));
  EXPECT_EQ(AddMilliseconds({2026, 12, 31, 23, 59, 59, 999}, 1),
            (LocalDateTime{2027, 1, 1, 0, 0, 0, 0}));
  EXPECT_EQ(AddMilliseconds({2026, 3, 1, 0, 0, 0, 0}, -1),
            (LocalDateTime{2026, 2, 28, 23, 59, 59, 999}));
}

TEST(Clock, SteppedClockMovesOnAtEachReading) {
  SteppedClock c({2026, 11, 23, 23, 59, 58, 0}, 1000);
  EXPECT_EQ(c.Now().second, 58);
  EXPECT_EQ(c.Now().second, 59);
  LocalDateTime third = c.Now();
  EXPECT_EQ(third, (LocalDateTime{2026, 11, 24, 0, 0, 0, 0}));
}

TEST(Clock, ParsesTheCommandLineMoment) {
  EXPECT_EQ(ParseIsoDateTime("2026-11-23T10:30"), (LocalDateTime{2026, 11, 23, 10, 30, 0, 0}));
  EXPECT_EQ(ParseIsoDateTime("2024-02-29 23:59:58"), (LocalDateTime{2024, 2, 29, 23, 59, 58, 0}));
  EXPECT_FALSE(ParseIsoDateTime("2026-02-29T10:00"));
  EXPECT_FALSE(ParseIsoDateTime("2026-11-23T24:00"));
  EXPECT_FALSE(ParseIsoDateTime("2026-11-23T10:30:00x"));
  EXPECT_FALSE(ParseIsoDateTime("23/11/2026"));
}

TEST(LocaleFacts, ReadTheDateOrderFromTheSampleDate) {
  EXPECT_EQ(DateOrderOfSample("23/10/4567"), "d/m/y");
  EXPECT_EQ(DateOrderOfSample("10/23/67"), "m/d/y");
  EXPECT_EQ(DateOrderOfSample("4567-10-23"), "y/m/d");
  EXPECT_EQ(DateOrderOfSample("23.4567.10"), "d/y/m");
  EXPECT_EQ(DateOrderOfSample("4567/23/10"), "y/d/m");
  EXPECT_EQ(DateOrderOfSample("10 4567 23"), "m/y/d");
  EXPECT_EQ(DateOrderOfSample("Thursday"), "Unidentified");
}

}  // namespace
}  // namespace mc
