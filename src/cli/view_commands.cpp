// The month and year calendar pages from the command line: the same text the
// screens show in their output boxes.
#include <ostream>

#include "cli/commands.h"
#include "core/text_util.h"
#include "views/month_calendars.h"
#include "views/year_calendars.h"

namespace mc {

namespace {

// The text as the screen has it (CR LF), or with --lf plain line ends; a text
// that doesn't end with a line end gets one, so that the shell's prompt
// starts on a line of its own.
void PrintReport(CliEnv& env, std::string text) {
  if (!text.ends_with("\n")) text += "\r\n";
  if (!env.plainLineEnds) {
    env.out << text;
    return;
  }
  for (char c : text)
    if (c != '\r') env.out << c;
}

// The list position of a calendar code among a screen's entries.
template <class Entries>
std::optional<int> IndexOfCode(CliEnv& env, const Entries& entries, const std::string& code,
                               std::string_view screen) {
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (CodeOf(entries[i].type) == code) return static_cast<int>(i);
  env.err << "codex-cli: " << code << " is not a calendar of the " << screen << " list (codes:";
  for (const auto& e : entries) env.err << ' ' << CodeOf(e.type);
  env.err << ")\n";
  return std::nullopt;
}

int MonthCalendar(CliEnv& env, const std::string& code, const std::string& year,
                  const std::string& month) {
  auto index = IndexOfCode(env, MonthCalendarsScreen::Entries(), code, "Month Calendars");
  if (!index) return kExitRefused;
  MonthCalendarsScreen screen(env.ctx);
  screen.SelectCalendar(*index);
  // The last month of the list passes the change-over checks of any year
  // that can be shown, so the year can be set before the month is chosen.
  screen.SelectMonth(static_cast<int>(screen.MonthList().size()) - 1);
  if (!screen.EnterYear(year)) return kExitRefused;

  const auto& list = screen.MonthList();
  int chosen = -1;
  long long number = 0;
  if (ParseInt(month, number)) {
    if (number >= 1 && number <= static_cast<long long>(list.size()))
      chosen = static_cast<int>(number) - 1;
  } else {
    for (std::size_t i = 0; i < list.size(); ++i)
      if (ToLower(list[i]) == ToLower(Trim(month))) chosen = static_cast<int>(i);
  }
  if (chosen < 0) {
    env.err << "codex-cli: no month " << month << " in " << year << " (the list:";
    for (std::size_t i = 0; i < list.size(); ++i) env.err << ' ' << (i + 1) << '=' << list[i];
    env.err << ")\n";
    return kExitRefused;
  }
  if (chosen != screen.MonthIndex() && !screen.SelectMonth(chosen)) return kExitRefused;
  PrintReport(env, screen.GridText());
  return kExitOk;
}

int YearCalendar(CliEnv& env, const std::string& code, const std::string& year) {
  auto index = IndexOfCode(env, YearCalendarsScreen::Entries(), code, "Year Calendars");
  if (!index) return kExitRefused;
  YearCalendarsScreen screen(env.ctx);
  screen.ChooseCalendar(*index);
  screen.SetYearText(year);
  if (!screen.Enter()) return kExitRefused;
  PrintReport(env, screen.Output());
  return kExitOk;
}

}  // namespace

std::vector<CliCommand> ViewCommands() {
  using Args = const std::vector<std::string>&;
  return {
      {"report month-calendar", "report month-calendar CALTYPE YEAR MONTH",
       "the Month Calendars grid; MONTH is the place in the month list (1 = first) or its text",
       [](CliEnv& env, Args a) {
         return a.size() == 3 ? MonthCalendar(env, a[0], a[1], a[2]) : kExitUsage;
       }},
      {"report year-calendar", "report year-calendar CALTYPE [YEAR]",
       "the Year Calendars page (blank YEAR: the current year); Paw is the Balinese Pawukon",
       [](CliEnv& env, Args a) {
         if (a.size() == 1) return YearCalendar(env, a[0], "");
         if (a.size() == 2) return YearCalendar(env, a[0], a[1]);
         return kExitUsage;
       }},
  };
}

}  // namespace mc
