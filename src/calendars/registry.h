// The calendar engine: four dispatchers on the calendar code carry every
// conversion between a date triple and the day number. Each calendar family
// registers its rules in its own source file; a code without rules answers as
// an unknown code does (0, false, 0, outputs untouched).
#pragma once

#include <array>
#include <string_view>

#include "calendars/cal_type.h"
#include "core/context.h"
#include "core/module_set.h"

namespace mc {

class CalendarEngine;

// One calendar's rules. Any member may be null.
struct CalendarRules {
  // JD of a date; -1 no such month (and in Bal no such day), -2 no such day
  // (Chi, Vie). No range check.
  JD (*dateToJD)(CalendarEngine&, int day, int month, int year) = nullptr;
  CalDate (*jdToDate)(CalendarEngine&, JD jd) = nullptr;
  bool (*isLeapYear)(CalendarEngine&, int year) = nullptr;
  // 0 for a month outside the calendar.
  int (*daysInMonth)(CalendarEngine&, int year, int month) = nullptr;
};

using RulesTable = std::array<CalendarRules, kCalTypeCount>;

class CalendarEngine {
 public:
  explicit CalendarEngine(Context& ctx);

  JD DateToJD(CalType type, int day, int month, int year);
  // False, with `out` untouched, for a code without rules.
  bool JDToDate(CalType type, JD jd, CalDate& out);
  CalDate JDToDate(CalType type, JD jd);
  bool IsLeapYear(CalType type, int year);
  int DaysInMonth(CalType type, int year, int month);
  bool HasRules(CalType type) const;

  Context& ctx() { return *ctx_; }

  // Tables a calendar family builds once and keeps (the Umm al-Qura table,
  // built lunar years), one object per type.
  template <class T>
  T& State() {
    return state_.Get<T>([this] { return new T(*this); });
  }

 private:
  Context* ctx_;
  const RulesTable* rules_;
  ModuleSet state_;
};

// The engine of this context.
inline CalendarEngine& Calendars(Context& ctx) {
  return ctx.Module<CalendarEngine>();
}

// Weekday of a day number, 1 = Sunday .. 7 = Saturday.
constexpr int WeekdayOfJD(JD jd) {
  int w = static_cast<int>(((static_cast<long long>(jd) + 2) % 7 + 7) % 7);
  return w == 0 ? 7 : w;
}

// The common inverse of the solar and arithmetic calendars: estimate the year
// as (jd - e) / l + y0, at or above the true year, walk back by whole years,
// then forward through the months.
CalDate EstimateAndWalk(CalendarEngine& engine, CalType type, JD jd, JD e, int l, int y0);
// The same for calendars of thirty-day months (and a short month 13).
CalDate EstimateAndWalkThirty(CalendarEngine& engine, CalType type, JD jd, JD e, int l, int y0);

}  // namespace mc
