// The fixed-rule solar calendars: a fixed pattern of month lengths and an
// arithmetic leap test. Armenian, Egyptian, the three Parsi calendars, Coptic,
// Ethiopic and French Revolutionary count thirty-day months and a short
// thirteenth; Bangla, Indian National, Sikh Nanakshahi and the second Afghan
// rule follow Gregorian leap years; Persian and Afghan share the 2820-year
// cycle; Baha'i and Revised Julian have rules of their own.
#pragma once

#include <string>
#include <string_view>

#include "calendars/registry.h"

namespace mc {

// The Persian arithmetic calendar of the 2820-year cycle (also the Afghan).
JD PersianArithmeticToJD(int day, int month, int year);
bool IsPersianArithmeticLeap(int year);
CalDate JDToPersianArithmetic(JD jd);

// The day of March on which a Baha'i year begins: 21, or 20 in some years of
// the table of 172 to 221 B.E.
int NawRuzDay(int year);
JD BahaiToJD(int day, int month, int year);
bool IsBahaiLeap(int year);

// A Baha'i year's place in the cycles: Kull-i-Shay of 361 years, Vahid of 19,
// and the year within the Vahid (1..19, named by kBahaiVahidYears).
struct BahaiCycle {
  int kullIShay = 0;
  int vahid = 0;
  int yearOfVahid = 0;
};
BahaiCycle BahaiCycleOfYear(int year);
// The name of a Baha'i day of the month: the month names again, the
// nineteenth day of an ordinary month taking the twentieth name.
std::string_view BahaiDayName(int day, int month);

// The Revised Julian calendar: Gregorian from 1923 to 2799, then centuries
// leap when they leave 200 or 600 over 900.
bool IsRevisedJulianLeap(int year);
JD RevisedJulianToJD(int day, int month, int year);

// Names of French Revolutionary dates: the months, the ten days of the decade,
// and the feasts of the complementary days; plain letters when the user's
// setting asks for them.
std::string FrenchMonthName(const Context& ctx, int month);
std::string FrenchDayName(const Context& ctx, int day, int month);

// The Parsi name of a day: thirty day names, and the Gatha days of month 13.
std::string_view ParsiDayName(int day, int month);

}  // namespace mc
