#include "calendars/date_text.h"

#include <algorithm>
#include <cmath>

#include "calendars/gregorian.h"
#include "core/errors.h"
#include "core/locale_facts.h"
#include "core/number_format.h"
#include "core/text_util.h"

namespace mc {

namespace {

// A date part: numeric and whole, else the part's message. Nothing on failure.
std::optional<long long> WholePart(Context& ctx, std::string_view text) {
  auto v = ParseStrictNumber(text, ctx.settings.decimalSeparator);
  if (!v) {
    ShowError(ctx, Err("Non-numeric date part detected."));
    return std::nullopt;
  }
  if (std::floor(*v) != *v) {
    ShowError(ctx, Err("Non-integer date part detected."));
    return std::nullopt;
  }
  // Far outside any calendar either way; clamping keeps the arithmetic in range.
  return static_cast<long long>(std::clamp(*v, -1e9, 1e9));
}

// Strips a trailing leap mark "L" or "l"; true when there was one.
bool StripLeapMark(std::string_view& part) {
  part = Trim(part);
  if (!part.empty() && (part.back() == 'L' || part.back() == 'l')) {
    part.remove_suffix(1);
    return true;
  }
  return false;
}

bool LeapMonthMarksAllowed(CalType t) {
  return IsHinduLunisolar(t) || t == CalType::Heb || t == CalType::Bal;
}

enum class BalYearKind { A, B, C };

BalYearKind BalineseYearKind(CalendarEngine& engine, int year) {
  if (!engine.IsLeapYear(CalType::Bal, year)) return BalYearKind::C;
  switch (((year % 19) + 19) % 19) {
    case 0:
    case 6:
    case 11:
      return BalYearKind::A;
    case 3:
    case 8:
    case 14:
    case 16:
      return BalYearKind::B;
    default:
      return BalYearKind::C;
  }
}

bool CheckYoruba(Context& ctx, CalendarEngine& engine, int day, int week, int year) {
  if (day < 1 || day > 4) {
    ShowError(ctx, Err("Invalid day value."));
    return false;
  }
  if (week < 1 || week > 93) {
    ShowError(ctx, Err("Invalid week value."));
    return false;
  }
  auto f = [](JD jd) {
    int r = static_cast<int>(((jd % 4) + 4) % 4);
    return r == 0 ? 4 : r;
  };
  int gYear = year - 8042;
  if ((week == 1 && day < f(GregorianToJD(1, 1, gYear))) ||
      (week == 93 && day > f(GregorianToJD(31, 12, gYear)))) {
    ShowError(ctx, Err("Invalid Yoruba date."));
    return false;
  }
  CalDate a = engine.JDToDate(CalType::Yor, GregorianToJD(30, 11, gYear));
  CalDate b = engine.JDToDate(CalType::Yor, GregorianToJD(1, 12, gYear));
  bool inGap = (week > a.month && week < b.month) || (week == b.month && day < b.day) ||
               (week == a.month && day > a.day);
  if (a.month < b.month && inGap) {
    ShowError(ctx, Err("Invalid Yoruba date."));
    return false;
  }
  return true;
}

}  // namespace

int BalineseInternalMonth(CalendarEngine& engine, int m, int year) {
  BalYearKind kind = BalineseYearKind(engine, year);
  if (m >= 1 && m <= 11) {
    if (kind == BalYearKind::C) return m + 3 >= 13 ? m + 3 - 12 : m + 3;
    return m + 4 >= 14 ? m + 4 - 13 : m + 4;
  }
  switch (kind) {
    case BalYearKind::A:
      return m == 111 ? 3 : m == 12 ? 4 : 0;
    case BalYearKind::B:
      return m == 12 ? 3 : m == 112 ? 4 : 0;
    case BalYearKind::C:
      return m == 12 ? 3 : 0;
  }
  return 0;
}

std::string BalineseUserMonthText(CalendarEngine& engine, int m, int year) {
  if (m == 1 || m == 2) return std::to_string(m + 9);
  switch (BalineseYearKind(engine, year)) {
    case BalYearKind::A:
      if (m == 3) return "11L";
      if (m == 4) return "12";
      return std::to_string(m - 4);
    case BalYearKind::B:
      if (m == 3) return "12";
      if (m == 4) return "12L";
      return std::to_string(m - 4);
    case BalYearKind::C:
      if (m == 3) return "12";
      return std::to_string(m - 3);
  }
  return std::to_string(m);
}

int ValidateYearText(Context& ctx, CalType type, std::string_view text) {
  const bool olympiad = type == CalType::Oly2;
  if (Trim(text).empty()) {
    ShowError(ctx, olympiad ? Err("Missing Olympiad value.") : Err("Missing year value."));
    return 0;
  }
  auto v = ParseStrictNumber(text, ctx.settings.decimalSeparator);
  if (!v) {
    ShowError(ctx, olympiad ? Err("Olympiad value must be numeric.")
                            : Err("Year value must be numeric."));
    return 0;
  }
  if (std::floor(*v) != *v) {
    ShowError(ctx, olympiad ? Err("Olympiad value must be an integer.")
                            : Err("Year value must be an integer."));
    return 0;
  }
  const CalendarInfo& info = InfoOf(type);
  if (info.firstYear == 0 && info.lastYear == 0) return static_cast<int>(*v);  // no range
  const std::string name(info.messageName);
  if (*v < info.firstYear) {
    switch (type) {
      case CalType::HinLun3:
        ShowError(ctx, Err("Hindu Rajasthan lunisolar year must be greater then 64."));
        break;
      case CalType::Oly1:
        ShowError(ctx, Err("Calendar year must not be earlier than 776 BC."));
        break;
      case CalType::Oly2:
        ShowError(ctx, Err("Olympiad value must be positive."));
        break;
      default:
        ShowErrorText(
            ctx, name + " year must be greater than " + std::to_string(info.firstYear - 1) + ".");
    }
    return 0;
  }
  if (*v > info.lastYear) {
    switch (type) {
      case CalType::HinLun1:
      case CalType::HinLun2:
        ShowError(ctx, Err("Lunisolar year must not exceed 10054."));
        break;
      case CalType::Oly1:
        ShowError(ctx, Err("Calendar Year must not be later than 392 AD."));
        break;
      case CalType::Oly2:
        ShowError(ctx, Err("Olympiad value must not be greater than 292."));
        break;
      default:
        ShowErrorText(ctx, name + " year must not exceed " + std::to_string(info.lastYear) + ".");
    }
    return 0;
  }
  return static_cast<int>(*v);
}

std::optional<CalDate> ParseDateText(Context& ctx, CalType type, std::string_view text) {
  CalendarEngine& engine = Calendars(ctx);
  const bool hindu = IsHinduLunisolar(type);
  const bool sexagesimal = type == CalType::Chi || type == CalType::Vie;

  auto slash1 = text.find('/');
  if (slash1 == std::string_view::npos) {
    ShowError(ctx, Err("Missing / in a date."));
    return std::nullopt;
  }
  std::string_view part1 = text.substr(0, slash1);
  bool leapDay = hindu && StripLeapMark(part1);
  auto p1 = WholePart(ctx, part1);
  if (!p1) return std::nullopt;

  std::string_view rest = text.substr(slash1 + 1);
  auto slash2 = rest.find('/');
  if (slash2 == std::string_view::npos) {
    ShowError(ctx, Err("Missing / in a date."));
    return std::nullopt;
  }
  std::string_view part2 = rest.substr(0, slash2);
  bool leapMonth = LeapMonthMarksAllowed(type) && StripLeapMark(part2);
  auto p2 = WholePart(ctx, part2);
  if (!p2) return std::nullopt;

  std::string_view part3 = rest.substr(slash2 + 1);
  long long p3 = 0;
  std::string yearText;
  if (sexagesimal) {
    auto slash3 = part3.find('/');
    if (slash3 == std::string_view::npos) {
      ShowError(ctx, Err("Missing / between y and c in a Chinese or Vietnamese date."));
      return std::nullopt;
    }
    const char sep = ctx.settings.decimalSeparator;
    auto y = ParseStrictNumber(part3.substr(0, slash3), sep);
    if (!y) {
      ShowError(ctx, Err("Non-numeric Chinese or Vietnamese year-within-cycle y."));
      return std::nullopt;
    }
    if (std::floor(*y) != *y) {
      ShowError(ctx, Err("Month must be an integer value."));
      return std::nullopt;
    }
    if (*y < 1 || *y > 60) {
      ShowError(ctx, Err("Chinese or Vietnamese year-within-cycle y must be a value between 1 "
                         "and 60, inclusive."));
      return std::nullopt;
    }
    auto c = ParseStrictNumber(part3.substr(slash3 + 1), sep);
    if (!c) {
      ShowError(ctx, Err("Non-numeric Chinese or Vietnamese sexagesimal cycle c."));
      return std::nullopt;
    }
    if (std::floor(*c) != *c) {
      ShowError(ctx, Err("Chinese or Vietnamese sexagesimal cycle c must be an integer value."));
      return std::nullopt;
    }
    if (*c < 72 || *c > 94) {
      ShowError(ctx, Err("Chinese or Vietnamese sexagesimal cycle c must be a value between 72 "
                         "and 94, inclusive."));
      return std::nullopt;
    }
    if (*c == 72 && *y < 22) {
      ShowError(ctx, Err("When Chinese or Vietnamese sexagesimal cycle c = 72, y must be greater "
                         "than 21."));
      return std::nullopt;
    }
    if (*c == 94 && *y > 57) {
      ShowError(ctx, Err("When Chinese or Vietnamese sexagesimal cycle c = 94, y must be less "
                         "than 58."));
      return std::nullopt;
    }
    yearText = std::to_string((static_cast<long long>(*c) - 1) * 60 + static_cast<long long>(*y));
  } else {
    auto v = WholePart(ctx, part3);
    if (!v) return std::nullopt;
    p3 = *v;
  }

  CalDate d;
  if (type == CalType::Greg) {
    const std::string& order = ctx.settings.dateOrder;
    if (!IsKnownDateOrder(order)) {
      ShowError(ctx, Err("Unrecognised Windows short date format."));
      return std::nullopt;
    }
    // The order names where each part goes: "m/d/y" puts the month first.
    const long long parts[3] = {*p1, *p2, p3};
    long long day = 0, month = 0, year = 0;
    for (int i = 0; i < 3; ++i) {
      char which = order[static_cast<std::size_t>(2 * i)];
      (which == 'd' ? day : which == 'm' ? month : year) = parts[i];
    }
    if (year < 1) {
      ShowError(ctx, Err("Invalid year value."));
      return std::nullopt;
    }
    if (year < 100) year += 2000;
    d = CalDate{static_cast<int>(day), static_cast<int>(month), 0};
    yearText = std::to_string(year);
  } else {
    d = CalDate{static_cast<int>(*p1), static_cast<int>(*p2), 0};
    if (!sexagesimal) yearText = std::to_string(p3);
  }

  if (hindu && leapDay) d.day += 100;
  if (leapMonth) d.month += 100;

  d.year = ValidateYearText(ctx, type, yearText);
  if (d.year == 0) return std::nullopt;

  switch (type) {
    case CalType::Bal: {
      int m = BalineseInternalMonth(engine, d.month, d.year);
      if (m == 0) {
        ShowError(ctx, Err("Invalid month value."));
        return std::nullopt;
      }
      d.month = m;
      if (d.day < 1 || d.day > 30) {
        ShowError(ctx, Err("Invalid day value."));
        return std::nullopt;
      }
      return d;
    }
    case CalType::Chi:
    case CalType::Vie: {
      JD jd = engine.DateToJD(type, d.day, d.month, d.year);
      if (jd == -1 || (jd <= 0 && !engine.HasRules(type))) {
        ShowError(ctx, Err("Invalid month value."));
        return std::nullopt;
      }
      if (jd == -2) {
        ShowError(ctx, Err("Invalid day value."));
        return std::nullopt;
      }
      return d;
    }
    case CalType::Heb: {
      bool leap = engine.IsLeapYear(type, d.year);
      if (d.month == 106 && leap) {
        d.month = 7;
      } else if (d.month > 100) {
        ShowError(ctx, Err("Invalid month value."));
        return std::nullopt;
      } else if (d.month > 6) {
        d.month += 1;
      }
      if (d.month < 1 || d.month > 13) {
        ShowError(ctx, Err("Invalid month value."));
        return std::nullopt;
      }
      if (d.day < 1 || d.day > engine.DaysInMonth(type, d.year, d.month)) {
        ShowError(ctx, Err("Invalid day value."));
        return std::nullopt;
      }
      return d;
    }
    case CalType::HinLun:
    case CalType::HinLun1:
    case CalType::HinLun2:
    case CalType::HinLun3:
      if (engine.DateToJD(type, d.day, d.month, d.year) < 1721425) {
        ShowError(ctx, Err("Invalid Hindu lunisolar date."));
        return std::nullopt;
      }
      return d;
    case CalType::Yor:
      if (!CheckYoruba(ctx, engine, d.day, d.month, d.year)) return std::nullopt;
      return d;
    default:
      break;
  }

  const int months = InfoOf(type).monthCount;
  if (d.month < 1 || d.month > months) {
    ShowError(ctx, Err("Invalid month value."));
    return std::nullopt;
  }
  if (d.day < 1 || d.day > engine.DaysInMonth(type, d.year, d.month)) {
    ShowError(ctx, Err("Invalid day value."));
    return std::nullopt;
  }
  if (type == CalType::Greg && d.year == 1582 && (d.month < 10 || (d.month == 10 && d.day < 15))) {
    ShowError(ctx, Err("The Gregorian calendar did not commence until October 15, 1582."));
    return std::nullopt;
  }
  return d;
}

std::string FormatDateText(Context& ctx, CalType type, int day, int month, int year) {
  auto n = [](int v) { return std::to_string(v); };
  switch (type) {
    case CalType::Greg: {
      std::string order = ctx.settings.dateOrder;
      if (!IsKnownDateOrder(order)) order = "d/m/y";
      std::string out;
      for (int i = 0; i < 3; ++i) {
        char which = order[static_cast<std::size_t>(2 * i)];
        if (i) out += '/';
        out += n(which == 'd' ? day : which == 'm' ? month : year);
      }
      return out;
    }
    case CalType::Chi:
    case CalType::Vie: {
      int y = ((year % 60) + 60) % 60;
      int c = year / 60 + 1;
      if (y == 0) {
        y = 60;
        c -= 1;
      }
      return n(day) + "/" + n(month) + "/" + n(y) + "/" + n(c);
    }
    case CalType::HinLun:
    case CalType::HinLun1:
    case CalType::HinLun2:
    case CalType::HinLun3: {
      auto leapText = [&](int v) { return v > 100 ? n(v - 100) + "L" : n(v); };
      return leapText(day) + "/" + leapText(month) + "/" + n(year);
    }
    case CalType::Heb: {
      std::string m = month == 7 ? "6L" : n(month > 7 ? month - 1 : month);
      return n(day) + "/" + m + "/" + n(year);
    }
    case CalType::Bal:
      return n(day) + "/" + BalineseUserMonthText(Calendars(ctx), month, year) + "/" + n(year);
    default:
      return n(day) + "/" + n(month) + "/" + n(year);
  }
}

JD FirstJD(Context& ctx, CalType type) {
  CalendarEngine& engine = Calendars(ctx);
  switch (type) {
    case CalType::Greg:
      return kGregorianStart;
    case CalType::RevJul:
      return engine.DateToJD(type, 14, 10, 1923);
    case CalType::HinLun:
    case CalType::HinLun1:
    case CalType::HinLun2:
    case CalType::HinLun3:
      return engine.DateToJD(type, 1, 1, 64);
    case CalType::JDA:
      return FirstJulianDay();
    case CalType::Yor:
      return engine.DateToJD(type, 3, 1, 9625);  // 1 January 1583
    default:
      return engine.DateToJD(type, 1, 1, InfoOf(type).firstYear);
  }
}

JD FirstJulianDay() {
  return JulianToJD(1, 1, 7);
}
JD LastJulianDay() {
  return GregorianToJD(31, 12, 9999);
}

JD CheckJDText(Context& ctx, std::string_view text) {
  if (Trim(text).empty()) return 0;
  auto v = ParseStrictNumber(text, ctx.settings.decimalSeparator);
  if (!v || *v < FirstJulianDay() || *v > LastJulianDay()) {
    ShowError(ctx, Err("Julian Day value is outside specified range."));
    return 0;
  }
  return static_cast<JD>(std::floor(*v));
}

std::optional<LongCount> ParseLongCount(Context& ctx, std::string_view text) {
  long long v[5] = {};
  std::string_view rest = text;
  for (int i = 0; i < 5; ++i) {
    std::string_view part = rest;
    if (i < 4) {
      auto dot = rest.find('.');
      if (dot == std::string_view::npos) {
        ShowError(ctx, Err("Missing period in Mayan long count date."));
        return std::nullopt;
      }
      part = rest.substr(0, dot);
      rest = rest.substr(dot + 1);
    }
    if (Trim(part).empty()) {
      ShowError(ctx, Err("Missing part in Mayan long count date."));
      return std::nullopt;
    }
    if (!ParseInt(part, v[i])) {
      ShowError(ctx, Err("Non-numeric part in Mayan long count date"));
      return std::nullopt;
    }
  }
  static constexpr struct {
    int low, high;
    int message;
  } kRanges[5] = {
      {7, 33, Err("Baktun value is not in the range 7 to 33.")},
      {0, 19, Err("Katun value is not in the range 0 to 19.")},
      {0, 19, Err("Tun value is not in the range 0 to 19.")},
      {0, 17, Err("Uinal value is not in the range 0 to 17.")},
      {0, 19, Err("Kin value is not in the range 0 to 19.")},
  };
  for (int i = 0; i < 5; ++i) {
    if (v[i] < kRanges[i].low || v[i] > kRanges[i].high) {
      ShowError(ctx, kRanges[i].message);
      return std::nullopt;
    }
  }
  return LongCount{static_cast<int>(v[0]), static_cast<int>(v[1]), static_cast<int>(v[2]),
                   static_cast<int>(v[3]), static_cast<int>(v[4])};
}

}  // namespace mc
