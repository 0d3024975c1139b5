#include "views/calendar_views.h"

#include <array>

#include "calendars/cycles.h"
#include "calendars/gregorian.h"
#include "calendars/hindu.h"
#include "calendars/names.h"
#include "calendars/solar_fixed.h"
#include "core/text_util.h"

namespace mc::views {

namespace {

template <std::size_t N>
std::string At(const Context& ctx, const std::array<std::string_view, N>& list, int index) {
  if (index < 1 || static_cast<std::size_t>(index) >= N) return "";
  return Shown(ctx, list[static_cast<std::size_t>(index)]);
}

// Characters of a UTF-8 text from code point `from` (0-based) on.
std::string_view FromCodePoint(std::string_view s, std::size_t from) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if ((static_cast<unsigned char>(s[i]) & 0xC0) == 0x80) continue;
    if (count++ == from) return s.substr(i);
  }
  return {};
}

std::string_view FirstCodePoints(std::string_view s, std::size_t n) {
  std::string_view rest = FromCodePoint(s, n);
  return s.substr(0, s.size() - rest.size());
}

}  // namespace

int WeekColumn(int weekday, int startDay) {
  if (startDay == 0) return weekday == 7 ? 1 : weekday + 1;
  if (startDay == 2) return weekday == 1 ? 7 : weekday - 1;
  return weekday;
}

std::string_view WeekLetters(int startDay) {
  if (startDay == 0) return "  S  S  M  T  W  T  F";
  if (startDay == 2) return "  M  T  W  T  F  S  S";
  return "  S  M  T  W  T  F  S";
}

std::string MonthDayYear(int day, int month, int year) {
  return std::string(Left(kMonthNames[static_cast<std::size_t>(month)], 3)) + " " +
         std::to_string(day) + ", " + std::to_string(year);
}

std::string MonthDayPadded(int day, int month) {
  return std::string(Left(kMonthNames[static_cast<std::size_t>(month)], 3)) +
         (day < 10 ? "  " : " ") + std::to_string(day);
}

CalDate CivilDate(CalendarEngine& engine, JD jd) {
  return jd >= kGregorianStart ? JDToGregorian(engine, jd) : JDToJulian(engine, jd);
}

std::string Shown(const Context& ctx, std::string_view name) {
  return ctx.settings.plainLetters ? PlainLetters(name) : std::string(name);
}

int ChaitraMonthNumber(CalType type, int month) {
  const int m = hindu::SplitLeap(month).value + hindu::MonthShift(type);
  return m > 12 ? m - 12 : m;
}

std::string MonthName(Context& ctx, CalType type, int month, int year) {
  switch (type) {
    case CalType::Greg:
    case CalType::Jul:
    case CalType::RevJul:
    case CalType::Yor:
      return At(ctx, kMonthNames, month);
    case CalType::Afg:
      return At(ctx, kAfghanMonths, month);
    case CalType::Per:
    case CalType::APer:
      return At(ctx, kPersianMonths, month);
    case CalType::Arm:
      return At(ctx, kArmenianMonths, month);
    case CalType::Bah:
      return At(ctx, kBahaiMonths, month);
    case CalType::Bal:
      return BalMonthName(ctx, year, month);
    case CalType::Ban:
      return At(ctx, kBanglaMonths, month);
    case CalType::Cop:
      return At(ctx, kCopticMonths, month);
    case CalType::Egy:
      return At(ctx, kEgyptianMonths, month);
    case CalType::Eth:
      return At(ctx, kEthiopicMonths, month);
    case CalType::Fas:
    case CalType::ParShe:
    case CalType::PerQad:
      return At(ctx, kParsiMonths, month);
    case CalType::Fre:
      return FrenchMonthName(ctx, month);
    case CalType::Heb:
      return At(ctx, kHebrewMonths, month);
    case CalType::HinLun:
    case CalType::HinLun1:
    case CalType::HinLun2:
    case CalType::HinLun3:
      return (month > 100 ? "Leap " : "") +
             At(ctx, kHinduCalendarLunarMonths, ChaitraMonthNumber(type, month));
    case CalType::HinSol:
      return At(ctx, kHinduSolarMonths, month);
    case CalType::Ind:
      return At(ctx, kIndianMonths, month);
    case CalType::Isl:
    case CalType::UAQ:
      return At(ctx, kIslamicMonths, month);
    case CalType::Jav:
      return At(ctx, kJavaneseMonths, month);
    case CalType::Sikh:
      return At(ctx, kSikhMonths, month);
    case CalType::Chi:
    case CalType::Vie:
      return "Month " + std::to_string(month);
    default:
      return "";
  }
}

std::string LunarRowCaption(const LunarYearTable& table, int row) {
  const auto r = static_cast<std::size_t>(row);
  if (table.monthNumber[r] != 0) return "Month " + std::to_string(table.monthNumber[r]);
  const int repeated = row > 1 ? table.monthNumber[r - 1] : table.leapMonthNumber;
  return "Leap Month " + std::to_string(repeated);
}

Sexagenary SexagenaryOf(int year) {
  Sexagenary s{year / 60 + 1, year % 60};
  if (s.year == 0) {
    s.cycle -= 1;
    s.year = 60;
  }
  return s;
}

std::string StemName(const Context& ctx, CalType type, int index) {
  if (index < 1 || index > 10) return "";
  const auto i = static_cast<std::size_t>(index);
  if (type == CalType::Vie)
    return std::string(ctx.settings.plainLetters ? kVietnameseStemsPlain[i] : kVietnameseStems[i]);
  return Shown(ctx, kChineseStems[i]);
}

std::string BranchEntry(const Context& ctx, CalType type, int index) {
  if (index < 1 || index > 12) return "";
  const auto i = static_cast<std::size_t>(index);
  if (type == CalType::Vie)
    return std::string(ctx.settings.plainLetters ? kVietnameseBranchesPlain[i]
                                                 : kVietnameseBranches[i]);
  return Shown(ctx, kChineseBranches[i]);
}

std::string AnimalOfBranch(std::string_view entry) {
  return TrimCopy(FromCodePoint(entry, 5));
}

std::string BranchOfEntry(std::string_view entry) {
  return TrimCopy(FirstCodePoints(entry, 4));
}

JD HinduMonthStart(CalendarEngine& engine, CalType type, int month, int year) {
  constexpr JD kFirstDay = hindu::kRDToJD + 1;
  JD jd = engine.DateToJD(type, 1, month, year);
  if (jd >= kFirstDay) return jd;
  jd = engine.DateToJD(type, 2, month, year);
  return jd >= kFirstDay ? jd : 0;
}

JD HinduYearStart(CalendarEngine& engine, CalType type, int year) {
  JD start = 0;
  for (int m = 1; m <= 12 && start == 0; ++m) start = HinduMonthStart(engine, type, m, year);
  if (start == 0) return 0;
  // A leap first month comes before the plain one.
  for (int n = 0; n < 40 && engine.JDToDate(type, start - 1).year == year; ++n) --start;
  return start;
}

std::vector<int> HinduMonthsOfYear(CalendarEngine& engine, CalType type, int year) {
  std::vector<int> months;
  JD jd = HinduYearStart(engine, type, year);
  if (jd == 0) return months;
  // Months last 29 or 30 days: steps of 27 days meet every one of them.
  for (int n = 0; n < 40; ++n, jd += 27) {
    CalDate d = engine.JDToDate(type, jd);
    if (d.year != year) break;
    if (months.empty() || months.back() != d.month) months.push_back(d.month);
  }
  return months;
}

}  // namespace mc::views
