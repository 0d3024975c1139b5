#include "calendars/astro.h"

#include <array>
#include <cmath>

namespace mc {

namespace {

// Periodic terms of the equinoxes and solstices: A cos(B + C T), degrees.
struct SeasonTerm {
  double a, b, c;
};
constexpr std::array<SeasonTerm, 24> kSeasonTerms = {{
    {485, 324.96, 1934.136},  {203, 337.23, 32964.467}, {199, 342.08, 20.186},
    {182, 27.85, 445267.112}, {156, 73.14, 45036.886},  {136, 171.52, 22518.443},
    {77, 222.54, 65928.934},  {74, 296.72, 3034.906},   {70, 243.58, 9037.513},
    {58, 119.81, 33718.147},  {52, 297.17, 150.678},    {50, 21.02, 2281.226},
    {45, 247.54, 29929.562},  {44, 325.15, 31555.956},  {29, 60.93, 4443.417},
    {18, 155.12, 67555.328},  {17, 288.79, 4562.452},   {16, 198.04, 62894.029},
    {14, 199.76, 31436.921},  {12, 95.39, 14577.848},   {12, 287.11, 31931.756},
    {12, 320.81, 34777.259},  {9, 227.73, 1222.114},    {8, 15.45, 16859.074},
}};

// Mean moments of the four seasons, polynomial in millennia from 2000.
constexpr double kSeasonPolynomials[4][5] = {
    {2451623.80984, 365242.37404, 0.05169, -0.00411, -0.00057},
    {2451716.56767, 365241.62603, 0.00325, 0.00888, -0.0003},
    {2451810.21715, 365242.01767, -0.11575, 0.00337, 0.00078},
    {2451900.05952, 365242.74049, -0.06223, -0.00823, 0.00032},
};

// The solar longitude series: a sin(b + c T), T in Julian centuries from
// J2000, angles in radians. Two blocks, in the order they are summed.
struct LongitudeTerm {
  double a, b, c;
};
constexpr std::array<LongitudeTerm, 50> kLongitudeTerms = {{
    {403406, 4.721964, 0.01621043},
    {119433, 1.115589, 628.30821524},
    {3891, 5.5474, 1256.605691},
    {1721, 4.1897, 628.324766},
    {660, 5.5415, 1256.5931},
    {334, 4.553, -0.33931},
    {268, 5.989, 786.04191},
    {234, 1.423, 393.02098},
    {132, 2.317, 1150.67698},
    {114, 2.828, 52.9667},
    {93, 4.65, 52.9611},
    {78, 2.75, 522.3769},
    {68, 3.23, 2.6108},
    {46, 0.14, 1884.9103},
    {37, 4.37, 2.6489},
    {29, 2.84, 550.7575},
    {27, 5.09, 1884.8981},
    {25, 2.56, 1097.7103},
    {21, 0.09, 254.4393},
    {20, 4.03, 606.9774},
    {17, 0.79, 1097.7163},
    {13, 2.01, 1884.9191},
    {13, 4.98, 294.2463},
    {10, 2.21, 469.4114},
    {10, 1.5, 214.6325},
    {195207, 5.937458, 628.30348067},
    {112392, 5.781616, 628.29634302},
    {2819, 1.512, 1256.60984},
    {0, 1.163, 0.00813},
    {350, 4.315, 575.3385},
    {314, 5.198, 7771.37715},
    {242, 2.911, 0.05412},
    {158, 0.061, -0.34861},
    {129, 3.193, 157.74337},
    {99, 0.52, 588.4927},
    {86, 4.35, -39.807},
    {72, 4.5, 550.7647},
    {64, 1.22, 157.7385},
    {38, 3.44, -77.5655},
    {32, 1.14, 1179.0627},
    {28, 5.96, -79.6139},
    {27, 1.72, 21.3219},
    {24, 1.92, 548.6856},
    {21, 5.98, -557.3143},
    {18, 4.47, 21.3279},
    {14, 4.24, -77.5282},
    {13, 2.65, 2.0781},
    {12, 0.93, -0.0799},
    {10, 3.59, -0.6829},
    {10, 2.55, 1572.084},
}};

constexpr double kJ2000 = 2451545.0;  // Gregorian 1 January 2000, as a day number

}  // namespace

double SeasonMoment(int year, Season season) {
  const double* p = kSeasonPolynomials[static_cast<int>(season) & 3];
  double y = (year - 2000) / 1000.0;
  double jde0 = p[0] + y * (p[1] + y * (p[2] + y * (p[3] + y * p[4])));
  double t = (jde0 - 2451545.0) / 36525.0;
  double w = (35999.73 * t - 2.47) * kDegToRad;
  double delta = 1 + 0.0334 * std::cos(w) + 0.0007 * std::cos(2 * w);
  double sum = 0;
  for (const auto& term : kSeasonTerms) sum += term.a * std::cos((term.b + term.c * t) * kDegToRad);
  return jde0 + 0.00001 * sum / delta;
}

double ApparentSolarLongitude(double moment) {
  double t = (moment - kJ2000) / 36525.0;
  double s = 0;
  for (const auto& term : kLongitudeTerms) s += term.a * std::sin(term.b + term.c * t);
  double l = 628.33196168 * t + 4.9353929 + s * 1e-7;
  double aberration = 1.7e-6 * std::cos((35999.01848 * t + 177.63) * kDegToRad) - 9.73e-5;
  double n1 = (0.002063 * t - 1934.134) * t + 124.9;
  double n2 = (0.00057 * t + 72001.5377) * t + 201.11;
  double nutation = -8.34e-5 * std::sin(n1 * kDegToRad) - 6.4e-6 * std::sin(n2 * kDegToRad);
  double degrees = (aberration + l + nutation) / kDegToRad;
  // One reduction by whole turns, then the last steps as the loop would take them.
  degrees -= 360.0 * std::floor(degrees / 360.0);
  while (degrees < 0) degrees += 360;
  while (degrees >= 360) degrees -= 360;
  return degrees;
}

}  // namespace mc
