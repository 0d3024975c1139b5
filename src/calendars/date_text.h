// Dates as users type them: one routine splits and checks a text for any
// calendar and leaves the triple in internal numbering, another writes a
// triple back as the text a user would type. Failures are shown here, through
// the error catalogue; callers only test for a result.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "calendars/registry.h"

namespace mc {

// "d/m/y" (Gregorian in the user's date order; Chinese and Vietnamese
// "d/m/y/c"), leap marks "L" where a calendar has them.
std::optional<CalDate> ParseDateText(Context& ctx, CalType type, std::string_view text);

std::string FormatDateText(Context& ctx, CalType type, int day, int month, int year);
inline std::string FormatDateText(Context& ctx, CalType type, const CalDate& d) {
  return FormatDateText(ctx, type, d.day, d.month, d.year);
}

// The year of a text, range-checked for the calendar; 0 after a message.
int ValidateYearText(Context& ctx, CalType type, std::string_view text);

// The first supported day of a calendar.
JD FirstJD(Context& ctx, CalType type);

// The supported range of bare day numbers: Julian 1 January 7 to Gregorian
// 31 December 9999.
JD FirstJulianDay();
JD LastJulianDay();

// A day number typed by the user: 0 when empty, or after "Julian Day value is
// outside specified range.".
JD CheckJDText(Context& ctx, std::string_view text);

struct LongCount {
  int baktun = 0, katun = 0, tun = 0, uinal = 0, kin = 0;
};
// A Mayan long count "B.K.T.U.D"; nothing after a message.
std::optional<LongCount> ParseLongCount(Context& ctx, std::string_view text);

// Balinese Saka months between the user's numbering (leap months "11L" and
// "12L", written as 111 and 112) and the engine's.
int BalineseInternalMonth(CalendarEngine& engine, int userMonth, int year);  // 0: none
std::string BalineseUserMonthText(CalendarEngine& engine, int internalMonth, int year);

}  // namespace mc
