#include "calendars/solar_fixed.h"

#include <gtest/gtest.h>

#include "calendars/gregorian.h"
#include "calendars/names.h"
#include "support/program_test.h"
#include "sweep.h"

namespace mc::test {
namespace {

using C = CalType;

class SolarFixed : public test::ProgramTest {
 protected:
  JD ToJD(C type, int d, int m, int y) { return engine().DateToJD(type, d, m, y); }
};

// Every day of every supported year, both ways, with month lengths in range.
TEST_F(SolarFixed, EveryDateOfTheSupportedYearsRoundTrips) {
  struct Range {
    C type;
    int first, last, minMonth, maxMonth;
  };
  const Range ranges[] = {
      {C::Arm, 1, 9453, 5, 30},        {C::Egy, 755, 10753, 5, 30},  {C::ParShe, 500, 9373, 5, 30},
      {C::PerQad, 500, 9373, 5, 30},   {C::Fas, 1276, 9367, 5, 30},  {C::Cop, 1, 9715, 5, 30},
      {C::Eth, 1, 9991, 5, 30},        {C::Fre, 1, 14, 5, 30},       {C::Ban, 1374, 9405, 30, 31},
      {C::Ind, 1879, 9920, 30, 31},    {C::Sikh, 531, 8530, 30, 31}, {C::NewAfg, 1, 9377, 29, 31},
      {C::Afg, 1, 9377, 29, 31},       {C::Per, 1, 9377, 29, 31},    {C::Bah, 1, 8155, 4, 19},
      {C::RevJul, 1923, 9999, 28, 31},
  };
  for (const Range& r : ranges)
    EXPECT_GT(SweepYears(engine(), r.type, r.first, r.last, r.minMonth, r.maxMonth), 0);
}

// First days of the calendars against their published epochs.
TEST_F(SolarFixed, EpochsFallOnTheirCivilDays) {
  EXPECT_EQ(ToJD(C::Arm, 1, 1, 1), JulianToJD(11, 7, 552));
  EXPECT_EQ(ToJD(C::Egy, 1, 1, 1), 1448638);  // 26 February 747 B.C.
  EXPECT_EQ(ToJD(C::Cop, 1, 1, 1), JulianToJD(29, 8, 284));
  EXPECT_EQ(ToJD(C::Eth, 1, 1, 1), JulianToJD(29, 8, 8));
  EXPECT_EQ(ToJD(C::Per, 1, 1, 1), JulianToJD(19, 3, 622));
  EXPECT_EQ(ToJD(C::Fre, 1, 1, 1), GregorianToJD(22, 9, 1792));
  EXPECT_EQ(ToJD(C::Bah, 1, 1, 1), 2394647);
  EXPECT_EQ(ToJD(C::Bah, 1, 1, 1), GregorianToJD(21, 3, 1844));
  EXPECT_EQ(ToJD(C::Ind, 1, 1, 1879), GregorianToJD(22, 3, 1957));
  EXPECT_EQ(ToJD(C::Sikh, 1, 1, 531), GregorianToJD(14, 3, 1999));
  EXPECT_EQ(ToJD(C::Ban, 1, 1, 1374), GregorianToJD(14, 4, 1967));
  EXPECT_EQ(ToJD(C::Fas, 1, 1, 1276), GregorianToJD(21, 3, 1907));
  EXPECT_EQ(ToJD(C::ParShe, 1, 1, 500), 2134228);
  EXPECT_EQ(ToJD(C::PerQad, 1, 1, 500), ToJD(C::ParShe, 1, 1, 500) - 30);
}

TEST_F(SolarFixed, KnownHistoricalAndModernDates) {
  // 18 Brumaire VIII, and the first day of the year XII after the leap year XI.
  EXPECT_EQ(ToJD(C::Fre, 18, 2, 8), GregorianToJD(9, 11, 1799));
  EXPECT_EQ(ToJD(C::Fre, 1, 1, 12), GregorianToJD(24, 9, 1803));
  EXPECT_EQ(engine().DaysInMonth(C::Fre, 14, 13), 5);  // the last date is 5/13/14
  // Nowruz 1404 and 1405 by the 2820-year cycle, which leaps in 1404 where
  // the astronomical calendar leapt in 1403.
  EXPECT_EQ(ToJD(C::Per, 1, 1, 1404), GregorianToJD(20, 3, 2025));
  EXPECT_EQ(ToJD(C::Per, 1, 1, 1405), GregorianToJD(21, 3, 2026));
  // Indian National: Chaitra 1 is 21 March in Gregorian leap years.
  EXPECT_EQ(ToJD(C::Ind, 1, 1, 1946), GregorianToJD(21, 3, 2024));
  EXPECT_EQ(ToJD(C::Ind, 1, 1, 1947), GregorianToJD(22, 3, 2025));
  // Revised Julian agrees with the Gregorian calendar until February 2800.
  EXPECT_EQ(ToJD(C::RevJul, 28, 2, 2800), GregorianToJD(28, 2, 2800));
  EXPECT_EQ(ToJD(C::RevJul, 1, 3, 2800), GregorianToJD(29, 2, 2800));
  EXPECT_EQ(engine().JDToDate(C::RevJul, GregorianToJD(1, 1, 2000)), (CalDate{1, 1, 2000}));
}

TEST_F(SolarFixed, LeapYearRules) {
  CalendarEngine& e = engine();
  EXPECT_TRUE(e.IsLeapYear(C::Cop, 3));
  EXPECT_FALSE(e.IsLeapYear(C::Cop, 4));
  EXPECT_TRUE(e.IsLeapYear(C::Fre, 3));
  EXPECT_TRUE(e.IsLeapYear(C::Fas, 1276));
  // The Fasli new year stays on 21 March, so 1468, which runs to March of
  // Gregorian 2100, has no leap day either.
  EXPECT_FALSE(e.IsLeapYear(C::Fas, 1468));
  EXPECT_EQ(e.DaysInMonth(C::Fas, 1468, 13), 5);
  EXPECT_EQ(ToJD(C::Fas, 1, 1, 1469), GregorianToJD(21, 3, 2100));
  EXPECT_TRUE(e.IsLeapYear(C::Fas, 1372));  // to March 2004
  // The 2820-year cycle puts its leap year at 1404, not 1403.
  EXPECT_FALSE(e.IsLeapYear(C::Per, 1403));
  EXPECT_TRUE(e.IsLeapYear(C::Per, 1404));
  EXPECT_EQ(e.IsLeapYear(C::Afg, 1404), e.IsLeapYear(C::Per, 1404));
  EXPECT_TRUE(e.IsLeapYear(C::RevJul, 2000));
  EXPECT_FALSE(e.IsLeapYear(C::RevJul, 2800));
  EXPECT_TRUE(e.IsLeapYear(C::RevJul, 2900));
  EXPECT_TRUE(e.IsLeapYear(C::RevJul, 3300));
  EXPECT_FALSE(e.IsLeapYear(C::RevJul, 3000));
  for (C t : {C::Arm, C::Egy, C::ParShe, C::PerQad}) EXPECT_FALSE(e.IsLeapYear(t, 4)) << CodeOf(t);
  // Gregorian-shifted rules: the leap day lands in the month the Gregorian one does.
  EXPECT_EQ(e.DaysInMonth(C::Ind, 1946, 1), 31);
  EXPECT_EQ(e.DaysInMonth(C::Ind, 1947, 1), 30);
  EXPECT_EQ(e.DaysInMonth(C::Ban, 1430, 11), 31);  // Falgun 1430 holds 29 February 2024
  EXPECT_EQ(e.DaysInMonth(C::Sikh, 555, 12), 31);  // Phagan 555 holds 29 February 2024
  EXPECT_EQ(e.DaysInMonth(C::Arm, 100, 14), 0);
  EXPECT_EQ(e.DaysInMonth(C::Bah, 100, 21), 0);
}

// The table of 172 to 221 B.E. joins the rule on both sides without a gap.
TEST_F(SolarFixed, BahaiTableJoinsTheRule) {
  CalendarEngine& e = engine();
  for (int y : {171, 221}) {
    int last = e.IsLeapYear(C::Bah, y) ? 5 : 4;
    EXPECT_EQ(ToJD(C::Bah, 19, 20, y) + 1, ToJD(C::Bah, 1, 1, y + 1)) << y;
    EXPECT_EQ(ToJD(C::Bah, 1, 20, y) - 1, ToJD(C::Bah, last, 19, y)) << y;
  }
  EXPECT_EQ(NawRuzDay(171), 21);
  EXPECT_EQ(ToJD(C::Bah, 1, 1, 172), GregorianToJD(21, 3, 2015));
  EXPECT_EQ(ToJD(C::Bah, 1, 1, 173), GregorianToJD(20, 3, 2016));
  EXPECT_EQ(ToJD(C::Bah, 1, 1, 221), GregorianToJD(20, 3, 2064));
  EXPECT_EQ(ToJD(C::Bah, 1, 1, 222), GregorianToJD(21, 3, 2065));
  EXPECT_TRUE(e.IsLeapYear(C::Bah, 221));
  EXPECT_FALSE(e.IsLeapYear(C::Bah, 172));
  // Naw-Ruz on 20 March in both 2059 and 2060: 29 February falls between.
  EXPECT_TRUE(e.IsLeapYear(C::Bah, 216));
  EXPECT_EQ(ToJD(C::Bah, 1, 1, 217) - ToJD(C::Bah, 1, 1, 216), 366);
}

TEST_F(SolarFixed, BahaiCyclesAndDayNames) {
  auto cycle = [](int y) {
    BahaiCycle c = BahaiCycleOfYear(y);
    return std::to_string(c.kullIShay) + "." + std::to_string(c.vahid) + "." +
           std::to_string(c.yearOfVahid);
  };
  EXPECT_EQ(cycle(1), "1.1.1");
  EXPECT_EQ(cycle(19), "1.1.19");
  EXPECT_EQ(cycle(20), "1.2.1");
  EXPECT_EQ(cycle(182), "1.10.11");
  EXPECT_EQ(cycle(361), "1.19.19");
  EXPECT_EQ(cycle(362), "2.1.1");
  EXPECT_EQ(kBahaiVahidYears[BahaiCycleOfYear(19).yearOfVahid], "Vahid");
  EXPECT_EQ(BahaiDayName(1, 1), "Baha'");
  EXPECT_EQ(BahaiDayName(19, 3), "'Ala'");
  EXPECT_EQ(BahaiDayName(5, 19), "Nur");
  EXPECT_EQ(kBahaiMonths[19], "Ayyam-i-Ha");
}

TEST_F(SolarFixed, FrenchAndParsiNames) {
  EXPECT_EQ(FrenchMonthName(p.ctx, 1), "Vendémiaire");
  EXPECT_EQ(FrenchDayName(p.ctx, 6, 13), "Jour de la Révolution");
  EXPECT_EQ(FrenchDayName(p.ctx, 20, 4), "Decadi");
  EXPECT_EQ(FrenchDayName(p.ctx, 21, 4), "Primidi");
  p.ctx.settings.plainLetters = true;
  EXPECT_EQ(FrenchMonthName(p.ctx, 13), "Jours Complementaire");
  EXPECT_EQ(FrenchDayName(p.ctx, 2, 13), "Fete du Genie");
  EXPECT_EQ(FrenchMonthName(p.ctx, 14), "");
  EXPECT_EQ(ParsiDayName(30, 12), "Aneran");
  EXPECT_EQ(ParsiDayName(6, 13), "Avardad-sal-gah");
  EXPECT_EQ(ParsiDayName(7, 13), "");
}

// Day numbers outside a calendar's years still give an answer.
TEST_F(SolarFixed, DayNumbersBeforeTheEpochDoNotHang) {
  for (C t : {C::Arm, C::Egy, C::Fas, C::Ban, C::Ind, C::Sikh, C::Bah, C::Per, C::Cop, C::Fre}) {
    CalDate d = engine().JDToDate(t, 1000000);
    EXPECT_LE(d.year, InfoOf(t).firstYear) << CodeOf(t);
  }
}

}  // namespace
}  // namespace mc::test
