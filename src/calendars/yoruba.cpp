// The Yoruba calendar: four-day weeks counted through the Gregorian year,
// whose number it carries 8042 years on. The first week may be short, and the
// count of weeks steps once between November and December, so that every year
// ends in week 93.
#include "calendars/cycles.h"
#include "calendars/cycles_detail.h"
#include "calendars/gregorian.h"

namespace mc {

using cycles::Cycle;
using cycles::Shown;

namespace {

constexpr int kYearOffset = 8042;

// Length of the first week of a Gregorian year, 1..4.
int FirstWeekLength(int gregorianYear) {
  return 5 - Cycle(GregorianToJD(1, 1, gregorianYear), 4);
}

// Day and week of the n-th day of a Gregorian year, before the step.
CalDate DayAndWeek(int n, int firstWeek) {
  if (n <= firstWeek) return CalDate{5 - firstWeek + n - 1, 1, 0};
  int m = n - firstWeek;
  int q = m / 4, r = m % 4;
  return r == 0 ? CalDate{4, q + 1, 0} : CalDate{r, q + 2, 0};
}

// The week count steps between November and December, except in a leap year
// whose first week is a single day.
bool Steps(int gregorianYear) {
  return !(FirstWeekLength(gregorianYear) == 1 && IsGregorianLeap(gregorianYear));
}

CalDate YorJDToDate(CalendarEngine& engine, JD jd) {
  CalDate g = JDToGregorian(engine, jd);
  int n = jd - GregorianToJD(1, 1, g.year) + 1;
  CalDate d = DayAndWeek(n, FirstWeekLength(g.year));
  if (g.month == 12 && Steps(g.year)) d.month += 1;
  d.year = g.year + kYearOffset;
  return d;
}

JD YorDateToJD(CalendarEngine&, int day, int week, int year) {
  const int g = year - kYearOffset;
  const int a = FirstWeekLength(g);
  int w = week;
  if (Steps(g)) {
    int novemberWeek = DayAndWeek(GregorianToJD(30, 11, g) - GregorianToJD(1, 1, g) + 1, a).month;
    if (w > novemberWeek) w -= 1;
  }
  const JD j0 = GregorianToJD(1, 1, g) - 1;
  if (w == 1) return j0 + day - (4 - a);
  return j0 + a + 4 * (w - 2) + day;
}

bool YorIsLeapYear(CalendarEngine&, int year) {
  return IsGregorianLeap(year - kYearOffset);
}

// Days of a week that exist: the first week may be short, the week skipped
// at the step and the days around it are missing.
int YorDaysInWeek(CalendarEngine& engine, int year, int week) {
  if (week < 1 || week > 93) return 0;
  int days = 0;
  for (int d = 1; d <= 4; ++d) {
    JD jd = YorDateToJD(engine, d, week, year);
    if (YorJDToDate(engine, jd) == CalDate{d, week, year}) ++days;
  }
  return days;
}

}  // namespace

int YorubaFirstDay(int year) {
  return Cycle(GregorianToJD(1, 1, year - kYearOffset), 4);
}

std::string YorubaText(Context& ctx, JD jd) {
  CalDate d = Calendars(ctx).JDToDate(CalType::Yor, jd);
  return std::to_string(d.day) + " " + Shown(ctx, kYorubaDays[static_cast<std::size_t>(d.day)]) +
         ", Ose " + std::to_string(d.month) + ", " + std::to_string(d.year);
}

namespace cycles {

void RegisterYorubaRules(RulesTable& table) {
  table[static_cast<int>(CalType::Yor)] =
      CalendarRules{YorDateToJD, YorJDToDate, YorIsLeapYear, YorDaysInWeek};
}

}  // namespace cycles

}  // namespace mc
