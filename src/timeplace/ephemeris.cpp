#include "timeplace/ephemeris.h"

#include <cmath>
#include <cstdio>

#include "calendars/gregorian.h"

namespace mc {

namespace {

constexpr double kDegToRad = 0.017453292519943278;

double SinDeg(double degrees) {
  return std::sin(degrees * kDegToRad);
}
double CosDeg(double degrees) {
  return std::cos(degrees * kDegToRad);
}

// The periodic terms of one phase: coefficient, power of E, and multiples of
// M, M' and F; the argument of the one term in Omega is marked by omega.
struct PhaseTerm {
  double coefficient;
  int ePower;
  int m, mPrime, f;
  bool omega = false;
};

constexpr PhaseTerm kNewMoonTerms[] = {
    {-0.4072, 0, 0, 1, 0},  {0.17241, 1, 1, 0, 0},    {0.01608, 0, 0, 2, 0},
    {0.01039, 0, 0, 0, 2},  {0.00739, 1, -1, 1, 0},   {-0.00514, 1, 1, 1, 0},
    {0.00208, 2, 2, 0, 0},  {-0.00111, 0, 0, 1, -2},  {-0.00057, 0, 0, 1, 2},
    {0.00056, 1, 1, 2, 0},  {-0.00042, 0, 0, 3, 0},   {0.00042, 1, 1, 0, 2},
    {0.00038, 1, 1, 0, -2}, {-0.00024, 1, -1, 2, 0},  {-0.00017, 0, 0, 0, 0, true},
    {-0.00007, 0, 2, 1, 0}, {0.00004, 0, 0, 2, -2},   {0.00004, 0, 3, 0, 0},
    {0.00003, 0, 1, 1, -2}, {0.00003, 0, 0, 2, 2},    {-0.00003, 0, 1, 1, 2},
    {0.00003, 0, -1, 1, 2}, {-0.00002, 0, -1, 1, -2}, {-0.00002, 0, 1, 3, 0},
    {0.00002, 0, 0, 4, 0},
};

constexpr PhaseTerm kFullMoonTerms[] = {
    {-0.40614, 0, 0, 1, 0}, {0.17302, 1, 1, 0, 0},    {0.01614, 0, 0, 2, 0},
    {0.01043, 0, 0, 0, 2},  {0.00734, 1, -1, 1, 0},   {-0.00515, 1, 1, 1, 0},
    {0.00209, 2, 2, 0, 0},  {-0.00111, 0, 0, 1, -2},  {-0.00057, 0, 0, 1, 2},
    {0.00056, 1, 1, 2, 0},  {-0.00042, 0, 0, 3, 0},   {0.00042, 1, 1, 0, 2},
    {0.00038, 1, 1, 0, -2}, {-0.00024, 1, -1, 2, 0},  {-0.00017, 0, 0, 0, 0, true},
    {-0.00007, 0, 2, 1, 0}, {0.00004, 0, 0, 2, -2},   {0.00004, 0, 3, 0, 0},
    {0.00003, 0, 1, 1, -2}, {0.00003, 0, 0, 2, 2},    {-0.00003, 0, 1, 1, 2},
    {0.00003, 0, -1, 1, 2}, {-0.00002, 0, -1, 1, -2}, {-0.00002, 0, 1, 3, 0},
    {0.00002, 0, 0, 4, 0},
};

constexpr PhaseTerm kQuarterTerms[] = {
    {-0.62801, 0, 0, 1, 0},       {0.17172, 1, 1, 0, 0},    {-0.01183, 1, 1, 1, 0},
    {0.00862, 0, 0, 2, 0},        {0.00804, 0, 0, 0, 2},    {0.00454, 1, -1, 1, 0},
    {0.00204, 2, 2, 0, 0},        {-0.0018, 0, 0, 1, -2},   {-0.0007, 0, 0, 1, 2},
    {-0.0004, 0, 0, 3, 0},        {-0.00034, 1, -1, 2, 0},  {0.00032, 1, 1, 0, 2},
    {0.00032, 1, 1, 0, -2},       {-0.00028, 2, 2, 1, 0},   {0.00027, 1, 1, 2, 0},
    {-0.00017, 0, 0, 0, 0, true}, {-0.00005, 0, -1, 1, -2}, {0.00004, 0, 0, 2, 2},
    {-0.00004, 0, 1, 1, 2},       {0.00004, 0, -2, 1, 0},   {0.00003, 0, 1, 1, -2},
    {0.00003, 0, 3, 0, 0},        {0.00002, 0, 0, 2, -2},   {0.00002, 0, -1, 1, 2},
    {-0.00002, 0, 1, 3, 0},
};

// The fourteen planetary arguments: constant and rate per lunation, with the
// coefficient of each sine. The first also has a term in T squared.
constexpr struct {
  double constant, rate, coefficient;
} kPlanetaryTerms[14] = {
    {299.77, 0.107408, 0.000325},  {251.88, 0.016321, 0.000165}, {251.83, 26.651886, 0.000164},
    {349.42, 36.412478, 0.000126}, {84.66, 18.206239, 0.00011},  {141.74, 53.303771, 0.000062},
    {207.14, 2.453732, 0.00006},   {154.84, 7.30686, 0.000056},  {34.52, 27.261239, 0.000047},
    {207.19, 0.121824, 0.000042},  {291.34, 1.844379, 0.00004},  {161.72, 24.198154, 0.000037},
    {239.56, 25.513099, 0.000035}, {331.55, 3.592518, 0.000023},
};

template <std::size_t N>
double SumTerms(const PhaseTerm (&terms)[N], double e, double m, double mPrime, double f,
                double omega) {
  double sum = 0;
  for (const auto& t : terms) {
    double arg = t.omega ? omega : t.m * m + t.mPrime * mPrime + t.f * f;
    double factor = t.ePower == 0 ? 1 : t.ePower == 1 ? e : e * e;
    sum += t.coefficient * factor * SinDeg(arg);
  }
  return sum;
}

}  // namespace

void GregorianYearMonthOfMoment(double moment, int& year, int& month) {
  long long jd = static_cast<long long>(std::floor(moment + 0.5));
  long long a = jd + 32044;
  long long b = (4 * a + 3) / 146097;
  long long c = a - 146097 * b / 4;
  long long d = (4 * c + 3) / 1461;
  long long e = c - 1461 * d / 4;
  long long m = (5 * e + 2) / 153;
  month = static_cast<int>(m + 3 - 12 * (m / 10));
  year = static_cast<int>(100 * b + d - 4800 + m / 10);
}

double MoonPhaseMoment(float k) {
  const double kk = k;
  const double fraction = kk - std::floor(kk);
  // 0 new moon, 1 first quarter, 2 full moon, 3 last quarter.
  const int phase = static_cast<int>(std::floor(fraction * 4 + 0.5)) % 4;

  const double t = kk / 1236.85;
  const double t2 = t * t, t3 = t2 * t, t4 = t3 * t;
  double jde =
      2451550.09765 + 29.530588853 * kk + 0.0001337 * t2 - 0.00000015 * t3 + 0.00000000073 * t4;
  const double e = 1 - 0.002516 * t - 0.0000074 * t2;
  const double m = 2.5534 + 29.10535669 * kk - 0.0000218 * t2 - 0.00000011 * t3;
  const double mPrime =
      201.5643 + 385.81693528 * kk + 0.0107438 * t2 + 0.00001239 * t3 - 0.000000058 * t4;
  const double f =
      160.7108 + 390.67050274 * kk - 0.0016341 * t2 - 0.00000227 * t3 + 0.000000011 * t4;
  const double omega = 124.7746 - 1.5637558 * kk + 0.0020691 * t2 + 0.00000215 * t3;

  if (phase == 0) {
    jde += SumTerms(kNewMoonTerms, e, m, mPrime, f, omega);
  } else if (phase == 2) {
    jde += SumTerms(kFullMoonTerms, e, m, mPrime, f, omega);
  } else {
    jde += SumTerms(kQuarterTerms, e, m, mPrime, f, omega);
    double w = 0.00306 - 0.00038 * e * CosDeg(m) + 0.00026 * CosDeg(mPrime) -
               0.00002 * CosDeg(mPrime - m) + 0.00002 * CosDeg(mPrime + m) +
               0.00002 * CosDeg(2 * f);
    jde += phase == 1 ? w : -w;
  }

  for (int i = 0; i < 14; ++i) {
    const auto& p = kPlanetaryTerms[i];
    double arg = p.constant + p.rate * kk - (i == 0 ? 0.009173 * t2 : 0);
    jde += p.coefficient * SinDeg(arg);
  }
  return jde;
}

bool DeltaT(double moment, double& seconds) {
  int year = 0, month = 0;
  GregorianYearMonthOfMoment(moment, year, month);
  if (year < 1583 || year > 3000) return false;
  const double y = year + (month - 0.5) / 12;
  double t = 0;
  if (year < 1600) {
    double u = (y - 1000) / 100;
    seconds = 1574.2 +
              u * (-556.01 +
                   u * (71.23472 +
                        u * (0.319781 + u * (-0.8503463 + u * (-0.005050998 + u * 0.0083572073)))));
  } else if (year < 1700) {
    t = y - 1600;
    seconds = 120 - 0.9808 * t - 0.01532 * t * t + t * t * t / 7129;
  } else if (year < 1800) {
    t = y - 1700;
    seconds =
        8.83 + 0.1603 * t - 0.0059285 * t * t + 0.00013336 * t * t * t - t * t * t * t / 1174000;
  } else if (year < 1860) {
    t = y - 1800;
    seconds = 13.72 +
              t * (-0.332447 +
                   t * (0.0068612 +
                        t * (0.0041116 +
                             t * (-0.00037436 +
                                  t * (0.0000121272 + t * (-0.0000001699 + t * 0.000000000875))))));
  } else if (year < 1900) {
    t = y - 1860;
    seconds =
        7.62 + t * (0.5737 + t * (-0.251754 + t * (0.01680668 + t * (-0.0004473624 + t / 233174))));
  } else if (year < 1920) {
    t = y - 1900;
    seconds = -2.79 + t * (1.494119 + t * (-0.0598939 + t * (0.0061966 + t * -0.000197)));
  } else if (year < 1941) {
    t = y - 1920;
    seconds = 21.2 + t * (0.84493 + t * (-0.0761 + t * 0.0020936));
  } else if (year < 1961) {
    t = y - 1950;
    seconds = 29.07 + 0.407 * t - t * t / 233 + t * t * t / 2547;
  } else if (year < 1986) {
    t = y - 1975;
    seconds = 45.45 + 1.067 * t - t * t / 260 - t * t * t / 718;
  } else if (year < 2005) {
    t = y - 2000;
    seconds =
        63.86 +
        t * (0.3345 + t * (-0.060374 + t * (0.0017275 + t * (0.000651814 + t * 0.00002373599))));
  } else if (year < 2050) {
    t = y - 2000;
    seconds = 62.92 + 0.32217 * t + 0.005589 * t * t;
  } else if (year < 2150) {
    double u = (y - 1820) / 100;
    seconds = -20 + 32 * u * u - 0.5628 * (2150 - y);
  } else {
    // From 2150 the parabola runs on the whole year.
    double u = (year - 1820) / 100.0;
    seconds = -20 + 32 * u * u;
  }
  return true;
}

}  // namespace mc

namespace mc {

namespace {

constexpr double kPi = 3.14159265358979323846;  // 4 atan(1)
constexpr double kDR = kPi / 180;
constexpr double kK1 = 15 * kDR * 1.0027379;

double Frac(double x) {
  return x - std::floor(x);
}

// Right ascension, declination (radians) and, for the Moon, distance.
struct Position {
  double ra, dec, distance;
};

Position SunPosition(double t, double tt) {
  double l = Frac(0.779072 + 0.00273790931 * t) * 2 * kPi;
  double g = Frac(0.993126 + 0.0027377785 * t) * 2 * kPi;
  double v = 0.39785 * std::sin(l) - 0.01 * std::sin(l - g) + 0.00333 * std::sin(l + g) -
             0.00021 * tt * std::sin(l);
  double u = 1 - 0.03349 * std::cos(g) - 0.00014 * std::cos(2 * l) + 0.00008 * std::cos(l);
  double w = -0.0001 - 0.04129 * std::sin(2 * l) + 0.03211 * std::sin(g) +
             0.00104 * std::sin(2 * l - g) - 0.00035 * std::sin(2 * l + g) -
             0.00008 * tt * std::sin(g);
  double s = w / std::sqrt(u - v * v);
  double ra = l + std::atan(s / std::sqrt(1 - s * s));
  s = v / std::sqrt(u);
  double dec = std::atan(s / std::sqrt(1 - s * s));
  return {ra, dec, 1.00021 * std::sqrt(u)};
}

Position MoonPosition(double t) {
  double l = Frac(0.606434 + 0.03660110129 * t) * 2 * kPi;
  double m = Frac(0.374897 + 0.03629164709 * t) * 2 * kPi;
  double f = Frac(0.259091 + 0.0367481952 * t) * 2 * kPi;
  double d = Frac(0.827362 + 0.03386319198 * t) * 2 * kPi;
  double n = Frac(0.347343 - 0.00014709391 * t) * 2 * kPi;
  double g = Frac(0.993126 + 0.0027377785 * t) * 2 * kPi;
  using std::cos;
  using std::sin;
  double v = 0.39558 * sin(f + n) + 0.082 * sin(f) + 0.03257 * sin(m - f - n) +
             0.01092 * sin(m + f + n) + 0.00666 * sin(m - f) - 0.00644 * sin(m + f - 2 * d + n) -
             0.00331 * sin(f - 2 * d + n) - 0.00304 * sin(f - 2 * d) -
             0.0024 * sin(m - f - 2 * d - n) + 0.00226 * sin(m + f) - 0.00108 * sin(m + f - 2 * d) -
             0.00079 * sin(f - n) + 0.00078 * sin(2 * d + f + n);
  double u = 1 - 0.10828 * cos(m) - 0.0188 * cos(m - 2 * d) - 0.01479 * cos(2 * d) +
             0.00181 * cos(2 * m - 2 * d) - 0.00147 * cos(2 * m) - 0.00105 * cos(2 * d - g) -
             0.00075 * cos(m - 2 * d + g);
  double w = 0.10478 * sin(m) - 0.04105 * sin(2 * f + 2 * n) - 0.0213 * sin(m - 2 * d) -
             0.01779 * sin(2 * f + n) + 0.01774 * sin(n) + 0.00987 * sin(2 * d) -
             0.00338 * sin(m - 2 * f - 2 * n) - 0.00309 * sin(g) - 0.0019 * sin(2 * f) -
             0.00144 * sin(m + n) - 0.00144 * sin(m - 2 * f - n) -
             0.00113 * sin(m + 2 * f + 2 * n) - 0.00094 * sin(m - 2 * d + g) -
             0.00092 * sin(2 * m - 2 * d);
  double s = w / std::sqrt(u - v * v);
  double ra = l + std::atan(s / std::sqrt(1 - s * s));
  s = v / std::sqrt(u);
  double dec = std::atan(s / std::sqrt(1 - s * s));
  return {ra, dec, 60.40974 * std::sqrt(u)};
}

int Sign(double x) {
  return (x > 0) - (x < 0);
}

// The words of one body's results.
struct RiseSetWords {
  const char *rise, *set, *risesTwice, *setsTwice, *downAllDay, *upAllDay, *noRise, *noSet;
};
constexpr RiseSetWords kSunWords = {"Sunrise ",       "Sunset ",          "Sun rises twice",
                                    "Sun sets twice", "Sun down all day", "Sun up all day",
                                    "No sunrise",     "No sunset"};
constexpr RiseSetWords kMoonWords = {"Moonrise ",       "Moonset ",          "Moon rises twice",
                                     "Moon sets twice", "Moon down all day", "Moon up all day",
                                     "No moonrise",     "No moonset"};

// The hour-by-hour search for horizon crossings of one day.
class DayScan {
 public:
  DayScan(double t0, double latitude, double z, double deltaTHours, const RiseSetWords& words,
          std::string& rise, std::string& set)
      : t0_(t0),
        s_(std::sin(kDR * latitude)),
        c_(std::cos(kDR * latitude)),
        z_(z),
        deltaT_(deltaTHours),
        words_(words),
        rise_(rise),
        set_(set) {
    rise_.clear();
    set_.clear();
  }

  // One hour from (a0, d0) to (a2, d2).
  void Hour(int c0, double a0, double d0, double a2, double d2) {
    double l0 = t0_ + c0 * kK1, l2 = l0 + kK1;
    double h0 = l0 - a0, h2 = l2 - a2, h1 = (h2 + h0) / 2;
    double d1 = (d2 + d0) / 2;
    if (c0 == 0) v0_ = s_ * std::sin(d0) + c_ * std::cos(d0) * std::cos(h0) - z_;
    v2_ = s_ * std::sin(d2) + c_ * std::cos(d2) * std::cos(h2) - z_;
    if (Sign(v0_) != Sign(v2_)) Crossing(c0, h1, d1);
    v0_ = v2_;
  }

  void Finish() {
    if (!riseSeen_ && !setSeen_) {
      rise_ = v2_ < 0 ? words_.downAllDay : words_.upAllDay;
      set_.clear();
      return;
    }
    if (!riseSeen_) rise_ = words_.noRise;
    if (!setSeen_) set_ = words_.noSet;
  }

 private:
  void Crossing(int c0, double h1, double d1) {
    double v1 = s_ * std::sin(d1) + c_ * std::cos(d1) * std::cos(h1) - z_;
    double a = 2 * v2_ - 4 * v1 + 2 * v0_;
    double b = 4 * v1 - 3 * v0_ - v2_;
    double disc = b * b - 4 * a * v0_;
    if (disc < 0) return;
    disc = std::sqrt(disc);
    bool rising = v0_ < 0 && v2_ > 0;
    bool setting = v0_ > 0 && v2_ < 0;
    if (!rising && !setting) return;
    double e = (-b + disc) / (2 * a);
    if (!(e >= 0 && e <= 1)) e = (-b - disc) / (2 * a);
    double t3 = c0 + e + 1.0 / 120 - deltaT_;
    if (rising) {
      rise_ = rise_.empty() ? words_.rise + ClockText(t3) : words_.risesTwice;
      riseSeen_ = true;
    } else {
      set_ = set_.empty() ? words_.set + ClockText(t3) : words_.setsTwice;
      setSeen_ = true;
    }
  }

  double t0_, s_, c_, z_, deltaT_;
  const RiseSetWords& words_;
  std::string& rise_;
  std::string& set_;
  double v0_ = 0, v2_ = 0;
  bool riseSeen_ = false, setSeen_ = false;
};

// What the two routines share: days from the epoch, local sidereal time at
// the start of the day, and delta T of the day in hours.
struct DaySetup {
  double t, tt, t0, deltaTHours;
};

DaySetup SetUp(int day, int month, int year, float longitude, float timeZone) {
  JD jd = GregorianToJD(day, month, year);
  double n = jd - 2451546;
  DaySetup d;
  d.t = n + 0.5;
  d.tt = d.t / 36525 + 1;
  double l5 = longitude / 360.0;
  double z0 = -timeZone / 24.0;
  double t0c = d.t / 36525;
  double s = 24110.5 + 8640184.813 * t0c + 86636.6 * z0 + 86400 * l5;
  s = Frac(s / 86400);
  d.t0 = s * 360 * kDR;
  d.t += z0;
  double seconds = 0;
  d.deltaTHours = DeltaT(jd, seconds) ? seconds / 3600 : 0;
  return d;
}

}  // namespace

std::string ClockText(double hours) {
  if (hours < 0) hours = 0;
  int h = static_cast<int>(std::floor(hours));
  int m = static_cast<int>(std::floor((hours - h) * 60 + 0.4999));
  if (m == 60) {
    if (h < 23) {
      ++h;
      m = 0;
    } else {
      m = 59;
    }
  }
  char text[8];
  std::snprintf(text, sizeof text, "%02d:%02d", h % 100, m);
  return text;
}

void SunRiseSet(int day, int month, int year, float latitude, float longitude, float timeZone,
                std::string& rise, std::string& set) {
  DaySetup d = SetUp(day, month, year, longitude, timeZone);
  Position p1 = SunPosition(d.t, d.tt), p2 = SunPosition(d.t + 1, d.tt);
  if (p2.ra < p1.ra) p2.ra += 2 * kPi;
  DayScan scan(d.t0, latitude, std::cos(kDR * 90.833), d.deltaTHours, kSunWords, rise, set);
  double a0 = p1.ra, d0 = p1.dec;
  const double da = p2.ra - p1.ra, dd = p2.dec - p1.dec;
  for (int c0 = 0; c0 <= 23; ++c0) {
    double p = (c0 + 1) / 24.0;
    double a2 = p1.ra + p * da, d2 = p1.dec + p * dd;
    scan.Hour(c0, a0, d0, a2, d2);
    a0 = a2;
    d0 = d2;
  }
  scan.Finish();
}

void MoonRiseSet(int day, int month, int year, float latitude, float longitude, float timeZone,
                 std::string& rise, std::string& set) {
  DaySetup d = SetUp(day, month, year, longitude, timeZone);
  Position row[3] = {MoonPosition(d.t), MoonPosition(d.t + 0.5), MoonPosition(d.t + 1)};
  if (row[1].ra <= row[0].ra) row[1].ra += 2 * kPi;
  if (row[2].ra <= row[1].ra) row[2].ra += 2 * kPi;
  DayScan scan(d.t0, latitude, std::cos(kDR * (90.567 - 41.685 / row[1].distance)), d.deltaTHours,
               kMoonWords, rise, set);
  auto interpolate = [](double f0, double f1, double f2, double p) {
    double a = f1 - f0, b = f2 - f1 - a;
    return f0 + p * (2 * a + b * (2 * p - 1));
  };
  double a0 = row[0].ra, d0 = row[0].dec;
  for (int c0 = 0; c0 <= 23; ++c0) {
    double p = (c0 + 1) / 24.0;
    double a2 = interpolate(row[0].ra, row[1].ra, row[2].ra, p);
    double d2 = interpolate(row[0].dec, row[1].dec, row[2].dec, p);
    if (a2 < a0) a2 += 2 * kPi;
    scan.Hour(c0, a0, d0, a2, d2);
    a0 = a2;
    d0 = d2;
  }
  scan.Finish();
}

std::string SunDepressionTime(int day, int month, int year, float latitude, float longitude,
                              float timeZone, double zenith, std::string_view which) {
  const bool rising = which == "Rise";
  auto deg = [](double radians) { return radians / kDR; };
  int n =
      static_cast<int>(275 * month / 9) -
      static_cast<int>((month + 9) / 12) * (1 + static_cast<int>((year - 4 * (year / 4) + 2) / 3)) +
      day - 30;
  double lngHour = longitude / 15.0;
  double t = n + ((rising ? 6 : 18) - lngHour) / 24;
  double m = 0.9856 * t - 3.289;
  double l = m + 1.916 * std::sin(m * kDR) + 0.02 * std::sin(2 * m * kDR) + 282.634;
  while (l < 0) l += 360;
  while (l >= 360) l -= 360;
  double ra = deg(std::atan(0.91764 * std::tan(l * kDR)));
  if (ra < 0) ra += 360;
  ra += std::floor(l / 90) * 90 - std::floor(ra / 90) * 90;
  ra /= 15;
  double sinDec = 0.39782 * std::sin(l * kDR);
  double cosDec = std::cos(std::atan(sinDec / std::sqrt(1 - sinDec * sinDec)));
  double cosH = (std::cos(zenith * kDR) - sinDec * std::sin(latitude * kDR)) /
                (cosDec * std::cos(latitude * kDR));
  if (cosH > 1) return "Sun down all day";
  if (cosH < -1) return "Sun up all day";
  double h = deg(std::atan(std::sqrt(1 - cosH * cosH) / cosH));
  if (cosH < 0) h = deg(std::atan(std::sqrt(1 - cosH * cosH) / cosH) + kPi);
  if (rising) h = 360 - h;
  h /= 15;
  double ut = h + ra - 0.06571 * t - 6.622 - lngHour;
  while (ut < 0) ut += 24;
  while (ut >= 24) ut -= 24;
  double seconds = 0;
  if (DeltaT(GregorianToJD(day, month, year), seconds)) ut -= seconds / 3600;
  double local = ut + timeZone;
  if (local < 0)
    local += 24;
  else if (local >= 24)
    local -= 24;
  return ClockText(local);
}

double EquationOfTime(double moment) {
  double c = (moment - 2451545.0) / 36525;
  auto reduce = [](double x) { return x - 360 * std::floor(x / 360); };
  double l = reduce(280.46645 + 36000.76983 * c + 0.0003032 * c * c) * kDR;
  double m = reduce(357.5291 + 35999.0503 * c - 0.0001559 * c * c - 0.00000048 * c * c * c) * kDR;
  double e = 0.016708617 - 0.000042037 * c - 0.0000001236 * c * c;
  double eps = reduce((84381.448 - 46.815 * c - 0.00059 * c * c + 0.001813 * c * c * c) / 3600);
  double y = std::tan(eps * kDR / 2);
  y *= y;
  double eq = y * std::sin(2 * l) - 2 * e * std::sin(m) +
              4 * e * y * std::sin(m) * std::cos(2 * l) - 0.5 * y * y * std::sin(4 * l) -
              1.25 * e * e * std::sin(2 * m);
  double minutes = eq / kDR * 4;
  if (minutes > 20) minutes -= 1440;
  if (minutes < -20) minutes += 1440;
  return minutes / 1440;
}

double SolarNoon(JD jd, float longitude, float timeZone) {
  double m = jd + 0.5 - longitude / 360.0;
  m -= EquationOfTime(m);
  return (m + timeZone / 24.0 - jd) * 24;
}

}  // namespace mc
