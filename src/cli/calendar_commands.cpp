// Calendar conversions from the command line.
#include <optional>
#include <ostream>

#include "calendars/cycles.h"
#include "calendars/date_conversions.h"
#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "cli/commands.h"
#include "core/errors.h"
#include "core/text_util.h"

namespace mc {

namespace {

// Codes converted through cycles.h: the long count both ways, the day cycles
// from a day number only.
bool IsCycleCode(CalType t) {
  return t == CalType::May || t == CalType::Haab || t == CalType::Tzo || t == CalType::Ton ||
         t == CalType::Xih;
}

std::optional<CalType> CalendarOf(CliEnv& env, const std::string& code) {
  auto type = CalTypeOfCode(code);
  if (!type) {
    env.err << "codex-cli: unknown calendar code " << code << " (see codex-cli calendars)\n";
    return std::nullopt;
  }
  if (*type != CalType::JDA && !IsCycleCode(*type) && !Calendars(env.ctx).HasRules(*type)) {
    env.err << "codex-cli: calendar " << code << " is not available in this version\n";
    return std::nullopt;
  }
  return type;
}

int ToJD(CliEnv& env, const std::string& code, const std::string& text) {
  auto type = CalendarOf(env, code);
  if (!type) return kExitRefused;
  JD jd = 0;
  if (*type == CalType::May) {
    auto day = LongCountTextToJD(env.ctx, text);
    if (!day) return kExitRefused;
    jd = *day;
  } else if (IsCycleCode(*type)) {
    env.err << "codex-cli: " << code << " gives dates of a day number only (use from-jd)\n";
    return kExitRefused;
  } else if (*type == CalType::JDA) {
    jd = CheckJDText(env.ctx, text);
    if (jd == 0) {
      if (Trim(text).empty())
        ShowError(env.ctx, Err("Julian Day value is outside specified range."));
      return kExitRefused;
    }
  } else {
    auto date = ParseDateText(env.ctx, *type, text);
    if (!date) return kExitRefused;
    jd = Calendars(env.ctx).DateToJD(*type, date->day, date->month, date->year);
    if (*type == CalType::Bal && jd == -1) {
      ShowError(env.ctx, Err("Second day of a Balinese Saka pengunalatri."));
      return kExitRefused;
    }
  }
  env.out << jd << '\n';
  return kExitOk;
}

// A day number inside the calendar's supported range, else its message.
bool InRange(CliEnv& env, CalType type, JD jd) {
  Context& ctx = env.ctx;
  if (jd < FirstJulianDay() || jd > LastJulianDay()) {
    ShowError(ctx, Err("Julian Day value is outside specified range."));
    return false;
  }
  if (type == CalType::JDA) return true;
  const CalendarInfo& info = InfoOf(type);
  if (jd < FirstJD(ctx, type)) {
    ValidateYearText(ctx, type, std::to_string(info.firstYear - 1));
    return false;
  }
  int year = Calendars(ctx).JDToDate(type, jd).year;
  if (info.lastYear != 0 && year > info.lastYear) {
    ValidateYearText(ctx, type, std::to_string(year));
    return false;
  }
  return true;
}

int FromJD(CliEnv& env, const std::string& code, const std::string& fromText,
           const std::optional<std::string>& toText) {
  auto type = CalendarOf(env, code);
  if (!type) return kExitRefused;
  const bool range = toText.has_value();
  long long from = 0, to = 0;
  if (!ParseInt(fromText, from) || !ParseInt(toText.value_or(fromText), to)) {
    ShowError(env.ctx, Err("Julian Day value is outside specified range."));
    return kExitRefused;
  }
  if (!InRange(env, *type, static_cast<JD>(from)) || !InRange(env, *type, static_cast<JD>(to)))
    return kExitRefused;
  CalendarEngine& engine = Calendars(env.ctx);
  std::string buffer;
  for (long long jd = from; jd <= to; ++jd) {
    if (range) buffer += std::to_string(jd) + '\t';
    if (*type == CalType::JDA)
      buffer += std::to_string(jd);
    else if (IsCycleCode(*type))
      buffer += CycleDateText(env.ctx, *type, static_cast<JD>(jd));
    else
      buffer += FormatDateText(env.ctx, *type, engine.JDToDate(*type, static_cast<JD>(jd)));
    buffer += '\n';
    if (buffer.size() > (1 << 16)) {
      env.out << buffer;
      buffer.clear();
    }
  }
  env.out << buffer;
  return kExitOk;
}

int Today(CliEnv& env) {
  LocalDateTime now = env.ctx.Now();
  env.out << FormatDateText(env.ctx, CalType::Greg, now.day, now.month, now.year) << '\t'
          << GregorianToJD(now.day, now.month, now.year) << '\n';
  return kExitOk;
}

int ListCalendars(CliEnv& env) {
  for (int i = 0; i < kCalTypeCount; ++i) {
    const CalendarInfo& c = InfoOf(static_cast<CalType>(i));
    if (c.listName.empty()) continue;
    env.out << c.code << '\t' << c.listName;
    if (c.lastYear != 0) env.out << '\t' << c.firstYear << '-' << c.lastYear;
    bool available = c.type == CalType::JDA || Calendars(env.ctx).HasRules(c.type);
    env.out << (available ? "" : "\t(not available)") << '\n';
  }
  return kExitOk;
}

// Prints a report as the output box shows it, CR LF or (--lf) LF line ends.
void PrintReport(CliEnv& env, const std::string& report) {
  if (!env.plainLineEnds) {
    env.out << report;
    return;
  }
  for (const auto& line : SplitLines(report)) env.out << line << '\n';
}

int DateConversions(CliEnv& env, const std::vector<std::string>& a) {
  if (a.empty() || a.size() > 2) return kExitUsage;
  auto type = CalTypeOfCode(a[0]);
  DateConversionsScreen screen(env.ctx);
  const ConversionCalendar* entry = nullptr;
  for (const auto& c : ConversionCalendars())
    if (type && c.type == *type) entry = &c;
  if (!entry) {
    env.err << "codex-cli: the Date Conversions list has no calendar " << a[0] << '\n';
    return kExitRefused;
  }
  screen.SetCalendar(entry->name);
  screen.dateText = a.size() == 2 ? a[1] : "";
  if (!screen.ConvertDate()) return kExitRefused;
  PrintReport(env, screen.Output());
  return kExitOk;
}

}  // namespace

std::vector<CliCommand> CalendarCommands() {
  using Args = const std::vector<std::string>&;
  return {
      {"to-jd", "to-jd CALTYPE TEXT", "the Julian Day of a date typed as in the date box",
       [](CliEnv& env, Args a) { return a.size() == 2 ? ToJD(env, a[0], a[1]) : kExitUsage; }},
      {"from-jd", "from-jd CALTYPE JD [JD2]",
       "the date of a Julian Day; with JD2 one line \"JD<TAB>date\" for every day to JD2",
       [](CliEnv& env, Args a) {
         if (a.size() == 2) return FromJD(env, a[0], a[1], std::nullopt);
         if (a.size() == 3) return FromJD(env, a[0], a[1], a[2]);
         return kExitUsage;
       }},
      {"today", "today", "today's Gregorian date and Julian Day",
       [](CliEnv& env, Args a) { return a.empty() ? Today(env) : kExitUsage; }},
      {"report date-conversions", "report date-conversions CALTYPE [TEXT]",
       "the Date Conversions report of a date (today when no TEXT)", DateConversions},
      {"calendars", "calendars", "the calendar codes with their names and years",
       [](CliEnv& env, Args a) { return a.empty() ? ListCalendars(env) : kExitUsage; }},
  };
}

}  // namespace mc
