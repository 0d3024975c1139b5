// Sun and Moon ephemeris: small pure functions of their arguments.
#pragma once

#include <string>
#include <string_view>

#include "calendars/cal_type.h"

namespace mc {

// Times of a day are texts "HH:MM" (24-hour clock); places are given by
// latitude and longitude in degrees (north and east positive) and a time zone
// in hours east of Universal Time, daylight saving not included.

// Sunrise and sunset of a Gregorian date: "Sunrise 06:02" and "Sunset 18:11",
// or "Sun rises twice", "Sun sets twice", "Sun down all day" / "Sun up all day"
// (with an empty set text), "No sunrise", "No sunset".
void SunRiseSet(int day, int month, int year, float latitude, float longitude, float timeZone,
                std::string& rise, std::string& set);
// The same for the Moon, with "Moonrise", "Moonset", "Moon rises twice" and so on.
void MoonRiseSet(int day, int month, int year, float latitude, float longitude, float timeZone,
                 std::string& rise, std::string& set);

// The local time at which the Sun's centre reaches a zenith distance (90.63333
// for sunrise and sunset, 96, 102, 108 for civil, nautical and astronomical
// twilight), `which` "Rise" for the morning and anything else for the evening:
// "HH:MM", or "Sun down all day" / "Sun up all day" when it never does.
std::string SunDepressionTime(int day, int month, int year, float latitude, float longitude,
                              float timeZone, double zenith, std::string_view which);

// Local clock time of solar noon, in hours from midnight.
double SolarNoon(JD jd, float longitude, float timeZone);

// The equation of time at a moment, in days (sundial ahead of the clock positive).
double EquationOfTime(double moment);

// "HH:MM" of hours from midnight: minutes rounded from just under a half, and a
// minute that rounds to 60 carried into the hour, or kept at 59 in the last hour.
std::string ClockText(double hours);

// Gregorian year and month of the civil day holding a moment (a Julian Day
// with fraction, Universal reckoning).
void GregorianYearMonthOfMoment(double moment, int& year, int& month);

// The moment of a phase of the Moon as a Julian Ephemeris Day. k counts
// lunations from the new moon of 6 January 2000; its fraction picks the phase:
// .0 new moon, .25 first quarter, .5 full moon, .75 last quarter (a fraction
// between them picks the nearest). k is held as a 32-bit float throughout.
double MoonPhaseMoment(float k);

// Dynamical time less Universal Time, in seconds, for the date of a moment
// (a Julian Day with fraction), by the polynomials of Espenak and Meeus. False,
// with `seconds` untouched, outside the years 1583 to 3000.
bool DeltaT(double moment, double& seconds);

}  // namespace mc
