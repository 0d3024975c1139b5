// The Hebrew calendar, computed from the molad (the mean new moon) in weeks,
// days, hours and parts of 1080 to the hour, with no floating point.
// Months in the engine's numbering: Tishri = 1 ... Adar = 6, Adar II = 7
// (leap years only), Nisan = 8 ... Elul = 13.
#pragma once

#include "calendars/registry.h"

namespace mc {

// A time span in the traditional units: days below 7, hours below 24, parts
// below 1080.
struct MoladSpan {
  int weeks = 0;
  int days = 0;
  int hours = 0;
  int parts = 0;
  friend bool operator==(const MoladSpan&, const MoladSpan&) = default;
};

MoladSpan MoladAdd(const MoladSpan& a, const MoladSpan& b);
MoladSpan MoladMultiply(const MoladSpan& a, int n);

// Leap years among the first n years (0..19) of the 19-year cycle.
int LeapMonthsInCycle(int n);

bool IsHebrewLeap(int year);

// The molad of Tishri of a year: the first molad plus the cycles, common
// years and leap months before it, carried span by span.
MoladSpan MoladOfTishri(int year);

// The first of Tishri: the day count from the epoch (the JD is 347997 more),
// its weekday (1 = Sunday), and the hours and parts of the year's molad.
struct HebrewNewYearDay {
  int days = 0;
  int weekday = 0;
  int hours = 0;
  int parts = 0;
};
HebrewNewYearDay HebrewNewYear(int year);

// 353, 354, 355 in a common year; 383, 384, 385 in a leap year.
int HebrewYearLength(int year);
// Days in a month. Adar II (7) answers 29 even in a common year, where it
// doesn't exist; the walks through the year skip it.
int HebrewMonthLength(int year, int month);

JD HebrewToJD(int day, int month, int year);
CalDate JDToHebrew(JD jd);

}  // namespace mc
