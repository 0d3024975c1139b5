#include "calendars/hindu.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "calendars/families.h"

namespace mc::hindu {

namespace {

// floor() for the magnitudes met here (far inside 2^62), without a call into
// the maths library: the calendars spend their time in these.
inline double Floor(double x) {
  double t = static_cast<double>(static_cast<long long>(x));
  return t > x ? t - 1.0 : t;
}
// Real-valued modulus: the result has the sign of m.
inline double Mod(double x, double m) {
  return x - m * Floor(x / m);
}
inline double Frac(double x) {
  return x - Floor(x);
}
// Whole-number modulus, 0 .. m - 1 also for days before the Kali Yuga.
inline int Mod(long long x, int m) {
  return static_cast<int>(((x % m) + m) % m);
}

// The traditional table of sines for 0, 225, ..., 5400 minutes, radius 3438:
// round(3438 sin(entry * 3 deg 45 min) + 0.215 sgn(exact) sgn(|exact| - 1716)).
constexpr std::array<int, 25> kSineTable = {0,    225,  449,  671,  890,  1105, 1315, 1520, 1719,
                                            1910, 2093, 2267, 2431, 2585, 2728, 2859, 2978, 3084,
                                            3177, 3256, 3321, 3372, 3409, 3431, 3438};

// Time the signs take to rise at the equator, per sign of tropical longitude.
constexpr std::array<double, 6> kRisingSign = {1670, 1795, 1935, 1935, 1795, 1670};

constexpr double kSunSize = 14.0 / 360.0;   // epicycle of the sun
constexpr double kMoonSize = 32.0 / 360.0;  // epicycle of the moon
constexpr double kChange = 1.0 / 42.0;      // contraction of the epicycle
// Mahayuga of 4320000 years in civil days over the sidereal days, per circle.
constexpr double kSiderealToCivil = 1577917828.0 / 1582237828.0 / 21600.0;
// How closely a new moon is pinned down, in days (a hundredth of a second).
constexpr double kConjunctionTolerance = 1e-7;
// The same in minutes of elongation (the moon gains some 700 minutes a day).
constexpr double kPhaseTolerance = 1e-4;
// The moon's mean gain on the sun, minutes a day.
constexpr double kMeanElongationRate = 21600.0 / 29.530587946;

// The whole circle, 96 entries, by the symmetries of the sine.
constexpr std::array<int, 96> kCircleSine = [] {
  std::array<int, 96> t{};
  for (int e = 0; e < 96; ++e)
    t[e] = e <= 24   ? kSineTable[e]
           : e <= 48 ? kSineTable[48 - e]
           : e <= 72 ? -kSineTable[e - 48]
                     : -kSineTable[96 - e];
  return t;
}();
}  // namespace

int SineTable(int entry) {
  return kCircleSine[((entry % 96) + 96) % 96];
}

double HinduSine(double theta) {
  double e = theta / 225.0;
  double lower = Floor(e);
  double f = e - lower;
  int below = static_cast<int>(lower);
  int above = f > 0 ? below + 1 : below;  // the ceiling of e
  return f * SineTable(above) + (1.0 - f) * SineTable(below);
}

double HinduArcsin(double amplitude) {
  if (amplitude < 0) return -HinduArcsin(-amplitude);
  // The first entry at or above the amplitude, at most the last.
  auto it = std::lower_bound(kSineTable.begin(), kSineTable.end() - 1, amplitude);
  int p = static_cast<int>(it - kSineTable.begin());
  double below = SineTable(p - 1);
  return 225.0 * (p - 1 + (amplitude - below) / (SineTable(p) - below));
}

double MeanPosition(double t, double period) {
  return 21600.0 * Frac(t / period);
}

double TruePosition(double t, double period, double size, double anomalistic, double change) {
  double mean = MeanPosition(t, period);
  double offset = HinduSine(MeanPosition(t + kCreationOffset, anomalistic));
  double contraction = std::abs(offset) * change * size / 3438.0;
  double equation = HinduArcsin((size - contraction) * offset);
  return Mod(mean - equation, 21600.0);
}

double SolarLongitude(double t) {
  return TruePosition(t, kSiderealYear, kSunSize, kAnomalisticYear, kChange);
}

double LunarLongitude(double t) {
  return TruePosition(t, kSiderealMonth, kMoonSize, kAnomalisticMonth, kChange);
}

double LunarPhase(double t) {
  return Mod(LunarLongitude(t) - SolarLongitude(t), 21600.0);
}

int Zodiac(double t) {
  return static_cast<int>(Floor(SolarLongitude(t) / 1800.0)) + 1;
}

namespace {
int LunarDayOfPhase(double phase) {
  return static_cast<int>(Floor(phase / 720.0)) + 1;
}

int CalendarYearOf(double t, double solarLongitude) {
  double x = t / kSiderealYear;
  double mean = 21600.0 * Frac(x);
  int y = static_cast<int>(Floor(x));
  if (solarLongitude > 20000 && mean < 1000) return y - 1;
  if (mean > 20000 && solarLongitude < 1000) return y + 1;
  return y;
}

// The sun's longitude from the equinox: the equinox swings 27 degrees either
// way over 7200 years, and stood at the start of Mesha when the Kali Yuga
// began; counted by whole days.
double TropicalOf(double t, double solarLongitude) {
  double d = Floor(t);
  double p = std::abs(Mod((3.888e6 / 1577917828.0) * d + 1620.0, 6480.0) - 3240.0) - 1620.0;
  return Mod(solarLongitude - p, 21600.0);
}

double RisingSignOf(double tropical) {
  int i = static_cast<int>(Floor(tropical / 1800.0));
  return kRisingSign[static_cast<std::size_t>(((i % 6) + 6) % 6)];
}

double AscensionalDifferenceOf(double tropical, double latitude) {
  double sd = (1397.0 / 3438.0) * HinduSine(tropical);
  double r = HinduSine(5400.0 - HinduArcsin(sd));
  double tan = HinduSine(latitude) / HinduSine(5400.0 + latitude);
  return HinduArcsin(-3438.0 * sd * tan / r);
}
}  // namespace

int LunarDay(double t) {
  return LunarDayOfPhase(LunarPhase(t));
}

int CalendarYear(double t) {
  return CalendarYearOf(t, SolarLongitude(t));
}

double DailyMotion(double t) {
  double m = 21600.0 / kSiderealYear;
  double a = MeanPosition(t + kCreationOffset, kAnomalisticYear);
  double offset = HinduSine(a);
  double epi = kSunSize - std::abs(offset) / 3713040.0;
  int n = static_cast<int>(Floor(a / 225.0));
  double factor = -epi / 225.0 * (SineTable(n + 1) - SineTable(n));
  return (factor + 1.0) * m;
}

double TropicalLongitude(double t) {
  return TropicalOf(t, SolarLongitude(t));
}

double RisingSign(double t) {
  return RisingSignOf(TropicalLongitude(t));
}

double AscensionalDifference(double t, double latitude) {
  return AscensionalDifferenceOf(TropicalLongitude(t), latitude);
}

double SolarSiderealDifference(double t) {
  return DailyMotion(t) * RisingSign(t) / 1800.0;
}

double EquationOfTime(double t) {
  double offset = HinduSine(MeanPosition(t + kCreationOffset, kAnomalisticYear));
  double e = (std::abs(offset) / 3713040.0 - kSunSize) * offset;
  return DailyMotion(t) * e * (kSiderealYear / 21600.0) / 21600.0;
}

double Sunrise(double t) {
  // The parts share the sun's longitude and daily motion; each is taken once.
  double tropical = TropicalLongitude(t);
  double motion = DailyMotion(t);
  double offset = HinduSine(MeanPosition(t + kCreationOffset, kAnomalisticYear));
  double e = (std::abs(offset) / 3713040.0 - kSunSize) * offset;
  double equationOfTime = motion * e * (kSiderealYear / 21600.0) / 21600.0;
  double solarSidereal = motion * RisingSignOf(tropical) / 1800.0;
  return t + 0.25 + equationOfTime +
         kSiderealToCivil *
             (AscensionalDifferenceOf(tropical, kUjjainLatitude) + solarSidereal / 4.0);
}

namespace {

// Elongation counted from the nearest conjunction: negative before it.
double SignedPhase(double t) {
  double phase = LunarPhase(t);
  return phase > 10800.0 ? phase - 21600.0 : phase;
}

// Narrows a bracket around a conjunction (elongation fLo < 0 at lo, fHi >= 0
// at hi) until the moment just after it is known to a hundredth of a second. The
// elongation is smooth and rising there, so false position (Illinois variant)
// finds it in a few steps; a step that would leave the bracket halves it.
double ConjunctionIn(double lo, double fLo, double hi, double fHi) {
  double phaseAtHi = fHi;
  int side = 0;  // which end moved last: -1 lo, +1 hi
  for (int i = 0; i < 100 && hi - lo > kConjunctionTolerance && phaseAtHi > kPhaseTolerance; ++i) {
    double x = hi - fHi * (hi - lo) / (fHi - fLo);
    if (!(x > lo && x < hi)) x = (lo + hi) / 2;
    double g = SignedPhase(x);
    if (g >= 0) {
      hi = x;
      fHi = phaseAtHi = g;
      if (side == 1) fLo /= 2;
      side = 1;
    } else {
      lo = x;
      fLo = g;
      if (side == -1) fHi /= 2;
      side = -1;
    }
  }
  return hi;
}

}  // namespace

double NewMoonBefore(double t) {
  // The conjunction is pinned down to a hundredth of a second, and the answer
  // is the moment just after it (its phase is far below 0.1 minute). Stopping
  // at the first moment within 0.1 minute would leave the answer up to 12
  // seconds late, depending on where the search started; when the sun changes
  // sign in those seconds, days of one month would disagree on its name.
  double phase = LunarPhase(t);
  // Back from t at the mean rate, then one secant step: close to the
  // conjunction, usually within a few minutes of time.
  double guess = t - phase / kMeanElongationRate;
  double g = SignedPhase(guess);
  if (std::abs(g) < 2000.0 && guess - t != 0 && g != phase) {
    double x = guess - g * (guess - t) / (g - phase);
    if (std::abs(x - guess) < 2.0) {
      double gx = SignedPhase(x);
      // Bracket the conjunction with the nearest points on either side.
      double lo = x, fLo = gx, hi = x, fHi = gx;
      if (gx >= 0) {
        if (g < 0 && guess < x) {
          lo = guess;
          fLo = g;
        } else {
          for (double step = 0.01; fLo >= 0 && step < 2; step *= 4) {
            lo = x - step;
            fLo = SignedPhase(lo);
          }
        }
      } else {
        if (g >= 0 && guess > x) {
          hi = guess;
          fHi = g;
        } else {
          for (double step = 0.01; fHi < 0 && step < 2; step *= 4) {
            hi = x + step;
            fHi = SignedPhase(hi);
          }
        }
      }
      if (fLo < 0 && fHi >= 0 && hi - lo < 2) return ConjunctionIn(lo, fLo, hi, fHi);
    }
  }
  // The guesses went astray: step back by days from a little after the
  // conjunction until the phase falls between lo and hi, as it rises again
  // only across a new moon.
  int day = LunarDayOfPhase(phase);
  double tau = day > 2 ? t - day + 3 : t;
  double hi = tau;
  double lo = tau - 1;
  double phaseHi = LunarPhase(hi);
  double phaseLo = LunarPhase(lo);
  for (int n = 0; n < 40 && phaseLo < phaseHi; ++n) {
    hi = lo;
    phaseHi = phaseLo;
    lo -= 1;
    phaseLo = LunarPhase(lo);
  }
  return ConjunctionIn(lo, phaseLo - 21600.0, hi, phaseHi);
}

// --- Solar calendar ---

SolarDate SolarDateFromRD(int rd) {
  double k1 = static_cast<double>(rd) + 1 + kHinduEpoch;
  double c = Sunrise(k1);
  double s = SolarLongitude(c);
  SolarDate d;
  d.month = static_cast<int>(Floor(s / 1800.0)) + 1;
  d.year = CalendarYearOf(c, s) - kSolarEra;
  // Back to a few days before the sun entered the sign, then forward to the
  // first day whose next sunrise sees the sun in it.
  double approx = k1 - 3 - Floor(Mod(s, 1800.0) / 60.0);
  double i = std::ceil(approx);
  for (int n = 0; n < 64 && Zodiac(Sunrise(i)) != d.month; ++n) i += 1;
  d.day = static_cast<int>(k1 - i) + 1;
  return d;
}

namespace {
bool SolarBefore(const SolarDate& a, int month, int day, int year) {
  if (a.year != year) return a.year < year;
  if (a.month != month) return a.month < month;
  return a.day < day;
}
}  // namespace

int RDFromSolarDate(int month, int day, int year) {
  if (month < 1 || month > 12 || day < 1 || day > 32) return -1;
  double x = Floor((year + kSolarEra + (month - 1) / 12.0) * kSiderealYear - kHinduEpoch + day - 9);
  int rd = static_cast<int>(x);
  SolarDate d = SolarDateFromRD(rd);
  for (int n = 0; n < 64 && SolarBefore(d, month, day, year); ++n) d = SolarDateFromRD(++rd);
  return d == SolarDate{month, day, year} ? rd : -1;
}

// --- Lunisolar calendar ---

namespace {

// Two months, Bhadrapada 3918 and Kartika 6217, begin with a new moon seconds
// before the sun enters the next sign. Taken less closely than NewMoonBefore
// takes it, that new moon puts some of their days into the month of the next
// sign; these days are held to their month, and the dates below to their
// days, whatever the search says.
constexpr std::array<int, 2> kMonthSixDays = {1410138, 1410142};
constexpr std::array<int, 13> kMonthEightDays = {2249918, 2249920, 2249921, 2249926, 2249928,
                                                 2249930, 2249931, 2249933, 2249936, 2249938,
                                                 2249941, 2249943, 2249945};

// Day of month and its RD.
struct KnownDay {
  int day;
  int rd;
};
constexpr std::array<KnownDay, 3> kYear3918Month6 = {{{15, 1410140}, {28, 1410154}, {19, 1410144}}};
constexpr std::array<KnownDay, 16> kYear6217Month8 = {{{3, 2249919},
                                                       {6, 2249922},
                                                       {7, 2249923},
                                                       {8, 2249924},
                                                       {15, 2249932},
                                                       {17, 2249934},
                                                       {18, 2249935},
                                                       {20, 2249937},
                                                       {22, 2249938},
                                                       {23, 2249939},
                                                       {25, 2249941},
                                                       {26, 2249942},
                                                       {27, 2249943},
                                                       {28, 2249944},
                                                       {29, 2249945},
                                                       {30, 2249946}}};

// The step from the mean calendar's guess to the next or last month.
constexpr double kMonthStep = 29.053058337963403;

}  // namespace

LunarDate LunarDateFromRD(int rd) {
  double k = static_cast<double>(rd) + kHinduEpoch;
  double c = Sunrise(k);
  LunarDate d;
  d.day = LunarDay(c);
  d.leapDay = d.day == LunarDay(Sunrise(k - 1));
  double last = NewMoonBefore(c);
  double next = NewMoonBefore(Floor(last) + 35);
  int z = Zodiac(last);
  d.leapMonth = z == Zodiac(next);
  d.month = (z + 1) % 12;
  if (d.month == 0) d.month = 12;
  d.year = CalendarYear(next) - kLunarEra;
  if (d.month == 1 && d.leapMonth) d.year += 1;
  if (std::find(kMonthSixDays.begin(), kMonthSixDays.end(), rd) != kMonthSixDays.end()) {
    d.month = 6;
    d.leapMonth = false;
  }
  if (std::find(kMonthEightDays.begin(), kMonthEightDays.end(), rd) != kMonthEightDays.end())
    d.month = 8;
  return d;
}

bool LunarBefore(const LunarDate& a, const LunarDate& b) {
  if (a.year != b.year) return a.year < b.year;
  if (a.month != b.month) return a.month < b.month;
  if (a.leapMonth != b.leapMonth) return a.leapMonth;
  if (a.day != b.day) return a.day < b.day;
  return !a.leapDay && b.leapDay;
}

int RDFromLunarDate(int month, bool leapMonth, int day, bool leapDay, int year) {
  const LunarDate target{month, leapMonth, day, leapDay, year};
  // The days looked at, kept for this search: the last tries repeat some.
  std::array<std::pair<int, LunarDate>, 8> seen;
  std::size_t seenCount = 0;
  auto dateOf = [&](int rd) {
    for (std::size_t i = 0; i < seenCount; ++i)
      if (seen[i].first == rd) return seen[i].second;
    LunarDate d = LunarDateFromRD(rd);
    if (seenCount < seen.size()) seen[seenCount++] = {rd, d};
    return d;
  };
  auto dayOf = [](double rd) { return static_cast<int>(Floor(rd)); };
  // The mean calendar's day, moved by a month when it is more than half a
  // month out.
  double a = OldLunarRD(month, leapMonth, day, year + kLunarEra);
  if (LunarBefore(dateOf(dayOf(a + 15)), target))
    a += kMonthStep;
  else if (LunarBefore(target, dateOf(dayOf(a - 15))))
    a -= kMonthStep;
  // Halve four days either side down to two. Dates rise with the days, so a
  // day found with the date on the way is the one the last tries would find.
  double lo = a - 4;
  double hi = a + 4;
  double mid = (hi + lo) / 2;
  while (hi - lo >= 2) {
    LunarDate d = dateOf(dayOf(mid));
    if (d == target) return dayOf(mid);
    if (LunarBefore(d, target))
      lo = mid;
    else
      hi = mid;
    mid = (hi + lo) / 2;
  }
  int x = dayOf(mid);
  for (int candidate : {x, x + 1, x - 1})
    if (dateOf(candidate) == target) return candidate;
  if (!leapMonth && !leapDay) {
    if (year == 3918 && month == 6)
      for (const KnownDay& k : kYear3918Month6)
        if (k.day == day) return k.rd;
    if (year == 6217 && month == 8)
      for (const KnownDay& k : kYear6217Month8)
        if (k.day == day) return k.rd;
  }
  return -1;
}

// --- Old calendars ---

OldSolarDate OldSolarDateFromRD(int rd) {
  double s = static_cast<double>(rd) + kHinduEpoch + 0.25;
  OldSolarDate d;
  d.year = static_cast<int>(Floor(s / kAryaSolarYear));
  d.month = Mod(static_cast<long long>(Floor(s / kAryaSolarMonth)), 12) + 1;
  d.day = static_cast<int>(Floor(Mod(s, kAryaSolarMonth))) + 1;
  return d;
}

OldLunarDate OldLunarDateFromRD(int rd) {
  double s = static_cast<double>(rd) + kHinduEpoch + 0.25;
  double n = s - Mod(s, kAryaLunarMonth);
  double intoSolarMonth = Mod(n, kAryaSolarMonth);
  OldLunarDate d;
  d.leapMonth = (kAryaSolarMonth - kAryaLunarMonth) >= intoSolarMonth && intoSolarMonth > 0;
  d.month = Mod(static_cast<long long>(std::ceil(n / kAryaSolarMonth - 0.000001)), 12) + 1;
  d.day = Mod(static_cast<long long>(Floor(s / kAryaLunarDay + 0.000001)), 30) + 1;
  d.year = static_cast<int>(std::ceil((n + kAryaSolarMonth) / kAryaSolarYear - 0.000001)) - 1;
  return d;
}

int OldLunarRD(int month, bool leapMonth, int day, int year) {
  double mina = (12.0 * year - 1) * kAryaSolarMonth;
  double newYear = kAryaLunarMonth * (Floor(mina / kAryaLunarMonth + 0.00001) + 1);
  double k = std::ceil((newYear - mina) / (kAryaSolarMonth - kAryaLunarMonth) - 0.00001);
  int m = !leapMonth && k <= month ? month : month - 1;
  return static_cast<int>(Floor(newYear + m * kAryaLunarMonth - kHinduEpoch +
                                (day - 1) * kAryaLunarDay + 0.75 - 0.000001));
}

// --- Calendar codes ---

int MonthShift(CalType type) {
  switch (type) {
    case CalType::HinLun1:
      return 3;
    case CalType::HinLun2:
      return 7;
    default:
      return 0;
  }
}

namespace {

// A month of a reckoning as the Chaitra reckoning numbers it; the months
// after Phalguna belong to the next year there.
int ChaitraMonth(CalType type, int month, int& year) {
  int chaitra = month + MonthShift(type);
  if (chaitra > 12) {
    chaitra -= 12;
    year += 1;
  }
  return chaitra;
}

JD LunarToJD(int day, int month, int year) {
  LeapValue d = SplitLeap(day);
  LeapValue m = SplitLeap(month);
  return RDFromLunarDate(m.value, m.leap, d.value, d.leap, year) + kRDToJD;
}

// JD 3971348 is answered as its neighbours' month, whatever the computation says.
constexpr JD kFixedAnswerJD = 3971348;

CalDate JDToLunar(JD jd) {
  if (jd == kFixedAnswerJD) return CalDate{7, 8, 6217};
  LunarDate d = LunarDateFromRD(jd - kRDToJD);
  return CalDate{JoinLeap(d.day, d.leapDay), JoinLeap(d.month, d.leapMonth), d.year};
}

// The Ashadha and Kartika reckonings: the same months, the year beginning later.
JD ShiftedToJD(CalType type, int day, int month, int year) {
  LeapValue m = SplitLeap(month);
  const int chaitra = ChaitraMonth(type, m.value, year);
  return LunarToJD(day, JoinLeap(chaitra, m.leap), year);
}

CalDate JDToShifted(CalType type, JD jd) {
  CalDate d = JDToLunar(jd);
  HinduMonthYear my = ConvertHinduMonth(CalType::HinLun, d.month, d.year, type);
  return CalDate{d.day, my.month, my.year};
}

bool ValidLunarMonthRD(int month, bool leapMonth, int year) {
  return RDFromLunarDate(month, leapMonth, 1, false, year) >= 1 ||
         RDFromLunarDate(month, leapMonth, 2, false, year) >= 1;
}

// The RD of the first day of a month: day 1, or day 2 when day 1 was skipped.
int FirstDayRD(int month, bool leapMonth, int year) {
  int rd = RDFromLunarDate(month, leapMonth, 1, false, year);
  return rd >= 0 ? rd : RDFromLunarDate(month, leapMonth, 2, false, year);
}

// The month before a month, read off the day before its first day.
bool PreviousLunarMonth(int month, bool leapMonth, int year, LunarDate& out) {
  int first = FirstDayRD(month, leapMonth, year);
  if (first < 0) return false;
  out = LunarDateFromRD(first - 1);
  return true;
}

// The month after a month, read off the day after its last day (30, else 29,
// the repeated one when a day is repeated).
LunarDate NextLunarMonth(int rd, const LunarDate& date) {
  int last = -1;
  for (int day = 30; day >= 29 && last < 0; --day)
    last = std::max(RDFromLunarDate(date.month, date.leapMonth, day, true, date.year),
                    RDFromLunarDate(date.month, date.leapMonth, day, false, date.year));
  if (last >= 0) return LunarDateFromRD(last + 1);
  // Not found by date (a month the search cannot reach): walk day by day.
  for (int n = 1; n <= 32; ++n) {
    LunarDate d = LunarDateFromRD(rd + n);
    if (d.month != date.month || d.leapMonth != date.leapMonth) return d;
  }
  return date;
}

JD RajasthanToJD(int day, int month, int year) {
  LeapValue d = SplitLeap(day);
  LeapValue m = SplitLeap(month);
  if (d.value >= 16) return RDFromLunarDate(m.value, m.leap, d.value - 15, d.leap, year) + kRDToJD;
  LunarDate previous;
  if (!PreviousLunarMonth(m.value, m.leap, year, previous)) return -1 + kRDToJD;
  return RDFromLunarDate(previous.month, previous.leapMonth, d.value + 15, d.leap, previous.year) +
         kRDToJD;
}

CalDate JDToRajasthan(JD jd) {
  if (jd == kFixedAnswerJD) return CalDate{22, 8, 6217};
  int rd = jd - kRDToJD;
  LunarDate d = LunarDateFromRD(rd);
  if (d.day <= 15)
    return CalDate{JoinLeap(d.day + 15, d.leapDay), JoinLeap(d.month, d.leapMonth), d.year};
  LunarDate next = NextLunarMonth(rd, d);
  return CalDate{JoinLeap(d.day - 15, d.leapDay), JoinLeap(next.month, next.leapMonth), next.year};
}

// A year with a leap month: the Chaitra months from `first` on in the year,
// and those before it in the next.
bool HasLeapMonth(int year, int first) {
  for (int m = first; m <= 12; ++m)
    if (ValidLunarMonthRD(m, true, year)) return true;
  for (int m = 1; m < first; ++m)
    if (ValidLunarMonthRD(m, true, year + 1)) return true;
  return false;
}

int SolarMonthLength(int year, int month) {
  if (month < 1 || month > 12) return 0;
  // Solar days run on without gaps: count the days after the 29th that still
  // belong to the month.
  int rd = RDFromSolarDate(month, 29, year);
  if (rd < 0) return 0;
  int length = 29;
  while (length < 32 && SolarDateFromRD(rd + 1) == SolarDate{month, length + 1, year}) {
    ++rd;
    ++length;
  }
  return length;
}

}  // namespace

HinduMonthYear ConvertHinduMonth(CalType from, int month, int year, CalType to) {
  LeapValue m = SplitLeap(month);
  // To the Chaitra reckoning, then to the wanted one.
  int value = ChaitraMonth(from, m.value, year) - MonthShift(to);
  if (value < 1) {
    value += 12;
    year -= 1;
  }
  return HinduMonthYear{JoinLeap(value, m.leap), year};
}

bool ValidHinduMonth(CalendarEngine& engine, CalType type, int month, int year) {
  return engine.DateToJD(type, 1, month, year) >= kRDToJD + 1 ||
         engine.DateToJD(type, 2, month, year) >= kRDToJD + 1;
}

}  // namespace mc::hindu

namespace mc {

void RegisterHinduRules(RulesTable& table) {
  using namespace hindu;
  table[static_cast<int>(CalType::HinSol)] = CalendarRules{
      [](CalendarEngine&, int d, int m, int y) { return RDFromSolarDate(m, d, y) + kRDToJD; },
      [](CalendarEngine&, JD jd) {
        SolarDate s = SolarDateFromRD(jd - kRDToJD);
        return CalDate{s.day, s.month, s.year};
      },
      nullptr,  // no leap years
      [](CalendarEngine&, int y, int m) { return SolarMonthLength(y, m); }};
  table[static_cast<int>(CalType::HinLun)] =
      CalendarRules{[](CalendarEngine&, int d, int m, int y) { return LunarToJD(d, m, y); },
                    [](CalendarEngine&, JD jd) { return JDToLunar(jd); },
                    [](CalendarEngine&, int y) { return HasLeapMonth(y, 1); },
                    nullptr};  // month lengths come from trials of days 29 and 30
  table[static_cast<int>(CalType::HinLun1)] = CalendarRules{
      [](CalendarEngine&, int d, int m, int y) { return ShiftedToJD(CalType::HinLun1, d, m, y); },
      [](CalendarEngine&, JD jd) { return JDToShifted(CalType::HinLun1, jd); },
      [](CalendarEngine&, int y) { return HasLeapMonth(y, 4); }, nullptr};
  table[static_cast<int>(CalType::HinLun2)] = CalendarRules{
      [](CalendarEngine&, int d, int m, int y) { return ShiftedToJD(CalType::HinLun2, d, m, y); },
      [](CalendarEngine&, JD jd) { return JDToShifted(CalType::HinLun2, jd); },
      [](CalendarEngine&, int y) { return HasLeapMonth(y, 8); }, nullptr};
  table[static_cast<int>(CalType::HinLun3)] =
      CalendarRules{[](CalendarEngine&, int d, int m, int y) { return RajasthanToJD(d, m, y); },
                    [](CalendarEngine&, JD jd) { return JDToRajasthan(jd); }, nullptr, nullptr};
}

}  // namespace mc
