// Add Reminders (form 2): one entry becomes one or many stored reminders.
// Type 1 is a single date, optionally repeated every N days; Type 2 a
// weekday rule ("Second Tuesday") over a span of months; Type 3 a day of the
// month ("Last", "15", "Every") over a span. Series are expanded at once into
// separate reminders: no rule is stored.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"

namespace mc {

enum class YearOption { ThisYear, NextYear, EveryYear };

// The "d/m" of a date box, checked as the reminder screens check it: "No
// values specified for d and m.", "Missing / between d and m", "Day value
// must be numeric.", "Month value must be numeric.", "Invalid month value.".
struct DayMonthText {
  double day = 0;
  int month = 0;
};
std::optional<DayMonthText> ParseDayMonth(Context& ctx, std::string_view text);

// The day checked against the month of `year` (10000: every year): "Invalid
// day value.", "February 29 does not occur every year.".
std::optional<int> CheckReminderDay(Context& ctx, double day, int month, int year);

// The message box's rule: "No message.", "Message contains more than 60
// characters." (bytes of its text, as the store holds them).
std::optional<std::string> CheckReminderMessage(Context& ctx, std::string_view message);

// The question for a dated reminder holding "<" and ">": true to go on.
bool ConfirmFieldsInDatedReminder(Context& ctx, std::string_view message, int year);

class AddRemindersScreen {
 public:
  explicit AddRemindersScreen(Context& ctx);

  // Inputs, by their labels.
  std::string message;                           // "Message (max 60 chars.)"
  int type = 1;                                  // "Type 1", "Type 2", "Type 3"
  std::string dayMonth;                          // "Day and month (d/m)"
  YearOption yearOption = YearOption::ThisYear;  // "This year", "Next year", "Every year"
  bool series = false;                           // "Check to define a series of Type 1 reminders."
  std::string seriesDays;                        // "and every" ... "days"
  int seriesEndMonth = 12, seriesEndYear = 0;    // "to the end of:"
  std::string ordinal = "First";                 // Type 2
  std::string weekday = "Sunday";                // Type 2
  std::string type3Day = "1";                    // Type 3
  int fromMonth = 1, fromYear = 0;               // "From:"
  int toMonth = 12, toYear = 0;                  // "to the end of:"

  static const std::vector<std::string>& OrdinalList();
  static const std::vector<std::string>& WeekdayList();
  static const std::vector<std::string>& Type3DayList();
  // Years offered by the year lists: last year to the year after next.
  std::vector<int> YearList() const;

  // Choosing a type enables its own inputs.
  void ChooseType(int t) { type = t; }
  bool Type1Enabled() const { return type == 1; }
  bool Type2Enabled() const { return type == 2; }
  bool Type3Enabled() const { return type == 3; }
  bool SpanEnabled() const { return type != 1; }
  // The series check box: on, the end goes to December of next year.
  void SetSeries(bool on);
  bool SeriesInputsEnabled() const { return type == 1 && series; }
  // "Message character count".
  std::string MessageCount() const;

  // A date chosen on Reminders by Month.
  void PresetDate(int day, int month, YearOption option);

  // "&Save Reminder(s)". True when reminders were processed; the inputs are
  // then cleared. A failed check leaves them for correction.
  bool Save();
  // The information box at the foot.
  const std::string& Information() const { return information_; }
  // Calls of InsertReminder made by the last save.
  int InsertedCount() const { return inserted_; }

  // Paste into the message box at the selection. `readClipboard` gives the
  // clipboard's text, or nothing when it can't be opened (the user may try
  // again). Line breaks and tabs become blanks. True when the message changed.
  bool PasteIntoMessage(const std::function<std::optional<std::string>()>& readClipboard,
                        std::size_t selectionStart, std::size_t selectionLength);

  // Puts the inputs back to their defaults.
  void ResetInputs();

 private:
  struct Date {
    int day, month, year;
  };
  bool Type1(const std::string& text, std::vector<Date>& dates, std::optional<std::string>& peyr,
             bool& seriesRequested);
  bool SpanChecks();
  bool Type2(std::vector<Date>& dates);
  bool Type3(std::vector<Date>& dates);

  Context& ctx_;
  std::string information_;
  int inserted_ = 0;
};

}  // namespace mc
