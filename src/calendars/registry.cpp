#include "calendars/registry.h"

#include "calendars/families.h"

namespace mc {

namespace {

const RulesTable& AllRules() {
  static const RulesTable table = [] {
    RulesTable t{};
    RegisterGregorianRules(t);
    RegisterAstroPersianRules(t);
    RegisterChineseRules(t);
    RegisterSolarFixedRules(t);
    RegisterHebrewRules(t);
    RegisterIslamicRules(t);
    RegisterHinduRules(t);
    RegisterCycleRules(t);
    return t;
  }();
  return table;
}

const CalendarRules& RulesOf(const RulesTable& t, CalType type) {
  return t[static_cast<int>(type)];
}

}  // namespace

CalendarEngine::CalendarEngine(Context& ctx) : ctx_(&ctx), rules_(&AllRules()) {}

JD CalendarEngine::DateToJD(CalType type, int day, int month, int year) {
  auto f = RulesOf(*rules_, type).dateToJD;
  return f ? f(*this, day, month, year) : 0;
}

bool CalendarEngine::JDToDate(CalType type, JD jd, CalDate& out) {
  auto f = RulesOf(*rules_, type).jdToDate;
  if (!f) return false;
  out = f(*this, jd);
  return true;
}

CalDate CalendarEngine::JDToDate(CalType type, JD jd) {
  CalDate d;
  JDToDate(type, jd, d);
  return d;
}

bool CalendarEngine::IsLeapYear(CalType type, int year) {
  auto f = RulesOf(*rules_, type).isLeapYear;
  return f ? f(*this, year) : false;
}

int CalendarEngine::DaysInMonth(CalType type, int year, int month) {
  auto f = RulesOf(*rules_, type).daysInMonth;
  return f ? f(*this, year, month) : 0;
}

bool CalendarEngine::HasRules(CalType type) const {
  return RulesOf(*rules_, type).dateToJD != nullptr;
}

CalDate EstimateAndWalk(CalendarEngine& engine, CalType type, JD jd, JD e, int l, int y0) {
  int year = (jd - e) / l + y0;
  JD start = engine.DateToJD(type, 1, 1, year);
  while (start > jd) start = engine.DateToJD(type, 1, 1, --year);
  int dayOfYear = jd - start + 1;
  int month = 0;
  int length = 0;
  while (dayOfYear > 0) {
    length = engine.DaysInMonth(type, year, ++month);
    if (length == 0) break;  // past the year's last month: a guess below the true year
    dayOfYear -= length;
  }
  return CalDate{dayOfYear + length, month, year};
}

CalDate EstimateAndWalkThirty(CalendarEngine& engine, CalType type, JD jd, JD e, int l, int y0) {
  int year = (jd - e) / l + y0;
  JD start = engine.DateToJD(type, 1, 1, year);
  while (start > jd) start = engine.DateToJD(type, 1, 1, --year);
  int dayOfYear = jd - start + 1;
  int month = (dayOfYear - 1) / 30 + 1;
  return CalDate{dayOfYear - (month - 1) * 30, month, year};
}

}  // namespace mc
