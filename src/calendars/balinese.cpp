// The Balinese Pawukon, a cycle of 210 days read through ten concurrent
// weeks and a dozen day lists, and the Balinese Saka calendar, a count of
// thirty-tithi months in a nineteen-year cycle of seven leap months, in which
// one tithi in 64 is dropped: the day that would be its own is the second day
// of a pengunalatri, and has no date of its own.
#include <algorithm>
#include <array>
#include <cstdint>

#include "calendars/cycles.h"
#include "calendars/cycles_detail.h"
#include "calendars/gregorian.h"
#include "core/errors.h"

namespace mc {

using cycles::Cycle;
using cycles::Shown;
using cycles::ShownAt;

namespace {

// Day lists of the 35-day cycle, by k = n mod 35 (0 read as 35), n the day of
// the Pawukon from 1; entry 0 unused.
constexpr std::array<std::uint8_t, 36> kWatekByK = {
    0, 6, 4, 8, 12, 3, 12, 5, 7,  9, 2, 5, 12, 11, 10, 11, 3, 11,
    4, 5, 4, 1, 9,  2, 4,  9, 10, 3, 3, 3, 7,  9,  6,  9,  6, 6,
};
constexpr std::array<std::uint8_t, 36> kRakamByK = {
    0, 5, 1, 4, 2, 6, 4, 5, 1, 3, 2, 6, 3, 5, 6, 3, 2, 6,
    3, 1, 6, 3, 2, 6, 5, 1, 4, 3, 2, 4, 5, 1, 4, 5, 1, 4,
};
constexpr std::array<std::uint8_t, 36> kParerasanByK = {
    0, 7, 2, 8, 10, 6, 10, 3, 4, 1, 5, 3, 10, 9, 8, 9, 6, 9,
    2, 3, 2, 5, 1,  5, 2,  1, 8, 6, 6, 6, 4,  1, 7, 1, 7, 7,
};
constexpr std::array<std::uint8_t, 36> kPancaSudaByK = {
    0, 1, 2, 3, 3, 4, 5, 1, 4, 6, 1, 1, 6, 2, 5, 2, 7, 4,
    4, 7, 6, 4, 7, 1, 2, 2, 3, 3, 6, 3, 5, 6, 7, 5, 1, 7,
};
constexpr std::array<std::uint8_t, 211> kEkajalaRasiByN = {
    0,  23, 7,  17, 7,  23, 23, 17, 9,  7,  13, 26, 24, 23, 20, 13, 7,  13, 25, 19, 6,  2,  14, 26,
    17, 20, 25, 23, 1,  10, 6,  15, 23, 7,  17, 23, 17, 25, 5,  23, 2,  2,  2,  12, 12, 5,  14, 12,
    26, 26, 26, 23, 23, 15, 25, 15, 6,  9,  25, 18, 25, 11, 15, 21, 25, 25, 12, 1,  17, 13, 1,  15,
    23, 12, 7,  16, 25, 18, 24, 12, 12, 6,  7,  6,  26, 7,  6,  12, 7,  25, 2,  8,  25, 25, 14, 15,
    26, 7,  12, 20, 7,  6,  25, 25, 7,  13, 25, 17, 13, 22, 6,  26, 20, 25, 25, 23, 7,  18, 18, 17,
    7,  17, 2,  5,  26, 17, 7,  9,  12, 12, 13, 25, 18, 18, 7,  2,  25, 25, 2,  25, 17, 20, 14, 27,
    23, 17, 8,  25, 17, 6,  17, 7,  3,  15, 18, 25, 2,  7,  13, 25, 20, 2,  15, 15, 23, 7,  8,  24,
    2,  12, 9,  24, 23, 17, 24, 7,  7,  12, 12, 14, 18, 25, 20, 5,  18, 5,  20, 26, 12, 23, 18, 17,
    17, 25, 15, 2,  24, 4,  2,  23, 25, 18, 25, 20, 14, 6,  2,  25, 7,  25, 17,
};

// Position of each Pawukon day n = 1..210 in the list of Ekajala Rasi.
static_assert(kEkajalaRasiByN[1] == 23 && kEkajalaRasiByN[143] == 27 && kEkajalaRasiByN[210] == 17);

// Ingkel Jejepan by n mod 6.
constexpr std::array<std::uint8_t, 6> kIngkelJejepanByN = {2, 1, 5, 4, 3, 6};

// Urip of the five- and seven-day weeks, which give the ten-day week.
constexpr std::array<int, 5> kPancawaraUrip = {5, 9, 7, 4, 8};
constexpr std::array<int, 7> kSaptawaraUrip = {5, 4, 3, 7, 8, 6, 9};

// ---- Balinese Saka ----

bool BalLeap(int year) {
  switch (FloorMod(year, 19)) {
    case 0:
    case 3:
    case 6:
    case 8:
    case 11:
    case 14:
    case 16:
      return true;
    default:
      return false;
  }
}

int BalMonthCount(int year) {
  return BalLeap(year) ? 13 : 12;
}

// The day of a tithi. -1 for the second day of a pengunalatri, for the day
// skipped where the count was set back in 1921, and for a month or day
// outside the year.
JD BalDateToJD(CalendarEngine&, int day, int month, int year) {
  if (month < 1 || month > BalMonthCount(year) || day < 1 || day > 30) return -1;
  if (day == 24 && month == 10 && year == 1921) return -1;
  const bool beforeSeam =
      year < 1921 || (year == 1921 && (month < 10 || (month == 10 && day < 24)));
  const long long base = beforeSeam ? 1749976 : 1749975;
  long long x = day + 30LL * (month - 1) + 360LL * (year - 1) + 210 * FloorDiv(year - 1, 19);
  int k = FloorMod(year - 1, 19);
  if (k != 0 && year >= 2) x += 30LL * LeapYearsInBalCycle(k);
  long long t = x - 19;
  if (FloorMod(t, 64) == 0) return -1;
  return static_cast<JD>(x - FloorDiv(t, 64) + base);
}

CalDate BalJDToDate(CalendarEngine& engine, JD jd) {
  const long long b = jd >= GregorianToJD(1, 1, 2000) ? 1749975 : 1749976;
  int year = static_cast<int>(FloorDiv(jd - b, 365)) + 1;  // at or above the true year
  JD start = BalineseYearStart(engine, year);
  while (start > jd) start = BalineseYearStart(engine, --year);
  int n = jd - start + 1;
  int month = n / 30 + (n % 30 != 0 ? 1 : 0);
  int day = n - 30 * (month - 1);
  // Dropped tithis put the true date at or after this one: walk forward.
  while (BalDateToJD(engine, day, month, year) < jd) {
    if (++day > 30) {
      day = 1;
      if (++month > BalMonthCount(year)) {
        month = 1;
        ++year;
      }
    }
  }
  return CalDate{day, month, year};
}

bool BalIsLeapYear(CalendarEngine&, int year) {
  return BalLeap(year);
}

int BalDaysInMonth(CalendarEngine&, int year, int month) {
  return month >= 1 && month <= BalMonthCount(year) ? 30 : 0;
}

}  // namespace

// ---- Pawukon ----

int PawukonDay(JD jd) {
  return FloorMod(static_cast<long long>(jd) - 146, 210);
}

int Triwara(JD jd) {
  return PawukonDay(jd) % 3 + 1;
}
int Pancawara(JD jd) {
  return (PawukonDay(jd) + 1) % 5 + 1;
}
int Sadwara(JD jd) {
  return PawukonDay(jd) % 6 + 1;
}
int Saptawara(JD jd) {
  return PawukonDay(jd) % 7 + 1;
}
int Asatawara(JD jd) {
  int d = PawukonDay(jd);
  return std::max(6, 4 + FloorMod(d - 70, 210)) % 8 + 1;
}
int Sangawara(JD jd) {
  return std::max(0, PawukonDay(jd) - 3) % 9 + 1;
}
int Dasawara(JD jd) {
  int p = kPancawaraUrip[static_cast<std::size_t>(Pancawara(jd) - 1)];
  int s = kSaptawaraUrip[static_cast<std::size_t>(Saptawara(jd) - 1)];
  return (p + s) % 10 + 1;
}
int Dwiwara(JD jd) {
  return Cycle(Dasawara(jd), 2);
}
int Caturwara(JD jd) {
  return Cycle(Asatawara(jd), 4);
}
bool Luang(JD jd) {
  return Dasawara(jd) % 2 == 0;
}
int WukuOf(JD jd) {
  return PawukonDay(jd) / 7 + 1;
}

std::string PawukonLine(Context& ctx, JD jd) {
  std::string line = Luang(jd) ? "Luang, " : "";
  line += ShownAt(ctx, kDwiwaraNames, Dwiwara(jd)) + ", ";
  line += ShownAt(ctx, kTriwaraNames, Triwara(jd)) + ", ";
  line += ShownAt(ctx, kCaturwaraNames, Caturwara(jd)) + ", ";
  line += ShownAt(ctx, kPancawaraNames, Pancawara(jd)) + ", ";
  line += ShownAt(ctx, kSadwaraNames, Sadwara(jd)) + ", ";
  line += ShownAt(ctx, kSaptawaraNames, Saptawara(jd)) + ", ";
  line += ShownAt(ctx, kAsatawaraNames, Asatawara(jd)) + ", ";
  line += ShownAt(ctx, kSangawaraNames, Sangawara(jd)) + ", ";
  line += ShownAt(ctx, kDasawaraNames, Dasawara(jd));
  return line;
}

std::vector<std::string> PawukonDetailLines(Context& ctx, JD jd) {
  const int n = PawukonDay(jd) + 1;
  const int wuku = WukuOf(jd);
  const auto k = static_cast<std::size_t>(Cycle(n, 35));
  const int seven = Cycle(n, 7);
  return {
      "Wuku           = " + ShownAt(ctx, kWukuNames, wuku),
      "Ingkel         = " + ShownAt(ctx, kIngkelNames, Cycle(wuku, 6)),
      "Ingkel Jejepan = " + ShownAt(ctx, kIngkelJejepanNames, kIngkelJejepanByN[n % 6]),
      "Watek          = " + ShownAt(ctx, kWatekNames, kWatekByK[k]),
      "Rakam          = " + ShownAt(ctx, kRakamNames, kRakamByK[k]),
      "Parerasan      = " + ShownAt(ctx, kParerasanNames, kParerasanByK[k]),
      "Panca Suda     = " + ShownAt(ctx, kPancaSudaNames, kPancaSudaByK[k]),
      "Dewa           = " + ShownAt(ctx, kDewaNames, seven),
      "Wayang         = " + ShownAt(ctx, kWayangNames, seven),
      "Taru           = " + ShownAt(ctx, kTaruNames, seven),
      "Manuk          = " + ShownAt(ctx, kManukNames, seven),
      "Sato           = " + ShownAt(ctx, kSatoNames, seven),
      "Lintang        = " + ShownAt(ctx, kLintangNames, static_cast<int>(k)),
      "Ekajala Rasi   = " +
          ShownAt(ctx, kEkajalaRasiNames, kEkajalaRasiByN[static_cast<std::size_t>(n)]),
  };
}

// ---- Balinese Saka ----

int LeapYearsInBalCycle(int k) {
  static constexpr std::array<int, 19> kLeapsBefore = {7, 0, 0, 1, 1, 1, 2, 2, 3, 3,
                                                       3, 4, 4, 4, 5, 5, 6, 6, 6};
  return kLeapsBefore[static_cast<std::size_t>(FloorMod(k, 19))];
}

JD BalineseYearStart(CalendarEngine& engine, int year) {
  JD start = BalDateToJD(engine, 1, 1, year);
  return start == -1 ? BalDateToJD(engine, 2, 1, year) : start;
}

std::string BalMonthName(Context& ctx, int year, int month) {
  const int r = FloorMod(year, 19);
  const bool leap = BalLeap(year);
  const bool typeA = leap && (r == 0 || r == 6 || r == 11);
  const bool typeB = leap && !typeA;
  int place = 0;
  if (month == 1 || month == 2) {
    place = month;
  } else if (month == 3) {
    place = typeA ? 3 : 4;
  } else if (month == 4) {
    place = typeA ? 4 : typeB ? 5 : 6;
  } else if (month >= 5 && month <= 12) {
    place = leap ? month + 1 : month + 2;
  } else if (month == 13 && leap) {
    place = 14;
  }
  if (place == 0) {
    ShowError(ctx, Err("Invalid month value."));
    return "";
  }
  return Shown(ctx, kBalineseSakaMonths[static_cast<std::size_t>(place)]);
}

std::string BalDayText(int day) {
  return day > 15 ? " Pangelong " + std::to_string(day - 15) : " Penanggal " + std::to_string(day);
}

std::string BalineseSakaText(Context& ctx, JD jd) {
  CalDate d = Calendars(ctx).JDToDate(CalType::Bal, jd);
  return std::string(kWeekdayNames[static_cast<std::size_t>(WeekdayOfJD(jd))]) + ", " +
         BalMonthName(ctx, d.year, d.month) + BalDayText(d.day) + ", " + std::to_string(d.year);
}

namespace cycles {

void RegisterBalineseRules(RulesTable& table) {
  table[static_cast<int>(CalType::Bal)] =
      CalendarRules{BalDateToJD, BalJDToDate, BalIsLeapYear, BalDaysInMonth};
}

}  // namespace cycles

}  // namespace mc
