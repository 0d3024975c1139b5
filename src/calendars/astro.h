// Astronomical primitives of the calendars that follow the Sun: the moments of
// the equinoxes and solstices, and the Sun's apparent longitude.
#pragma once

namespace mc {

// Degrees to radians, the constant the series are written with.
inline constexpr double kDegToRad = 0.017453292519943278;

enum class Season {
  MarchEquinox = 0,
  JuneSolstice = 1,
  SeptemberEquinox = 2,
  DecemberSolstice = 3
};

// The moment of an equinox or solstice of a Gregorian year, as a Julian
// Ephemeris Day with its fraction: the mean-epoch polynomial for the years
// after 1000 (used for every year) corrected by the 24 periodic terms. No
// correction to civil time and no time zone is applied.
double SeasonMoment(int year, Season season);

// The Sun's apparent longitude in degrees, 0 up to but not including 360, at a
// moment given as a Julian Day with fraction: the 50-term series of Bretagnon
// and Simon with aberration and nutation.
double ApparentSolarLongitude(double moment);

// The first day of the astronomical Persian year: the day of the March
// equinox by a local noon rule at Tehran's longitude.
int PersianNewYearJD(int year);

}  // namespace mc
