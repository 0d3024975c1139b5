// The Chinese and Vietnamese lunisolar calendars. No table of years is
// stored: each year is built from the winter solstices, the new moons and the
// twelve major solar terms, in the calendar's local time, and its months are
// numbered from the eleventh, which holds the winter solstice. The two codes
// run one procedure with their own time zone and their own year tables.
//
// A Chinese year is the running number from the cycle's start: the lunar year
// that begins in Gregorian year G is G + 2637.
#pragma once

#include <array>

#include "calendars/registry.h"

namespace mc {

inline constexpr int kChineseYearOffset = 2637;

// Days east of Greenwich: Chinese 8 h from 1929 and Beijing's mean solar time
// (7 h 45 min 40 s) before it; Vietnamese 7 h.
double CalendarTimeZone(CalType type, int gregorianYear);

// The civil day (JD) holding a moment, in a time zone given in days.
JD LocalDayOfMoment(double moment, double timeZone);

// The new moons from just after one winter solstice to past the next.
struct NewMoonDays {
  // day[0]: the last new moon on or before the first solstice's day;
  // day[1 .. count]: the new moons after that day, through the months of the
  // year and four beyond the second solstice.
  std::array<JD, 24> day{};
  int count = 0;
  int countToSolstice = 0;  // how many of them fall on or before the second solstice
  JD solsticeBefore = 0;    // the day of the winter solstice of G - 1
  JD solsticeAfter = 0;     // and of G
  bool operator==(const NewMoonDays&) const = default;
};
NewMoonDays NewMoonsOfYear(CalType type, int gregorianYear);

// The days of fifteen major solar terms, indexed 1 to 15: the Sun at 300,
// 330, 0, 30, ... 270 degrees in Gregorian year G, then 300, 330, 0 in G + 1.
// Entry 12 is the winter solstice of G.
using SolarTermDays = std::array<JD, 16>;
SolarTermDays SolarTermsOfYear(CalType type, int gregorianYear);

// The year tables of one lunar year, slots 1 to 13 (entry 0 unused).
struct LunarYearTable {
  CalType type = CalType::Chi;
  int gregorianYear = 0;
  int monthCount = 0;                 // slots in use, 12 or 13
  std::array<int, 14> monthNumber{};  // 1 to 12; 0 for the leap month
  std::array<int, 14> monthLength{};  // 29 or 30
  std::array<JD, 14> monthStart{};
  bool leapFlag = false;
  int leapMonthNumber = 0;  // the number the leap month repeats, 0 if none
  JD yearStart = 0;         // first day of month 1
  JD yearEnd = 0;           // last day of the last month
  NewMoonDays moons;
  SolarTermDays terms{};

  int Year() const { return gregorianYear + kChineseYearOffset; }
  // The slot of a month number (the last such), 0 when the year has none.
  int SlotOfMonth(int month) const;
  bool operator==(const LunarYearTable&) const = default;
};

// Builds the lunar year that begins in Gregorian year G, without any cache.
LunarYearTable ComputeLunarYear(CalType type, int gregorianYear);

// The engine's year tables: builds (or takes from its small cache of built
// years) the lunar year beginning in Gregorian year G, and leaves it as the
// last year built of that code.
const LunarYearTable& BuildLunarYear(CalendarEngine& engine, CalType type, int gregorianYear);

// The last year built for a code (by BuildLunarYear, DateToJD or JDToDate),
// as month and year views read it straight after a conversion. An empty table
// (monthCount 0) before any build.
const LunarYearTable& LastLunarYear(CalendarEngine& engine, CalType type);

// Drops the built years kept for reuse (the last year built stays).
void ClearLunarYearCache(CalendarEngine& engine);

}  // namespace mc
