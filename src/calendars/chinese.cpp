#include "calendars/chinese.h"

#include <cmath>

#include "calendars/astro.h"
#include "calendars/families.h"
#include "calendars/gregorian.h"
#include "timeplace/ephemeris.h"

namespace mc {

namespace {

// The local day of a moment, in the zone in force in the moment's year.
JD LocalDay(CalType type, double moment) {
  int year = 0, month = 0;
  GregorianYearMonthOfMoment(moment, year, month);
  return LocalDayOfMoment(moment, CalendarTimeZone(type, year));
}

JD NewMoonDay(CalType type, float k) {
  return LocalDay(type, MoonPhaseMoment(k));
}

// Where the Sun stands against a target longitude; for the 0-degree term a
// longitude above 300 counts as below zero.
double Longitude(double moment, int target) {
  double l = ApparentSolarLongitude(moment);
  if (target == 0 && l > 300) l -= 360;
  return l;
}

// The moment the Sun reaches a longitude, from a first guess of the day:
// bracket by whole days, then close in by false position.
double TermMoment(double guess, int target) {
  double x0 = guess, x1 = guess;
  double l0 = Longitude(x0, target);
  for (int n = 0; l0 >= target && n < 60; ++n) l0 = Longitude(x0 -= 1, target);
  double l1 = Longitude(x1, target);
  for (int n = 0; l1 <= target && n < 60; ++n) l1 = Longitude(x1 += 1, target);
  double x = x0;
  for (int n = 0; n < 60 && l1 != l0; ++n) {
    x = x0 + (x1 - x0) * (target - l0) / (l1 - l0);
    double l = Longitude(x, target);
    if (std::fabs(l - target) < 0.00001) break;
    if (l < target) {
      x0 = x;
      l0 = l;
    } else {
      x1 = x;
      l1 = l;
    }
  }
  return x;
}

// The usual Gregorian dates of the terms, by term index (longitude / 30).
constexpr int kTermGuess[12][2] = {{21, 3}, {20, 4},  {21, 5},  {21, 6},  {23, 7}, {23, 8},
                                   {23, 9}, {24, 10}, {22, 11}, {22, 12}, {20, 1}, {19, 2}};

// The months of the year from its new moons and terms. The year starts with
// the second new moon after the solstice month, or the third when the first
// of them holds no major term (a leap month that closed the year before).
void NumberMonths(LunarYearTable& t) {
  const auto& m = t.moons.day;
  const int count = t.moons.count;
  const auto& z = t.terms;
  auto term = [&](int j) { return j <= 15 ? z[j] : JD(0x7fffffff); };

  // A month without a major term is a leap month only when thirteen months
  // run from the solstice month to the next.
  auto termless = [&](int i) {
    int j = 1;
    while (j <= 15 && m[i] > z[j]) ++j;
    return term(j) >= m[i + 1];
  };
  int i = t.moons.countToSolstice == 13 && termless(1) ? 3 : 2;

  t.leapFlag = false;
  int slot = 0, next = 1;
  int j = 1;
  for (; i <= count - 1 && slot < 13; ++i) {
    while (j <= 15 && m[i] > z[j]) ++j;
    int written;
    if (term(j) >= m[i + 1] && next != 1) {
      // No major term in the month: a leap month. A second one in the year
      // takes the place of the first, which is numbered after all.
      if (t.leapFlag && slot != 12) {
        for (int s = 1; s <= slot; ++s) t.monthNumber[s] = s;
        next += 1;
      }
      t.leapFlag = true;
      written = 0;
    } else {
      written = next++;
    }
    ++slot;
    t.monthNumber[slot] = written;
    t.monthLength[slot] = m[i + 1] - m[i];
    t.monthStart[slot] = m[i];
    if (written == 12 || slot == 13) {
      t.yearEnd = m[i + 1] - 1;
      if (slot == 13 && t.monthNumber[13] == 0) t.monthNumber[13] = 12;
      break;
    }
  }
  t.monthCount = slot;
  t.yearStart = t.monthStart[1];

  // The eleventh month must hold the winter solstice; when it misses it the
  // year had no true leap month, and its last month belongs to the next year.
  int s11 = 0;
  for (int s = 1; s <= slot; ++s)
    if (t.monthNumber[s] == 11) s11 = s;
  if (s11 > 0 && slot == 13) {
    JD after = s11 < slot ? t.monthStart[s11 + 1] : t.monthStart[s11] + t.monthLength[s11];
    if (t.monthStart[s11] > z[12] || after <= z[12]) {
      t.leapFlag = false;
      t.yearEnd -= t.monthLength[slot];
      for (int s = 1; s < slot; ++s) t.monthNumber[s] = s;
      t.monthNumber[13] = 0;
      t.monthLength[13] = 0;
      t.monthStart[13] = 0;
      t.monthCount = slot - 1;
    }
  }

  t.leapMonthNumber = 0;
  if (t.leapFlag)
    for (int s = 2; s <= t.monthCount; ++s)
      if (t.monthNumber[s] == 0) t.leapMonthNumber = t.monthNumber[s - 1];
}

// The engine's tables of one code: the last year built and a few kept for reuse.
struct LunarYears {
  explicit LunarYears(CalendarEngine&) {}
  static constexpr int kKept = 8;
  struct PerCode {
    LunarYearTable last;
    std::array<LunarYearTable, kKept> kept;
    std::array<bool, kKept> used{};
    int nextSlot = 0;
  };
  PerCode chi, vie;
  PerCode& Of(CalType type) { return type == CalType::Vie ? vie : chi; }
};

JD DateToJDLunar(CalendarEngine& engine, CalType type, int day, int month, int year) {
  const LunarYearTable& t = BuildLunarYear(engine, type, year - kChineseYearOffset);
  if ((month == 0 && !t.leapFlag) || month >= 13 || month < 0) return -1;
  int s = t.SlotOfMonth(month);
  if (s == 0) return -1;
  if (day > t.monthLength[s] || day < 1) return -2;
  return t.monthStart[s] - 1 + day;
}

CalDate JDToDateLunar(CalendarEngine& engine, CalType type, JD jd) {
  int g = (jd - 1720997) / 365;
  while (GregorianToJD(1, 1, g) > jd) --g;
  if (jd < BuildLunarYear(engine, type, g).yearStart) --g;
  const LunarYearTable* t = &BuildLunarYear(engine, type, g);
  if (jd > t->yearEnd) t = &BuildLunarYear(engine, type, ++g);  // never for sound years
  int n = jd - t->yearStart + 1;
  int s = 0;
  while (n > 0 && s < t->monthCount) n -= t->monthLength[++s];
  if (s == 0) return CalDate{n, 0, t->Year()};
  return CalDate{n + t->monthLength[s], t->monthNumber[s], t->Year()};
}

}  // namespace

double CalendarTimeZone(CalType type, int gregorianYear) {
  if (type == CalType::Vie) return 420.0 / 1440;
  return gregorianYear >= 1929 ? 480.0 / 1440 : (465 + 40.0 / 60) / 1440;
}

JD LocalDayOfMoment(double moment, double timeZone) {
  double m = moment + timeZone;
  double whole = std::floor(m);
  JD day = static_cast<JD>(whole);
  return m - whole >= 0.5 ? day + 1 : day;
}

NewMoonDays NewMoonsOfYear(CalType type, int g) {
  NewMoonDays out;
  out.solsticeBefore = LocalDay(type, SeasonMoment(g - 1, Season::DecemberSolstice));
  out.solsticeAfter = LocalDay(type, SeasonMoment(g, Season::DecemberSolstice));
  const JD w1 = out.solsticeBefore, w2 = out.solsticeAfter;

  // From a lunation on or before the first solstice, forward to the second.
  int k = static_cast<int>(std::floor(12.3685 * (g - 2000))) - 1;
  JD d = NewMoonDay(type, static_cast<float>(k));
  for (int n = 0; d > w1 && n < 4; ++n) d = NewMoonDay(type, static_cast<float>(--k));
  out.day[0] = d;
  while (true) {
    JD next = NewMoonDay(type, static_cast<float>(k + 1));
    if (next > w1) break;
    out.day[0] = next;
    ++k;
  }
  ++k;
  for (int n = 0; n < 15; ++n, ++k) {
    d = NewMoonDay(type, static_cast<float>(k));
    if (d > w2) break;
    out.day[++out.count] = d;
  }
  out.countToSolstice = out.count;
  // Four more, so that the table reaches past the second solstice.
  for (int n = 0; n < 4; ++n, ++k) out.day[++out.count] = NewMoonDay(type, static_cast<float>(k));
  return out;
}

SolarTermDays SolarTermsOfYear(CalType type, int g) {
  SolarTermDays z{};
  for (int k = -2; k <= 12; ++k) {
    int i = k < 0 ? k + 12 : k == 12 ? 0 : k;
    int year = k >= 10 ? g + 1 : g;
    double guess = GregorianToJD(kTermGuess[i][0], kTermGuess[i][1], year);
    z[k + 3] = LocalDay(type, TermMoment(guess, 30 * i));
  }
  return z;
}

int LunarYearTable::SlotOfMonth(int month) const {
  for (int s = monthCount; s >= 1; --s)
    if (monthNumber[s] == month) return s;
  return 0;
}

LunarYearTable ComputeLunarYear(CalType type, int gregorianYear) {
  LunarYearTable t;
  t.type = type;
  t.gregorianYear = gregorianYear;
  t.moons = NewMoonsOfYear(type, gregorianYear);
  t.terms = SolarTermsOfYear(type, gregorianYear);
  NumberMonths(t);
  return t;
}

const LunarYearTable& BuildLunarYear(CalendarEngine& engine, CalType type, int gregorianYear) {
  auto& years = engine.State<LunarYears>().Of(type);
  if (years.last.monthCount > 0 && years.last.gregorianYear == gregorianYear) return years.last;
  for (int i = 0; i < LunarYears::kKept; ++i) {
    if (years.used[i] && years.kept[i].gregorianYear == gregorianYear) {
      years.last = years.kept[i];
      return years.last;
    }
  }
  years.last = ComputeLunarYear(type, gregorianYear);
  int i = years.nextSlot;
  years.kept[i] = years.last;
  years.used[i] = true;
  years.nextSlot = (i + 1) % LunarYears::kKept;
  return years.last;
}

const LunarYearTable& LastLunarYear(CalendarEngine& engine, CalType type) {
  return engine.State<LunarYears>().Of(type).last;
}

void ClearLunarYearCache(CalendarEngine& engine) {
  for (CalType type : {CalType::Chi, CalType::Vie}) {
    auto& years = engine.State<LunarYears>().Of(type);
    years.used.fill(false);
    years.nextSlot = 0;
  }
}

void RegisterChineseRules(RulesTable& table) {
  for (CalType type : {CalType::Chi, CalType::Vie}) {
    CalendarRules rules;
    if (type == CalType::Chi) {
      rules.dateToJD = [](CalendarEngine& e, int d, int m, int y) {
        return DateToJDLunar(e, CalType::Chi, d, m, y);
      };
      rules.jdToDate = [](CalendarEngine& e, JD jd) { return JDToDateLunar(e, CalType::Chi, jd); };
      rules.isLeapYear = [](CalendarEngine& e, int y) {
        return BuildLunarYear(e, CalType::Chi, y - kChineseYearOffset).leapFlag;
      };
    } else {
      rules.dateToJD = [](CalendarEngine& e, int d, int m, int y) {
        return DateToJDLunar(e, CalType::Vie, d, m, y);
      };
      rules.jdToDate = [](CalendarEngine& e, JD jd) { return JDToDateLunar(e, CalType::Vie, jd); };
      rules.isLeapYear = [](CalendarEngine& e, int y) {
        return BuildLunarYear(e, CalType::Vie, y - kChineseYearOffset).leapFlag;
      };
    }
    table[static_cast<int>(type)] = rules;  // no month lengths: callers read the year tables
  }
}

}  // namespace mc
