// The reminder diary from the command line: the list, the out-of-date list,
// the store's check, compaction and slot listing, adding, import and export.
#include <map>
#include <optional>
#include <ostream>

#include "cli/commands.h"
#include "core/text_util.h"
#include "reminders/add_screen.h"
#include "reminders/report.h"
#include "reminders/store.h"
#include "reminders/utilities_screen.h"

namespace mc {

namespace {

void Print(CliEnv& env, const std::string& text) {
  if (!env.plainLineEnds) {
    env.out << text;
    return;
  }
  for (char c : text)
    if (c != '\r') env.out << c;
}

// "--name value" pairs after the action word; nothing for an unknown or
// incomplete option.
std::optional<std::map<std::string, std::string>> Options(
    CliEnv& env, const std::vector<std::string>& words, std::initializer_list<const char*> known) {
  std::map<std::string, std::string> o;
  for (std::size_t i = 1; i < words.size(); i += 2) {
    bool ok = false;
    for (const char* k : known) ok = ok || words[i] == k;
    if (!ok || i + 1 >= words.size()) {
      env.err << "codex-cli: reminders " << words[0] << ": unexpected " << words[i] << '\n';
      return std::nullopt;
    }
    o[words[i]] = words[i + 1];
  }
  return o;
}

// "M/YYYY" of the month and year lists.
bool MonthYear(const std::string& text, int& month, int& year) {
  auto slash = text.find('/');
  long long m = 0, y = 0;
  if (slash == std::string::npos || !ParseInt(text.substr(0, slash), m) ||
      !ParseInt(text.substr(slash + 1), y))
    return false;
  month = static_cast<int>(m);
  year = static_cast<int>(y);
  return true;
}

int Add(CliEnv& env, const std::vector<std::string>& words) {
  auto o = Options(env, words,
                   {"--message", "--type", "--date", "--year", "--every", "--until", "--ordinal",
                    "--weekday", "--day", "--from", "--to"});
  if (!o) return kExitUsage;
  AddRemindersScreen screen(env.ctx);
  auto get = [&](const char* k) -> std::optional<std::string> {
    auto it = o->find(k);
    if (it == o->end()) return std::nullopt;
    return it->second;
  };
  screen.message = get("--message").value_or("");
  long long type = 1;
  if (auto t = get("--type"); t && (!ParseInt(*t, type) || type < 1 || type > 3)) return kExitUsage;
  screen.ChooseType(static_cast<int>(type));
  screen.dayMonth = get("--date").value_or("");
  std::string year = get("--year").value_or("this");
  if (year == "this")
    screen.yearOption = YearOption::ThisYear;
  else if (year == "next")
    screen.yearOption = YearOption::NextYear;
  else if (year == "every")
    screen.yearOption = YearOption::EveryYear;
  else
    return kExitUsage;
  if (auto every = get("--every")) {
    screen.SetSeries(true);
    screen.seriesDays = *every;
  }
  if (auto until = get("--until"))
    if (!MonthYear(*until, screen.seriesEndMonth, screen.seriesEndYear)) return kExitUsage;
  if (auto v = get("--ordinal")) screen.ordinal = *v;
  if (auto v = get("--weekday")) screen.weekday = *v;
  if (auto v = get("--day")) screen.type3Day = *v;
  if (auto v = get("--from"))
    if (!MonthYear(*v, screen.fromMonth, screen.fromYear)) return kExitUsage;
  if (auto v = get("--to"))
    if (!MonthYear(*v, screen.toMonth, screen.toYear)) return kExitUsage;
  if (!screen.Save()) return kExitRefused;
  env.out << screen.Information() << '\n';
  return kExitOk;
}

std::optional<FieldFormat> Format(CliEnv& env, const std::vector<std::string>& words) {
  auto o = Options(env, words, {"--order", "--separator"});
  if (!o) return std::nullopt;
  FieldFormat f;
  if (o->count("--order")) f.order = (*o)["--order"];
  if (o->count("--separator")) {
    const std::string& s = (*o)["--separator"];
    static const std::map<std::string, std::string> kByChar = {
        {",", "Comma ,"},  {"/", "Forward Slash /"},
        {"-", "Hyphen -"}, {";", "Semicolon ;"},
        {"\t", "Tab"},     {"tab", "Tab"}};
    bool listed = false;
    for (auto entry : kSeparators) listed = listed || entry == s;
    if (listed) {
      f.separator = s;
    } else if (kByChar.count(s)) {
      f.separator = kByChar.at(s);
    } else {
      f.separator = "User Specified";
      f.userSeparator = s;
    }
  }
  return f;
}

int Reminders(CliEnv& env, const std::vector<std::string>& words) {
  if (words.empty()) return kExitUsage;
  const std::string& action = words[0];
  Context& ctx = env.ctx;
  if (action == "list" && words.size() == 1) {
    ReminderReport r = BuildReminderReport(ctx);
    if (r.text == kReportError) return kExitRefused;
    Print(env, r.text + (r.text == kNoReminders ? "\r\n" : ""));
    return kExitOk;
  }
  if (action == "out-of-date" && words.size() == 1) {
    auto text = OutOfDateListing(ctx);
    if (text) Print(env, *text);
    return kExitOk;
  }
  if (action == "check" && words.size() == 1) {
    if (!CheckReminderStore(ctx)) return kExitRefused;
    env.out << "consistent\n";
    return kExitOk;
  }
  if (action == "compact" && words.size() == 1)
    return CompactReminders(ctx) ? kExitOk : kExitRefused;
  if (action == "structures" && words.size() == 1) {
    Print(env, PrintReminderStructures(ctx));
    return kExitOk;
  }
  if (action == "add") return Add(env, words);
  if (action == "import" || action == "export") {
    auto f = Format(env, words);
    if (!f) return kExitUsage;
    bool ok = action == "import" ? ImportReminders(ctx, *f) : ExportReminders(ctx, *f);
    return ok ? kExitOk : kExitRefused;
  }
  return kExitUsage;
}

}  // namespace

std::vector<CliCommand> ReminderCommands() {
  return {
      {"reminders",
       "reminders list|out-of-date|check|compact|structures|add|import|export [OPTIONS]",
       "the reminder diary: the list (purging gone reminders), the out-of-date list, the "
       "store's check, compaction and slot listing; add with --message TEXT and --date d/m "
       "--year this|next|every [--every N --until M/YYYY] (type 1), --type 2 --ordinal First "
       "--weekday Monday --from M/YYYY --to M/YYYY, or --type 3 --day 15|Last|Second last|Every "
       "--from --to; import (newrems.txt) and export (myrems.txt) with --order \"day month "
       "year message\" --separator \",\" (answer the import question with --yes)",
       Reminders},
  };
}

}  // namespace mc
