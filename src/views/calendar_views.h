// Pieces shared by the month and year views: month names as the views show
// them, weekday columns and letters, short date texts, the sexagenary cycle
// of the Chinese and Vietnamese years, and the months of a Hindu lunisolar
// year found by walking the calendar.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "calendars/chinese.h"
#include "calendars/registry.h"

namespace mc::views {

// Column 1..7 of a weekday (1 = Sunday) in a week that starts on Saturday
// (startDay 0), Sunday (1) or Monday (2).
int WeekColumn(int weekday, int startDay);
// One block of weekday letters, three characters a day: "  S  M  T  W  T  F  S".
std::string_view WeekLetters(int startDay);

// "Jan 14, 1923"
std::string MonthDayYear(int day, int month, int year);
// "Jan  5": the day padded to two places.
std::string MonthDayPadded(int day, int month);
// The civil date of a day: Gregorian from 15 October 1582, Julian before.
CalDate CivilDate(CalendarEngine& engine, JD jd);

// A name as the user has chosen to see it (accented or plain letters).
std::string Shown(const Context& ctx, std::string_view name);

// The month's name in the calendar's own table. Hindu lunisolar months come
// in the calendar's numbering (above 100 leap, named "Leap " + name);
// Chinese and Vietnamese months are "Month n", the leap month is named by
// the caller, who knows which month it repeats.
std::string MonthName(Context& ctx, CalType type, int month, int year);

// The Chaitra-reckoning number of a Hindu month name's table entry: the
// month of HinLun1 and HinLun2 moved on by 3 and 7 (leap mark dropped).
int ChaitraMonthNumber(CalType type, int month);

// "Month 4" or "Leap Month 4" for row s of a Chinese or Vietnamese year table.
std::string LunarRowCaption(const LunarYearTable& table, int row);

// The 60-year cycle of a Chinese or Vietnamese year: cycle and year in cycle.
struct Sexagenary {
  int cycle = 0;
  int year = 0;  // 1..60
};
Sexagenary SexagenaryOf(int year);
// The stem (1..10) and branch entry (1..12) of the calendar's tables, as shown.
std::string StemName(const Context& ctx, CalType type, int index);
std::string BranchEntry(const Context& ctx, CalType type, int index);
// The animal of a branch entry: the text from its sixth character, trimmed.
std::string AnimalOfBranch(std::string_view entry);
// The branch name of an entry: its first four characters, trimmed.
std::string BranchOfEntry(std::string_view entry);

// The months of a Hindu lunisolar year (any of the four codes) in the order
// of their days, a leap month as its number + 100, found by walking the
// calendar from the first day of the year. Empty when the year has no day.
std::vector<int> HinduMonthsOfYear(CalendarEngine& engine, CalType type, int year);
// The first day of a Hindu lunisolar month (day 2 where day 1 is skipped);
// 0 when the month has neither.
JD HinduMonthStart(CalendarEngine& engine, CalType type, int month, int year);
// The first day of a Hindu lunisolar year (a leap first month included).
JD HinduYearStart(CalendarEngine& engine, CalType type, int year);

}  // namespace mc::views
