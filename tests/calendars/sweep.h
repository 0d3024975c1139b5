// Exhaustive checks shared by the calendar tests: every date of a range of
// years, in order, must take the next day number, and every day number must
// come back as its date.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "calendars/cal_type.h"
#include "calendars/registry.h"

namespace mc::test {

// Walks every day of every month of the years, in the calendar's own order of
// months (months of length 0 skipped, and Hebrew Adar II outside leap years).
// Checks that consecutive dates have consecutive day numbers, that each day
// number converts back to its date, and that no month has a length outside
// [minMonth, maxMonth]. Returns the number of days walked; stops at the
// first fault.
inline long SweepYears(CalendarEngine& engine, CalType type, int firstYear, int lastYear,
                       int minMonth, int maxMonth) {
  const int months = InfoOf(type).monthCount;
  long days = 0;
  JD expected = engine.DateToJD(type, 1, 1, firstYear);
  for (int y = firstYear; y <= lastYear; ++y) {
    for (int m = 1; m <= months; ++m) {
      if (type == CalType::Heb && m == 7 && !engine.IsLeapYear(type, y)) continue;
      const int length = engine.DaysInMonth(type, y, m);
      if (length == 0) continue;
      if (length < minMonth || length > maxMonth) {
        ADD_FAILURE() << CodeOf(type) << " month " << m << "/" << y << " has " << length << " days";
        return days;
      }
      for (int d = 1; d <= length; ++d, ++expected, ++days) {
        const JD jd = engine.DateToJD(type, d, m, y);
        const CalDate back = engine.JDToDate(type, jd);
        if (jd != expected || back != CalDate{d, m, y}) {
          ADD_FAILURE() << CodeOf(type) << " " << d << "/" << m << "/" << y << " -> " << jd
                        << " (expected " << expected << ") -> " << back.day << "/" << back.month
                        << "/" << back.year;
          return days;
        }
      }
    }
  }
  // The day after the last year is the first of the next.
  EXPECT_EQ(engine.DateToJD(type, 1, 1, lastYear + 1), expected) << CodeOf(type);
  return days;
}

// A reference table of tests/data: "jd,day,month,year" lines, ">" comments.
struct RefRow {
  JD jd;
  CalDate date;
};
inline std::vector<RefRow> ReadRefTable(const std::string& name) {
  std::ifstream in(std::string(CODEX_TEST_DATA_DIR) + "/calendar-refs/" + name + ".csv");
  EXPECT_TRUE(in) << name;
  std::vector<RefRow> rows;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '>') continue;
    RefRow r{};
    char c;
    std::istringstream ss(line);
    ss >> r.jd >> c >> r.date.day >> c >> r.date.month >> c >> r.date.year;
    rows.push_back(r);
  }
  return rows;
}

// Rows whose day number and date disagree with the engine either way.
inline std::vector<RefRow> Disagreements(CalendarEngine& engine, CalType type,
                                         const std::vector<RefRow>& rows) {
  std::vector<RefRow> bad;
  for (const RefRow& r : rows) {
    if (engine.JDToDate(type, r.jd) != r.date ||
        engine.DateToJD(type, r.date.day, r.date.month, r.date.year) != r.jd)
      bad.push_back(r);
  }
  return bad;
}

}  // namespace mc::test
