#include "calendars/islamic.h"

#include <gtest/gtest.h>

#include "calendars/gregorian.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "shell/startup.h"
#include "support/program_test.h"
#include "sweep.h"

namespace mc::test {
namespace {

using C = CalType;

class Islamic : public test::ProgramTest {
 protected:
  void Use(int scheme, const char* epoch) {
    p.ctx.settings.islamicLeapScheme = scheme;
    p.ctx.settings.islamicEpochDay = epoch;
  }
};

TEST_F(Islamic, EveryDateRoundTripsUnderEachSchemeAndEpoch) {
  EXPECT_GT(SweepYears(engine(), C::Isl, 1, 9665, 29, 30), 0);  // the default: 2, Friday
  for (int scheme = 1; scheme <= 4; ++scheme)
    for (const char* epoch : {"Thursday", "Friday"}) {
      Use(scheme, epoch);
      EXPECT_GT(SweepYears(engine(), C::Isl, 1, 400, 29, 30), 0) << scheme << epoch;
    }
}

TEST_F(Islamic, YearLengthsAndCycles) {
  for (int scheme = 1; scheme <= 4; ++scheme) {
    Use(scheme, "Friday");
    int leapYears = 0;
    for (int y = 1; y <= 9665; ++y) {
      int length = engine().DateToJD(C::Isl, 1, 1, y + 1) - engine().DateToJD(C::Isl, 1, 1, y);
      ASSERT_EQ(length, engine().IsLeapYear(C::Isl, y) ? 355 : 354) << scheme << ": " << y;
      leapYears += length == 355;
    }
    // 322 whole cycles of 11 leap years and 5 years more.
    EXPECT_EQ(leapYears / 11, 322) << scheme;
    EXPECT_EQ(LeapYearsBefore(29, scheme), scheme == 4 ? 10 : 11);
    EXPECT_EQ(LeapYearsBefore(0, scheme), 0);
  }
  // Scheme 4's thirtieth year is leap, counted by the next cycle.
  EXPECT_TRUE(IsIslamicLeap(30, 4));
  EXPECT_FALSE(IsIslamicLeap(30, 2));
  EXPECT_EQ(LeapYearsBefore(15, 1), 6);
  EXPECT_EQ(LeapYearsBefore(15, 2), 5);
}

TEST_F(Islamic, EpochFollowsTheSetting) {
  EXPECT_EQ(engine().DateToJD(C::Isl, 1, 1, 1), 1948440);
  EXPECT_EQ(WeekdayOfJD(1948440), 6);  // a Friday
  Use(2, "Thursday");
  EXPECT_EQ(engine().DateToJD(C::Isl, 1, 1, 1), 1948439);
  EXPECT_EQ(engine().DateToJD(C::Isl, 1, 9, 1447), GregorianToJD(17, 2, 2026));
  Use(2, "Friday");
  EXPECT_EQ(engine().DateToJD(C::Isl, 1, 9, 1447), GregorianToJD(18, 2, 2026));
}

// A scheme outside 1 to 4 has no leap years; its years don't join, but no
// conversion hangs.
TEST_F(Islamic, UnknownSchemeAnswersWithoutLeapYears) {
  Use(7, "Friday");
  EXPECT_FALSE(engine().IsLeapYear(C::Isl, 2));
  EXPECT_EQ(LeapYearsBefore(10, 7), 0);
  for (JD jd = 2460000; jd < 2461000; jd += 7)
    EXPECT_EQ(engine().JDToDate(C::Isl, jd).year > 0, true);
}

TEST_F(Islamic, UmmAlQuraFollowsItsFile) {
  CalendarEngine& e = engine();
  const UmmAlQuraTable& table = UmmAlQura(e);
  ASSERT_TRUE(table.loaded);
  auto lines = SplitLines(p.Read("ummalqur.dat"));
  ASSERT_EQ(lines.size(), 145u);
  for (int i = 0; i < 145; ++i) {
    const int year = 1356 + i;
    EXPECT_EQ(lines[i].substr(0, lines[i].find(',')), std::to_string(year));
    EXPECT_EQ(std::to_string(e.DateToJD(C::UAQ, 1, 1, year)),
              lines[i].substr(5, lines[i].rfind(',') - 5));
    EXPECT_FALSE(e.IsLeapYear(C::UAQ, year));
    const std::string digits = lines[i].substr(lines[i].rfind(',') + 1);
    for (int m = 1; m <= 12; ++m)
      EXPECT_EQ(e.DaysInMonth(C::UAQ, year, m), 29 + (digits[m - 1] - '0'));
  }
  EXPECT_GT(SweepYears(e, C::UAQ, 1356, 1500, 29, 30), 0);
  EXPECT_EQ(e.DateToJD(C::UAQ, 1, 1, 1356), GregorianToJD(14, 3, 1937));
  EXPECT_EQ(e.DateToJD(C::UAQ, 1, 9, 1447), GregorianToJD(18, 2, 2026));
}

TEST_F(Islamic, UmmAlQuraOutsideTheTable) {
  CalendarEngine& e = engine();
  const JD first = e.DateToJD(C::UAQ, 1, 1, 1356);
  const JD after = e.DateToJD(C::UAQ, 30, 12, 1500) + 1;
  EXPECT_EQ(e.DateToJD(C::UAQ, 30, 12, 1501), after);
  EXPECT_EQ(e.DateToJD(C::UAQ, 5, 5, 1600), after);
  EXPECT_EQ(e.DateToJD(C::UAQ, 17, 3, 1300), first - 1);
  EXPECT_EQ(e.DaysInMonth(C::UAQ, 1501, 3), 29);
  EXPECT_EQ(e.DaysInMonth(C::UAQ, 1400, 13), 0);
  EXPECT_EQ(e.JDToDate(C::UAQ, first - 1), (CalDate{1, 1, 1355}));
  EXPECT_EQ(e.JDToDate(C::UAQ, first - 5000), (CalDate{1, 1, 1355}));
  EXPECT_EQ(e.JDToDate(C::UAQ, after), (CalDate{1, 1, 1501}));
  EXPECT_EQ(e.JDToDate(C::UAQ, after + 9000), (CalDate{1, 1, 1501}));
}

// The file as start-up reads it: line ends of either kind, and every way of
// being missing or damaged.
TEST(UmmAlQuraFile, StartFailsOnAMissingOrDamagedFile) {
  struct Case {
    const char* name;
    std::string (*edit)(std::string);
    const char* message;
  };
  const Case cases[] = {
      {"LF line ends",
       [](std::string s) {
         std::string out;
         for (char c : s)
           if (c != '\r') out += c;
         return out;
       },
       nullptr},
      {"missing", nullptr, "File ummalqur.dat not found error (ProcNum = 0)."},
      {"truncated",
       [](std::string s) {
         auto lines = SplitLines(s);
         lines.resize(100);
         return JoinCrLf(lines);
       },
       "Input past end of file error (ProcNum = 0)."},
      {"letter in a day number", [](std::string s) { return s.replace(s.find("2428960"), 1, "x"); },
       "Type mismatch error (ProcNum = 0)."},
      {"month digit 2", [](std::string s) { return s.replace(s.find(",101010101011"), 2, ",2"); },
       "Type mismatch error (ProcNum = 0)."},
      {"year start off by one",
       [](std::string s) { return s.replace(s.find("2428960"), 7, "2428961"); },
       "Type mismatch error (ProcNum = 0)."},
      {"years out of order", [](std::string s) { return s.replace(s.find("1357,"), 4, "1358"); },
       "Type mismatch error (ProcNum = 0)."},
      {"a line too many", [](std::string s) { return s + "1501,2479990,010101010101\r\n"; },
       "Type mismatch error (ProcNum = 0)."},
  };
  for (const Case& c : cases) {
    TestProgram p;
    std::string text = p.Read("ummalqur.dat");
    if (c.edit)
      p.Write("ummalqur.dat", c.edit(text));
    else
      std::filesystem::remove(p.File("ummalqur.dat"));
    StartOptions options;
    options.detectLocale = false;
    StartOutcome outcome = StartProgram(p.ctx, options);
    if (!c.message) {
      EXPECT_EQ(outcome, StartOutcome::Ready) << c.name;
      EXPECT_TRUE(p.sink.messages.empty()) << c.name;
      EXPECT_TRUE(UmmAlQura(Calendars(p.ctx)).loaded) << c.name;
      continue;
    }
    EXPECT_EQ(outcome, StartOutcome::BadDataFile) << c.name;
    ASSERT_EQ(p.sink.messages.size(), 1u) << c.name;
    EXPECT_EQ(p.sink.messages[0], (Message{"Error Detected!", c.message})) << c.name;
    EXPECT_EQ(p.ctx.settings.lastFileOpened, "ummalqur.dat");
    // The calendar then answers nothing rather than wrong dates.
    EXPECT_FALSE(UmmAlQura(Calendars(p.ctx)).loaded) << c.name;
    EXPECT_EQ(Calendars(p.ctx).DateToJD(C::UAQ, 1, 1, 1400), 0) << c.name;
    EXPECT_EQ(Calendars(p.ctx).JDToDate(C::UAQ, 2460000), CalDate{}) << c.name;
  }
}

TEST(UmmAlQuraFile, TraceLineWhenDebugging) {
  TestProgram p;
  std::string ini = p.Read("mercod.ini");
  auto at = ini.find("Debug = No");
  ASSERT_NE(at, std::string::npos);
  p.Write("mercod.ini", ini.replace(at, 10, "Debug = Yes"));
  p.Start();
  EXPECT_NE(p.Read("debug.txt").find("SetBasicData. UAQ data arrays successfully created."),
            std::string::npos);
}

}  // namespace
}  // namespace mc::test
