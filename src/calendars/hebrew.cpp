#include "calendars/hebrew.h"

#include "calendars/families.h"
#include "core/int_math.h"

namespace mc {

namespace {

// Day 1 of the day count is JD 347998, Monday 1 Tishri of year 1.
constexpr JD kHebrewEpoch = 347997;

constexpr MoladSpan kCycle{991, 2, 16, 595};     // 235 months of the 19-year cycle
constexpr MoladSpan kFirstMolad{0, 0, 5, 204};   // the molad of Tishri, year 1
constexpr MoladSpan kCommonYear{50, 4, 8, 876};  // 12 months
constexpr MoladSpan kMonth{4, 1, 12, 793};       // 29 days, 12 hours, 793 parts

// Carries parts into hours, hours into days and days into weeks.
MoladSpan Normalise(long long weeks, long long days, long long hours, long long parts) {
  MoladSpan s;
  hours += parts / 1080;
  s.parts = static_cast<int>(parts % 1080);
  days += hours / 24;
  s.hours = static_cast<int>(hours % 24);
  weeks += days / 7;
  s.days = static_cast<int>(days % 7);
  s.weeks = static_cast<int>(weeks);
  return s;
}

int NextWeekday(int weekday) {
  return weekday == 7 ? 1 : weekday + 1;
}

// The month that follows m in the year's walk: Adar II only in a leap year.
int NextMonth(int m, bool leap) {
  return m == 6 && !leap ? 8 : m + 1;
}

int MonthLength(int month, int yearLength) {
  switch (month) {
    case 1:
    case 5:
    case 8:
    case 10:
    case 12:
      return 30;
    case 4:
    case 7:
    case 9:
    case 11:
    case 13:
      return 29;
    case 2:
      return yearLength == 355 || yearLength == 385 ? 30 : 29;
    case 3:
      return yearLength == 353 || yearLength == 383 ? 29 : 30;
    case 6:
      return yearLength > 355 ? 30 : 29;
    default:
      return 0;
  }
}

}  // namespace

MoladSpan MoladAdd(const MoladSpan& a, const MoladSpan& b) {
  return Normalise(static_cast<long long>(a.weeks) + b.weeks, a.days + b.days, a.hours + b.hours,
                   a.parts + b.parts);
}

MoladSpan MoladMultiply(const MoladSpan& a, int n) {
  return Normalise(static_cast<long long>(a.weeks) * n, static_cast<long long>(a.days) * n,
                   static_cast<long long>(a.hours) * n, static_cast<long long>(a.parts) * n);
}

int LeapMonthsInCycle(int n) {
  if (n <= 7) return n / 3;
  if (n <= 18) return (n + 1) / 3;
  return 7;
}

bool IsHebrewLeap(int year) {
  switch (FloorMod(year, 19)) {
    case 0:
    case 3:
    case 6:
    case 8:
    case 11:
    case 14:
    case 17:
      return true;
    default:
      return false;
  }
}

// The molad of Tishri: the first molad, plus the cycles, the common years
// and the leap months before the year.
MoladSpan MoladOfTishri(int year) {
  int c = FloorDiv(year - 1, 19);
  int n = FloorMod(year - 1, 19);
  MoladSpan b = MoladAdd(kFirstMolad, MoladMultiply(kCycle, c));
  MoladSpan d = MoladAdd(b, MoladMultiply(kCommonYear, n));
  return MoladAdd(d, MoladMultiply(kMonth, LeapMonthsInCycle(n)));
}

// The new year from the molad of Tishri, with the four postponements. The
// molad is summed here in parts, in one step: the same sum as MoladOfTishri
// carries unit by unit, at a fraction of the cost.
HebrewNewYearDay HebrewNewYear(int year) {
  constexpr long long kPartsPerHour = 1080, kPartsPerDay = 24 * kPartsPerHour;
  constexpr long long kPartsPerMonth = 29 * kPartsPerDay + 12 * kPartsPerHour + 793;
  const int c = FloorDiv(year - 1, 19);
  const int n = FloorMod(year - 1, 19);
  const long long months = 235LL * c + 12 * n + LeapMonthsInCycle(n);
  const long long parts = 5 * kPartsPerHour + 204 + months * kPartsPerMonth;
  const long long wholeDays = FloorDiv(parts, kPartsPerDay);
  const long long rest = parts - wholeDays * kPartsPerDay;
  MoladSpan f;
  f.weeks = static_cast<int>(FloorDiv(wholeDays, 7));
  f.days = static_cast<int>(wholeDays - 7LL * f.weeks);
  f.hours = static_cast<int>(rest / kPartsPerHour);
  f.parts = static_cast<int>(rest % kPartsPerHour);

  HebrewNewYearDay ny;
  ny.hours = f.hours;
  ny.parts = f.parts;
  ny.days = 7 * f.weeks + f.days + 1;
  ny.weekday = (ny.days + 1) % 7;
  if (ny.weekday <= 0) ny.weekday += 7;
  auto postpone = [&ny] {
    ++ny.days;
    ny.weekday = NextWeekday(ny.weekday);
  };
  const int h = f.hours, p = f.parts;
  if (h >= 18)
    postpone();  // the molad falls at noon or later
  else if (ny.weekday == 3 && !IsHebrewLeap(year) && ((h == 9 && p >= 204) || h > 9))
    postpone();  // a common year would run to 356 days
  else if (ny.weekday == 2 && IsHebrewLeap(year - 1) && ((h == 15 && p >= 589) || h >= 16))
    postpone();  // the leap year before would shrink to 382 days
  if (ny.weekday == 1 || ny.weekday == 4 || ny.weekday == 6) postpone();
  return ny;
}

int HebrewYearLength(int year) {
  return HebrewNewYear(year + 1).days - HebrewNewYear(year).days;
}

int HebrewMonthLength(int year, int month) {
  if (month < 1 || month > 13) return 0;
  // Only Cheshvan, Kislev and Adar depend on the year.
  if (month == 2 || month == 3) return MonthLength(month, HebrewYearLength(year));
  if (month == 6) return IsHebrewLeap(year) ? 30 : 29;
  return MonthLength(month, 354);
}

JD HebrewToJD(int day, int month, int year) {
  const int start = HebrewNewYear(year).days;
  const bool leap = IsHebrewLeap(year);
  int s = start;
  if (month > 1) {
    const int length = month > 2 ? HebrewNewYear(year + 1).days - start : 0;
    for (int m = 1; m < month; m = NextMonth(m, leap)) {
      if (m == 6)
        s += leap ? 30 : 29;
      else
        s += MonthLength(m, length);
    }
  }
  return s + day - 1 + kHebrewEpoch;
}

// The year is the last whose new year falls on or before the day. The walk
// starts from an estimate by the mean year and moves to the right year.
CalDate JDToHebrew(JD jd) {
  const int s = jd - kHebrewEpoch;
  int y = static_cast<int>(static_cast<long long>(s) * 98496 / 35975351) + 1;
  HebrewNewYearDay ny = HebrewNewYear(y);
  HebrewNewYearDay next = HebrewNewYear(y + 1);
  while (ny.days > s) {
    next = ny;
    ny = HebrewNewYear(--y);
  }
  while (next.days <= s) {
    ny = next;
    next = HebrewNewYear(++y + 1);
  }
  const int length = next.days - ny.days;
  const bool leap = IsHebrewLeap(y);
  int n = s - ny.days + 1;
  int m = 1;
  for (;;) {
    int len = m == 6 ? (leap ? 30 : 29) : MonthLength(m, length);
    if (n <= len || m == 13) break;
    n -= len;
    m = NextMonth(m, leap);
  }
  return CalDate{n, m, y};
}

void RegisterHebrewRules(RulesTable& table) {
  table[static_cast<int>(CalType::Heb)] =
      CalendarRules{[](CalendarEngine&, int d, int m, int y) { return HebrewToJD(d, m, y); },
                    [](CalendarEngine&, JD jd) { return JDToHebrew(jd); },
                    [](CalendarEngine&, int y) { return IsHebrewLeap(y); },
                    [](CalendarEngine&, int y, int m) { return HebrewMonthLength(y, m); }};
}

}  // namespace mc
