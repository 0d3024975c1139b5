#include "reminders/reminder_text.h"

#include <cmath>

#include "calendars/cal_type.h"
#include "calendars/gregorian.h"
#include "core/number_format.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr std::string_view kMonthAbbrevs[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::string_view kWeekdayAbbrevs[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

// The year checks of a typed Gregorian year, without their messages.
std::optional<int> FieldYear(Context& ctx, std::string_view text) {
  if (Trim(text).empty()) return std::nullopt;
  auto v = ParseStrictNumber(text, ctx.settings.decimalSeparator);
  if (!v || std::floor(*v) != *v) return std::nullopt;
  const CalendarInfo& info = InfoOf(CalType::Greg);
  if (*v < info.firstYear || *v > info.lastYear) return std::nullopt;
  return static_cast<int>(*v);
}

std::string OrdinalSuffix(int n) {
  if (n % 10 == 1 && n % 100 != 11) return "st";
  if (n % 10 == 2 && n % 100 != 12) return "nd";
  if (n % 10 == 3 && n % 100 != 13) return "rd";
  return "th";
}

}  // namespace

std::string ExpandReminderField(Context& ctx, std::string_view message, int year) {
  std::string text = TrimCopy(message);
  if (ctx.settings.processRemFields == "No") return text;
  auto l = text.find('<');
  auto g = text.find('>');
  if (l == std::string::npos || g == std::string::npos || g <= l + 4) return text;
  std::string field = TrimCopy(text.substr(l + 1, g - l - 1));
  bool ordinal = !field.empty() && field.back() == '!';
  if (ordinal) field.pop_back();
  auto fieldYear = FieldYear(ctx, field);
  if (!fieldYear) return text;
  if (*fieldYear >= year) return "";
  int n = year - *fieldYear;
  return text.substr(0, l) + std::to_string(n) + (ordinal ? OrdinalSuffix(n) : "") +
         text.substr(g + 1);
}

std::string_view MonthAbbrev(int month) {
  return month >= 1 && month <= 12 ? kMonthAbbrevs[month - 1] : std::string_view("???");
}

std::string_view WeekdayAbbrev(int weekday) {
  return weekday >= 1 && weekday <= 7 ? kWeekdayAbbrevs[weekday - 1] : std::string_view("???");
}

std::string OutOfDateLine(int month, int day, int year, std::string_view message) {
  std::string line(MonthAbbrev(month));
  if (day < 10) line += ' ';
  line += ' ' + std::to_string(day) + "  " + std::to_string(year) + "  ";
  line += Trim(message);
  return line;
}

std::optional<OutOfDateEntry> ParseOutOfDateLine(std::string_view line) {
  if (line.size() < 12) return std::nullopt;
  OutOfDateEntry e;
  e.month = MonthNumberOfName(line.substr(0, 3));
  long long day = 0, year = 0;
  e.dayField = std::string(line.substr(4, 2));
  if (e.month == 0 || !ParseInt(e.dayField, day) || !ParseInt(line.substr(8, 4), year))
    return std::nullopt;
  if (day < 1 || day > 31 || year < 1 || year > 9999) return std::nullopt;
  e.day = static_cast<int>(day);
  e.year = static_cast<int>(year);
  if (line.size() > 14) e.message = TrimCopy(line.substr(14));
  return e;
}

}  // namespace mc
