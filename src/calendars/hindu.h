// The Hindu calendars. The modern ones follow the Surya-Siddhanta: true
// positions of sun and moon from mean motions and epicycles, the traditional
// table of sines, and sunrise at Ujjain. HinSol is the solar (sidereal) year
// from Mesha; HinLun counts lunar months from new moon to new moon with years
// from Chaitra, HinLun1 and HinLun2 the same months with years from Ashadha
// and from Kartika, HinLun3 months from full moon to full moon (Rajasthan).
// The old calendars run on the mean motions of the Arya-Siddhanta alone.
//
// Everything works in a day count RD = JD - 1721425; K = RD + 1132959 counts
// days since the start of the Kali Yuga (midnight, 18 February 3102 BCE,
// Julian). Angles are in minutes of arc, 21600 to the circle.
#pragma once

#include "calendars/registry.h"

namespace mc::hindu {

inline constexpr JD kRDToJD = 1721425;       // JD = RD + this
inline constexpr int kHinduEpoch = 1132959;  // K - RD
inline constexpr int kSolarEra = 3179;       // solar (Saka) year = Kali year - this
inline constexpr int kLunarEra = 3044;       // lunisolar (Vikrama) year = Kali year - this
inline constexpr double kSiderealYear = 365.2587564814815;
inline constexpr double kAnomalisticYear = 365.25878920258134;
inline constexpr double kSiderealMonth = 27.321674162683866;
inline constexpr double kAnomalisticMonth = 27.554597974680476;
inline constexpr double kAryaSolarYear = 365.25868055555554;
inline constexpr double kAryaSolarMonth = 30.43822337962963;
inline constexpr double kAryaLunarMonth = 29.530581807581694;
inline constexpr double kAryaLunarDay = 0.9843527269193898;
// Days from the creation to the Kali Yuga: the apsides are counted from it.
inline constexpr double kCreationOffset = 714402296627.0;
// Latitude of Ujjain, 23 degrees 9 minutes.
inline constexpr double kUjjainLatitude = 1389.0;

// --- Astronomy of the Surya-Siddhanta. Moments t are Kali days. ---

// The table of sines for multiples of 225 minutes, radius 3438; any entry,
// extended by symmetry beyond the quadrant.
int SineTable(int entry);
// Sine of an angle by linear interpolation in the table (radius 3438).
double HinduSine(double theta);
// The inverse, by the same interpolation; the angle in minutes.
double HinduArcsin(double amplitude);
double MeanPosition(double t, double period);
double TruePosition(double t, double period, double size, double anomalistic, double change);
double SolarLongitude(double t);
double LunarLongitude(double t);
// Elongation of the moon from the sun.
double LunarPhase(double t);
// Sign of the zodiac 1..12 (1 Mesha) of the sun.
int Zodiac(double t);
// Lunar day (tithi) 1..30.
int LunarDay(double t);
// Sidereal solar year since the Kali Yuga.
int CalendarYear(double t);
double DailyMotion(double t);
double TropicalLongitude(double t);
// Time of the sign rising, relative to 1800 minutes of arc.
double RisingSign(double t);
double AscensionalDifference(double t, double latitude);
double SolarSiderealDifference(double t);
// In days.
double EquationOfTime(double t);
// Sunrise at Ujjain on Kali day t.
double Sunrise(double t);
// The last new moon before t (the moment just after conjunction).
double NewMoonBefore(double t);

// --- Modern calendars. ---

struct SolarDate {
  int month = 0, day = 0, year = 0;  // year: Saka era
  friend bool operator==(const SolarDate&, const SolarDate&) = default;
};
SolarDate SolarDateFromRD(int rd);
// -1 when no day has that date.
int RDFromSolarDate(int month, int day, int year);

struct LunarDate {
  int month = 0;  // 1 Chaitra .. 12 Phalguna; a leap month comes before its namesake
  bool leapMonth = false;
  int day = 0;  // lunar day 1..30; a repeated day is leap the second time
  bool leapDay = false;
  int year = 0;  // Vikrama era
  friend bool operator==(const LunarDate&, const LunarDate&) = default;
};
LunarDate LunarDateFromRD(int rd);
// -1 when no day has that date (a skipped lunar day, a month that is not there).
int RDFromLunarDate(int month, bool leapMonth, int day, bool leapDay, int year);
// Order of lunar dates: years, months (leap first), days (plain first).
bool LunarBefore(const LunarDate& a, const LunarDate& b);

// --- Old (mean) calendars; years of the Kali Yuga, days from sunrise. ---

struct OldSolarDate {
  int month = 0, day = 0, year = 0;
  friend bool operator==(const OldSolarDate&, const OldSolarDate&) = default;
};
struct OldLunarDate {
  int month = 0;
  bool leapMonth = false;
  int day = 0;
  int year = 0;
  friend bool operator==(const OldLunarDate&, const OldLunarDate&) = default;
};
OldSolarDate OldSolarDateFromRD(int rd);
OldLunarDate OldLunarDateFromRD(int rd);
int OldLunarRD(int month, bool leapMonth, int day, int year);

// --- The calendar codes. ---

// A triple's month or day with its leap mark apart: values above 100 are leap.
struct LeapValue {
  int value = 0;
  bool leap = false;
};
constexpr LeapValue SplitLeap(int v) {
  return v > 100 ? LeapValue{v - 100, true} : LeapValue{v, false};
}
constexpr int JoinLeap(int v, bool leap) {
  return leap ? v + 100 : v;
}

// Months before the first of the year in the Ashadha (HinLun1, 3) and
// Kartika (HinLun2, 7) reckonings; 0 in the Chaitra ones.
int MonthShift(CalType type);

// Renumbers a month between the Chaitra (HinLun, HinLun3), Ashadha (HinLun1)
// and Kartika (HinLun2) reckonings; a leap month stays leap.
struct HinduMonthYear {
  int month = 0;  // above 100: leap
  int year = 0;
};
HinduMonthYear ConvertHinduMonth(CalType from, int month, int year, CalType to);

// True when day 1 or day 2 of the month is a day of the calendar.
bool ValidHinduMonth(CalendarEngine& engine, CalType type, int month, int year);

}  // namespace mc::hindu
