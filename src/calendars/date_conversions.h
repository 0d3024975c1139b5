// The Date Conversions screen: a date in any calendar of the list, and its
// equivalents in all the others with a long report of what else can be said
// of that day.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/registry.h"

namespace mc {

// The calendars of the screen's list, in list order, with their codes.
struct ConversionCalendar {
  std::string_view name;  // "Gregorian", "Julian Day", "Mayan"
  CalType type;
};
const std::vector<ConversionCalendar>& ConversionCalendars();

// The ISO 8601 week of a day from its day number, and the year it belongs to
// (the previous one for weeks 51 to 53 in January, the next for week 1 in
// December). The first weeks of 1583, after the change of calendar, have no
// week 1 or 2: they are taken as week 51.
struct IsoWeek {
  int week, year;
};
IsoWeek IsoWeekOf(CalendarEngine& engine, JD jd);

// The help text above the date box.
std::string BuildPrompt(Context& ctx, CalType type);

// The block that opens the report: the date in its own calendar, the weekday,
// the day of the year and the day number.
std::string DateHeader(Context& ctx, CalType type, const CalDate& date, JD jd);

// The table of equivalents of a day in every calendar whose range holds it,
// the input calendar left out.
std::string AllCalendarsReport(Context& ctx, CalType input, JD jd);

// The lines about the year of the input calendar: days since year 1, leap
// year, length, month lengths.
std::string YearSection(Context& ctx, CalType type, const CalDate& date);

// The detail lines of a day: for a Gregorian date from 1583 on, and for an
// earlier (Julian) one.
std::string GregorianDetails(Context& ctx, int day, int month, int year, JD jd);
std::string JulianDetails(Context& ctx, int day, int month, int year, JD jd);

// The whole report of a day given in a calendar.
std::string DateConversionsReport(Context& ctx, CalType type, const CalDate& date, JD jd);

class DateConversionsScreen {
 public:
  explicit DateConversionsScreen(Context& ctx);

  // Inputs as the user gives them.
  std::string dateText;
  // Chooses a calendar by its list name; false when the list has no such entry.
  bool SetCalendar(std::string_view listName);
  std::string_view Calendar() const { return calendar_; }
  CalType Type() const { return type_; }

  // The help text above the date box for the chosen calendar.
  std::string Prompt() const;

  // Enter in the date box: an empty box means today. True when a report was
  // written; after a refusal the output is empty.
  bool ConvertDate();
  // The spin control: the day before (-1) or after (+1), written back into
  // the box, then converted.
  bool StepDate(int delta);

  const std::string& Output() const { return output_; }

 private:
  // The day number of the box's text, or nothing after a message.
  std::optional<JD> ParseBox();

  Context& ctx_;
  std::string calendar_ = "Gregorian";
  CalType type_ = CalType::Greg;
  std::string output_;
};

}  // namespace mc
