#include "calendars/date_conversions.h"

#include <functional>

#include "calendars/chinese.h"
#include "calendars/cycles.h"
#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "calendars/hindu.h"
#include "calendars/names.h"
#include "calendars/roman.h"
#include "calendars/solar_fixed.h"
#include "core/errors.h"
#include "core/text_util.h"

namespace mc {

namespace {

using C = CalType;
constexpr std::string_view kCrLf = "\r\n";

std::string N(long long v) {
  return std::to_string(v);
}

std::string Shown(const Context& ctx, std::string_view name) {
  return ctx.settings.plainLetters ? PlainLetters(name) : std::string(name);
}

template <std::size_t M>
std::string_view At(const std::array<std::string_view, M>& list, int i) {
  return i >= 0 && static_cast<std::size_t>(i) < M ? list[static_cast<std::size_t>(i)] : "";
}

// The seven weekday names a calendar's rows use (1 = Sunday).
std::string_view WeekdayName(C type, int w) {
  switch (type) {
    case C::Afg:
    case C::Per:
    case C::APer:
      return At(kPersianWeekdays, w);
    case C::Arm:
      return At(kArmenianWeekdays, w);
    case C::Bah:
      return At(kBahaiWeekdays, w);
    case C::Ban:
      return At(kBanglaWeekdays, w);
    case C::Cop:
      return At(kCopticWeekdays, w);
    case C::Eth:
      return At(kEthiopicWeekdays, w);
    case C::Heb:
      return At(kHebrewWeekdays, w);
    case C::Isl:
    case C::UAQ:
      return At(kIslamicWeekdays, w);
    case C::Sikh:
      return At(kSikhWeekdays, w);
    case C::Chi:
    case C::Vie:
      return At(kChineseWeekdays, w);
    case C::HinLun:
    case C::HinLun1:
    case C::HinLun2:
    case C::HinLun3:
    case C::HinSol:
    case C::Ind:
      return At(kHinduWeekdays, w);
    default:
      return At(kWeekdayNames, w);
  }
}

// The Chaitra-based month of a Hindu lunisolar triple's month.
int ChaitraMonth(C type, int month, int year) {
  if (type == C::HinLun || type == C::HinLun3) return month;
  return hindu::ConvertHinduMonth(type, month, year, C::HinLun).month;
}

// The name of a month of a calendar, as the user's numbering calls it; a
// Hindu leap mark is left off.
std::string MonthName(Context& ctx, C type, int month, int year) {
  switch (type) {
    case C::Greg:
    case C::Jul:
    case C::RevJul:
      return std::string(At(kMonthNames, month));
    case C::Afg:
      return std::string(At(kAfghanMonths, month));
    case C::Per:
    case C::APer:
      return std::string(At(kPersianMonths, month));
    case C::Arm:
      return std::string(At(kArmenianMonths, month));
    case C::Bah:
      return std::string(At(kBahaiMonths, month));
    case C::Ban:
      return std::string(At(kBanglaMonths, month));
    case C::Cop:
      return std::string(At(kCopticMonths, month));
    case C::Egy:
      return std::string(At(kEgyptianMonths, month));
    case C::Eth:
      return std::string(At(kEthiopicMonths, month));
    case C::Fas:
    case C::ParShe:
    case C::PerQad:
      return std::string(At(kParsiMonths, month));
    case C::Fre:
      return FrenchMonthName(ctx, month);
    case C::Heb:
      return std::string(At(kHebrewMonths, month));
    case C::Ind:
      return std::string(At(kIndianMonths, month));
    case C::Isl:
    case C::UAQ:
      return std::string(At(kIslamicMonths, month));
    case C::Jav:
      return Shown(ctx, At(kJavaneseMonths, month));
    case C::Sikh:
      return std::string(At(kSikhMonths, month));
    case C::HinSol:
      return std::string(At(kHinduSolarMonths, month));
    case C::HinLun:
    case C::HinLun1:
    case C::HinLun2:
    case C::HinLun3:
      return std::string(At(kHinduLunarMonths, ChaitraMonth(type, month, year) % 100));
    case C::Bal:
      return BalMonthName(ctx, year, month);
    default:
      return N(month);
  }
}

std::string Weekday(JD jd) {
  return std::string(kWeekdayNames[WeekdayOfJD(jd)]);
}

// "<weekday>, <month> <day>, <year><suffix>" in a calendar's own names.
std::string PlainRow(Context& ctx, C type, JD jd, std::string_view suffix) {
  CalDate d = Calendars(ctx).JDToDate(type, jd);
  return std::string(WeekdayName(type, WeekdayOfJD(jd))) + ", " +
         MonthName(ctx, type, d.month, d.year) + " " + N(d.day) + ", " + N(d.year) +
         std::string(suffix);
}

std::string StemBranch(Context& ctx, C type, int year) {
  const bool vie = type == C::Vie;
  int s = year % 10, b = year % 12;
  if (s == 0) s = 10;
  if (b == 0) b = 12;
  std::string_view stem =
      vie ? (ctx.settings.plainLetters ? kVietnameseStemsPlain[s] : kVietnameseStems[s])
          : kChineseStems[s];
  std::string_view branch =
      vie ? (ctx.settings.plainLetters ? kVietnameseBranchesPlain[b] : kVietnameseBranches[b])
          : kChineseBranches[b];
  branch = branch.substr(0, branch.find(' '));
  return ToLower(stem) + "-" + ToLower(branch);
}

struct Sexagesimal {
  int yearInCycle, cycle;
};
Sexagesimal CycleOf(int year) {
  int y = year % 60, c = year / 60 + 1;
  if (y == 0) {
    y = 60;
    --c;
  }
  return {y, c};
}

// The number a Chinese or Vietnamese month is known by: a leap month (0) is
// printed with the number of the month it repeats.
int ShownLunarMonth(CalendarEngine& engine, C type, const CalDate& d, JD jd) {
  if (d.month != 0) return d.month;
  const LunarYearTable& t = BuildLunarYear(engine, type, JDToGregorian(engine, jd).year);
  if (t.leapMonthNumber) return t.leapMonthNumber;
  const LunarYearTable& before = BuildLunarYear(engine, type, JDToGregorian(engine, jd).year - 1);
  return before.leapMonthNumber;
}

std::string LunarRow(Context& ctx, C type, JD jd) {
  CalendarEngine& engine = Calendars(ctx);
  CalDate d = engine.JDToDate(type, jd);
  Sexagesimal s = CycleOf(d.year);
  return std::string(WeekdayName(type, WeekdayOfJD(jd))) + (type == C::Vie ? ", Day " : ", day ") +
         N(d.day) + (d.month == 0 ? ", leap month " : ", month ") +
         N(ShownLunarMonth(engine, type, d, jd)) + ", cycle " + N(s.cycle) + ", year " +
         N(s.yearInCycle) + " (" + StemBranch(ctx, type, d.year) + ")";
}

std::string HinduLunarRow(Context& ctx, C type, JD jd) {
  CalDate d = Calendars(ctx).JDToDate(type, jd);
  std::string text = std::string(At(kHinduWeekdays, WeekdayOfJD(jd))) + ", ";
  if (d.month > 100) text += "leap ";
  text += MonthName(ctx, type, d.month, d.year) + " ";
  if (d.day > 100) text += "leap day ";
  return text + N(d.day % 100) + ", " + N(d.year) + " V.E., from sunrise";
}

std::string OldHinduRow(JD jd, bool lunar) {
  const int rd = jd - hindu::kRDToJD;
  std::string text = std::string(At(kHinduWeekdays, WeekdayOfJD(jd))) + ", ";
  if (lunar) {
    hindu::OldLunarDate d = hindu::OldLunarDateFromRD(rd);
    text += std::string(d.leapMonth ? "leap " : "") + std::string(At(kHinduLunarMonths, d.month)) +
            " " + N(d.day) + ", " + N(d.year);
  } else {
    hindu::OldSolarDate d = hindu::OldSolarDateFromRD(rd);
    text += std::string(At(kHinduSolarMonths, d.month)) + " " + N(d.day) + ", " + N(d.year);
  }
  return text + " K.Y., from sunrise";
}

std::string BahaiRow(Context& ctx, JD jd) {
  CalDate d = Calendars(ctx).JDToDate(C::Bah, jd);
  BahaiCycle cycle = BahaiCycleOfYear(d.year);
  return std::string(At(kBahaiWeekdays, WeekdayOfJD(jd))) + ", " +
         std::string(At(kBahaiMonths, d.month)) + " " + N(d.day) + "(" +
         std::string(BahaiDayName(d.day, d.month)) + "), year " +
         std::string(At(kBahaiVahidYears, cycle.yearOfVahid)) + " (" + N(cycle.yearOfVahid) +
         "), Vahid " + N(cycle.vahid) + ", Kull-i-Shay " + N(cycle.kullIShay) + ", " + N(d.year) +
         " B.E., until sunset";
}

std::string FrenchRow(Context& ctx, JD jd) {
  CalDate d = Calendars(ctx).JDToDate(C::Fre, jd);
  if (d.month == 13)
    return FrenchDayName(ctx, d.day, 13) + ", An " + ToRoman(d.year) + " de la " +
           Shown(ctx, "Révolution");
  return FrenchDayName(ctx, d.day, d.month) + ", " + N(d.day) + " (" + Shown(ctx, "Décade") + " " +
         ToRoman((d.day - 1) / 10 + 1) + "), " + FrenchMonthName(ctx, d.month) + ", " +
         Shown(ctx, "Année") + " " + ToRoman(d.year) + " de la " + Shown(ctx, "Révolution");
}

std::string ParsiRow(Context& ctx, C type, JD jd) {
  CalDate d = Calendars(ctx).JDToDate(type, jd);
  std::string day = std::string(ParsiDayName(d.day, d.month)) + " (" + N(d.day) + ")";
  if (d.month == 13) day = (type == C::Fas && d.day == 6 ? "Leap day " : "Gatha ") + day;
  return std::string(At(kParsiMonths, d.month)) + ", " + day + ", " + N(d.year);
}

std::string IsoRow(CalendarEngine& engine, JD jd) {
  IsoWeek w = IsoWeekOf(engine, jd);
  return Weekday(jd) + ", week " + N(w.week) + ", " + N(w.year);
}

std::string ThaiRow(CalendarEngine& engine, JD jd) {
  CalDate g = JDToGregorian(engine, jd);
  int year = g.year + 543;
  if (g.year <= 1940 && g.month <= 3) year = g.year + 542;
  return std::string(At(kThaiWeekdays, WeekdayOfJD(jd))) + ", " +
         std::string(At(kThaiMonths, g.month)) + " " + N(g.day) + ", " + N(year) + " B.E.";
}

std::string TurkishRow(Context& ctx, CalendarEngine& engine, JD jd) {
  CalDate g = JDToGregorian(engine, jd);
  return Shown(ctx, At(kTurkishWeekdays, WeekdayOfJD(jd))) + ", " +
         std::string(At(kTurkishMonths, g.month)) + " " + N(g.day) + ", " + N(g.year);
}

JD Day(CalendarEngine& e, C type, int d, int m, int y) {
  return e.DateToJD(type, d, m, y);
}

// One row of the table: its name, the calendar it stands for (to leave out
// the input calendar), its range, and its text (one line or more).
struct Row {
  std::string_view name;
  std::optional<C> calendar;
  std::function<bool(Context&, JD)> shown;
  std::function<std::vector<std::string>(Context&, JD)> text;
};

auto From(std::function<JD(CalendarEngine&)> first) {
  return [first](Context& ctx, JD jd) { return jd >= first(Calendars(ctx)); };
}
auto Between(std::function<JD(CalendarEngine&)> first, std::function<JD(CalendarEngine&)> last) {
  return [first, last](Context& ctx, JD jd) {
    CalendarEngine& e = Calendars(ctx);
    return jd >= first(e) && jd <= last(e);
  };
}
bool Always(Context&, JD) {
  return true;
}
auto One(std::function<std::string(Context&, JD)> f) {
  return [f](Context& ctx, JD jd) { return std::vector<std::string>{f(ctx, jd)}; };
}
auto Plain(C type, std::string_view suffix) {
  return One([type, suffix](Context& ctx, JD jd) { return PlainRow(ctx, type, jd, suffix); });
}
auto Start(C type, int d, int m, int y) {
  return From([=](CalendarEngine& e) { return Day(e, type, d, m, y); });
}

const std::vector<Row>& Rows() {
  static const std::vector<Row> rows = {
      {"Gregorian", C::Greg, Start(C::Greg, 15, 10, 1582), Plain(C::Greg, "")},
      {"Afghan", C::Afg, Start(C::Afg, 1, 1, 1), Plain(C::Afg, "")},
      {"Armenian", C::Arm, Start(C::Arm, 1, 1, 1), Plain(C::Arm, "")},
      {"Aztec Tonalpohualli", std::nullopt, Always, One(TonalpohualliText)},
      {"Aztec Xiuhpohualli", std::nullopt, Always, One(XiuhpohualliText)},
      {"Baha'i", C::Bah, Start(C::Bah, 1, 1, 1), One(BahaiRow)},
      {"Balinese Pawukon", std::nullopt, [](Context&, JD jd) { return jd >= 146; },
       [](Context& ctx, JD jd) {
         std::vector<std::string> lines = {PawukonLine(ctx, jd)};
         for (auto& l : PawukonDetailLines(ctx, jd)) lines.push_back(l);
         return lines;
       }},
      {"Balinese Saka", C::Bal,
       Between([](CalendarEngine& e) { return BalineseYearStart(e, 1737); },
               [](CalendarEngine& e) { return BalineseYearStart(e, 9921) - 1; }),
       One(BalineseSakaText)},
      {"Bangla", C::Ban,
       Between([](CalendarEngine& e) { return Day(e, C::Ban, 1, 1, 1374); },
               [](CalendarEngine& e) { return Day(e, C::Ban, 30, 12, 9405); }),
       Plain(C::Ban, " B.S.")},
      {"Chinese", C::Chi,
       Between([](CalendarEngine& e) { return Day(e, C::Chi, 1, 1, 4282); },
               [](CalendarEngine& e) { return Day(e, C::Chi, 29, 12, 5637); }),
       One([](Context& ctx, JD jd) { return LunarRow(ctx, C::Chi, jd); })},
      {"Coptic", C::Cop, Start(C::Cop, 1, 1, 1), Plain(C::Cop, " A.M.")},
      {"Egyptian", C::Egy, Start(C::Egy, 13, 5, 754), Plain(C::Egy, "")},
      {"Ethiopic", C::Eth, Start(C::Eth, 1, 1, 1), Plain(C::Eth, " E.E.")},
      {"French Revolutonary", C::Fre,
       Between([](CalendarEngine& e) { return Day(e, C::Fre, 1, 1, 1); },
               [](CalendarEngine& e) { return Day(e, C::Fre, 5, 13, 14); }),
       One(FrenchRow)},
      {"Hebrew", C::Heb, Start(C::Heb, 23, 4, 3767), Plain(C::Heb, " A.M., until sunset")},
      {"Hindu lunisolar, old", std::nullopt, Always,
       One([](Context&, JD jd) { return OldHinduRow(jd, true); })},
      {"Hindu solar, old", std::nullopt, Always,
       One([](Context&, JD jd) { return OldHinduRow(jd, false); })},
      {"Hindu lunisolar Ashada", C::HinLun1, Always,
       One([](Context& ctx, JD jd) { return HinduLunarRow(ctx, C::HinLun1, jd); })},
      {"Hindu lunisolar Chaitra", C::HinLun, Always,
       One([](Context& ctx, JD jd) { return HinduLunarRow(ctx, C::HinLun, jd); })},
      {"Hindu lunisolar Kartika", C::HinLun2, Always,
       One([](Context& ctx, JD jd) { return HinduLunarRow(ctx, C::HinLun2, jd); })},
      {"Hindu solar", C::HinSol, Always, Plain(C::HinSol, " S.E., from sunrise")},
      {"Indian National", C::Ind, Start(C::Ind, 1, 1, 1879), Plain(C::Ind, " S.E.")},
      {"Islamic arithmetical", C::Isl, Start(C::Isl, 1, 1, 1),
       Plain(C::Isl, " A.H., until sunset")},
      {"Islamic Umm al-Qura", C::UAQ,
       Between([](CalendarEngine& e) { return Day(e, C::UAQ, 1, 1, 1356); },
               [](CalendarEngine& e) { return Day(e, C::UAQ, 30, 12, 1500); }),
       Plain(C::UAQ, " A.H., until sunset")},
      {"ISO", std::nullopt, Start(C::Greg, 1, 1, 1583),
       One([](Context& ctx, JD jd) { return IsoRow(Calendars(ctx), jd); })},
      {"Javanese Pawukon/Pasaran", C::Jav, Start(C::Jav, 1, 1, 1555),
       [](Context& ctx, JD jd) {
         std::vector<std::string> lines = {JavaneseText(ctx, jd)};
         for (auto& l : JavaneseDetailLines(ctx, jd)) lines.push_back(l);
         return lines;
       }},
      {"Julian", C::Jul, Start(C::Jul, 1, 1, 7), Plain(C::Jul, " C.E.")},
      {"Julian, revised", C::RevJul, Start(C::RevJul, 14, 10, 1923), Plain(C::RevJul, " C.E.")},
      {"Mayan long count", C::May, Always,
       One([](Context& ctx, JD jd) { return LongCountText(LongCountOfJD(ctx, jd)); })},
      {"Mayan civil haab", std::nullopt, Always, One(HaabText)},
      {"Mayan religious tzolkin", std::nullopt, Always, One(TzolkinText)},
      {"Mayan Lord of the Night", std::nullopt, Always, One(LordOfTheNightText)},
      {"Parsi Fasli", C::Fas, Start(C::Fas, 1, 1, 1276),
       One([](Context& ctx, JD jd) { return ParsiRow(ctx, C::Fas, jd); })},
      {"Parsi Qadmi", C::PerQad, Start(C::PerQad, 1, 1, 500),
       One([](Context& ctx, JD jd) { return ParsiRow(ctx, C::PerQad, jd); })},
      {"Parsi Shenshai", C::ParShe, Start(C::ParShe, 1, 1, 500),
       One([](Context& ctx, JD jd) { return ParsiRow(ctx, C::ParShe, jd); })},
      {"Persian arithmetic", C::Per, Start(C::Per, 1, 1, 1), Plain(C::Per, " A.P.")},
      {"Persian astronomical", C::APer,
       Between([](CalendarEngine& e) { return Day(e, C::APer, 1, 1, 1); },
               [](CalendarEngine& e) { return Day(e, C::APer, 29, 12, 2500); }),
       Plain(C::APer, " A.P.")},
      {"Sikh Nanakshahi", C::Sikh, Start(C::Sikh, 1, 1, 531), Plain(C::Sikh, "")},
      {"Thai solar", std::nullopt, Start(C::Greg, 1, 1, 1912),
       One([](Context& ctx, JD jd) { return ThaiRow(Calendars(ctx), jd); })},
      {"Turkish", std::nullopt, Start(C::Greg, 15, 10, 1582),
       One([](Context& ctx, JD jd) { return TurkishRow(ctx, Calendars(ctx), jd); })},
      {"Vietnamese", C::Vie,
       Between([](CalendarEngine& e) { return Day(e, C::Vie, 1, 1, 4282); },
               [](CalendarEngine& e) { return Day(e, C::Vie, 30, 12, 5637); }),
       One([](Context& ctx, JD jd) { return LunarRow(ctx, C::Vie, jd); })},
      {"Yoruba", C::Yor, Start(C::Yor, 3, 1, 9625), One(YorubaText)},
  };
  return rows;
}

// The first day of a calendar year, as the header and the year lines find it.
JD FirstDayOfYear(CalendarEngine& e, C type, int year) {
  switch (type) {
    case C::Bal:
      return BalineseYearStart(e, year);
    case C::HinLun:
    case C::HinLun1:
    case C::HinLun2:
    case C::HinLun3:
      // The first of days 1 and 2 of month 1, plain or leap, that exists.
      for (int month : {101, 1})
        for (int day : {1, 2}) {
          JD jd = e.DateToJD(type, day, month, year);
          if (jd >= hindu::kRDToJD + 1 && e.JDToDate(type, jd) == CalDate{day, month, year})
            return jd;
        }
      return e.DateToJD(type, 1, 1, year);
    case C::Yor:
      return GregorianToJD(1, 1, year - 8042);
    default:
      return e.DateToJD(type, 1, 1, year);
  }
}

std::string ListName(C type) {
  return std::string(InfoOf(type).listName);
}

std::string Legend(Context& ctx, C type) {
  std::vector<std::pair<std::string, std::string>> entries;
  auto numbered = [&](int count, auto&& name) {
    for (int m = 1; m <= count; ++m) entries.emplace_back(N(m), name(m));
  };
  switch (type) {
    case C::Heb:
      for (int m = 1; m <= 6; ++m) entries.emplace_back(N(m), kHebrewMonths[m]);
      entries.emplace_back("6L", kHebrewMonths[7]);
      for (int m = 7; m <= 12; ++m) entries.emplace_back(N(m), kHebrewMonths[m + 1]);
      break;
    case C::Bal: {
      // User months 1 to 9 are the places 6 to 14 of the name table; 10, 11,
      // 11L, 12 and 12L the places 1 to 5.
      for (int m = 1; m <= 9; ++m)
        entries.emplace_back(N(m), Shown(ctx, kBalineseSakaMonths[m + 5]));
      const char* users[] = {"10", "11", "11L", "12", "12L"};
      for (int i = 0; i < 5; ++i)
        entries.emplace_back(users[i], Shown(ctx, kBalineseSakaMonths[i + 1]));
      break;
    }
    case C::HinLun:
    case C::HinLun3:
      numbered(12, [](int m) { return std::string(kHinduCalendarLunarMonths[m]); });
      break;
    case C::HinLun1:
    case C::HinLun2: {
      const int shift = type == C::HinLun1 ? 3 : 7;
      numbered(12, [&](int m) {
        return std::string(kHinduCalendarLunarMonths[(m + shift - 1) % 12 + 1]);
      });
      break;
    }
    default: {
      const int count = InfoOf(type).monthCount;
      numbered(count, [&](int m) { return MonthName(ctx, type, m, 1); });
    }
  }
  std::string text = "For the month m: ";
  text += kCrLf;
  text += kCrLf;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    text += entries[i].first + " = " + entries[i].second;
    text += i + 1 < entries.size() ? ", " : ".";
  }
  return text;
}

bool HasNamedMonths(C type) {
  return type != C::JDA && type != C::Chi && type != C::May && type != C::Vie && type != C::Yor;
}

}  // namespace

IsoWeek IsoWeekOf(CalendarEngine& engine, JD jd) {
  const long long d4 = ((jd + 31741LL - (jd % 7)) % 146097) % 36524 % 1461;
  const long long l = d4 / 1460;
  int n = static_cast<int>(((d4 - l) % 365 + l) / 7 + 1);
  CalDate g = JDToGregorian(engine, jd);
  if (g.year == 1583 && g.month == 1 && n <= 2) n = 51;
  int year = g.year;
  if (n >= 51 && g.month == 1) --year;
  if (n == 1 && g.month == 12) ++year;
  return {n, year};
}

const std::vector<ConversionCalendar>& ConversionCalendars() {
  static const std::vector<ConversionCalendar> list = {
      {"Afghan", C::Afg},
      {"Armenian", C::Arm},
      {"Baha'i", C::Bah},
      {"Balinese Saka", C::Bal},
      {"Bangla", C::Ban},
      {"Chinese", C::Chi},
      {"Coptic", C::Cop},
      {"Egyptian", C::Egy},
      {"Ethiopic", C::Eth},
      {"French Revolutionary", C::Fre},
      {"Gregorian", C::Greg},
      {"Hebrew", C::Heb},
      {"Hindu Lunisolar Ashada", C::HinLun1},
      {"Hindu Lunisolar Chaitra", C::HinLun},
      {"Hindu Lunisolar Kartika", C::HinLun2},
      {"Hindu Solar", C::HinSol},
      {"Indian National", C::Ind},
      {"Islamic Arithmetical", C::Isl},
      {"Islamic Umm al-Qura", C::UAQ},
      {"Javanese Pawukon/Pasaran", C::Jav},
      {"Julian", C::Jul},
      {"Julian Day", C::JDA},
      {"Mayan", C::May},
      {"Parsi Fasli", C::Fas},
      {"Parsi Kadmi", C::PerQad},
      {"Parsi Shenshai", C::ParShe},
      {"Persian Arithmetic", C::Per},
      {"Persian Astronomical", C::APer},
      {"Revised Julian", C::RevJul},
      {"Sikh Nanakshahi", C::Sikh},
      {"Vietnamese", C::Vie},
      {"Yoruba", C::Yor},
  };
  return list;
}

std::string BuildPrompt(Context& ctx, C type) {
  const CalendarInfo& info = InfoOf(type);
  const std::string range = " with y in the range " + N(info.firstYear) + " to " + N(info.lastYear);
  const std::string article = info.anArticle ? " an " : " a ";
  std::string text;
  switch (type) {
    case C::Greg:
      return "Input a Gregorian calendar date in the format " + ctx.settings.dateOrder + range +
             " and press the Enter key. Leave blank for the current date." + std::string(kCrLf) +
             std::string(kCrLf) + Legend(ctx, type);
    case C::Yor:
      return "Input" + article + ListName(type) +
             " calendar date in the format d/w/y with d in the range 1 to 4, w in the range 1 to "
             "93, y in the range " +
             N(info.firstYear) + " to " + N(info.lastYear) + ", and press the Enter key. ";
    case C::JDA:
      return "Input a Julian Day value in the range " + N(FirstJulianDay()) + " to " +
             N(LastJulianDay()) +
             " and press the Enter key. Leave blank for the current Julian Day value.";
    case C::May:
      return "Input a Mayan long count calendar date in the format B.K.T.U.D with B in the range "
             "7 to 33, \r\n\r\nK and T in the range 0 to 19, U in the range 0 to 17, D in the "
             "range 0 to 19, and press the Enter key.\r\n\r\nThe long count date should lie "
             "between 7.18.4.14.12 and 33.5.3.6.1 inclusive. ";
    case C::Chi:
    case C::Vie: {
      const std::string name = type == C::Chi ? "Chinese" : "Vietnamese";
      return "Input a " + name +
             " calendar date in the format d/m/y/c where the year-within-cycle y is in the range 1 "
             "to 60, \r\n\r\nand c, the sexagesimal cycle, is in the range 72 to 94 and press the "
             "Enter key. If the month m is a leap month, set m equal to 0.\r\n\r\nThe date should "
             "lie between 1/1/22/72 and " +
             std::string(type == C::Chi ? "29" : "30") + "/12/57/94 inclusive. ";
    }
    default:
      break;
  }
  text = "Input" + article + ListName(type) + " calendar date in the format d/m/y" + range +
         " and press the Enter key. ";
  if (type != C::Fre) text += "Leave blank for the current date.";
  if (IsHinduLunisolar(type))
    text += " If d or m is leap, follow the numeric value with a letter L.";
  if (HasNamedMonths(type)) text += std::string(kCrLf) + std::string(kCrLf) + Legend(ctx, type);
  return text;
}

std::string DateHeader(Context& ctx, C type, const CalDate& date, JD jd) {
  CalendarEngine& e = Calendars(ctx);
  const CalendarInfo& info = InfoOf(type);
  std::string first;
  switch (type) {
    case C::May:
      first = "Mayan Long Count " + LongCountText(LongCountOfJD(ctx, jd));
      break;
    case C::JDA:
      first = "Julian Day " + N(jd);
      break;
    case C::Yor:
      first = N(date.day) + ", Ose " + N(date.month) + ", " + N(date.year) + " (Yoruba Calendar)";
      break;
    case C::Chi:
    case C::Vie: {
      Sexagesimal s = CycleOf(date.year);
      first = "Day " + N(date.day) + (date.month == 0 ? ", Leap Month " : ", Month ") +
              N(ShownLunarMonth(e, type, date, jd)) + ", Year " + N(s.yearInCycle) + " (" +
              StemBranch(ctx, type, date.year) + "), Cycle " + N(s.cycle) +
              (type == C::Chi ? " (Chinese Calendar)" : " (Vietnamese Calendar)");
      break;
    }
    case C::Bal:
      first = BalMonthName(ctx, date.year, date.month) + BalDayText(date.day) + ", " +
              N(date.year) + " (Balinese Saka Calendar)";
      break;
    default: {
      const bool leapMonth = IsHinduLunisolar(type) && date.month > 100;
      const bool leapDay = IsHinduLunisolar(type) && date.day > 100;
      first = std::string(leapMonth ? "Leap Month " : "") +
              MonthName(ctx, type, date.month, date.year) + " " + (leapDay ? "Leap Day " : "") +
              N(date.day % 100);
      if (type == C::Fre && date.month == 13) first += " -- " + FrenchDayName(ctx, date.day, 13);
      if (type == C::Bah && date.day != date.month)
        first += " (" + std::string(BahaiDayName(date.day, date.month)) + ")";
      if (type == C::Fas || type == C::ParShe || type == C::PerQad) {
        std::string name(ParsiDayName(date.day, date.month));
        if (date.month < 13)
          first += " (" + name + ")";
        else if (type == C::Fas && date.day == 6 && e.IsLeapYear(type, date.year))
          first += " (Leap Day " + name + ")";
        else
          first += " (Gatha " + name + ")";
      }
      first +=
          ", " + N(date.year) + std::string(info.eraSuffix) + " (" + ListName(type) + " Calendar)";
    }
  }
  std::string text = first + std::string(kCrLf);
  text += "This day is a " + Weekday(jd) + "." + std::string(kCrLf);
  if (type == C::Yor) {
    text += "It is day " + N(jd - FirstDayOfYear(e, type, date.year) + 1) +
            " of the Yoruba calendar year " + N(date.year) + "." + std::string(kCrLf);
  } else if (type != C::May && type != C::JDA) {
    std::string name = ListName(type);
    if (type == C::Greg && date.year == 1582) name = "Julian/Gregorian";
    text += "It is day " + N(jd - FirstDayOfYear(e, type, date.year) + 1) + " of the " +
            N(date.year) + " " + name + " calendar year." + std::string(kCrLf);
  }
  text += "Julian Day (JD) = " + N(jd) + std::string(kCrLf) + std::string(kCrLf);
  return text;
}

std::string AllCalendarsReport(Context& ctx, C input, JD jd) {
  const std::string rule(76, '-');
  std::string text = rule + std::string(kCrLf) + PadRight("Calendar", 26) + "Equivalent Date" +
                     std::string(kCrLf) + rule + std::string(kCrLf);
  for (const Row& row : Rows()) {
    if (row.calendar == input || !row.shown(ctx, jd)) continue;
    std::vector<std::string> lines = row.text(ctx, jd);
    for (std::size_t i = 0; i < lines.size(); ++i)
      text += PadRight(i == 0 ? row.name : "", 26) + lines[i] + std::string(kCrLf);
  }
  return text + rule + std::string(kCrLf);
}

std::string YearSection(Context& ctx, C type, const CalDate& date) {
  CalendarEngine& e = Calendars(ctx);
  const std::string name = ListName(type);
  std::string text;
  auto line = [&](const std::string& l) { text += l + std::string(kCrLf); };
  switch (type) {
    case C::Afg:
    case C::APer:
    case C::Arm:
    case C::Bah:
    case C::Cop:
    case C::Eth:
    case C::Fre:
    case C::Isl:
    case C::Per: {
      JD jd = e.DateToJD(type, date.day, date.month, date.year);
      line("It is day " + N(jd - Day(e, type, 1, 1, 1) + 1) + " since the start of " + name +
           " calendar year 1.");
      break;
    }
    default:
      break;
  }
  if (type == C::May || type == C::JDA) return text;
  switch (type) {
    case C::Afg:
    case C::APer:
    case C::Bah:
    case C::Ban:
    case C::Cop:
    case C::Eth:
    case C::Fas:
    case C::Fre:
    case C::Heb:
    case C::Ind:
    case C::Isl:
    case C::Jav:
    case C::Jul:
    case C::Per:
    case C::RevJul:
    case C::Sikh:
    case C::Bal:
    case C::Chi:
    case C::Vie: {
      bool leap = e.IsLeapYear(type, date.year);
      if (type == C::Chi || type == C::Vie)  // a year with a leap month
        leap = BuildLunarYear(e, type, JDToGregorian(e, FirstDayOfYear(e, type, date.year)).year)
                   .leapMonthNumber != 0;
      line("The " + name + " calendar year " + N(date.year) + (leap ? " is " : " is not ") +
           "a leap year.");
      break;
    }
    default:
      break;
  }
  JD start = FirstDayOfYear(e, type, date.year);
  if (type == C::Greg && date.year == 1582) start = JulianToJD(1, 1, 1582);
  if (type == C::RevJul && date.year == 1923) start = JulianToJD(1, 1, 1923);
  JD next = FirstDayOfYear(e, type, date.year + 1);
  line("There are " + N(next - start) + " days in this calendar year.");
  if (type == C::Fre || type == C::Yor) return text;

  // The month lengths of the year.
  std::vector<std::pair<std::string, int>> months;
  if (type == C::Chi || type == C::Vie) {
    const LunarYearTable& t =
        BuildLunarYear(e, type, JDToGregorian(e, FirstDayOfYear(e, type, date.year)).year);
    for (int i = 1; i <= t.monthCount; ++i) {
      std::string label = t.monthNumber[i] == 0 ? "Leap Month " + N(t.leapMonthNumber)
                                                : "Month " + N(t.monthNumber[i]);
      months.emplace_back(label, t.monthLength[i]);
    }
  } else if (IsHinduLunisolar(type)) {
    // Month ends found by trial of days 30 and 29, plain and leap.
    for (int m = 1; m <= 12; ++m)
      for (bool leapMonth : {true, false}) {
        const int month = leapMonth ? m + 100 : m;
        if (!hindu::ValidHinduMonth(e, type, month, date.year)) continue;
        JD first = 0, last = 0;
        for (int day : {1, 2, 101, 102}) {
          JD jd = e.DateToJD(type, day, month, date.year);
          if (jd > hindu::kRDToJD && e.JDToDate(type, jd) == CalDate{day, month, date.year}) {
            first = jd;
            break;
          }
        }
        for (int day : {130, 30, 129, 29}) {
          JD jd = e.DateToJD(type, day, month, date.year);
          if (jd > hindu::kRDToJD && e.JDToDate(type, jd) == CalDate{day, month, date.year}) {
            last = jd;
            break;
          }
        }
        if (first && last)
          months.emplace_back(
              std::string(leapMonth ? "Leap " : "") + MonthName(ctx, type, month, date.year),
              last - first + 1);
      }
  } else {
    const int count = InfoOf(type).monthCount;
    for (int m = 1; m <= count; ++m) {
      if (type == C::Heb && m == 7 && !e.IsLeapYear(type, date.year)) continue;
      if (type == C::Bal && m == 13 && !e.IsLeapYear(type, date.year)) continue;
      int length = e.DaysInMonth(type, date.year, m);
      if (length > 0) months.emplace_back(MonthName(ctx, type, m, date.year), length);
    }
  }
  std::size_t width = 0;
  for (const auto& [label, length] : months) width = std::max(width, DisplayWidth(label));
  for (const auto& [label, length] : months)
    line("   " + PadRight(label, width + 2) + PadLeft(N(length), 2) +
         (length == 1 ? " day" : " days"));
  return text;
}

std::string DateConversionsReport(Context& ctx, C type, const CalDate& date, JD jd) {
  std::string text = "*** Date Conversions ***" + std::string(kCrLf) + std::string(kCrLf);
  text += DateHeader(ctx, type, date, jd);
  std::string year = YearSection(ctx, type, date);
  if (!year.empty()) text += year + std::string(kCrLf);
  text += AllCalendarsReport(ctx, type, jd) + std::string(kCrLf);
  CalendarEngine& e = Calendars(ctx);
  if (jd >= GregorianToJD(1, 1, 1583)) {
    CalDate g = JDToGregorian(e, jd);
    text += GregorianDetails(ctx, g.day, g.month, g.year, jd);
  } else {
    CalDate j = JDToJulian(e, jd);
    text += JulianDetails(ctx, j.day, j.month, j.year, jd);
  }
  return text;
}

DateConversionsScreen::DateConversionsScreen(Context& ctx) : ctx_(ctx) {}

bool DateConversionsScreen::SetCalendar(std::string_view listName) {
  for (const auto& c : ConversionCalendars())
    if (c.name == listName) {
      calendar_ = std::string(listName);
      type_ = c.type;
      return true;
    }
  return false;
}

std::string DateConversionsScreen::Prompt() const {
  return BuildPrompt(ctx_, type_);
}

std::optional<JD> DateConversionsScreen::ParseBox() {
  CalendarEngine& e = Calendars(ctx_);
  if (type_ == C::May) return LongCountTextToJD(ctx_, dateText);
  if (type_ == C::JDA) {
    JD jd = CheckJDText(ctx_, dateText);
    if (jd == 0) return std::nullopt;
    return jd;
  }
  auto date = ParseDateText(ctx_, type_, dateText);
  if (!date) return std::nullopt;
  JD jd = e.DateToJD(type_, date->day, date->month, date->year);
  if (type_ == C::Bal && jd == -1) {
    ShowError(ctx_, Err("Second day of a Balinese Saka pengunalatri."));
    return std::nullopt;
  }
  return jd;
}

bool DateConversionsScreen::ConvertDate() {
  output_.clear();
  CalendarEngine& e = Calendars(ctx_);
  if (Trim(dateText).empty()) {
    const LocalDateTime now = ctx_.Now();
    const JD today = GregorianToJD(now.day, now.month, now.year);
    if (type_ == C::Fre)
      dateText = "1/1/1";
    else if (type_ == C::JDA)
      dateText = N(today);
    else if (type_ == C::May)
      dateText = LongCountText(LongCountOfJD(ctx_, today));
    else
      dateText = FormatDateText(ctx_, type_, e.JDToDate(type_, today));
  }
  auto jd = ParseBox();
  if (!jd) return false;
  CalDate date = type_ == C::JDA || type_ == C::May ? CalDate{} : e.JDToDate(type_, *jd);
  output_ = DateConversionsReport(ctx_, type_, date, *jd);
  return true;
}

bool DateConversionsScreen::StepDate(int delta) {
  CalendarEngine& e = Calendars(ctx_);
  if (Trim(dateText).empty()) return ConvertDate();
  auto jd = ParseBox();
  if (!jd) return false;
  // Past the last day the new text is refused as any date out of range is.
  const JD next = *jd + delta;
  if (next < FirstJD(ctx_, type_)) {
    ShowError(ctx_, Err("Lower limit reached -- unable to complete operation."));
    return false;
  }
  if (type_ == C::JDA)
    dateText = N(next);
  else if (type_ == C::May)
    dateText = LongCountText(LongCountOfJD(ctx_, next));
  else
    dateText = FormatDateText(ctx_, type_, e.JDToDate(type_, next));
  return ConvertDate();
}

}  // namespace mc
