// Calendar codes. Every date the program handles is a triple in one of these
// calendars, and every triple converts to a day number, the JD.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace mc {

enum class CalType : std::uint8_t {
  Greg,
  Jul,
  RevJul,
  Afg,
  NewAfg,
  Per,
  APer,
  Arm,
  Bah,
  Bal,
  Ban,
  Chi,
  Vie,
  Cop,
  Egy,
  Eth,
  Fas,
  ParShe,
  PerQad,
  Fre,
  Heb,
  HinLun,
  HinLun1,
  HinLun2,
  HinLun3,
  HinSol,
  Ind,
  Isl,
  UAQ,
  Jav,
  Sikh,
  Yor,
  // Day cycles and special codes of the conversion screens and validators.
  Haab,
  Tzo,
  Ton,
  Xih,
  May,
  JDA,
  Paw,
  Oly1,
  Oly2,
  Count
};
inline constexpr int kCalTypeCount = static_cast<int>(CalType::Count);

// A date in the numbering of its calendar. Months are internal positions:
// Hebrew Tishri = 1, Chinese month 0 the leap month, Hindu lunisolar values
// above 100 leap.
struct CalDate {
  int day = 0;
  int month = 0;
  int year = 0;
  friend bool operator==(const CalDate&, const CalDate&) = default;
};

using JD = std::int32_t;

// What the registry knows of a calendar.
struct CalendarInfo {
  CalType type;
  std::string_view code;        // "Greg"
  std::string_view listName;    // in the calendar lists; empty when not offered
  std::string_view reportName;  // in the all-calendars report; empty when absent
  std::string_view eraSuffix;   // " C.E.", or empty
  int firstYear;                // supported year range (0, 0: none)
  int lastYear;
  int monthCount;                // most months a year holds
  std::string_view messageName;  // name in the year-range messages
  bool anArticle;                // prompts say " an " rather than " a "
};

const CalendarInfo& InfoOf(CalType type);
std::string_view CodeOf(CalType type);
// The calendar of an exact code ("Greg", "HinLun1"), or nothing.
std::optional<CalType> CalTypeOfCode(std::string_view code);

bool IsHinduLunisolar(CalType type);

}  // namespace mc
