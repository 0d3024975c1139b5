// The astronomical Persian calendar: the year begins on the day of the March
// equinox, the equinox counting for the next day when it falls after noon at
// Tehran's longitude. Months of 31, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30 and
// 29 or 30 days.
#include <cmath>

#include "calendars/astro.h"
#include "calendars/families.h"

namespace mc {

namespace {

// The allowance for dynamical against true solar time of each era, in days.
double TehranAllowance(int year) {
  static constexpr struct {
    int upTo;
    double c;
  } kEras[] = {{132, 0.055},  {359, 0.045}, {553, 0.03},   {912, 0.02},   {916, 0.015},
               {1045, 0.008}, {1865, 0.01}, {2092, 0.028}, {2257, 0.033}, {2422, 0.044}};
  for (const auto& era : kEras)
    if (year <= era.upTo) return era.c;
  return 0.05;
}

constexpr double kTehranLongitude = 51.42;

int MonthLength(bool leap, int month) {
  if (month >= 1 && month <= 6) return 31;
  if (month >= 7 && month <= 11) return 30;
  if (month == 12) return leap ? 30 : 29;
  return 0;
}

bool IsLeap(int year) {
  return PersianNewYearJD(year + 1) - PersianNewYearJD(year) == 366;
}

JD DateToJDAPer(CalendarEngine&, int day, int month, int year) {
  if (month < 1 || month > 12) return -1;
  // The months before the twelfth are of fixed length.
  int before = month <= 7 ? 31 * (month - 1) : 186 + 30 * (month - 7);
  return PersianNewYearJD(year) - 1 + before + day;
}

}  // namespace

int PersianNewYearJD(int year) {
  double jde = SeasonMoment(year + 621, Season::MarchEquinox);
  // The civil day holding the moment, and the fraction of it from midnight.
  double whole = std::floor(jde);
  double f = jde - whole;
  int day = static_cast<int>(whole);
  if (f >= 0.5) {
    f -= 0.5;
    day += 1;
  } else {
    f += 0.5;
  }
  f += kTehranLongitude / 360 - TehranAllowance(year);
  if (f >= 1) {
    f -= 1;
    day += 1;
  }
  if (f >= 0.5) day += 1;  // the equinox falls after noon
  return day;
}

void RegisterAstroPersianRules(RulesTable& table) {
  table[static_cast<int>(CalType::APer)] = CalendarRules{
      DateToJDAPer,
      [](CalendarEngine& e, JD jd) {
        return EstimateAndWalk(e, CalType::APer, jd, 1948320, 365, 1);
      },
      [](CalendarEngine&, int y) { return IsLeap(y); },
      [](CalendarEngine&, int y, int m) { return MonthLength(m == 12 && IsLeap(y), m); }};
}

}  // namespace mc
