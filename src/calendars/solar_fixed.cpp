#include "calendars/solar_fixed.h"

#include "calendars/families.h"
#include "calendars/gregorian.h"
#include "calendars/names.h"
#include "core/int_math.h"

namespace mc {

namespace {

using C = CalType;

// ---------------------------------------------------------------------------
// Calendars of twelve thirty-day months and an epagomenal month 13.

struct ThirtyDayRule {
  JD (*firstDay)(int year);  // JD of 1/1 of the year
  bool (*leap)(int year);    // month 13 holds six days
  JD estimateEpoch;          // the year estimate (jd - E) / 365 + Y0
  int estimateYear0;
};

constexpr JD kCopticEpoch = JulianToJD(29, 8, 284);
constexpr JD kEthiopicEpoch = JulianToJD(29, 8, 8);
constexpr JD kFrenchEpoch = GregorianToJD(22, 9, 1792);

bool NoLeap(int) {
  return false;
}
bool LeapWhenThree(int y) {
  return FloorMod(y, 4) == 3;
}
// The Fasli year begins on 21 March, so its leap day falls where the
// Gregorian one does: in the Fasli year Y when Gregorian Y + 632 is leap.
bool FasliLeap(int y) {
  return IsGregorianLeap(y + 632);
}

JD ArmenianFirst(int y) {
  return (y - 1) * 365 + 1922868;
}
JD EgyptianFirst(int y) {
  return (y - 1) * 365 + 1448638;
}
JD ShenshaiFirst(int y) {
  return (y - 500) * 365 + 2134228;
}
JD KadmiFirst(int y) {
  return (y - 500) * 365 + 2134198;
}
JD FasliFirst(int y) {
  return GregorianToJD(20, 3, y + 631) + 1;
}
JD CopticFirst(int y) {
  return FloorDiv(y, 4) + kCopticEpoch + (y - 1) * 365;
}
JD EthiopicFirst(int y) {
  return FloorDiv(y, 4) + kEthiopicEpoch + (y - 1) * 365;
}
JD FrenchFirst(int y) {
  return kFrenchEpoch + (y - 1) * 365 + FloorDiv(y, 4);
}

constexpr ThirtyDayRule kArmenian{ArmenianFirst, NoLeap, 1922867, 1};
constexpr ThirtyDayRule kEgyptian{EgyptianFirst, NoLeap, 1448637, 1};
constexpr ThirtyDayRule kShenshai{ShenshaiFirst, NoLeap, 2134227, 500};
constexpr ThirtyDayRule kKadmi{KadmiFirst, NoLeap, 2134197, 500};
constexpr ThirtyDayRule kFasli{FasliFirst, FasliLeap, 2417290, 1276};
constexpr ThirtyDayRule kCoptic{CopticFirst, LeapWhenThree, 0, 0};
constexpr ThirtyDayRule kEthiopic{EthiopicFirst, LeapWhenThree, 0, 0};
constexpr ThirtyDayRule kFrench{FrenchFirst, LeapWhenThree, kFrenchEpoch - 1, 1};

template <const ThirtyDayRule& R>
JD ThirtyDayToJD(CalendarEngine&, int d, int m, int y) {
  return R.firstDay(y) + (m - 1) * 30 + d - 1;
}

template <const ThirtyDayRule& R>
int ThirtyDayMonthLength(CalendarEngine&, int y, int m) {
  if (m >= 1 && m <= 12) return 30;
  if (m == 13) return R.leap(y) ? 6 : 5;
  return 0;
}

template <const ThirtyDayRule& R>
bool ThirtyDayLeap(CalendarEngine&, int y) {
  return R.leap(y);
}

// Estimate the year at or above the true one, walk back by whole years, then
// count thirty-day months.
template <const ThirtyDayRule& R>
CalDate JDToThirtyDay(CalendarEngine&, JD jd) {
  int year = (jd - R.estimateEpoch) / 365 + R.estimateYear0;
  JD start = R.firstDay(year);
  while (start > jd) start = R.firstDay(--year);
  int dayOfYear = jd - start + 1;
  int month = (dayOfYear - 1) / 30 + 1;
  return CalDate{dayOfYear - (month - 1) * 30, month, year};
}

// Coptic and Ethiopic have a closed inverse.
template <const ThirtyDayRule& R, JD J>
CalDate JDToCopticLike(CalendarEngine&, JD jd) {
  int year = FloorDiv(4 * (jd - J) + 1463, 1461);
  JD start = R.firstDay(year);
  int month = FloorDiv(jd - start, 30) + 1;
  return CalDate{jd + 1 - (start + (month - 1) * 30), month, year};
}

// ---------------------------------------------------------------------------
// Calendars whose year lengths follow the Gregorian rule shifted by a fixed
// number of years: Bangla, Indian National, Sikh Nanakshahi, second Afghan.

struct GregorianStyleRule {
  int leapShift;              // the year is leap when Gregorian year + shift is
  int leapMonth;              // the month that gains the leap day
  int lengths[13];            // common-year month lengths, [0] unused
  JD (*firstDayBefore)(int);  // JD of the day before 1/1 of the year
  JD estimateEpoch;
  int estimateYear0;
};

JD BanglaBefore(int y) {
  return (y - 1) * 365 + 1938117 + (y + 1) / 4 - (y + 93) / 100 + (y + 193) / 400;
}
JD IndianBefore(int y) {
  return (y - 1879) * 365 + 2435919 + (y + 77) / 4 - 489 - (y + 77) / 100 + 19 + (y + 77) / 400 - 4;
}
JD SikhBefore(int y) {
  return (y - 531) * 365 + 2451251 + (y + 1468) / 4 - 499 - (y + 1468) / 100 + 19 +
         (y + 1468) / 400 - 4;
}
JD NewAfghanBefore(int y) {
  return (y - 1) * 365 + 1948319 + (y + 621) / 4 - (y + 621) / 100 + (y + 621) / 400 - 150;
}

constexpr GregorianStyleRule kBangla{
    594, 11, {0, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 30, 30}, BanglaBefore, 1938117, 1};
constexpr GregorianStyleRule kIndian{
    78, 1, {0, 30, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 30}, IndianBefore, 2435919, 1879};
constexpr GregorianStyleRule kSikh{
    1469, 12, {0, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 30, 30}, SikhBefore, 2451251, 531};
constexpr GregorianStyleRule kNewAfghan{
    622, 12, {0, 31, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 29}, NewAfghanBefore, 1948319, 1};

template <const GregorianStyleRule& R>
bool GregorianStyleLeap(CalendarEngine&, int y) {
  return IsGregorianLeap(y + R.leapShift);
}

template <const GregorianStyleRule& R>
int GregorianStyleMonthLength(CalendarEngine&, int y, int m) {
  if (m < 1 || m > 12) return 0;
  return R.lengths[m] + (m == R.leapMonth && IsGregorianLeap(y + R.leapShift));
}

// Day plus the lengths of the months before, as the months stand in the year.
template <const GregorianStyleRule& R>
int GregorianStyleDayOfYear(int d, int m, int y) {
  int doy = d;
  for (int i = 1; i < m && i <= 12; ++i) doy += R.lengths[i];
  if (m > R.leapMonth && IsGregorianLeap(y + R.leapShift)) ++doy;
  return doy;
}

template <const GregorianStyleRule& R>
JD GregorianStyleToJD(CalendarEngine&, int d, int m, int y) {
  return R.firstDayBefore(y) + GregorianStyleDayOfYear<R>(d, m, y);
}

template <const GregorianStyleRule& R>
CalDate JDToGregorianStyle(CalendarEngine&, JD jd) {
  int year = (jd - R.estimateEpoch) / 365 + R.estimateYear0;
  JD before = R.firstDayBefore(year);
  while (before + 1 > jd) before = R.firstDayBefore(--year);
  int dayOfYear = jd - before;
  const bool leap = IsGregorianLeap(year + R.leapShift);
  int month = 0, length = 0;
  while (dayOfYear > 0 && month < 12) {
    ++month;
    length = R.lengths[month] + (leap && month == R.leapMonth);
    dayOfYear -= length;
  }
  return CalDate{dayOfYear + length, month, year};
}

// ---------------------------------------------------------------------------
// Persian arithmetic and Afghan: the 2820-year cycle.

constexpr JD kPersianEpoch = JulianToJD(19, 3, 622);
constexpr int kCycleDays = 1029983;

int PersianMonthLength(int y, int m) {
  if (m >= 1 && m <= 6) return 31;
  if (m >= 7 && m <= 11) return 30;
  if (m == 12) return IsPersianArithmeticLeap(y) ? 30 : 29;
  return 0;
}

// ---------------------------------------------------------------------------
// Baha'i.

constexpr int kBahaiTableFirst = 172;
constexpr int kBahaiTableLast = 221;

int BahaiMonthLength(int y, int m) {
  if ((m >= 1 && m <= 18) || m == 20) return 19;
  if (m == 19) return IsBahaiLeap(y) ? 5 : 4;
  return 0;
}

int BahaiDayOfYear(int d, int m, int y) {
  int doy = d;
  for (int i = 1; i < m && i <= 20; ++i) doy += i == 19 ? (IsBahaiLeap(y) ? 5 : 4) : 19;
  return doy;
}

// ---------------------------------------------------------------------------
// Revised Julian.

constexpr JD kRevisedJulianJoin = GregorianToJD(31, 12, 2799);

int RevisedJulianMonthLength(int y, int m) {
  return GregorianMonthLength(m, IsRevisedJulianLeap(y));
}

CalDate JDToRevisedJulian(CalendarEngine& engine, JD jd) {
  if (jd <= kRevisedJulianJoin) return JDToGregorian(engine, jd);
  int year = (jd - kRevisedJulianJoin) / 365 + 2800;
  JD start = RevisedJulianToJD(1, 1, year);
  while (start > jd) start = RevisedJulianToJD(1, 1, --year);
  int dayOfYear = jd - start + 1;
  int month = 0, length = 0;
  while (dayOfYear > 0 && month < 12) {
    length = RevisedJulianMonthLength(year, ++month);
    dayOfYear -= length;
  }
  return CalDate{dayOfYear + length, month, year};
}

}  // namespace

// ---------------------------------------------------------------------------

JD PersianArithmeticToJD(int day, int month, int year) {
  int e = year - 474;
  int c = FloorMod(e, 2820);
  int y = c + 474;
  JD first = FloorDiv(e, 2820) * kCycleDays + (kPersianEpoch - 1) + (y - 1) * 365 +
             FloorDiv(682 * y - 110, 2816);
  return month <= 7 ? first + (month - 1) * 31 + day : first + (month - 1) * 30 + 6 + day;
}

bool IsPersianArithmeticLeap(int year) {
  int c = FloorMod(year - 474, 2820);
  return (682 * (c + 512)) % 2816 < 682;
}

CalDate JDToPersianArithmetic(JD jd) {
  int d = jd - PersianArithmeticToJD(1, 1, 475);
  int k = FloorDiv(d, kCycleDays);
  int r = FloorMod(d, kCycleDays);
  int n;
  if (r == kCycleDays - 1) {
    n = 2820;
  } else {
    int a = r / 366, b = r % 366;
    n = static_cast<int>((2134LL * a + 2816LL * b + 2815) / 1028522) + a + 1;
  }
  CalDate out;
  out.year = 2820 * k + 474 + n;
  int y = jd - PersianArithmeticToJD(1, 1, out.year) + 1;
  out.month = y <= 186 ? (y + 30) / 31 : (y - 6 + 29) / 30;
  out.day = jd - PersianArithmeticToJD(1, out.month, out.year) + 1;
  return out;
}

int NawRuzDay(int year) {
  if (year < kBahaiTableFirst || year > kBahaiTableLast) return 21;
  switch (year) {
    case 172:
    case 175:
    case 176:
    case 179:
    case 180:
    case 183:
    case 184:
    case 188:
    case 192:
    case 196:
    case 200:
    case 204:
    case 208:
    case 212:
      return 21;
    default:
      return 20;
  }
}

bool IsBahaiLeap(int year) {
  // Inside the table the year holds 366 days when the next Naw-Ruz comes a
  // day later in March than this one, or on the same day across a Gregorian
  // leap day (216 and 220 B.E.).
  if (year >= kBahaiTableFirst && year <= kBahaiTableLast)
    return IsGregorianLeap(year + 1844) + NawRuzDay(year + 1) - NawRuzDay(year) == 1;
  int g = year + 1844;
  return (FloorMod(year, 4) == 0 && g % 100 != 0) || g % 400 == 0;
}

JD BahaiToJD(int day, int month, int year) {
  int doy = BahaiDayOfYear(day, month, year);
  if (year >= kBahaiTableFirst && year <= kBahaiTableLast)
    return GregorianToJD(NawRuzDay(year), 3, year + 1843) + doy - 1;
  return (year - 1) * 365 + doy + 2394646 + (year + 1843) / 4 - 461 - (year + 1843) / 100 + 18 +
         (year + 1843) / 400 - 4;
}

BahaiCycle BahaiCycleOfYear(int year) {
  BahaiCycle c;
  c.kullIShay = year / 361 + 1;
  int r = year % 361;
  if (r == 0) --c.kullIShay;
  c.vahid = r / 19 + 1;
  c.yearOfVahid = year % 19;
  if (c.yearOfVahid == 0) {
    c.yearOfVahid = 19;
    if (--c.vahid == 0) c.vahid = 19;
  }
  return c;
}

std::string_view BahaiDayName(int day, int month) {
  if (day < 1 || day > 19) return "";
  return kBahaiMonths[day == 19 && month != 19 ? 20 : day];
}

bool IsRevisedJulianLeap(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 900 == 200 || year % 900 == 600;
}

JD RevisedJulianToJD(int day, int month, int year) {
  if (year >= 1923 && year <= 2799) return GregorianToJD(day, month, year);
  JD v = kRevisedJulianJoin + (year - 2800) * 365;
  if (year > 2800) v += (year - 1) / 4 - 700;
  for (int century = 2900; century <= year - 1; century += 100)
    if (!IsRevisedJulianLeap(century)) --v;
  int doy = day;
  for (int m = 1; m < month && m <= 12; ++m) doy += RevisedJulianMonthLength(year, m);
  return v + doy;
}

std::string FrenchMonthName(const Context& ctx, int month) {
  if (month < 1 || month > 13) return "";
  std::string_view name = kFrenchMonths[month];
  return ctx.settings.plainLetters ? PlainLetters(name) : std::string(name);
}

std::string FrenchDayName(const Context& ctx, int day, int month) {
  std::string_view name;
  if (month == 13 && day >= 1 && day <= 6)
    name = kFrenchComplementaryDays[day];
  else if (month >= 1 && month <= 12 && day >= 1 && day <= 30)
    name = kFrenchDecadeDays[(day - 1) % 10 + 1];
  return ctx.settings.plainLetters ? PlainLetters(name) : std::string(name);
}

std::string_view ParsiDayName(int day, int month) {
  if (month == 13) return day >= 1 && day <= 6 ? kParsiGathaDays[day] : "";
  if (month >= 1 && month <= 12 && day >= 1 && day <= 30) return kParsiDayNames[day];
  return "";
}

void RegisterSolarFixedRules(RulesTable& table) {
  auto set = [&table](CalType type, CalendarRules rules) { table[static_cast<int>(type)] = rules; };

  set(C::Arm, {ThirtyDayToJD<kArmenian>, JDToThirtyDay<kArmenian>, nullptr,
               ThirtyDayMonthLength<kArmenian>});
  set(C::Egy, {ThirtyDayToJD<kEgyptian>, JDToThirtyDay<kEgyptian>, nullptr,
               ThirtyDayMonthLength<kEgyptian>});
  set(C::ParShe, {ThirtyDayToJD<kShenshai>, JDToThirtyDay<kShenshai>, nullptr,
                  ThirtyDayMonthLength<kShenshai>});
  set(C::PerQad,
      {ThirtyDayToJD<kKadmi>, JDToThirtyDay<kKadmi>, nullptr, ThirtyDayMonthLength<kKadmi>});
  set(C::Fas, {ThirtyDayToJD<kFasli>, JDToThirtyDay<kFasli>, ThirtyDayLeap<kFasli>,
               ThirtyDayMonthLength<kFasli>});
  set(C::Fre, {ThirtyDayToJD<kFrench>, JDToThirtyDay<kFrench>, ThirtyDayLeap<kFrench>,
               ThirtyDayMonthLength<kFrench>});
  set(C::Cop, {ThirtyDayToJD<kCoptic>, JDToCopticLike<kCoptic, kCopticEpoch>,
               ThirtyDayLeap<kCoptic>, ThirtyDayMonthLength<kCoptic>});
  set(C::Eth, {ThirtyDayToJD<kEthiopic>, JDToCopticLike<kEthiopic, kEthiopicEpoch>,
               ThirtyDayLeap<kEthiopic>, ThirtyDayMonthLength<kEthiopic>});

  set(C::Ban, {GregorianStyleToJD<kBangla>, JDToGregorianStyle<kBangla>,
               GregorianStyleLeap<kBangla>, GregorianStyleMonthLength<kBangla>});
  set(C::Ind, {GregorianStyleToJD<kIndian>, JDToGregorianStyle<kIndian>,
               GregorianStyleLeap<kIndian>, GregorianStyleMonthLength<kIndian>});
  set(C::Sikh, {GregorianStyleToJD<kSikh>, JDToGregorianStyle<kSikh>, GregorianStyleLeap<kSikh>,
                GregorianStyleMonthLength<kSikh>});
  set(C::NewAfg, {GregorianStyleToJD<kNewAfghan>, JDToGregorianStyle<kNewAfghan>,
                  GregorianStyleLeap<kNewAfghan>, GregorianStyleMonthLength<kNewAfghan>});

  const CalendarRules persian{
      [](CalendarEngine&, int d, int m, int y) { return PersianArithmeticToJD(d, m, y); },
      [](CalendarEngine&, JD jd) { return JDToPersianArithmetic(jd); },
      [](CalendarEngine&, int y) { return IsPersianArithmeticLeap(y); },
      [](CalendarEngine&, int y, int m) { return PersianMonthLength(y, m); }};
  set(C::Per, persian);
  set(C::Afg, persian);

  set(C::Bah, {[](CalendarEngine&, int d, int m, int y) { return BahaiToJD(d, m, y); },
               [](CalendarEngine&, JD jd) {
                 int year = (jd - 2394646) / 365 + 1;
                 JD start = BahaiToJD(1, 1, year);
                 while (start > jd) start = BahaiToJD(1, 1, --year);
                 int dayOfYear = jd - start + 1;
                 const bool leap = IsBahaiLeap(year);
                 // A 366th day in a common year is New Year's Day of the next.
                 if (dayOfYear == 366 && !leap) return CalDate{1, 1, year + 1};
                 int month = 0, length = 0;
                 while (dayOfYear > 0 && month < 20) {
                   ++month;
                   length = month == 19 ? (leap ? 5 : 4) : 19;
                   dayOfYear -= length;
                 }
                 return CalDate{dayOfYear + length, month, year};
               },
               [](CalendarEngine&, int y) { return IsBahaiLeap(y); },
               [](CalendarEngine&, int y, int m) { return BahaiMonthLength(y, m); }});

  set(C::RevJul, {[](CalendarEngine&, int d, int m, int y) { return RevisedJulianToJD(d, m, y); },
                  JDToRevisedJulian, [](CalendarEngine&, int y) { return IsRevisedJulianLeap(y); },
                  [](CalendarEngine&, int y, int m) { return RevisedJulianMonthLength(y, m); }});
}

}  // namespace mc
