#include "views/month_calendars.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "calendars/registry.h"
#include "core/ini_file.h"
#include "support/program_test.h"

namespace mc {
namespace {

class MonthCalendars : public test::ProgramTest {
 protected:
  // Chooses a calendar with a week starting on Saturday (0), Sunday (1) or Monday (2).
  void Open(std::string_view caption, int startDay = 1) {
    p.ctx.settings.startDay = startDay;
    auto index = MonthCalendarsScreen::EntryIndex(caption);
    ASSERT_TRUE(index) << caption;
    screen.SelectCalendar(*index);
  }
  // A year, then a month by its entry in the list.
  void Show(int year, std::string_view month) {
    ASSERT_TRUE(screen.EnterYear(std::to_string(year))) << p.sink.Last();
    const auto& list = screen.MonthList();
    auto it = std::find(list.begin(), list.end(), month);
    ASSERT_NE(it, list.end()) << month;
    const int index = static_cast<int>(it - list.begin());
    if (index != screen.MonthIndex()) {
      ASSERT_TRUE(screen.SelectMonth(index)) << p.sink.Last();
    }
  }
  std::string Shown() const {
    return screen.MonthList()[static_cast<std::size_t>(screen.MonthIndex())] + " " +
           std::to_string(screen.Year());
  }

  MonthCalendarsScreen screen{p.ctx};
};

const std::string kSundayHead = "   S  M  T  W  T  F  S\r\n";

TEST_F(MonthCalendars, GregorianGridsFollowTheWeekStart) {
  Open("Gregorian", 1);
  // 1 January 2000 was a Saturday: the last column.
  Show(2000, "January");
  EXPECT_EQ(screen.GridText(), "       January 2000\r\n\r\n" + kSundayHead + " " +
                                   std::string(18, ' ') +
                                   "  1\r\n"
                                   "   2  3  4  5  6  7  8\r\n"
                                   "   9 10 11 12 13 14 15\r\n"
                                   "  16 17 18 19 20 21 22\r\n"
                                   "  23 24 25 26 27 28 29\r\n"
                                   "  30 31");
  EXPECT_EQ(screen.Information(), "");  // Gregorian months need no other start
  EXPECT_EQ(screen.CycleText(), "");

  // A leap February in weeks from Monday: 1 February 2024 was a Thursday.
  p.ctx.settings.startDay = 2;
  Show(2024, "February");
  EXPECT_EQ(screen.GridText(),
            "      February 2024\r\n\r\n"
            "   M  T  W  T  F  S  S\r\n"
            " " +
                std::string(9, ' ') +
                "  1  2  3  4\r\n"
                "   5  6  7  8  9 10 11\r\n"
                "  12 13 14 15 16 17 18\r\n"
                "  19 20 21 22 23 24 25\r\n"
                "  26 27 28 29");

  // Weeks from Saturday: 1 August 2024, a Thursday, stands in the sixth column.
  p.ctx.settings.startDay = 0;
  Show(2024, "August");
  EXPECT_EQ(screen.GridText(),
            "       August 2024\r\n\r\n"
            "   S  S  M  T  W  T  F\r\n"
            " " +
                std::string(15, ' ') +
                "  1  2\r\n"
                "   3  4  5  6  7  8  9\r\n"
                "  10 11 12 13 14 15 16\r\n"
                "  17 18 19 20 21 22 23\r\n"
                "  24 25 26 27 28 29 30\r\n"
                "  31");
  // From Sunday the 31st, a Saturday, fills the last column: the text ends
  // with a line holding one blank.
  p.ctx.settings.startDay = 1;
  Show(2024, "August");
  EXPECT_TRUE(screen.GridText().ends_with("  25 26 27 28 29 30 31\r\n "));

  // Today is 23 November 2026: the Julian December begins, November began.
  Open("Julian");
  Show(2026, "December");
  EXPECT_EQ(screen.Information(), "Month begins on Dec 14, 2026 (Gregorian).");
  Show(2026, "November");
  EXPECT_EQ(screen.Information(), "Month began on Nov 14, 2026 (Gregorian).");
}

TEST_F(MonthCalendars, ChangeOverMonthsCannotBeShown) {
  Open("Gregorian");
  Show(1583, "November");
  EXPECT_TRUE(screen.StepYear(-1));
  EXPECT_EQ(Shown(), "November 1582");
  EXPECT_EQ(screen.Information(), "");  // a Gregorian month says nothing
  EXPECT_FALSE(screen.StepYear(-1));
  EXPECT_EQ(p.sink.Last(), "Months earlier than November in 1582 cannot be displayed.");
  EXPECT_FALSE(screen.StepMonth(-1));
  EXPECT_FALSE(screen.SelectMonth(9));  // October
  EXPECT_FALSE(screen.EnterYear("1500"));
  EXPECT_EQ(Shown(), "November 1582");
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_EQ(Shown(), "December 1582");

  Open("Revised Julian");
  Show(1924, "November");
  EXPECT_TRUE(screen.EnterYear("1923"));
  EXPECT_EQ(Shown(), "November 1923");
  EXPECT_FALSE(screen.SelectMonth(9));
  EXPECT_EQ(p.sink.Last(), "Months earlier than November in 1923 cannot be displayed.");

  // Julian months: nothing before the change, the Gregorian start after it;
  // other calendars give the Julian start before the change.
  Open("Julian");
  Show(1582, "October");
  EXPECT_EQ(screen.Information(), "");
  Show(1582, "November");
  EXPECT_EQ(screen.Information(), "Month began on Nov 11, 1582 (Gregorian).");
  Open("Coptic");
  Show(1298, "Thoout");
  EXPECT_EQ(screen.Information(), "Month began on Aug 29, 1581 (Julian).");
}

TEST_F(MonthCalendars, TypedYearsAreCheckedInOrder) {
  Open("Gregorian");
  Show(2024, "March");
  p.sink.Clear();
  for (auto [text, message] : std::initializer_list<std::pair<const char*, const char*>>{
           {"abc", "Year value must be numeric."},
           {"-5", "Year value must be positive."},
           {"0", "Year value must be positive."},
           {"2000.5", "Year value must be an integer."},
           {"10000", "Gregorian year must not exceed 9999."},
       }) {
    EXPECT_FALSE(screen.EnterYear(text)) << text;
    EXPECT_EQ(p.sink.Last(), message) << text;
    EXPECT_EQ(Shown(), "March 2024");
  }
  EXPECT_EQ(screen.Status(), "");      // the range message empties the status line
  EXPECT_TRUE(screen.EnterYear(" "));  // blank: the current year, the month kept
  EXPECT_EQ(Shown(), "March 2026");
  EXPECT_EQ(screen.Status(), "Ready");
  EXPECT_EQ(screen.YearHint(),
            "Enter a year value in the range 1583 to 9999 and press the Enter key.");
}

TEST_F(MonthCalendars, HebrewAdarIIComesAndGoesWithTheLeapYear) {
  Open("Hebrew");
  Show(5784, "Adar II");  // 5784 is leap: thirteen months
  EXPECT_EQ(screen.MonthList().size(), 13u);
  EXPECT_EQ(screen.MonthList()[6], "Adar II");
  // 1 Adar II 5784 was Monday 11 March 2024.
  EXPECT_EQ(screen.GridText(), "       Adar II 5784\r\n\r\n" + kSundayHead +
                                   "      1  2  3  4  5  6\r\n"
                                   "   7  8  9 10 11 12 13\r\n"
                                   "  14 15 16 17 18 19 20\r\n"
                                   "  21 22 23 24 25 26 27\r\n"
                                   "  28 29");
  EXPECT_EQ(screen.Information(), "Month began on Mar 11, 2024 (Gregorian).");
  EXPECT_TRUE(screen.StepYear(1));  // 5785 is common: Adar II becomes Adar
  EXPECT_EQ(Shown(), "Adar 5785");
  EXPECT_EQ(screen.MonthList().size(), 12u);
  EXPECT_EQ(screen.MonthList()[6], "Nisan");
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_EQ(Shown(), "Nisan 5785");
  EXPECT_TRUE(screen.StepMonth(-1));
  EXPECT_EQ(Shown(), "Adar 5785");
  Show(5784, "Adar");
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_EQ(Shown(), "Adar II 5784");
  // Elul is the last month of every year.
  Show(5784, "Elul");
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_EQ(Shown(), "Tishri 5785");
  EXPECT_TRUE(screen.StepMonth(-1));
  EXPECT_EQ(Shown(), "Elul 5784");
}

TEST_F(MonthCalendars, ChineseStepsThroughTheRowsOfTheMonthTable) {
  Open("Chinese");
  Show(4660, "Leap Month 2");  // 2023: the second month repeated
  EXPECT_EQ(screen.MonthList(),
            (std::vector<std::string>{"Month 1", "Month 2", "Leap Month 2", "Month 3", "Month 4",
                                      "Month 5", "Month 6", "Month 7", "Month 8", "Month 9",
                                      "Month 10", "Month 11", "Month 12"}));
  // From Wednesday 22 March to 19 April 2023.
  EXPECT_EQ(screen.GridText(), "    Leap Month 2 4660\r\n\r\n" + kSundayHead + " " +
                                   std::string(9, ' ') +
                                   "  1  2  3  4\r\n"
                                   "   5  6  7  8  9 10 11\r\n"
                                   "  12 13 14 15 16 17 18\r\n"
                                   "  19 20 21 22 23 24 25\r\n"
                                   "  26 27 28 29");
  EXPECT_EQ(screen.Information(), "Month began on Mar 22, 2023 (Gregorian).");
  EXPECT_EQ(screen.CycleText(), "Cycle 78, Year 40\r\nThe Year of the Hare");
  EXPECT_EQ(screen.Month(), 0);
  EXPECT_TRUE(screen.StepMonth(-1));
  EXPECT_EQ(Shown(), "Month 2 4660");
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_EQ(Shown(), "Month 3 4660");
  // A new year leaves a leap row for the month it repeats.
  Show(4660, "Leap Month 2");
  EXPECT_TRUE(screen.StepYear(1));
  EXPECT_EQ(Shown(), "Month 2 4661");
  EXPECT_EQ(screen.CycleText(), "Cycle 78, Year 41\r\nThe Year of the Dragon");
  // Leaving the table builds the neighbouring year.
  Show(4660, "Month 12");
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_EQ(Shown(), "Month 1 4661");
  EXPECT_TRUE(screen.StepMonth(-1));
  EXPECT_EQ(Shown(), "Month 12 4660");
  // Before the first year the move stops.
  Show(4282, "Month 1");
  EXPECT_FALSE(screen.StepMonth(-1));
  EXPECT_EQ(screen.Status(), "Unable to complete operation - ready.");
  EXPECT_TRUE(screen.FocusMainScreen());
  EXPECT_EQ(Shown(), "Month 1 4282");

  // The Vietnamese calendar keeps its own table and row.
  Open("Vietnamese");
  EXPECT_EQ(screen.Year(), 4663);
  EXPECT_EQ(screen.Status(), "This is the current month and year.");
}

TEST_F(MonthCalendars, HinduMonthsShowRepeatedAndSkippedDays) {
  Open("Hindu Lunisolar Chaitra");
  // Magha 2082 from Monday 19 January 2026: day 14 is skipped (1 February),
  // day 23 repeated (9 and 10 February).
  Show(2082, "Magha");
  EXPECT_EQ(screen.GridText(), "        Magha 2082\r\n\r\n" + kSundayHead +
                                   "      1  2  3  4  5  6\r\n"
                                   "   7  8  9 10 11 12 13\r\n"
                                   "  15 16 17 18 19 20 21\r\n"
                                   "  22 23 23 24 25 26 27\r\n"
                                   "  28 29 30");
  EXPECT_EQ(screen.Information(), "Month began on Jan 19, 2026 (Gregorian).");

  // 2083 has a leap Jyaistha (from 17 May 2026), before the plain one.
  Show(2083, "Jyaistha");
  EXPECT_EQ(screen.MonthList().size(), 13u);
  EXPECT_EQ(screen.MonthList()[2], "Leap Jyaistha");
  EXPECT_EQ(screen.MonthList()[9], "Agrahayana");
  EXPECT_TRUE(screen.StepMonth(-1));
  EXPECT_EQ(Shown(), "Leap Jyaistha 2083");
  EXPECT_EQ(screen.Month(), 103);
  EXPECT_EQ(screen.Information(), "Month began on May 17, 2026 (Gregorian).");
  EXPECT_TRUE(screen.StepMonth(-1));
  EXPECT_EQ(Shown(), "Vaisakha 2083");
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_TRUE(screen.StepYear(1));  // a leap month loses its mark in another year
  EXPECT_EQ(Shown(), "Jyaistha 2084");
  Show(2083, "Chaitra");
  EXPECT_TRUE(screen.StepMonth(-1));
  EXPECT_EQ(Shown(), "Phalguna 2082");

  // The Ashada reckoning numbers the same months from Ashadha.
  Open("Hindu Lunisolar Ashada");
  Show(2082, "Leap Jyaistha");
  EXPECT_EQ(screen.Month(), 112);
  EXPECT_EQ(screen.MonthList().front(), "Ashadha");
  EXPECT_EQ(screen.Information(), "Month began on May 17, 2026 (Gregorian).");
}

TEST_F(MonthCalendars, BahaiAndBalineseMonths) {
  Open("Baha'i");
  // Ayyam-i-Ha of the leap year 182: five days from Wednesday 25 February 2026.
  Show(182, "Ayyam-i-Ha");
  EXPECT_EQ(screen.MonthList().size(), 20u);
  EXPECT_EQ(screen.GridText(), "      Ayyam-i-Ha 182\r\n\r\n" + kSundayHead + " " +
                                   std::string(9, ' ') +
                                   "  1  2  3  4\r\n"
                                   "   5");
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_TRUE(screen.StepMonth(1));
  EXPECT_EQ(Shown(), "Baha' 183");
  EXPECT_TRUE(screen.StepMonth(-1));
  EXPECT_EQ(Shown(), "'Ala' 182");

  // The Indian National months bear the lunar months' names from Chaitra.
  Open("Indian National");
  ASSERT_EQ(screen.MonthList().size(), 12u);
  EXPECT_EQ(screen.MonthList()[7], "Kartika");
  EXPECT_EQ(screen.MonthList()[11], "Phalguna");

  Open("Balinese Saka");
  // Kapitu 1946 from Tuesday 31 December 2024: its 23rd day is the second
  // day of a pengunalatri and takes no place in the grid.
  Show(1946, "Kapitu");
  EXPECT_EQ(screen.MonthList().size(), 13u);
  EXPECT_EQ(screen.GridText(), "       Kapitu 1946\r\n\r\n" + kSundayHead + " " +
                                   std::string(6, ' ') +
                                   "  1  2  3  4  5\r\n"
                                   "   6  7  8  9 10 11 12\r\n"
                                   "  13 14 15 16 17 18 19\r\n"
                                   "  20 21 22 24 25 26 27\r\n"
                                   "  28 29 30");
  EXPECT_EQ(screen.Information(), "Month began on Dec 31, 2024 (Gregorian).");
  EXPECT_EQ(screen.Month(), 11);
  EXPECT_TRUE(screen.StepYear(1));  // to a common year: the same month is the tenth
  EXPECT_EQ(Shown(), "Kapitu 1947");
  EXPECT_EQ(screen.Month(), 10);
  EXPECT_EQ(screen.MonthList().size(), 12u);
}

TEST_F(MonthCalendars, LoadCalendarChoiceAndCtrlKeys) {
  screen.Load();  // the favourite calendar, Gregorian
  EXPECT_EQ(screen.Type(), CalType::Greg);
  EXPECT_EQ(Shown(), "November 2026");
  EXPECT_EQ(screen.Status(), "This is the current month and year.");
  EXPECT_EQ(screen.YearText(), "2026");

  EXPECT_TRUE(screen.CtrlKey(true, MonthCalendarsScreen::Focus::Year));
  EXPECT_EQ(Shown(), "November 2027");
  EXPECT_TRUE(screen.CtrlKey(false, MonthCalendarsScreen::Focus::Month));
  EXPECT_EQ(Shown(), "October 2027");
  EXPECT_EQ(screen.Status(), "Ready");
  p.sink.Clear();
  EXPECT_FALSE(screen.CtrlKey(true, MonthCalendarsScreen::Focus::Other));
  EXPECT_FALSE(screen.CtrlKey(false, MonthCalendarsScreen::Focus::Other));
  ASSERT_EQ(p.sink.messages.size(), 2u);
  EXPECT_EQ(p.sink.messages[0],
            (test::Message{"Information!",
                           "To use Ctrl++ you must first left-click the control containing the "
                           "value you wish to change."}));
  EXPECT_EQ(p.sink.messages[1].text,
            "To use Ctrl+- you must first left-click the control containing the value you wish "
            "to change.");

  Open("French Revolutionary");
  EXPECT_EQ(Shown(), "Vendémiaire 1");
  EXPECT_EQ(screen.Status(), "This is the first month of the first year.");
  EXPECT_TRUE(screen.EnterYear(""));
  EXPECT_EQ(screen.Year(), 1);

  // A favourite the list doesn't hold selects nothing.
  UpdateIniFile(p.ctx, 0, "Favourite Calendar System", "Yoruba");
  MonthCalendarsScreen other(p.ctx);
  other.Load();
  EXPECT_FALSE(other.HasCalendar());
  EXPECT_FALSE(other.StepMonth(1));
}

// ---- Every month of every calendar, in all three week starts ----

struct Cell {
  int day;
  int column;
};

// The day cells of a grid, in order, with their columns.
std::vector<Cell> CellsOf(const std::string& grid) {
  std::vector<Cell> cells;
  std::size_t at = 0;
  int line = 0;
  while (at <= grid.size()) {
    std::size_t end = grid.find("\r\n", at);
    std::string row = grid.substr(at, end == std::string::npos ? std::string::npos : end - at);
    if (line >= 3) {
      for (int c = 1; c <= 7 && 1 + 3 * (c - 1) < static_cast<int>(row.size()); ++c) {
        std::string cell = row.substr(static_cast<std::size_t>(1 + 3 * (c - 1)), 3);
        if (cell.find_first_not_of(' ') != std::string::npos) cells.push_back({std::stoi(cell), c});
      }
    }
    if (end == std::string::npos) break;
    at = end + 2;
    ++line;
  }
  return cells;
}

int ColumnOfDay(JD jd, int startDay) {
  const int w = WeekdayOfJD(jd);
  if (startDay == 0) return w == 7 ? 1 : w + 1;
  if (startDay == 2) return w == 1 ? 7 : w - 1;
  return w;
}

TEST_F(MonthCalendars, EveryGridListsEachDayOnceInItsWeekdayColumn) {
  CalendarEngine& engine = Calendars(p.ctx);
  for (const auto& entry : MonthCalendarsScreen::Entries()) {
    const CalType t = entry.type;
    const bool dear = IsHinduLunisolar(t) || t == CalType::APer || t == CalType::HinSol;
    // The first years, this year and the last years of the list.
    const int thisYear = engine.JDToDate(t, 2461368).year;
    const int high = std::min(entry.high, InfoOf(t).lastYear) - 2;
    std::vector<int> years = {entry.low + 1, thisYear, high};
    for (int k = 1; k <= 3; ++k) years.push_back(entry.low + (high - entry.low) * k / 4);
    if (t == CalType::Fre) years = {1, 12};
    for (int startDay = 0; startDay <= 2; ++startDay) {
      Open(entry.caption, startDay);
      for (int year : years) {
        SCOPED_TRACE(std::string(entry.caption) + " " + std::to_string(year) + " start day " +
                     std::to_string(startDay));
        ASSERT_TRUE(screen.EnterYear(std::to_string(year))) << p.sink.Last();
        ASSERT_TRUE(screen.SelectMonth(0)) << p.sink.Last();
        for (const std::string& name : screen.MonthList()) EXPECT_FALSE(name.empty());
        JD before = 0, after = 0;  // the day before the month on show, the day after
        const int steps = dear ? 14 : 27;
        for (int step = 0; step <= 2 * steps; ++step) {
          const int delta = step <= steps ? 1 : -1;
          if (step > 0) {
            ASSERT_TRUE(screen.StepMonth(delta)) << p.sink.Last();
          }
          const JD first = screen.FirstDay();
          const std::vector<Cell> cells = CellsOf(screen.GridText());
          ASSERT_FALSE(cells.empty());
          const JD last = first + static_cast<JD>(cells.size()) - 1;
          if (step > 0) {
            EXPECT_EQ(delta > 0 ? first : last + 1, delta > 0 ? before + 1 : after) << Shown();
          }
          before = last;
          after = first;
          for (std::size_t i = 0; i < cells.size(); ++i) {
            const JD jd = first + static_cast<JD>(i);
            const CalDate d = engine.JDToDate(t, jd);
            EXPECT_EQ(cells[i].column, ColumnOfDay(jd, startDay)) << Shown() << " cell " << i;
            EXPECT_EQ(d.month, screen.Month()) << Shown() << " cell " << i;
            EXPECT_EQ(d.day > 100 ? d.day - 100 : d.day, cells[i].day) << Shown();
            if (!IsHinduLunisolar(t) && t != CalType::Bal) {
              EXPECT_EQ(cells[i].day, static_cast<int>(i) + 1) << Shown();
            }
          }
          EXPECT_NE(engine.JDToDate(t, first - 1).month, screen.Month()) << Shown();
          EXPECT_NE(engine.JDToDate(t, last + 1).month, screen.Month()) << Shown();
          EXPECT_TRUE(screen.GridText().starts_with(std::string(" ")));
          EXPECT_NE(screen.GridText().find(Shown() + "\r\n\r\n"), std::string::npos);
        }
      }
    }
  }
}

}  // namespace
}  // namespace mc
