// Texts shared by the reminder screens: the expansion of <year> fields in
// messages, the out-of-date line of purged.dat and PEYR.dat, and the short
// names of months and weekdays.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/context.h"

namespace mc {

// A message with a field <year> or <year!> reads as the number of years
// since that year ("<1950> years married" is "76 years married" in 2026,
// "<1950!>" gives "76th"). Empty when the field's year is not before `year`:
// that occurrence is not shown. Unchanged when fields are switched off or the
// field isn't a valid Gregorian year with at least four characters.
std::string ExpandReminderField(Context& ctx, std::string_view message, int year);

std::string_view MonthAbbrev(int month);      // "Jan" .. "Dec"
std::string_view WeekdayAbbrev(int weekday);  // 1 = "Sun" .. 7 = "Sat"

// "Jan  5  2026  Dentist", "Jan 15  2026  Dentist".
std::string OutOfDateLine(int month, int day, int year, std::string_view message);

struct OutOfDateEntry {
  int month = 0, day = 0, year = 0;
  std::string dayField;  // the two characters of the day as written
  std::string message;
};
// Month from the first three characters, day from the two after one blank,
// year from the four after two more, message after two more. Nothing for a
// line that doesn't have that form.
std::optional<OutOfDateEntry> ParseOutOfDateLine(std::string_view line);

}  // namespace mc
