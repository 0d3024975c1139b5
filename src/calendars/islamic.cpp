#include "calendars/islamic.h"

#include <bit>

#include "calendars/families.h"
#include "core/errors.h"
#include "core/int_math.h"
#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr std::uint32_t LeapMask(std::initializer_list<int> years) {
  std::uint32_t mask = 0;
  for (int y : years) mask |= 1u << y;
  return mask;
}

// Leap years of the 30-year cycle as Y mod 30, by scheme; scheme 4's year 0
// is the thirtieth of the cycle.
constexpr std::uint32_t kLeapYears[5] = {
    0,
    LeapMask({2, 5, 7, 10, 13, 15, 18, 21, 24, 26, 29}),
    LeapMask({2, 5, 7, 10, 13, 16, 18, 21, 24, 26, 29}),
    LeapMask({2, 5, 8, 10, 13, 16, 19, 21, 24, 27, 29}),
    LeapMask({0, 2, 5, 8, 11, 13, 16, 19, 21, 24, 27}),
};

constexpr std::uint32_t SchemeMask(int scheme) {
  return scheme >= 1 && scheme <= 4 ? kLeapYears[scheme] : 0;
}

// Odd months 30 days, even months 29, the twelfth 30 in a leap year.
int IslamicMonthLength(int month, bool leap) {
  if (month < 1 || month > 12) return 0;
  return month % 2 == 1 || (month == 12 && leap) ? 30 : 29;
}

// The days of the months before `month` (1..13).
int DaysBeforeMonth(int month, bool leap) {
  if (month < 1) return 0;
  if (month > 13) month = 13;
  return 29 * (month - 1) + month / 2 + (month == 13 && leap);
}

JD EpochOffsetOf(CalendarEngine& engine) {
  return IslamicEpochOffset(engine.ctx().settings.islamicEpochDay);
}
int SchemeOf(CalendarEngine& engine) {
  return engine.ctx().settings.islamicLeapScheme;
}

// --- Umm al-Qura ----------------------------------------------------------

constexpr char kUmmAlQuraFile[] = "ummalqur.dat";

int UmmAlQuraMonthLength(const UmmAlQuraTable& t, int year, int month) {
  if (month < 1 || month > 12) return 0;
  if (!t.loaded || year < kUmmAlQuraFirstYear || year > kUmmAlQuraLastYear) return 29;
  return 29 + ((t.monthBits[year - kUmmAlQuraFirstYear] >> (month - 1)) & 1);
}

JD UmmAlQuraToJD(CalendarEngine& engine, int day, int month, int year) {
  const UmmAlQuraTable& t = UmmAlQura(engine);
  if (!t.loaded) return 0;
  // Outside the table every date is the day before or the day after it.
  if (year < kUmmAlQuraFirstYear) return t.yearStart.front() - 1;
  if (year > kUmmAlQuraLastYear) return t.yearStart.back();
  const int i = year - kUmmAlQuraFirstYear;
  int doy = day;
  for (int m = 1; m < month && m <= 12; ++m) doy += 29 + ((t.monthBits[i] >> (m - 1)) & 1);
  return t.yearStart[i] - 1 + doy;
}

CalDate JDToUmmAlQura(CalendarEngine& engine, JD jd) {
  const UmmAlQuraTable& t = UmmAlQura(engine);
  if (!t.loaded) return CalDate{};
  // Day numbers beyond the table answer the single date that stands for the
  // years before it or after it.
  if (jd < t.yearStart.front()) return CalDate{1, 1, kUmmAlQuraFirstYear - 1};
  if (jd >= t.yearStart.back()) return CalDate{1, 1, kUmmAlQuraLastYear + 1};
  int year = (jd - t.yearStart.front()) / 354 + kUmmAlQuraFirstYear + 1;
  if (year > kUmmAlQuraLastYear) year = kUmmAlQuraLastYear;
  while (t.yearStart[year - kUmmAlQuraFirstYear] > jd) --year;
  const int i = year - kUmmAlQuraFirstYear;
  int dayOfYear = jd - t.yearStart[i] + 1;
  int month = 0, length = 0;
  while (dayOfYear > 0 && month < 12) {
    ++month;
    length = 29 + ((t.monthBits[i] >> (month - 1)) & 1);
    dayOfYear -= length;
  }
  return CalDate{dayOfYear + length, month, year};
}

}  // namespace

int LeapYearsBefore(int n, int scheme) {
  if (n < 0 || n > 29) return 0;
  // Cycle years 1..n are bits 1..n of the mask.
  return std::popcount(SchemeMask(scheme) & (((1u << (n + 1)) - 1) & ~1u));
}

bool IsIslamicLeap(int year, int scheme) {
  return (SchemeMask(scheme) >> FloorMod(year, 30)) & 1;
}

JD IslamicEpochOffset(std::string_view epochDay) {
  return epochDay == "Thursday" ? 1948438 : 1948439;
}

JD IslamicToJD(int day, int month, int year, int scheme, JD epochOffset) {
  const int n = year - 1;
  const int doy = day + DaysBeforeMonth(month, IsIslamicLeap(year, scheme));
  return epochOffset + doy + 354 * n + 11 * FloorDiv(n, 30) +
         LeapYearsBefore(FloorMod(n, 30), scheme);
}

CalDate JDToIslamic(JD jd, int scheme, JD epochOffset) {
  int year = (jd - epochOffset) / 354 + 1;
  if (year == 0) year = 1;
  JD start = IslamicToJD(1, 1, year, scheme, epochOffset);
  while (start > jd) start = IslamicToJD(1, 1, --year, scheme, epochOffset);
  const bool leap = IsIslamicLeap(year, scheme);
  int dayOfYear = jd - start + 1;
  int month = 0, length = 0;
  while (dayOfYear > 0 && month < 12) {
    length = IslamicMonthLength(++month, leap);
    dayOfYear -= length;
  }
  return CalDate{dayOfYear + length, month, year};
}

UmmAlQuraFault ParseUmmAlQura(std::string_view text, UmmAlQuraTable& table) {
  table.loaded = false;
  int count = 0;
  for (const std::string& raw : SplitLines(text)) {
    std::string_view line = Trim(raw);
    if (line.empty() || line.front() == '>') continue;
    if (count == kUmmAlQuraYears) return UmmAlQuraFault::BadLine;  // a line too many

    std::string_view fields[3];
    std::size_t from = 0;
    for (int f = 0; f < 3; ++f) {
      std::size_t comma = line.find(',', from);
      if ((f < 2) != (comma != std::string_view::npos)) return UmmAlQuraFault::BadLine;
      fields[f] = Trim(line.substr(from, f < 2 ? comma - from : std::string_view::npos));
      from = comma + 1;
    }
    long long year = 0, start = 0;
    if (!ParseInt(fields[0], year) || year != kUmmAlQuraFirstYear + count)
      return UmmAlQuraFault::BadLine;
    if (!ParseInt(fields[1], start) || start < 1948440 || start > 2600000)
      return UmmAlQuraFault::BadLine;
    if (fields[2].size() != 12) return UmmAlQuraFault::BadLine;
    std::uint16_t bits = 0;
    for (int m = 0; m < 12; ++m) {
      char c = fields[2][m];
      if (c != '0' && c != '1') return UmmAlQuraFault::BadLine;
      if (c == '1') bits |= static_cast<std::uint16_t>(1u << m);
    }
    // Each year must begin the day after the last one ends.
    if (count > 0 &&
        start != table.yearStart[count - 1] + 348 + std::popcount(table.monthBits[count - 1]))
      return UmmAlQuraFault::BadLine;
    table.yearStart[count] = static_cast<JD>(start);
    table.monthBits[count] = bits;
    ++count;
  }
  if (count < kUmmAlQuraYears) return UmmAlQuraFault::TooFewLines;
  table.yearStart.back() = table.yearStart[kUmmAlQuraYears - 1] + 348 +
                           std::popcount(table.monthBits[kUmmAlQuraYears - 1]);
  table.loaded = true;
  return UmmAlQuraFault::None;
}

bool LoadUmmAlQuraTable(Context& ctx) {
  UmmAlQuraTable& table = Calendars(ctx).State<UmmAlQuraTable>();
  table = UmmAlQuraTable{};
  table.attempted = true;
  ctx.settings.lastFileOpened = kUmmAlQuraFile;
  auto text = ReadWholeFile(ctx.FilePath(kUmmAlQuraFile));
  if (!text) {
    ShowRunTimeError(ctx, kFileNotFound);
    return false;
  }
  switch (ParseUmmAlQura(*text, table)) {
    case UmmAlQuraFault::None:
      return true;
    case UmmAlQuraFault::TooFewLines:
      ShowRunTimeError(ctx, kInputPastEnd);
      break;
    case UmmAlQuraFault::BadLine:
      ShowRunTimeError(ctx, kTypeMismatch);
      break;
  }
  return false;
}

const UmmAlQuraTable& UmmAlQura(CalendarEngine& engine) {
  UmmAlQuraTable& table = engine.State<UmmAlQuraTable>();
  if (!table.attempted) {
    table.attempted = true;
    if (auto text = ReadWholeFile(engine.ctx().FilePath(kUmmAlQuraFile)))
      ParseUmmAlQura(*text, table);
  }
  return table;
}

void RegisterIslamicRules(RulesTable& table) {
  table[static_cast<int>(CalType::Isl)] = CalendarRules{
      [](CalendarEngine& e, int d, int m, int y) {
        return IslamicToJD(d, m, y, SchemeOf(e), EpochOffsetOf(e));
      },
      [](CalendarEngine& e, JD jd) { return JDToIslamic(jd, SchemeOf(e), EpochOffsetOf(e)); },
      [](CalendarEngine& e, int y) { return IsIslamicLeap(y, SchemeOf(e)); },
      [](CalendarEngine& e, int y, int m) {
        return IslamicMonthLength(m, IsIslamicLeap(y, SchemeOf(e)));
      }};
  table[static_cast<int>(CalType::UAQ)] = CalendarRules{
      UmmAlQuraToJD, JDToUmmAlQura, nullptr,
      [](CalendarEngine& e, int y, int m) { return UmmAlQuraMonthLength(UmmAlQura(e), y, m); }};
}

}  // namespace mc
