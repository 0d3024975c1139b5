// Regnal years of the English and British monarchs, from regnal.dat: one
// line per reign (or part of a reign), nine fields: name, first and last
// regnal year, start day, month, year, end day, month, year. Lines starting
// with ">" are headings. Reigns dated in the Julian calendar come first; the
// change comes within the line for "George II" whose first regnal year is
// 26, which starts on 14 September 1752 whatever its fields say. A last
// regnal year of -1 marks the reign in progress, an end year of -1 the year
// after the current one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/registry.h"

namespace mc {

struct RegnalRecord {
  std::string name;
  int firstYear = 0;  // regnal year at the start date
  int lastYear = 0;   // resolved for the reign in progress
  bool inProgress = false;
  CalDate start, end;      // as the file gives them, the end resolved
  bool gregorian = false;  // dates in the Gregorian calendar (else Julian)
  JD startJD = 0, endJD = 0;
};

// The records of regnal.dat in file order; nothing after the run-time error
// box (file missing, or a line that isn't nine fields of the right kinds).
std::optional<std::vector<RegnalRecord>> ReadRegnalFile(Context& ctx);

// Which report asks: the Gregorian one reads from the Gregorian "George II"
// line on, the Julian one from the top and names the reigns either side of a
// date that falls between two.
enum class RegnalStyle { Gregorian, Julian };

struct RegnalYear {
  std::string name;
  int year = 0;
};
struct RegnalAnswer {
  std::optional<RegnalYear> reign;
  // A successor whose first day is the reign's last: a day of accession
  // reports both monarchs.
  std::optional<RegnalYear> next;
  // Julian report, date outside every reign: the reigns on either side.
  std::string before, after;
};
// Nothing after a failure to read the file.
std::optional<RegnalAnswer> RegnalYearOf(Context& ctx, JD jd, RegnalStyle style);

// "King " or "Queen ".
std::string_view MonarchTitle(std::string_view name);

// The report lines: "Date is in regnal year 5 of King Charles III." and, on a
// day of accession, "Date is also in regnal year 1 of ..."; in the Julian
// report "Date occurred in the period between the reigns of John and Henry
// III" between two reigns. The caller decides whether the date is near
// enough to the present to be asked about.
std::vector<std::string> RegnalLines(Context& ctx, JD jd, RegnalStyle style);

}  // namespace mc
