#include "views/year_pages.h"

#include <algorithm>
#include <array>

#include "calendars/chinese.h"
#include "calendars/cycles.h"
#include "calendars/gregorian.h"
#include "calendars/hindu.h"
#include "calendars/names.h"
#include "calendars/solar_fixed.h"
#include "core/text_util.h"
#include "views/calendar_views.h"

namespace mc::views {

namespace {

using C = CalType;
constexpr std::string_view kEnd = "\r\n";

// One month of a page: its heading and the numbers of its day cells in order.
struct Block {
  std::string name;
  std::vector<int> days;
};

std::string Blanks(int n) {
  return std::string(static_cast<std::size_t>(std::max(0, n)), ' ');
}

std::string Rule(int n) {
  return std::string(static_cast<std::size_t>(n), '-');
}

// "Jan 14, 1923" of a day, in the Gregorian or (before 15 October 1582)
// the Julian calendar.
std::string DateOf(CalendarEngine& engine, JD jd) {
  CalDate d = CivilDate(engine, jd);
  return MonthDayYear(d.day, d.month, d.year);
}

// "Start Date = Jan 1, 2026         End Date = Dec 31, 2026 (Gregorian)", or
// with both dates Julian when the start is before the change of calendar.
std::string DateRange(CalendarEngine& engine, JD start, JD end, int gregorianGap) {
  if (start >= kGregorianStart)
    return "Start Date = " + DateOf(engine, start) + Blanks(gregorianGap) +
           "End Date = " + DateOf(engine, end) + " (Gregorian)";
  CalDate s = JDToJulian(engine, start), e = JDToJulian(engine, end);
  return "Start Date = " + MonthDayYear(s.day, s.month, s.year) + " C.E.    " +
         "End Date = " + MonthDayYear(e.day, e.month, e.year) + " C.E. (Julian)";
}

// Month blocks side by side, seven columns of three characters each with a
// gap column between blocks, `rows` rows high. The first block starts in
// `column` (1..7); `column` is left where the next month would start.
// Rows that stay blank across the band are left out.
std::string Band(const std::vector<Block>& blocks, int& column, int rows, int startDay) {
  const int n = static_cast<int>(blocks.size());
  const int width = 8 * n - 1;
  std::vector<std::vector<std::string>> grid(
      static_cast<std::size_t>(rows + 1),
      std::vector<std::string>(static_cast<std::size_t>(width + 1), "   "));
  std::string heading;
  int offset = 0;
  for (int k = 0; k < n; ++k) {
    const Block& b = blocks[static_cast<std::size_t>(k)];
    const int len = static_cast<int>(DisplayWidth(b.name));
    heading += Blanks(11 + 24 * k - len / 2 - static_cast<int>(DisplayWidth(heading))) + b.name;
    int row = 1, col = column + offset;
    for (int d : b.days) {
      if (row <= rows)
        grid[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] =
            PadLeft(std::to_string(d), 3);
      if (++col % 8 == 0) {
        ++row;
        col = offset + 1;
      }
    }
    column = col & 7;
    offset += 8;
  }
  std::string text = heading + std::string(kEnd);
  for (int k = 0; k < n; ++k) text += (k > 0 ? "   " : "") + std::string(WeekLetters(startDay));
  text += kEnd;
  for (int r = 1; r <= rows; ++r) {
    std::string line;
    for (int c = 1; c <= width; ++c)
      line += grid[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
    if (line.find_first_not_of(' ') == std::string::npos) continue;
    text += line + std::string(kEnd);
  }
  return text + std::string(kEnd);
}

// Months laid in bands of three (the last band may hold fewer).
std::string Bands(const std::vector<Block>& months, int& column, int rows, int startDay) {
  std::string text;
  for (std::size_t i = 0; i < months.size(); i += 3) {
    std::vector<Block> band(
        months.begin() + static_cast<std::ptrdiff_t>(i),
        months.begin() + static_cast<std::ptrdiff_t>(std::min(i + 3, months.size())));
    text += Band(band, column, rows, startDay);
  }
  return text;
}

// A month on its own after the bands (a thirteenth month): a one-block grid
// whose blank rows stay, of which `printedRows` are printed.
std::string TrailingBlock(const Block& b, int column, int startDay, int printedRows) {
  std::array<std::array<std::string, 8>, 7> grid;
  for (auto& row : grid) row.fill("   ");
  int row = 1, col = column;
  for (int d : b.days) {
    if (row <= 6)
      grid[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] =
          PadLeft(std::to_string(d), 3);
    if (++col == 8) {
      ++row;
      col = 1;
    }
  }
  const int len = static_cast<int>(DisplayWidth(b.name));
  std::string text = Blanks((19 - len) / 2 + 2) + b.name + std::string(kEnd) +
                     std::string(WeekLetters(startDay)) + std::string(kEnd);
  for (int r = 1; r <= printedRows; ++r) {
    for (int c = 1; c <= 7; ++c)
      text += grid[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
    text += kEnd;
  }
  return text + std::string(kEnd);
}

std::string JoinLines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (std::string_view l : lines) {
    if (!text.empty()) text += kEnd;
    text += l;
  }
  return text;
}

// ---- The shared layout ----

bool HasThirteenthBlock(CalendarEngine& engine, CalType t, int year) {
  switch (t) {
    case C::Arm:
    case C::Cop:
    case C::Egy:
    case C::Eth:
    case C::Fas:
    case C::Fre:
    case C::ParShe:
    case C::PerQad:
      return true;
    case C::Bal:
    case C::Heb:
      return engine.IsLeapYear(t, year);
    default:
      return false;
  }
}

std::vector<int> DaysOfMonth(CalendarEngine& engine, CalType t, int month, int year) {
  std::vector<int> days;
  if (t == C::Greg && year == 1582 && month == 10) {
    // October 4 is followed by October 15.
    for (int d = 1; d <= 21; ++d) days.push_back(d < 5 ? d : d + 10);
  } else if (t == C::RevJul && year == 1923 && month == 10) {
    for (int d = 14; d <= 31; ++d) days.push_back(d);
  } else if (t == C::Bal) {
    for (int d = 1; d <= 30; ++d)
      if (engine.DateToJD(t, d, month, year) != -1) days.push_back(d);
  } else {
    for (int d = 1; d <= engine.DaysInMonth(t, year, month); ++d) days.push_back(d);
  }
  return days;
}

std::string SharedPage(Context& ctx, CalType t, std::string_view caption, std::string_view era,
                       int year) {
  CalendarEngine& engine = Calendars(ctx);
  const int startDay = ctx.settings.startDay;
  const bool greg1582 = t == C::Greg && year == 1582;
  const bool rev1923 = t == C::RevJul && year == 1923;

  JD start = 0, end = 0;
  if (rev1923) {
    start = JulianToJD(1, 1, 1923);
    end = GregorianToJD(31, 12, 1923);
  } else if (t == C::Bal) {
    start = BalineseYearStart(engine, year);
    end = BalineseYearStart(engine, year + 1) - 1;
  } else {
    start = engine.DateToJD(t, 1, 1, year);
    end = engine.DateToJD(t, 1, 1, year + 1) - 1;
  }
  // January 1 of 1582 (a Monday) and of 1923 (a Sunday) in the Julian calendar.
  const int weekday = greg1582 ? 2 : rev1923 ? 1 : WeekdayOfJD(start);
  int column = WeekColumn(weekday, startDay);

  std::string text;
  if (greg1582)
    text =
        "*** Julian/Gregorian Calendar for 1582 ***\r\n\r\n"
        "10 days omitted in October -- page/scroll down for more details\r\n\r\n";
  else if (rev1923)
    text =
        "*** Julian/Revised Julian Calendar for 1923 ***\r\n\r\n"
        "13 days omitted in October -- page/scroll down for more details\r\n\r\n";
  else
    text = "*** " + std::string(caption) + " Calendar for " + std::to_string(year) +
           std::string(era) + " ***\r\n\r\n";
  if (t != C::Greg) text += DateRange(engine, start, end, 9) + "\r\n\r\n";

  // Twelve months in four bands; Adar II only in a Hebrew leap year.
  const bool hebrewCommon = t == C::Heb && !engine.IsLeapYear(C::Heb, year);
  std::vector<Block> months;
  for (int m = 1; months.size() < 12; ++m) {
    if (hebrewCommon && m == 7) continue;
    months.push_back({MonthName(ctx, t, m, year), DaysOfMonth(engine, t, m, year)});
  }
  text += Bands(months, column, 6, startDay);

  if (HasThirteenthBlock(engine, t, year)) {
    Block b{t == C::Bal ? Shown(ctx, kBalineseSakaMonths[14]) : MonthName(ctx, t, 13, year),
            DaysOfMonth(engine, t, 13, year)};
    text += TrailingBlock(b, column, startDay, t == C::Fre ? 1 : 6);
  }

  if (greg1582)
    text += JoinLines({"In February 1582, the Catholic Church decreed that a new calendar",
                       "system be introduced by dropping 10 days in October 1582, with",
                       "October 15 following October 4. The new Gregorian calendar differs",
                       "from the Julian calendar in that century years (1600, 1700, 1800 ..)",
                       "are only leap years if exactly divisible by 400."});
  else if (rev1923)
    text += JoinLines({"In 1923, many Eastern Orthodox churches adopted a Revised Julian",
                       "calendar system. The first 13 days in October 1923 were dropped",
                       "from the Julian calendar for that year, bringing the revised",
                       "calendar in line with the Gregorian calendar. The revised calendar",
                       "will remain identical to the Gregorian calendar until the end of",
                       "February, 2800. From then onwards, minor differences between dates",
                       "in the two calendars will occur because of different leap year",
                       "rules for century years (2000, 2100, 2200 ...)."});
  else if (t == C::Fre)
    text += JoinLines({"Strictly speaking the French Revolutionary calendar did not use 7-day",
                       "weeks as shown above although, for practical reasons, it is convenient",
                       "to show it this way. Instead, each month in the French Revolutionary",
                       "calendar was divided into three décades each containing 10 days named,",
                       "in order, Primidi, Duodi, Tridi, Quartidi, Quintidi, Sextidi, Septidi,",
                       "Octidi, Nonidi and Decadi."});
  return text;
}

// ---- Baha'i ----

std::string BahaiPage(Context& ctx, int year) {
  CalendarEngine& engine = Calendars(ctx);
  const JD start = engine.DateToJD(C::Bah, 1, 1, year);
  const JD end = engine.DateToJD(C::Bah, 1, 1, year + 1) - 1;
  const BahaiCycle cycle = BahaiCycleOfYear(year);
  std::string text = "*** Baha'i Calendar for " + std::to_string(year) + " B.E. - Kull-i-Shay " +
                     std::to_string(cycle.kullIShay) + ", Vahid " + std::to_string(cycle.vahid) +
                     ", Year " + std::to_string(cycle.yearOfVahid) + " (" +
                     Shown(ctx, kBahaiVahidYears[static_cast<std::size_t>(cycle.yearOfVahid)]) +
                     ")" + " ***\r\n\r\n";
  text += "Start Date = " + DateOf(engine, start) + Blanks(18) +
          "End Date = " + DateOf(engine, end) + "\r\n\r\n";
  std::vector<Block> months;
  for (int m = 1; m <= 20; ++m)
    months.push_back({MonthName(ctx, C::Bah, m, year), DaysOfMonth(engine, C::Bah, m, year)});
  int column = WeekColumn(WeekdayOfJD(start), ctx.settings.startDay);
  return text + Bands(months, column, 4, ctx.settings.startDay);
}

// ---- Chinese and Vietnamese ----

std::string LunarPage(Context& ctx, CalType t, int year) {
  CalendarEngine& engine = Calendars(ctx);
  const int startDay = ctx.settings.startDay;
  const LunarYearTable table = BuildLunarYear(engine, t, year - kChineseYearOffset);
  const Sexagenary s = SexagenaryOf(year);
  const int stem = s.year % 10 == 0 ? 10 : s.year % 10;
  const int branch = s.year % 12 == 0 ? 12 : s.year % 12;
  const std::string entry = BranchEntry(ctx, t, branch);
  std::string text = std::string("*** ") + (t == C::Vie ? "Vietnamese" : "Chinese") +
                     " Calendar for " + std::to_string(year) + ", " + StemName(ctx, t, stem) + "-" +
                     BranchOfEntry(entry) + " - The Year of the " + AnimalOfBranch(entry) +
                     " ***\r\n\r\n";
  text += "Sexagesimal Cycle " + std::to_string(s.cycle) + ", Year Within Cycle " +
          std::to_string(s.year) + "\r\n\r\n";
  text += "Start Date = " + DateOf(engine, table.yearStart) + Blanks(18) +
          "End Date = " + DateOf(engine, table.yearEnd) + "\r\n\r\n";

  auto block = [&](int row) {
    Block b{LunarRowCaption(table, row), {}};
    for (int d = 1; d <= table.monthLength[static_cast<std::size_t>(row)]; ++d) b.days.push_back(d);
    return b;
  };
  std::vector<Block> months;
  for (int row = 1; row <= std::min(12, table.monthCount); ++row) months.push_back(block(row));
  int column = WeekColumn(WeekdayOfJD(table.monthStart[1]), startDay);
  text += Bands(months, column, 6, startDay);
  if (table.monthCount == 13) text += TrailingBlock(block(13), column, startDay, 6);

  if (t == C::Chi) {
    text += "Major Solar Terms (UT)\r\n" + Rule(45) + "\r\n";
    text += "Chinese" + Blanks(7) + "English" + Blanks(12) + "Date\r\n";
    text += "Name" + Blanks(10) + "Meaning\r\n" + Rule(45) + "\r\n";
    for (int i = 1; i <= 15; ++i) {
      const JD day = table.terms[static_cast<std::size_t>(i)];
      if (day < table.yearStart || day > table.yearEnd) continue;
      const CalDate g = JDToGregorian(engine, day);
      text += Shown(ctx, kChineseSolarTerms[static_cast<std::size_t>(i > 12 ? i - 12 : i)]) +
              MonthDayPadded(g.day, g.month) + ", " + std::to_string(g.year) + "\r\n";
    }
    text += Rule(45) + "\r\n\r\n";
    text += "Month Starts\r\n" + Rule(32) + "\r\n";
    text += "Month" + Blanks(5) + "Leap" + Blanks(6) + "Start\r\n";
    text += "Number" + Blanks(4) + "Month?" + Blanks(4) + "Date\r\n" + Rule(32) + "\r\n";
    for (int row = 1; row <= table.monthCount; ++row) {
      const auto r = static_cast<std::size_t>(row);
      const bool leap = table.monthNumber[r] == 0;
      const int number = leap && row > 1 ? table.monthNumber[r - 1] : table.monthNumber[r];
      const CalDate g = JDToGregorian(engine, table.monthStart[r]);
      text += PadRight(std::to_string(number), 10) + PadRight(leap ? "Yes" : "No ", 10) +
              MonthDayPadded(g.day, g.month) + ", " + std::to_string(g.year) + "\r\n";
      if (!leap && table.monthNumber[r] == 12) break;
    }
    text += Rule(32) + "\r\n";
  }
  return text;
}

// ---- Hindu lunisolar ----

std::string HinduPage(Context& ctx, CalType t, int year) {
  CalendarEngine& engine = Calendars(ctx);
  const int startDay = ctx.settings.startDay;
  const char* reckoning = t == C::HinLun1   ? "Ashada"
                          : t == C::HinLun2 ? "Kartika"
                          : t == C::HinLun3 ? "Rajasthan"
                                            : "Chaitra";
  std::string text = std::string("*** Hindu Lunisolar ") + reckoning + " Calendar for " +
                     std::to_string(year) + " V.E." + " ***\r\n\r\n";

  // Walk the year day by day: each month's lunar days as they fall.
  struct Month {
    int number = 0;  // above 100: leap
    std::vector<int> days;
    JD first[2] = {0, 0}, last[2] = {0, 0};  // the two halves' first and last days
  };
  std::vector<Month> months;
  const JD start = HinduYearStart(engine, t, year);
  JD end = start;
  for (JD jd = start; start != 0; ++jd) {
    CalDate d = engine.JDToDate(t, jd);
    if (d.year != year || jd - start > 400) break;
    end = jd;
    if (months.empty() || months.back().number != d.month) months.push_back({d.month, {}, {}, {}});
    Month& m = months.back();
    const int day = d.day > 100 ? d.day - 100 : d.day;
    m.days.push_back(day);
    const int half = day <= 15 ? 0 : 1;
    if (m.first[half] == 0) m.first[half] = jd;
    m.last[half] = jd;
  }
  text += DateRange(engine, start, end, 18) + "\r\n\r\n";

  std::vector<Block> blocks;
  for (const Month& m : months) blocks.push_back({MonthName(ctx, t, m.number, year), m.days});
  int column = WeekColumn(WeekdayOfJD(start), startDay);
  text += Bands(blocks, column, 6, startDay);

  // The two halves of each month: from new moon the bright half first, from
  // full moon (Rajasthan) the dark half first.
  const bool fullMoon = t == C::HinLun3;
  text += std::string(fullMoon ? "Dark and Bright Periods" : "Bright and Dark Periods") + "\r\n";
  text += Rule(58) + "\r\n";
  text += "Month" + Blanks(10) + "Leap" + Blanks(4) +
          (fullMoon ? "Dark Half" + Blanks(11) + "Bright Half"
                    : "Bright Half" + Blanks(9) + "Dark Half") +
          "\r\n";
  text += Blanks(15) + "Month?\r\n" + Rule(58) + "\r\n";
  auto span = [&](JD first, JD last) {
    if (first == 0) return Blanks(15);
    CalDate a = CivilDate(engine, first), b = CivilDate(engine, last);
    return MonthDayPadded(a.day, a.month) + " - " + MonthDayPadded(b.day, b.month);
  };
  int vikrama = year;
  if (t == C::HinLun1 || t == C::HinLun2)
    vikrama =
        hindu::ConvertHinduMonth(t, months.empty() ? 1 : months.front().number, year, C::HinLun)
            .year;
  for (const Month& m : months) {
    const int v = t == C::HinLun1 || t == C::HinLun2
                      ? hindu::ConvertHinduMonth(t, m.number, year, C::HinLun).year
                      : year;
    if (v != vikrama) {
      text += Blanks(23) + std::to_string(v) + "\r\n";
      vikrama = v;
    }
    const bool leap = m.number > 100;
    const std::string name = Shown(
        ctx, kHinduCalendarLunarMonths[static_cast<std::size_t>(ChaitraMonthNumber(t, m.number))]);
    text += PadRight(name, 16) + Blanks(4) + (leap ? "Yes" : "No ") + " " +
            span(m.first[0], m.last[0]) + Blanks(4) + span(m.first[1], m.last[1]) + "\r\n";
  }
  text += Rule(58) + "\r\n";
  return text;
}

// ---- Javanese ----

// The urip of the days of the seven- and five-day weeks: their sum is the neptu.
constexpr std::array<int, 8> kWeekdayUrip = {0, 5, 4, 3, 7, 8, 6, 9};
constexpr std::array<int, 6> kPasaranUrip = {0, 5, 9, 7, 4, 8};

std::string JavanesePage(Context& ctx, int year) {
  CalendarEngine& engine = Calendars(ctx);
  const JD start = engine.DateToJD(C::Jav, 1, 1, year);
  const JD end = engine.DateToJD(C::Jav, 1, 1, year + 1) - 1;
  std::string text = "*** Javanese Pawukon/Pasaran Calendar for Year " + std::to_string(year) +
                     " A.J. ***\r\n\r\n";
  text += DateRange(engine, start, end, 9) + "\r\n\r\n";
  text += "Kurup = " + std::string(JavaneseKurup(year)) + "\r\n";
  text += "Windu = " + Shown(ctx, kJavaneseWindu[static_cast<std::size_t>(JavaneseWindu(year))]) +
          "\r\n";
  text += "Taun  = " + Shown(ctx, kJavaneseTaun[static_cast<std::size_t>(JavaneseTaun(year))]) +
          "\r\n\r\n";
  text += Rule(87) + "\r\n";
  text += PadRight("Date", 17) + PadRight("Gregorian Date", 20) + PadRight("Wuku", 15) +
          PadRight("Dina", 19) + PadRight("Pasar", 8) + "Neptu\r\n";
  text += Rule(87) + "\r\n";
  int month = 0;
  for (JD jd = start; jd <= end; ++jd) {
    const CalDate d = engine.JDToDate(C::Jav, jd);
    if (d.month != month && month != 0) text += "\r\n";
    month = d.month;
    const int weekday = WeekdayOfJD(jd);
    const int pasaran = JavanesePasaran(jd);
    const CalDate g = CivilDate(engine, jd);
    text += PadRight(Shown(ctx, kJavaneseMonths[static_cast<std::size_t>(d.month)]) + " " +
                         std::to_string(d.day),
                     17) +
            PadRight(std::string(Left(kWeekdayNames[static_cast<std::size_t>(weekday)], 3)) + " " +
                         MonthDayYear(g.day, g.month, g.year),
                     20) +
            PadRight(Shown(ctx, kWukuNames[static_cast<std::size_t>(WukuOf(jd))]), 15) +
            PadRight(Shown(ctx, kJavaneseWeekdays[static_cast<std::size_t>(weekday)]), 19) +
            PadRight(Shown(ctx, kJavanesePasaran[static_cast<std::size_t>(pasaran)]), 8) +
            PadLeft(std::to_string(kWeekdayUrip[static_cast<std::size_t>(weekday)] +
                                   kPasaranUrip[static_cast<std::size_t>(pasaran)]),
                    5) +
            "\r\n";
  }
  text += Rule(87) + "\r\n";
  return text;
}

// ---- Balinese Pawukon ----

// The value of a detail line "Name   = value".
std::string DetailValue(const std::string& line) {
  const auto at = line.find("= ");
  return at == std::string::npos ? "" : line.substr(at + 2);
}

std::string PawukonPage(Context& ctx, int year) {
  const JD start = GregorianToJD(1, 1, year), end = GregorianToJD(31, 12, year);
  std::string text =
      "*** Balinese Pawukon Calendar for Gregorian Year " + std::to_string(year) + " ***\r\n\r\n";

  // The ten concurrent weeks, one row a day, a blank line between wukus.
  constexpr std::array<int, 12> kWidths = {8, 15, 7, 7, 8, 8, 9, 9, 11, 8, 9, 7};
  constexpr std::array<std::string_view, 12> kHeads = {"Date",  "Wuku",  "Eka",   "Dwi",
                                                       "Tri",   "Catur", "Panca", "Sad",
                                                       "Sapta", "Asta",  "Sanga", "Dasa"};
  int rule = 0;
  for (int w : kWidths) rule += w;
  std::string head;
  for (std::size_t i = 0; i < kHeads.size(); ++i) head += PadRight(kHeads[i], kWidths[i]);
  text += Rule(rule) + "\r\n" + TrimCopy(head) + "\r\n" + Rule(rule) + "\r\n";
  CalendarEngine& engine = Calendars(ctx);
  for (JD jd = start; jd <= end; ++jd) {
    if (jd > start && WukuOf(jd) != WukuOf(jd - 1)) text += "\r\n";
    const CalDate g = JDToGregorian(engine, jd);
    std::string row = PadRight(MonthDayPadded(g.day, g.month), 8) +
                      PadRight(Shown(ctx, kWukuNames[static_cast<std::size_t>(WukuOf(jd))]), 15) +
                      (Luang(jd) ? "Luang  " : Blanks(7));
    auto name = [&](auto& list, int index, int width) {
      row += PadRight(Shown(ctx, list[static_cast<std::size_t>(index)]),
                      static_cast<std::size_t>(width));
    };
    name(kDwiwaraNames, Dwiwara(jd), kWidths[3]);
    name(kTriwaraNames, Triwara(jd), kWidths[4]);
    name(kCaturwaraNames, Caturwara(jd), kWidths[5]);
    name(kPancawaraNames, Pancawara(jd), kWidths[6]);
    name(kSadwaraNames, Sadwara(jd), kWidths[7]);
    name(kSaptawaraNames, Saptawara(jd), kWidths[8]);
    name(kAsatawaraNames, Asatawara(jd), kWidths[9]);
    name(kSangawaraNames, Sangawara(jd), kWidths[10]);
    name(kDasawaraNames, Dasawara(jd), kWidths[11]);
    text += TrimCopy(row) + "\r\n";
  }
  text += Rule(rule) + "\r\n\r\n";

  // The auspicious and inauspicious days of the same year.
  constexpr std::array<int, 6> kWidths2 = {8, 8, 20, 19, 16, 19};
  constexpr std::array<std::string_view, 6> kHeads2 = {"Date",       "Ingkel",  "Parerasan",
                                                       "Panca Suda", "Lintang", "Ekajala Rasi"};
  int rule2 = 0;
  for (int w : kWidths2) rule2 += w;
  std::string head2;
  for (std::size_t i = 0; i < kHeads2.size(); ++i) head2 += PadRight(kHeads2[i], kWidths2[i]);
  text += "Auspicious and Inauspicious Days\r\n";
  text += Rule(rule2) + "\r\n" + TrimCopy(head2) + "\r\n" + Rule(rule2) + "\r\n";
  for (JD jd = start; jd <= end; ++jd) {
    if (jd > start && WukuOf(jd) != WukuOf(jd - 1)) text += "\r\n";
    const CalDate g = JDToGregorian(engine, jd);
    const std::vector<std::string> lines = PawukonDetailLines(ctx, jd);
    // Ingkel, Parerasan, Panca Suda, Lintang and Ekajala Rasi of the detail lines.
    std::string row = PadRight(MonthDayPadded(g.day, g.month), 8) +
                      PadRight(DetailValue(lines[1]), 8) + PadRight(DetailValue(lines[5]), 20) +
                      PadRight(DetailValue(lines[6]), 19) + PadRight(DetailValue(lines[12]), 16) +
                      DetailValue(lines[13]);
    text += TrimCopy(row) + "\r\n";
  }
  text += Rule(rule2) + "\r\n";
  return text;
}

// ---- Yoruba ----

std::string YorubaPage(Context& ctx, int year) {
  CalendarEngine& engine = Calendars(ctx);
  const int g = year - 8042;
  std::string text = "*** Yoruba Calendar for " + std::to_string(year) + " ***\r\n\r\n";
  text += "Start Date = Jan 1, " + std::to_string(g) + Blanks(9) + "End Date = Dec 31, " +
          std::to_string(g) + " (Gregorian)\r\n\r\n";
  constexpr int kLabel = 20;
  for (int first = 1; first <= 12; first += 3) {
    // Per month: its weeks as columns, the four days of the week as rows.
    struct Grid {
      std::string name;
      int columns = 0;
      std::vector<std::array<int, 5>> cells;  // per column: day of month by Yoruba day 1..4
      std::vector<int> weeks;                 // the week ("Ose") of each column, 0 if empty
    };
    std::vector<Grid> grids;
    for (int m = first; m < first + 3; ++m) {
      Grid grid;
      grid.name = MonthName(ctx, C::Yor, m, year);
      const int length = GregorianMonthLength(m, IsGregorianLeap(g));
      const JD jd1 = GregorianToJD(1, m, g);
      const int q = jd1 % 4 == 0 ? 4 : jd1 % 4;
      const int firstWeek = 5 - q;
      const int rest = length - firstWeek;
      grid.columns = (rest - rest % 4) / 4 + 2;
      grid.cells.assign(static_cast<std::size_t>(grid.columns), {0, 0, 0, 0, 0});
      grid.weeks.assign(static_cast<std::size_t>(grid.columns), 0);
      for (int d = 1; d <= length; ++d) {
        const int column = d <= firstWeek ? 0 : 1 + (d - firstWeek - 1) / 4;
        const CalDate y = engine.JDToDate(C::Yor, jd1 + d - 1);
        grid.cells[static_cast<std::size_t>(column)][static_cast<std::size_t>(y.day)] = d;
        grid.weeks[static_cast<std::size_t>(column)] = y.month;
      }
      grids.push_back(grid);
    }
    std::string heading = Blanks(kLabel), weeks = PadRight("Ose", kLabel);
    std::array<std::string, 5> rows;
    for (int r = 1; r <= 4; ++r)
      rows[static_cast<std::size_t>(r)] =
          PadRight(Shown(ctx, kYorubaDays[static_cast<std::size_t>(r)]), kLabel);
    for (std::size_t k = 0; k < grids.size(); ++k) {
      const Grid& grid = grids[k];
      const int width = 3 * grid.columns;
      const int len = static_cast<int>(DisplayWidth(grid.name));
      std::string block = Blanks((width - len) / 2) + grid.name;
      heading += PadRight(block, static_cast<std::size_t>(width)) + "   ";
      for (int c = 0; c < grid.columns; ++c) {
        const int w = grid.weeks[static_cast<std::size_t>(c)];
        weeks += w ? PadLeft(std::to_string(w), 3) : "   ";
        for (int r = 1; r <= 4; ++r) {
          const int day = grid.cells[static_cast<std::size_t>(c)][static_cast<std::size_t>(r)];
          rows[static_cast<std::size_t>(r)] += day ? PadLeft(std::to_string(day), 3) : "   ";
        }
      }
      weeks += "   ";
      for (int r = 1; r <= 4; ++r) rows[static_cast<std::size_t>(r)] += "   ";
    }
    auto trimRight = [](std::string s) {
      s.erase(s.find_last_not_of(' ') + 1);
      return s;
    };
    text += trimRight(heading) + "\r\n" + trimRight(weeks) + "\r\n";
    for (int r = 1; r <= 4; ++r) text += trimRight(rows[static_cast<std::size_t>(r)]) + "\r\n";
    text += "\r\n";
  }
  return text;
}

}  // namespace

std::string YearPage(Context& ctx, CalType type, std::string_view caption, std::string_view era,
                     int year) {
  switch (type) {
    case C::Bah:
      return BahaiPage(ctx, year);
    case C::Chi:
    case C::Vie:
      return LunarPage(ctx, type, year);
    case C::HinLun:
    case C::HinLun1:
    case C::HinLun2:
    case C::HinLun3:
      return HinduPage(ctx, type, year);
    case C::Jav:
      return JavanesePage(ctx, year);
    case C::Paw:
      return PawukonPage(ctx, year);
    case C::Yor:
      return YorubaPage(ctx, year);
    default:
      return SharedPage(ctx, type, caption, era, year);
  }
}

}  // namespace mc::views
