// Sun and Moon ephemeris: small pure functions of their arguments.
#pragma once

namespace mc {

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
