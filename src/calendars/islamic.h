// The Islamic calendars: the arithmetical calendar of the 30-year cycle, with
// four leap schemes and two epochs chosen in the settings, and the Umm
// al-Qura calendar of Saudi Arabia for 1356 to 1500 A.H., read from
// ummalqur.dat at start.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "calendars/registry.h"

namespace mc {

// Leap years of the arithmetical calendar among years 1..n (n 0..29) of the
// cycle, by scheme 1..4; 0 for any other scheme.
int LeapYearsBefore(int n, int scheme);
bool IsIslamicLeap(int year, int scheme);

// The day before 1 Muharram 1 (JD 1948439 for the Friday epoch, 1948438 for
// the Thursday one) is the offset of every arithmetical date.
JD IslamicEpochOffset(std::string_view epochDay);
JD IslamicToJD(int day, int month, int year, int scheme, JD epochOffset);
CalDate JDToIslamic(JD jd, int scheme, JD epochOffset);

// The Umm al-Qura table: for each year 1356..1500 the JD of 1 Muharram and
// the lengths of its twelve months (bit m - 1 set: month m has 30 days).
inline constexpr int kUmmAlQuraFirstYear = 1356;
inline constexpr int kUmmAlQuraLastYear = 1500;
inline constexpr int kUmmAlQuraYears = kUmmAlQuraLastYear - kUmmAlQuraFirstYear + 1;

struct UmmAlQuraTable {
  explicit UmmAlQuraTable(CalendarEngine&) {}
  UmmAlQuraTable() = default;

  bool loaded = false;     // holds the file's years
  bool attempted = false;  // a load was tried, good or bad
  // yearStart[i] is 1 Muharram of 1356 + i; the last entry is the day after
  // 30 Dhu 'l-Hijja 1500.
  std::array<JD, kUmmAlQuraYears + 1> yearStart{};
  std::array<std::uint16_t, kUmmAlQuraYears> monthBits{};
};

// How a text of ummalqur.dat failed: too few lines, or a line that doesn't
// hold what it should.
enum class UmmAlQuraFault { None, TooFewLines, BadLine };
UmmAlQuraFault ParseUmmAlQura(std::string_view text, UmmAlQuraTable& table);

// Reads ummalqur.dat from the program folder into the engine's table. A
// missing or damaged file shows the run-time error box naming the file and
// gives false; the Umm al-Qura calendar then answers nothing.
bool LoadUmmAlQuraTable(Context& ctx);

// The engine's table; loaded quietly from the program folder on first use
// when start-up hasn't loaded it.
const UmmAlQuraTable& UmmAlQura(CalendarEngine& engine);

}  // namespace mc
