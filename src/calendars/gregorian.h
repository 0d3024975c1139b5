// The Gregorian and Julian calendars, and the weekday rules built on them.
// Both are proleptic: the change of 1582 lives only in validation and display.
#pragma once

#include <string_view>

#include "calendars/registry.h"

namespace mc {

// Day numbers of civil dates. Integer division truncates, as in the classic
// formula; all years in use are positive.
constexpr JD GregorianToJD(int day, int month, int year) {
  int y = month < 3 ? year - 1 : year;
  int m = month < 3 ? month + 13 : month + 1;
  return 365 * y + y / 4 + 30 * m + (3 * m) / 5 + day + 1720995 - y / 100 + (y / 100) / 4 + 2;
}
constexpr JD JulianToJD(int day, int month, int year) {
  int y = month < 3 ? year - 1 : year;
  int m = month < 3 ? month + 13 : month + 1;
  return 365 * y + y / 4 + 30 * m + (3 * m) / 5 + day + 1720995;
}

constexpr bool IsGregorianLeap(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}
constexpr int GregorianMonthLength(int month, bool leap) {
  constexpr int kLengths[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) return 0;
  return month == 2 && leap ? 29 : kLengths[month];
}

CalDate JDToGregorian(CalendarEngine& engine, JD jd);
CalDate JDToJulian(CalendarEngine& engine, JD jd);

// The first day of the Gregorian calendar, Friday 15 October 1582.
inline constexpr JD kGregorianStart = GregorianToJD(15, 10, 1582);

// 1..12 from the first three letters of an English month name, 0 when none.
int MonthNumberOfName(std::string_view text);
// 1..7 from the first three letters of an English weekday name, 0 when none.
int WeekdayNumberOfName(std::string_view text);

// The day of the month of a festival rule such as "Second Tuesday of March":
// ordinal words First .. Fifth, Last, Penultimate, matched on three letters.
// 0 when a fifth doesn't fit the month; an unknown word shows "Illegal call of
// function DayInMonthNumber." and gives 0.
int DayInMonthNumber(Context& ctx, std::string_view monthName, std::string_view weekdayName,
                     std::string_view ordinalWord, int year);

// Moves a Gregorian date to a weekday by a rule word: "Bef" strictly before,
// "OnB" on or before, "Aft" strictly after, "OnA" on or after, "Nea" nearest
// (a forward distance of 4 or more counts backwards). Unknown words leave it.
CalDate NearestWeekdayShift(CalendarEngine& engine, std::string_view rule, int day, int month,
                            int year, int targetWeekday);

}  // namespace mc
