// Roman numerals both ways, the Roman form of a Julian date, and the year
// cycles of the chronologists that the reports print.
#pragma once

#include <string>
#include <string_view>

namespace mc {

// n from 1 to 3999 in Roman numerals; "****" outside that range.
std::string ToRoman(int n);
// The value of a well-formed numeral (either case), or 0.
int FromRoman(std::string_view text);

// A Julian date in the Roman form: "Kalendae Ianuariae", "IV Nonas
// Ianuarias", "bis VI Kalendas Martias". Empty for a day that doesn't exist.
std::string RomanDate(int day, int month, int year);

// Year cycles of a calendar year (years before 1 stand as astronomers count
// them, 0 = 1 BC).
int JulianPeriod(int year);     // 1..7980
int DionysianPeriod(int year);  // 1..532
int GoldenNumber(int year);     // 1..19
int SolarNumber(int year);      // 1..28
int RomanIndiction(int year);   // 1..15
// Epact 1..30 in the Julian reckoning and in the Gregorian one.
int JulianEpact(int year);
int GregorianEpact(int year);
// The Sunday letter of a year from the weekday of its 1 January (1 = Sunday);
// a leap year has two, the one before the leap day first: "GF".
std::string DominicalLetters(int weekdayOfJanuary1, bool leap);

}  // namespace mc
