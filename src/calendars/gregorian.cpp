#include "calendars/gregorian.h"

#include "calendars/families.h"
#include "core/errors.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr std::string_view kMonthAbbrevs[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::string_view kWeekdayAbbrevs[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

int IndexOfAbbrev(std::string_view text, const std::string_view* table, int count) {
  std::string_view key = Left(Trim(text), 3);
  for (int i = 0; i < count; ++i)
    if (table[i] == key) return i + 1;
  return 0;
}

}  // namespace

CalDate JDToGregorian(CalendarEngine& engine, JD jd) {
  return EstimateAndWalk(engine, CalType::Greg, jd, 1720995, 365, 0);
}

CalDate JDToJulian(CalendarEngine& engine, JD jd) {
  return EstimateAndWalk(engine, CalType::Jul, jd, 1720997, 365, 0);
}

int MonthNumberOfName(std::string_view text) {
  return IndexOfAbbrev(text, kMonthAbbrevs, 12);
}

int WeekdayNumberOfName(std::string_view text) {
  return IndexOfAbbrev(text, kWeekdayAbbrevs, 7);
}

int DayInMonthNumber(Context& ctx, std::string_view monthName, std::string_view weekdayName,
                     std::string_view ordinalWord, int year) {
  int month = MonthNumberOfName(monthName);
  int target = WeekdayNumberOfName(weekdayName);
  std::string_view ordinal = Left(Trim(ordinalWord), 3);
  static constexpr std::string_view kOrdinals[] = {"Fir", "Sec", "Thi", "Fou", "Fif", "Las", "Pen"};
  int which = 0;
  for (int i = 0; i < 7; ++i)
    if (kOrdinals[i] == ordinal) which = i + 1;
  if (month == 0 || target == 0 || which == 0) {
    ShowError(ctx, Err("Illegal call of function DayInMonthNumber."));
    return 0;
  }
  int first = WeekdayOfJD(GregorianToJD(1, month, year));
  int d = ((target - first) % 7 + 7) % 7 + 1;
  int length = GregorianMonthLength(month, IsGregorianLeap(year));
  if (which <= 5) {
    d += 7 * (which - 1);
    return d <= length ? d : 0;
  }
  while (d <= length) d += 7;
  return which == 6 ? d - 7 : d - 14;
}

CalDate NearestWeekdayShift(CalendarEngine& engine, std::string_view rule, int day, int month,
                            int year, int targetWeekday) {
  JD jd = GregorianToJD(day, month, year);
  int forward = ((targetWeekday - WeekdayOfJD(jd)) % 7 + 7) % 7;  // 0..6 days ahead
  int back = (7 - forward) % 7;                                   // 0..6 days behind
  std::string_view word = Left(Trim(rule), 3);
  if (word == "Bef")
    jd -= back == 0 ? 7 : back;
  else if (word == "OnB")
    jd -= back;
  else if (word == "Aft")
    jd += forward == 0 ? 7 : forward;
  else if (word == "OnA")
    jd += forward;
  else if (word == "Nea")
    jd += forward >= 4 ? -back : forward;
  return JDToGregorian(engine, jd);
}

void RegisterGregorianRules(RulesTable& table) {
  table[static_cast<int>(CalType::Greg)] = CalendarRules{
      [](CalendarEngine&, int d, int m, int y) { return GregorianToJD(d, m, y); },
      [](CalendarEngine& e, JD jd) { return JDToGregorian(e, jd); },
      [](CalendarEngine&, int y) { return IsGregorianLeap(y); },
      [](CalendarEngine&, int y, int m) { return GregorianMonthLength(m, IsGregorianLeap(y)); }};
  table[static_cast<int>(CalType::Jul)] = CalendarRules{
      [](CalendarEngine&, int d, int m, int y) { return JulianToJD(d, m, y); },
      [](CalendarEngine& e, JD jd) { return JDToJulian(e, jd); },
      [](CalendarEngine&, int y) { return y % 4 == 0; },
      [](CalendarEngine&, int y, int m) { return GregorianMonthLength(m, y % 4 == 0); }};
}

}  // namespace mc
