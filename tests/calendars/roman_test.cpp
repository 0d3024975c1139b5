#include "calendars/roman.h"

#include <gtest/gtest.h>

#include "calendars/gregorian.h"
#include "calendars/registry.h"

namespace mc {
namespace {

TEST(RomanNumerals, EveryNumberRoundTrips) {
  for (int n = 1; n <= 3999; ++n) {
    const std::string numeral = ToRoman(n);
    ASSERT_EQ(FromRoman(numeral), n) << numeral;
    std::string lower = numeral;
    for (char& c : lower) c = static_cast<char>(c - 'A' + 'a');
    ASSERT_EQ(FromRoman(lower), n) << lower;
  }
  EXPECT_EQ(ToRoman(3999), "MMMCMXCIX");
  EXPECT_EQ(ToRoman(1994), "MCMXCIV");
  EXPECT_EQ(ToRoman(4000), "****");
  EXPECT_EQ(ToRoman(0), "****");
  EXPECT_EQ(ToRoman(-5), "****");
}

TEST(RomanNumerals, MalformedNumeralsAreRefused) {
  for (const char* bad : {"",    "IIII", "MMMM",  "VV",  "IL",  "IC",  "XM",        "VX",
                          "CDC", "CMC",  "XLX",   "XCX", "IVI", "IXI", "LXL",       "DCD",
                          "IIV", "MCMC", "XIIII", "ABC", " X",  "X ",  "MMMCMXCIXI"})
    EXPECT_EQ(FromRoman(bad), 0) << bad;
  EXPECT_EQ(FromRoman("mdcclxxvi"), 1776);
}

TEST(RomanDates, DaysCountTowardsKalendsNonesAndIdes) {
  EXPECT_EQ(RomanDate(1, 1, 2000), "Kalendae Ianuariae");
  EXPECT_EQ(RomanDate(2, 1, 2000), "IV Nonas Ianuarias");
  EXPECT_EQ(RomanDate(4, 1, 2000), "pridie Nonas Ianuarias");
  EXPECT_EQ(RomanDate(5, 1, 2000), "Nonae Ianuariae");
  EXPECT_EQ(RomanDate(6, 1, 2000), "VIII Idus Ianuarias");
  EXPECT_EQ(RomanDate(13, 1, 2000), "Idus Ianuariae");
  EXPECT_EQ(RomanDate(14, 1, 2000), "XIX Kalendas Februarias");
  EXPECT_EQ(RomanDate(31, 1, 2000), "pridie Kalendas Februarias");
  // March, May, July and October have their Nones on the 7th, Ides on the 15th.
  EXPECT_EQ(RomanDate(15, 3, 44), "Idus Martiae");
  EXPECT_EQ(RomanDate(14, 3, 44), "pridie Idus Martias");
  EXPECT_EQ(RomanDate(2, 3, 44), "VI Nonas Martias");
  EXPECT_EQ(RomanDate(7, 10, 2001), "Nonae Octobres");
  EXPECT_EQ(RomanDate(20, 9, 2001), "XII Kalendas Octobres");
  EXPECT_EQ(RomanDate(31, 12, 2001), "pridie Kalendas Ianuarias");
  EXPECT_EQ(RomanDate(1, 4, 2001), "Kalendae Apriles");
  EXPECT_EQ(RomanDate(2, 4, 2001), "IV Nonas Apriles");
}

TEST(RomanDates, FebruaryOfLeapAndCommonYears) {
  EXPECT_EQ(RomanDate(23, 2, 2001), "VII Kalendas Martias");
  EXPECT_EQ(RomanDate(24, 2, 2001), "VI Kalendas Martias");
  EXPECT_EQ(RomanDate(27, 2, 2001), "III Kalendas Martias");
  EXPECT_EQ(RomanDate(28, 2, 2001), "pridie Kalendas Martias");
  EXPECT_EQ(RomanDate(24, 2, 2000), "VI Kalendas Martias");
  EXPECT_EQ(RomanDate(25, 2, 2000), "bis VI Kalendas Martias");
  EXPECT_EQ(RomanDate(26, 2, 2000), "V Kalendas Martias");
  EXPECT_EQ(RomanDate(28, 2, 2000), "III Kalendas Martias");
  EXPECT_EQ(RomanDate(29, 2, 2000), "pridie Kalendas Martias");
  // Julian leap years: 1900 is one.
  EXPECT_EQ(RomanDate(29, 2, 1900), "pridie Kalendas Martias");
  EXPECT_EQ(RomanDate(29, 2, 2001), "");
  EXPECT_EQ(RomanDate(0, 1, 2001), "");
  EXPECT_EQ(RomanDate(1, 13, 2001), "");
}

TEST(ChronologicalCycles, KnownYears) {
  EXPECT_EQ(GoldenNumber(2024), 11);
  EXPECT_EQ(SolarNumber(2024), 17);
  EXPECT_EQ(RomanIndiction(2024), 2);
  EXPECT_EQ(JulianPeriod(2024), 6737);
  EXPECT_EQ(JulianPeriod(-4712), 1);
  EXPECT_EQ(DionysianPeriod(1140), 1);
  EXPECT_EQ(DionysianPeriod(1139), 532);  // a cycle earlier, not a negative place
  EXPECT_EQ(GregorianEpact(2024), 19);
  EXPECT_EQ(GregorianEpact(2000), 24);
  EXPECT_EQ(GregorianEpact(2019), 24);
  EXPECT_EQ(JulianEpact(2024), 20);
  EXPECT_EQ(JulianEpact(1900), 30);  // golden number 1
}

TEST(ChronologicalCycles, DominicalLetters) {
  auto letters = [](int year) {
    return DominicalLetters(WeekdayOfJD(GregorianToJD(1, 1, year)), IsGregorianLeap(year));
  };
  EXPECT_EQ(letters(2023), "A");
  EXPECT_EQ(letters(2024), "GF");
  EXPECT_EQ(letters(2025), "E");
  EXPECT_EQ(letters(2000), "BA");
  EXPECT_EQ(letters(2028), "BA");
  EXPECT_EQ(letters(2012), "AG");
}

}  // namespace
}  // namespace mc
