// The import file both reminder benchmarks fill their store from.
#pragma once

#include <filesystem>
#include <fstream>

#include "calendars/gregorian.h"

namespace mc::bench {

// newrems.txt of ten thousand reminders over the year from 24 November 2026,
// a few dozen a day, every tenth an every-year one with a field.
inline void WriteReminderImportFile(const std::filesystem::path& folder) {
  std::ofstream out(folder / "newrems.txt", std::ios::binary);
  const JD start = GregorianToJD(24, 11, 2026);
  for (int i = 0; i < 10000; ++i) {
    const JD jd = start + (i * 37) % 365;
    const int y = jd >= GregorianToJD(1, 1, 2027) ? 2027 : 2026;
    int m = 12;
    while (GregorianToJD(1, m, y) > jd) --m;
    const int d = jd - GregorianToJD(1, m, y) + 1;
    if (i % 10 == 0 && !(d == 29 && m == 2))
      out << d << ',' << m << ",every,Anniversary <1990!> number " << i << "\r\n";
    else
      out << d << ',' << m << ',' << y << ",Reminder number " << i << "\r\n";
  }
}

}  // namespace mc::bench
