// Month Calendars (form 13): one month of one calendar as a text grid of
// seven columns, with a centred heading, the month's start in the Julian or
// Gregorian calendar, and for the Chinese and Vietnamese calendars the year's
// place in the sexagenary cycle. The screen keeps calendar, month and year in
// step when the structure of a year changes (leap months, intercalary months).
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/chinese.h"
#include "core/context.h"

namespace mc {

class MonthCalendarsScreen {
 public:
  static constexpr std::string_view kTitle = "Month Calendars";
  static constexpr std::string_view kMonthSpinTip = "Down = previous month; up = next month.";
  static constexpr std::string_view kYearTip = "Leave blank for current year.";
  static constexpr std::string_view kYearSpinTip = "Down = previous year; up = next year.";
  static constexpr std::string_view kPrintTip = "Print calendar to any attached printer.";
  static constexpr std::string_view kPleaseWait = "Please wait ...";
  static constexpr std::string_view kReady = "Ready";
  static constexpr std::string_view kUnable = "Unable to complete operation - ready.";

  // An entry of the calendar list, with the years its hint names.
  struct Entry {
    std::string_view caption;
    CalType type;
    int low, high;
  };
  // The 29 calendars of the list, in the list's order.
  static const std::vector<Entry>& Entries();
  // The list position of a caption, or nothing.
  static std::optional<int> EntryIndex(std::string_view caption);

  explicit MonthCalendarsScreen(Context& ctx);

  // At load: the calendar named by `Favourite Calendar System`, if the list
  // holds it.
  void Load();

  // The "Calendar" list. A calendar other than the one on show starts at
  // today's month and year (French Revolutionary at its first month).
  void SelectCalendar(int index);
  int CalendarIndex() const { return entry_; }  // -1 before any choice
  bool HasCalendar() const { return entry_ >= 0; }
  CalType Type() const;

  // The "Month" list: its entries for the year on show, and the one on show.
  const std::vector<std::string>& MonthList() const { return monthList_; }
  int MonthIndex() const;
  // Choosing an entry; false (with the message shown) when the month is refused.
  bool SelectMonth(int listIndex);

  // The "Year" box and Enter: blank means the current year.
  bool EnterYear(std::string_view text);
  // The spin controls: the year, and the month through the year's months.
  bool StepYear(int delta);
  bool StepMonth(int delta);
  // Ctrl with + or - acts on the spin of the box with the focus.
  enum class Focus { Year, Month, Other };
  bool CtrlKey(bool plus, Focus focus);

  int Month() const { return month_; }
  int Year() const { return year_; }
  // The day number of the first day on show.
  JD FirstDay() const { return firstDay_; }
  // The text of the year box.
  std::string YearText() const;

  // The outputs: the grid with its heading, the "Information" box, the
  // Chinese/Vietnamese box (empty for the others) and the status line.
  const std::string& GridText() const { return grid_; }
  const std::string& Information() const { return information_; }
  const std::string& CycleText() const { return cycle_; }
  const std::string& Status() const { return status_; }
  // The hint for the year box: "Enter a year value in the range ..."
  std::string YearHint() const;
  // Set when a move could not be made and the focus belongs on "&Main Screen".
  bool FocusMainScreen() const { return focusMain_; }

  // Called with "Please wait ..." in the status line, before a month list is
  // refilled, so that the form can show it (wait cursor, repaint).
  std::function<void()> onPleaseWait;

 private:
  bool IsLunar() const;  // Chinese or Vietnamese
  bool IsHindu() const;
  int LastMonth(int year);
  // Refuses months before November 1582 (Gregorian) and 1923 (Revised Julian).
  bool ChangeOverRefused(int month, int year);
  // Validates the year for the calendar's range; empties the status on failure.
  bool YearInRange(int year);
  // Moves to a month and year that passed the checks, and shows them.
  void Show(int month, int year, int row, bool forceList);
  // The month of the year on show kept when the year changes.
  int MonthInYear(int month, int oldYear, int newYear, int& row);
  // Another year, with the month on show kept, after its checks.
  bool ChangeYear(int year);
  void FillMonthList();
  void Render();
  const LunarYearTable& LunarYear(int year);
  std::vector<int> HinduMonths(int year);

  Context& ctx_;
  int entry_ = -1;
  int month_ = 0;
  int year_ = 0;
  // The row of the Chinese and Vietnamese month tables on show, one each.
  int chineseRow_ = 1;
  int vietnameseRow_ = 1;
  LunarYearTable lunar_;  // the year table of the year on show
  // The months of the Hindu year on show (leap + 100), in order.
  std::vector<int> hinduMonths_;
  int hinduMonthsYear_ = 0;
  CalType hinduMonthsType_ = CalType::HinLun;

  std::vector<std::string> monthList_;
  std::vector<int> listMonths_;  // the month (or table row) of each list entry
  int listYear_ = 0;
  CalType listType_ = CalType::Greg;
  JD firstDay_ = 0;
  std::string grid_, information_, cycle_, status_;
  bool focusMain_ = false;
};

}  // namespace mc
