// Year Calendars (form 11): a whole year of one calendar as a page of
// fixed-pitch text in the output box, to be saved, printed or enlarged.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/cal_type.h"
#include "core/context.h"

namespace mc {

class YearCalendarsScreen {
 public:
  static constexpr std::string_view kTitle = "Year Calendars";
  static constexpr std::string_view kYearSpinTip = "Down = previous year; up = next year.";
  static constexpr std::string_view kSaveTip = "Save calendar to a text file.";
  static constexpr std::string_view kPrintTip = "Print calendar to any attached printer.";
  static constexpr std::string_view kOutputTip = "Press F11 for an enlarged view of the output.";
  static constexpr std::string_view kPleaseWait = "Please wait ...";
  static constexpr std::string_view kPawukonPrintQuestion =
      "Landscape mode should be selected. Also, over 800 lines will be printed. Do you wish to "
      "continue?";

  // An entry of the calendar list: the years its hint names, the article of
  // the hint, the era after the year in the title.
  struct Entry {
    std::string_view caption;
    CalType type;
    int low, high;
    std::string_view article;
    std::string_view era;
  };
  // The 32 calendars of the list, in the list's order.
  static const std::vector<Entry>& Entries();
  static std::optional<int> EntryIndex(std::string_view caption);

  explicit YearCalendarsScreen(Context& ctx);

  // At load: the calendar named by `Favourite Calendar System`.
  void Load();

  // The "Calendar" list: blanks the year box and shows the current year.
  void SelectCalendar(int index);
  // Only the choice in the list, with the year box and output left alone.
  void ChooseCalendar(int index);
  int CalendarIndex() const { return entry_; }
  bool HasCalendar() const { return entry_ >= 0; }
  CalType Type() const;

  // The "Year" box; Enter shows the year it holds (blank: the current year).
  void SetYearText(std::string_view text) { yearText_ = std::string(text); }
  const std::string& YearText() const { return yearText_; }
  bool Enter();
  // The spin: the year on show, one up or down, through the same checks.
  bool Spin(int delta);
  int Year() const { return year_; }

  const std::string& Output() const { return output_; }
  // "Input a Gregorian year in the range 1582 to 9999 and press the Enter key. ..."
  std::string Hint() const;
  // The calendars whose pages take long to build.
  bool LongBuild() const;
  // Before printing: the Pawukon asks whether to go on.
  bool ConfirmPrint();

  // Called with "Please wait ..." in the output before a long build.
  std::function<void()> onPleaseWait;

 private:
  Context& ctx_;
  int entry_ = -1;
  int year_ = 0;
  std::string yearText_;
  std::string output_;
};

}  // namespace mc
