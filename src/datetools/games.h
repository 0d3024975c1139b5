// The Games and championships of the modern era, year by year: the host
// tables behind the Date Conversions report and the Games lists.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mc {

struct GamesHost {
  int year;
  std::string_view text;  // "XXXII in Tokyo, Japan"; a cancelled Games has no place
};

// The tables, in order; each Games (or championship) stands at its own year.
const std::vector<GamesHost>& SummerOlympicHosts();      // 1896 to 2020
const std::vector<GamesHost>& WinterOlympicHosts();      // 1924 to 2022
const std::vector<GamesHost>& CommonwealthGamesHosts();  // 1930 to 2022
const std::vector<GamesHost>& EuropeanAthleticsHosts();  // 1934 to 2020, places only
const std::vector<GamesHost>& WorldAthleticsHosts();     // 1983 to 2022, places only

// The lines of the Date Conversions report for a Gregorian year, in order
// (Summer, Athens 1906, Winter, Commonwealth, European, World).
std::vector<std::string> GamesLinesOfYear(int year);

}  // namespace mc
