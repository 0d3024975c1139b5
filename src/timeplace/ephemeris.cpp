#include "timeplace/ephemeris.h"

#include <cmath>

namespace mc {

namespace {

constexpr double kDegToRad = 0.017453292519943278;

double SinDeg(double degrees) {
  return std::sin(degrees * kDegToRad);
}
double CosDeg(double degrees) {
  return std::cos(degrees * kDegToRad);
}

// Gregorian year and month of the civil day holding a moment.
void YearMonthOfMoment(double moment, int& year, int& month) {
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
  YearMonthOfMoment(moment, year, month);
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
