// Reminders by Month (form 4): one Gregorian month as a grid, with the dates
// that carry a reminder marked. A click on a marked date lists its
// reminders; a double click opens Add Reminders for that date.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "core/context.h"
#include "reminders/add_screen.h"

namespace mc {

enum class ShownYear { LastYear, ThisYear, NextYear };

class RemindersByMonthScreen {
 public:
  static constexpr std::string_view kGuide =
      "Left-click any coloured date to see the reminder(s) for that date. Double-click any date "
      "to set a reminder for that date.";
  static constexpr std::string_view kSpinTip = "Down = previous month; up = next month.";

  explicit RemindersByMonthScreen(Context& ctx);

  // The month list (1..12) and the option buttons "This Year", "Last Year",
  // "Next Year". Each change refills the grid.
  void ChooseMonth(int month);
  void ChooseYear(ShownYear shown);
  // The spin button; past December or January the year option moves on.
  void SpinUp();
  void SpinDown();
  int Month() const { return month_; }
  ShownYear Shown() const { return shown_; }
  int Year() const;

  // Refills the grid from the store and purged.dat (at activation).
  void Fill();

  struct Cell {
    int day = 0;
    int row = 0;     // 0 for the first week
    int column = 0;  // 1..7 from the week's first day (Start Day)
    bool marked = false;
    bool today = false;
  };
  const std::vector<Cell>& Cells() const { return cells_; }
  // The letters heading the seven columns, from the week's first day (Start
  // Day 0 Saturday, 1 Sunday, 2 Monday).
  std::array<std::string, 7> ColumnHeads() const;
  // The month as a text grid, with its heading and weekday letters.
  std::string GridText() const;

  // A click on a date: "2 Reminders for Monday 23 November 2026" and the
  // messages, one a line; "" for a date without reminders.
  std::string ClickDate(int day) const;

  // A double click: the date for Add Reminders ("d/m" and the year option).
  struct AddRequest {
    int day = 0, month = 0;
    YearOption option = YearOption::ThisYear;
  };
  AddRequest DoubleClickDate(int day);
  // Back from Add Reminders: the grid is filled again.
  void Returned() { Fill(); }

  // "Save" and "&Print": the title, the grid and the month's active reminders.
  std::string ReportText() const;
  bool Save(const std::filesystem::path& file);

 private:
  Context& ctx_;
  int month_;
  ShownYear shown_ = ShownYear::ThisYear;
  std::vector<Cell> cells_;
  std::map<int, std::vector<std::string>> marks_;  // day -> messages
  std::vector<std::string> active_;                // lines of the month's active reminders
};

}  // namespace mc
