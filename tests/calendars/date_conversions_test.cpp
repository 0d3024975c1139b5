#include "calendars/date_conversions.h"

#include <gtest/gtest.h>

#include <random>

#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "core/text_util.h"
#include "support/test_program.h"

namespace mc {
namespace {

class DateConversionsTest : public ::testing::Test {
 protected:
  DateConversionsTest() { p.Start(); }

  // The report's lines for a date typed in a calendar.
  std::vector<std::string> Report(std::string_view calendar, std::string_view text) {
    DateConversionsScreen screen(p.ctx);
    EXPECT_TRUE(screen.SetCalendar(calendar));
    screen.dateText = std::string(text);
    EXPECT_TRUE(screen.ConvertDate()) << p.sink.Last();
    return SplitLines(screen.Output());
  }
  static bool Has(const std::vector<std::string>& lines, std::string_view line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }
  // The table row of a calendar, or "" when the report leaves it out.
  static std::string Row(const std::vector<std::string>& lines, std::string_view name) {
    for (const auto& l : lines)
      if (l.size() > 26 && Trim(l.substr(0, 26)) == name) return l.substr(26);
    return "";
  }

  test::TestProgram p;
};

TEST_F(DateConversionsTest, AGregorianDay) {
  auto lines = Report("Gregorian", "13/11/2026");
  EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 7),
            (std::vector<std::string>{
                "*** Date Conversions ***", "", "November 13, 2026 (Gregorian Calendar)",
                "This day is a Friday.", "It is day 317 of the 2026 Gregorian calendar year.",
                "Julian Day (JD) = 2461358", ""}));
  EXPECT_EQ(Row(lines, "Gregorian"), "");  // the input calendar's own row is left out
  EXPECT_EQ(Row(lines, "Julian"), "Friday, October 31, 2026 C.E.");
  EXPECT_EQ(Row(lines, "ISO"), "Friday, week 46, 2026");
  EXPECT_EQ(Row(lines, "Hebrew"), "Yom shishi, Kislev 3, 5787 A.M., until sunset");
  EXPECT_EQ(Row(lines, "Islamic arithmetical"),
            "Yaum al-jum'a, Jumada 'l-Akhira 2, 1448 A.H., until sunset");
  EXPECT_EQ(Row(lines, "Mayan long count"), "13.0.14.1.15");
  EXPECT_EQ(Row(lines, "Persian arithmetic"), "Jom'eh, Aban 22, 1405 A.P.");
  EXPECT_EQ(Row(lines, "Chinese"), "Xingqiwu, day 5, month 10, cycle 78, year 43 (bing-wu)");
  EXPECT_TRUE(Has(lines, "Unlucky Friday the Thirteenth?"));
  EXPECT_TRUE(Has(lines, "41 more days and then Christmas."));
  EXPECT_TRUE(Has(lines, "Date is in regnal year 5 of King Charles III."));
  EXPECT_TRUE(Has(lines, "Ordinal date format is 2026-317."));
  EXPECT_TRUE(
      Has(lines, "In line with the ISO 8601 standard, this date is in week 46 of the year."));
  EXPECT_TRUE(Has(lines, "Modified Julian Day (MJD) = 61357"));
  EXPECT_TRUE(Has(lines, "Lilian Day = 162198"));
  EXPECT_TRUE(Has(lines, "Rata Die (RD) = 739933"));
  EXPECT_TRUE(Has(lines, "Dominical (Sunday) letter is D."));
  EXPECT_TRUE(Has(lines, "Golden Number = XIII"));
  EXPECT_TRUE(Has(lines, "2026 is Roman year 2779 (MMDCCLXXIX) AUC."));
  EXPECT_EQ(lines.back(), "Epact = 11");
}

TEST_F(DateConversionsTest, ChristmasCountdownAndLeapYears) {
  EXPECT_TRUE(Has(Report("Gregorian", "25/12/2024"), "Today is Christmas Day."));
  EXPECT_TRUE(Has(Report("Gregorian", "24/12/2024"), "Tonight is Christmas Eve."));
  EXPECT_TRUE(Has(Report("Gregorian", "23/12/2024"), "1 more day and then Christmas."));
  auto lines = Report("Gregorian", "26/12/2024");
  for (const auto& l : lines) EXPECT_EQ(l.find("Christmas."), std::string::npos) << l;
  EXPECT_TRUE(Has(lines, "Dominical (Sunday) letters are G and F."));
  EXPECT_TRUE(Has(lines, "ISO calendar year 2024 contains 52 weeks."));
  EXPECT_TRUE(Has(lines, "There are 366 days in this calendar year."));
}

TEST_F(DateConversionsTest, TheChangeOfCalendar) {
  // The first Gregorian day: the Julian row is the day before's date.
  auto lines = Report("Gregorian", "15/10/1582");
  EXPECT_EQ(Row(lines, "Julian"), "Friday, October 5, 1582 C.E.");
  EXPECT_EQ(Row(lines, "ISO"), "");  // ISO weeks from 1583 only
  EXPECT_TRUE(Has(lines, "It is day 288 of the 1582 Julian/Gregorian calendar year."));
  EXPECT_TRUE(Has(lines, "There are 355 days in this calendar year."));
  EXPECT_TRUE(Has(lines, "Date in Roman date form is III Nonas Octobres, MMCCCXXXV AUC."));
  EXPECT_TRUE(Has(lines, "Dominical (Sunday) letter is G."));
  // A Julian day before the change has no Gregorian row.
  lines = Report("Julian", "4/10/1582");
  EXPECT_EQ(Row(lines, "Gregorian"), "");
  EXPECT_EQ(Row(lines, "Julian"), "");
  // The year after the change has no week 1 or 2: they are taken as week 51
  // of 1582, so that the first days of 1583 read week 52, then 51.
  EXPECT_EQ(Row(Report("Gregorian", "1/1/1583"), "ISO"), "Saturday, week 52, 1582");
  lines = Report("Gregorian", "5/1/1583");
  EXPECT_EQ(Row(lines, "ISO"), "Wednesday, week 51, 1582");
  EXPECT_TRUE(Has(
      lines, "In line with the ISO 8601 standard, this date is in week 51 of the previous year."));
}

TEST_F(DateConversionsTest, HeadersOfOtherCalendars) {
  auto lines = Report("Hebrew", "1/6L/5784");
  EXPECT_EQ(lines[2], "Adar II 1, 5784 A.M. (Hebrew Calendar)");
  EXPECT_TRUE(Has(lines, "The Hebrew calendar year 5784 is a leap year."));
  EXPECT_EQ(Row(lines, "Gregorian"), "Monday, March 11, 2024");

  lines = Report("Chinese", "1/0/40/78");  // the leap month of 2023 repeats the second
  EXPECT_EQ(lines[2], "Day 1, Leap Month 2, Year 40 (gui-mao), Cycle 78 (Chinese Calendar)");
  EXPECT_TRUE(Has(lines, "The Chinese calendar year 4660 is a leap year."));

  lines = Report("Julian Day", "2451545");
  EXPECT_EQ(lines[2], "Julian Day 2451545");
  EXPECT_EQ(Row(lines, "Gregorian"), "Saturday, January 1, 2000");

  lines = Report("Mayan", "13.0.0.0.0");
  EXPECT_EQ(lines[2], "Mayan Long Count 13.0.0.0.0");
  EXPECT_EQ(Row(lines, "Gregorian"), "Friday, December 21, 2012");
  EXPECT_EQ(Row(lines, "Mayan civil haab"), "3 Kankin");

  lines = Report("French Revolutionary", "18/2/8");
  EXPECT_EQ(Row(lines, "Gregorian"), "Saturday, November 9, 1799");
  EXPECT_TRUE(
      Has(lines, "It is day 2605 since the start of French Revolutionary calendar year 1."));
}

TEST_F(DateConversionsTest, EmptyBoxAndStepping) {
  DateConversionsScreen screen(p.ctx);
  ASSERT_TRUE(screen.ConvertDate());
  EXPECT_EQ(screen.dateText, "23/11/2026");
  ASSERT_TRUE(screen.StepDate(+1));
  EXPECT_EQ(screen.dateText, "24/11/2026");
  screen.SetCalendar("Julian Day");
  screen.dateText.clear();
  ASSERT_TRUE(screen.ConvertDate());
  EXPECT_EQ(screen.dateText, "2461368");
  screen.SetCalendar("French Revolutionary");
  screen.dateText.clear();
  ASSERT_TRUE(screen.ConvertDate());
  EXPECT_EQ(screen.dateText, "1/1/1");
  EXPECT_FALSE(screen.StepDate(-1));
  EXPECT_EQ(p.sink.Last(), "Lower limit reached -- unable to complete operation.");
  screen.dateText = "5/13/14";
  EXPECT_FALSE(screen.StepDate(+1));
  EXPECT_EQ(p.sink.Last(), "French Revolutionary year must not exceed 14.");
  screen.SetCalendar("Gregorian");
  screen.dateText = "31/2/2026";
  EXPECT_FALSE(screen.ConvertDate());
  EXPECT_EQ(screen.Output(), "");
}

TEST_F(DateConversionsTest, Prompts) {
  EXPECT_EQ(BuildPrompt(p.ctx, CalType::JDA),
            "Input a Julian Day value in the range 1723615 to 5373484 and press the Enter key. "
            "Leave blank for the current Julian Day value.");
  const std::string heb = BuildPrompt(p.ctx, CalType::Heb);
  EXPECT_TRUE(
      heb.starts_with("Input a Hebrew calendar date in the format d/m/y with y in the "
                      "range 3768 to 13759 and press the Enter key. Leave blank"))
      << heb;
  EXPECT_TRUE(
      heb.ends_with("6 = Adar, 6L = Adar II, 7 = Nisan, 8 = Iyyar, 9 = Sivan, 10 = "
                    "Tammuz, 11 = Av, 12 = Elul."))
      << heb;
  EXPECT_TRUE(BuildPrompt(p.ctx, CalType::Afg).starts_with("Input an Afghan calendar date"));
  EXPECT_NE(BuildPrompt(p.ctx, CalType::Bal).find("11 = Jesta, 11L = Mala Jesta, 12 = Sada"),
            std::string::npos);
  EXPECT_EQ(BuildPrompt(p.ctx, CalType::Fre).find("Leave blank"), std::string::npos);
}

// The table lists a calendar exactly on the days its range holds, and never
// the input calendar.
TEST_F(DateConversionsTest, RowsFollowTheRangesOfTheirCalendars) {
  CalendarEngine& e = Calendars(p.ctx);
  struct Range {
    const char* row;
    CalType type;
    JD first, last;
  };
  const std::vector<Range> ranges = {
      {"Gregorian", CalType::Greg, kGregorianStart, LastJulianDay()},
      {"Julian", CalType::Jul, JulianToJD(1, 1, 7), LastJulianDay()},
      {"Hebrew", CalType::Heb, e.DateToJD(CalType::Heb, 23, 4, 3767), LastJulianDay()},
      {"Bangla", CalType::Ban, e.DateToJD(CalType::Ban, 1, 1, 1374),
       e.DateToJD(CalType::Ban, 30, 12, 9405)},
      {"Indian National", CalType::Ind, e.DateToJD(CalType::Ind, 1, 1, 1879), LastJulianDay()},
      {"Islamic Umm al-Qura", CalType::UAQ, e.DateToJD(CalType::UAQ, 1, 1, 1356),
       e.DateToJD(CalType::UAQ, 30, 12, 1500)},
      {"Julian, revised", CalType::RevJul, GregorianToJD(14, 10, 1923), LastJulianDay()},
      {"Persian astronomical", CalType::APer, e.DateToJD(CalType::APer, 1, 1, 1),
       e.DateToJD(CalType::APer, 29, 12, 2500)},
      {"Yoruba", CalType::Yor, GregorianToJD(1, 1, 1583), LastJulianDay()},
      {"French Revolutonary", CalType::Fre, GregorianToJD(22, 9, 1792),
       e.DateToJD(CalType::Fre, 5, 13, 14)},
  };
  std::mt19937 random(7);
  std::uniform_int_distribution<JD> day(FirstJulianDay(), LastJulianDay());
  std::vector<JD> days;
  for (const auto& r : ranges) days.insert(days.end(), {r.first - 1, r.first, r.last, r.last + 1});
  for (int i = 0; i < 60; ++i) days.push_back(day(random));
  for (JD jd : days) {
    if (jd < FirstJulianDay() || jd > LastJulianDay()) continue;
    for (CalType input : {CalType::JDA, CalType::Jul}) {
      auto lines = SplitLines(AllCalendarsReport(p.ctx, input, jd));
      for (const auto& r : ranges) {
        const bool expected = r.type != input && jd >= r.first && jd <= r.last;
        EXPECT_EQ(!Row(lines, r.row).empty(), expected) << r.row << " at " << jd;
      }
    }
  }
}

}  // namespace
}  // namespace mc
