// The Chinese and Vietnamese calendars: year structure over the whole range,
// round trips, the engine's year tables, and agreement with ICU's Chinese
// calendar and with Ho Ngoc Duc's Vietnamese calendar.
#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "calendars/chinese.h"
#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "calendars/registry.h"
#include "support/test_program.h"

namespace mc {
namespace {

using test::TestProgram;

constexpr int kFirstGregorian = 1645;
constexpr int kLastGregorian = 3000;

TEST(LunarYear, EveryYearIsWellFormedAndFollowsTheYearBefore) {
  for (CalType type : {CalType::Chi, CalType::Vie}) {
    LunarYearTable previous = ComputeLunarYear(type, kFirstGregorian - 1);
    for (int g = kFirstGregorian; g <= kLastGregorian; ++g) {
      const LunarYearTable t = ComputeLunarYear(type, g);
      SCOPED_TRACE(testing::Message() << CodeOf(type) << " " << g);
      ASSERT_TRUE(t.monthCount == 12 || t.monthCount == 13);
      EXPECT_EQ(t.leapFlag, t.monthCount == 13);
      EXPECT_EQ(t.yearStart, previous.yearEnd + 1);
      EXPECT_EQ(t.yearStart, t.monthStart[1]);
      EXPECT_EQ(t.monthNumber[1], 1);
      // Months of 29 or 30 days, end to end, numbered 1 to 12 with one leap
      // month (0) in a 13-month year, right after the month it repeats.
      int expected = 1, leaps = 0;
      for (int s = 1; s <= t.monthCount; ++s) {
        ASSERT_TRUE(t.monthLength[s] == 29 || t.monthLength[s] == 30);
        if (s > 1) {
          ASSERT_EQ(t.monthStart[s], t.monthStart[s - 1] + t.monthLength[s - 1]);
        }
        if (t.monthNumber[s] == 0) {
          ++leaps;
          EXPECT_EQ(t.leapMonthNumber, t.monthNumber[s - 1]);
        } else {
          ASSERT_EQ(t.monthNumber[s], expected++);
        }
      }
      EXPECT_EQ(expected, 13);
      EXPECT_EQ(leaps, t.leapFlag ? 1 : 0);
      if (!t.leapFlag) {
        EXPECT_EQ(t.leapMonthNumber, 0);
      }
      EXPECT_EQ(t.yearEnd, t.monthStart[t.monthCount] + t.monthLength[t.monthCount] - 1);
      // The eleventh month holds the winter solstice (term 12).
      int s11 = t.SlotOfMonth(11);
      EXPECT_LE(t.monthStart[s11], t.terms[12]);
      EXPECT_GT(t.monthStart[s11] + t.monthLength[s11], t.terms[12]);
      previous = t;
    }
  }
}

TEST(LunarYear, KnownYears) {
  struct Case {
    CalType type;
    int gregorianYear;
    JD newYear;
    int leapMonth;
  } cases[] = {
      {CalType::Chi, 2024, GregorianToJD(10, 2, 2024), 0},
      {CalType::Chi, 2023, GregorianToJD(22, 1, 2023), 2},
      {CalType::Chi, 2020, GregorianToJD(25, 1, 2020), 4},
      {CalType::Chi, 1987, GregorianToJD(29, 1, 1987), 6},  // the official leap 6
      {CalType::Chi, 2033, GregorianToJD(31, 1, 2033), 11},
      {CalType::Chi, 2034, GregorianToJD(19, 2, 2034), 0},  // after the leap eleventh
      {CalType::Chi, 1985, GregorianToJD(20, 2, 1985), 0},
      // Vietnam, an hour west, saw the new moon of 21 January 1985 on its own
      // day: no leap month late in 1984, a new year a month before China's,
      // and a leap second month instead.
      {CalType::Vie, 1985, GregorianToJD(21, 1, 1985), 2},
      {CalType::Vie, 1984, GregorianToJD(2, 2, 1984), 0},
      {CalType::Chi, 1984, GregorianToJD(2, 2, 1984), 10},
      {CalType::Vie, 2007, GregorianToJD(17, 2, 2007), 0},  // China: 18 February
      {CalType::Chi, 2007, GregorianToJD(18, 2, 2007), 0},
  };
  for (const auto& c : cases) {
    const LunarYearTable t = ComputeLunarYear(c.type, c.gregorianYear);
    EXPECT_EQ(t.yearStart, c.newYear) << CodeOf(c.type) << " " << c.gregorianYear;
    EXPECT_EQ(t.leapMonthNumber, c.leapMonth) << CodeOf(c.type) << " " << c.gregorianYear;
  }
}

TEST(LunarYear, TimeZonesAndTheChangeOf1929) {
  EXPECT_DOUBLE_EQ(CalendarTimeZone(CalType::Chi, 1928), (465 + 40.0 / 60) / 1440);
  EXPECT_DOUBLE_EQ(CalendarTimeZone(CalType::Chi, 1929), 480.0 / 1440);
  EXPECT_DOUBLE_EQ(CalendarTimeZone(CalType::Vie, 1700), 420.0 / 1440);
  EXPECT_DOUBLE_EQ(CalendarTimeZone(CalType::Vie, 2500), 420.0 / 1440);
  // Half past the day's noon in Universal Time is the next civil day east of
  // the date line once the zone passes half a day.
  EXPECT_EQ(LocalDayOfMoment(2451545.0, 0.0), 2451545);  // noon: still that day
  EXPECT_EQ(LocalDayOfMoment(2451545.49, 0.0), 2451545);
  EXPECT_EQ(LocalDayOfMoment(2451545.5, 0.0), 2451546);  // midnight starts the next
  EXPECT_EQ(LocalDayOfMoment(2451545.2, 480.0 / 1440), 2451546);
}

TEST(LunarYear, EngineCacheAnswersAsARebuildAndKeepsTheLastYear) {
  TestProgram p;
  p.Start();
  auto& cal = Calendars(p.ctx);
  std::mt19937 rng(11);
  std::uniform_int_distribution<int> year(2015, 2030);  // few enough to hit the cache
  for (int n = 0; n < 300; ++n) {
    CalType type = n % 3 == 0 ? CalType::Vie : CalType::Chi;
    int g = year(rng);
    const LunarYearTable& built = BuildLunarYear(cal, type, g);
    ASSERT_EQ(built, ComputeLunarYear(type, g)) << g;
    ASSERT_EQ(&LastLunarYear(cal, type), &built);
    if (n % 50 == 0) ClearLunarYearCache(cal);
  }
  // A conversion leaves its year readable: 1 May 2023 lies in the year with
  // the leap second month.
  CalDate d = cal.JDToDate(CalType::Chi, GregorianToJD(1, 5, 2023));
  EXPECT_EQ(d, (CalDate{12, 3, 2023 + kChineseYearOffset}));
  const LunarYearTable& last = LastLunarYear(cal, CalType::Chi);
  EXPECT_EQ(last.gregorianYear, 2023);
  EXPECT_TRUE(last.leapFlag);
  EXPECT_EQ(last.leapMonthNumber, 2);
  // The Vietnamese tables are apart from the Chinese ones.
  cal.JDToDate(CalType::Vie, GregorianToJD(1, 5, 1985));
  EXPECT_EQ(LastLunarYear(cal, CalType::Vie).gregorianYear, 1985);
  EXPECT_EQ(LastLunarYear(cal, CalType::Chi).gregorianYear, 2023);
  EXPECT_EQ(cal.DaysInMonth(CalType::Chi, 4660, 1), 0);  // callers read the tables
  EXPECT_TRUE(cal.IsLeapYear(CalType::Chi, 2023 + kChineseYearOffset));
  EXPECT_FALSE(cal.IsLeapYear(CalType::Chi, 2024 + kChineseYearOffset));
}

// Every day of the sampled years maps to a date that maps back, and every
// valid date of those years maps to a day that maps back.
void RoundTripYear(CalendarEngine& cal, CalType type, int g) {
  const LunarYearTable t = ComputeLunarYear(type, g);
  for (int s = 1; s <= t.monthCount; ++s) {
    for (int d = 1; d <= t.monthLength[s]; ++d) {
      JD jd = t.monthStart[s] + d - 1;
      CalDate date{d, t.monthNumber[s], t.Year()};
      ASSERT_EQ(cal.DateToJD(type, date.day, date.month, date.year), jd)
          << CodeOf(type) << " " << d << "/" << date.month << "/" << date.year;
      ASSERT_EQ(cal.JDToDate(type, jd), date) << CodeOf(type) << " " << jd;
    }
  }
}

TEST(LunarYear, RoundTripsOverTheWholeRange) {
  TestProgram p;
  p.Start();
  auto& cal = Calendars(p.ctx);
  for (CalType type : {CalType::Chi, CalType::Vie}) {
    for (int g = kFirstGregorian; g <= kLastGregorian; g += 7) RoundTripYear(cal, type, g);
    RoundTripYear(cal, type, kLastGregorian);
    std::mt19937 rng(type == CalType::Chi ? 3 : 5);
    std::uniform_int_distribution<JD> pick(ComputeLunarYear(type, kFirstGregorian).yearStart,
                                           ComputeLunarYear(type, kLastGregorian).yearEnd);
    for (int n = 0; n < 3000; ++n) {
      JD jd = pick(rng);
      CalDate d = cal.JDToDate(type, jd);
      ASSERT_GE(d.year, 4282);
      ASSERT_LE(d.year, 5637);
      ASSERT_EQ(cal.DateToJD(type, d.day, d.month, d.year), jd) << CodeOf(type) << " " << jd;
    }
  }
}

TEST(LunarYear, FaultyDatesAndTheirMessages) {
  TestProgram p;
  p.Start();
  auto& cal = Calendars(p.ctx);
  const int y2024 = 2024 + kChineseYearOffset;  // no leap month
  const int y2023 = 2023 + kChineseYearOffset;  // leap second month of 29 days
  EXPECT_EQ(cal.DateToJD(CalType::Chi, 1, 0, y2024), -1);
  EXPECT_EQ(cal.DateToJD(CalType::Chi, 1, 13, y2024), -1);
  EXPECT_EQ(cal.DateToJD(CalType::Chi, 1, -1, y2024), -1);
  EXPECT_EQ(cal.DateToJD(CalType::Chi, 30, 0, y2023), -2);
  EXPECT_EQ(cal.DateToJD(CalType::Chi, 29, 0, y2023), GregorianToJD(19, 4, 2023));
  EXPECT_EQ(cal.DateToJD(CalType::Chi, 0, 1, y2024), -2);
  EXPECT_EQ(cal.DateToJD(CalType::Chi, 1, 1, y2024), GregorianToJD(10, 2, 2024));

  // Year 41 of cycle 78 is 2024: no leap month there.
  EXPECT_FALSE(ParseDateText(p.ctx, CalType::Chi, "1/0/41/78"));
  EXPECT_EQ(p.sink.Last(), "Invalid month value.");
  EXPECT_FALSE(ParseDateText(p.ctx, CalType::Vie, "31/1/41/78"));
  EXPECT_EQ(p.sink.Last(), "Invalid day value.");
  auto leap = ParseDateText(p.ctx, CalType::Chi, "29/0/40/78");
  ASSERT_TRUE(leap);
  EXPECT_EQ(cal.DateToJD(CalType::Chi, leap->day, leap->month, leap->year),
            GregorianToJD(19, 4, 2023));

  // The two ends of the range. 1645 has a leap month, so month 0 of its year
  // is a real month.
  auto first = ParseDateText(p.ctx, CalType::Chi, "1/1/22/72");
  ASSERT_TRUE(first);
  EXPECT_EQ(cal.DateToJD(CalType::Chi, first->day, first->month, first->year),
            ComputeLunarYear(CalType::Chi, 1645).yearStart);
  EXPECT_TRUE(ParseDateText(p.ctx, CalType::Chi, "1/0/22/72"));
  for (CalType type : {CalType::Chi, CalType::Vie}) {
    const LunarYearTable t = ComputeLunarYear(type, kLastGregorian);
    int last = t.monthLength[t.SlotOfMonth(12)];
    auto end = ParseDateText(p.ctx, type, std::to_string(last) + "/12/57/94");
    ASSERT_TRUE(end) << CodeOf(type);
    EXPECT_EQ(cal.DateToJD(type, end->day, end->month, end->year), t.yearEnd);
    EXPECT_EQ(FormatDateText(p.ctx, type, cal.JDToDate(type, t.yearEnd)),
              std::to_string(last) + "/12/57/94");
  }
}

// One lunar year of a reference table: its first day, leap month and month
// lengths.
struct ReferenceYear {
  int gregorianYear = 0;
  JD start = 0;
  int leapMonth = 0;
  std::string lengths;
};

std::vector<ReferenceYear> ReadReference(const std::string& name) {
  std::ifstream in(std::string(CODEX_TEST_DATA_DIR) + "/" + name);
  std::vector<ReferenceYear> years;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    for (char& c : line)
      if (c == ',') c = ' ';
    ReferenceYear y;
    std::istringstream(line) >> y.gregorianYear >> y.start >> y.leapMonth >> y.lengths;
    years.push_back(y);
  }
  return years;
}

struct Agreement {
  int years = 0, sameYears = 0, months = 0, sameMonths = 0;
  double YearShare() const { return years ? double(sameYears) / years : 0; }
  double MonthShare() const { return months ? double(sameMonths) / months : 0; }
};

// Compares the engine's years with a reference over a span of years: a year
// agrees when its first day, its leap month and every month start agree.
Agreement Compare(CalType type, const std::vector<ReferenceYear>& ref, int from, int to) {
  Agreement a;
  for (const auto& y : ref) {
    if (y.gregorianYear < from || y.gregorianYear > to) continue;
    const LunarYearTable t = ComputeLunarYear(type, y.gregorianYear);
    bool same = t.yearStart == y.start && t.leapMonthNumber == y.leapMonth &&
                t.monthCount == static_cast<int>(y.lengths.size());
    JD start = y.start;
    for (std::size_t i = 0; i < y.lengths.size(); ++i) {
      ++a.months;
      bool month = static_cast<int>(i) < t.monthCount && t.monthStart[i + 1] == start;
      a.sameMonths += month;
      same = same && month;
      start += y.lengths[i] == '1' ? 30 : 29;
    }
    ++a.years;
    a.sameYears += same;
  }
  return a;
}

void Report(const char* what, int from, int to, const Agreement& a) {
  std::cout << what << " " << from << "-" << to << ": years " << a.sameYears << "/" << a.years
            << ", month starts " << a.sameMonths << "/" << a.months << "\n";
}

TEST(LunarYear, AgreesWithIcuChineseCalendar) {
  auto ref = ReadReference("chinese_icu_years.csv");
  ASSERT_EQ(ref.size(), 1356u);
  // ICU reckons every year at 8 hours east; before 1929 this calendar uses
  // Beijing's mean time, 14 minutes earlier. Both leave out delta T, but
  // ICU's own series are coarser: the two part where a new moon or a major
  // term falls within minutes of midnight, more often as delta T grows.
  struct Span {
    int from, to;
    double years, months;  // least shares expected
  } spans[] = {{1645, 1928, 0.75, 0.97}, {1929, 2100, 0.92, 0.99}, {2101, 3000, 0.70, 0.95}};
  for (const auto& s : spans) {
    Agreement a = Compare(CalType::Chi, ref, s.from, s.to);
    Report("Chi against ICU", s.from, s.to, a);
    EXPECT_GE(a.YearShare(), s.years) << s.from;
    EXPECT_GE(a.MonthShare(), s.months) << s.from;
  }
}

TEST(LunarYear, AgreesWithHoNgocDucVietnameseCalendar) {
  auto ref = ReadReference("vietnamese_amlich_years.csv");
  ASSERT_EQ(ref.size(), 1356u);
  // The same zone and close series: they part only on a handful of years
  // before 2100, and later as the reference's delta T grows (this calendar
  // leaves delta T out).
  Agreement early = Compare(CalType::Vie, ref, 1645, 2100);
  Report("Vie against Ho Ngoc Duc", 1645, 2100, early);
  EXPECT_GE(early.years - early.sameYears, 0);
  EXPECT_LE(early.years - early.sameYears, 5);
  Agreement late = Compare(CalType::Vie, ref, 2101, 3000);
  Report("Vie against Ho Ngoc Duc", 2101, 3000, late);
  EXPECT_GE(late.MonthShare(), 0.97);
}

}  // namespace
}  // namespace mc
