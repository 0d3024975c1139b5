#include "cli/cli_app.h"

#include <charconv>
#include <map>
#include <optional>
#include <ostream>

#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "cli/cli_sink.h"
#include "core/context.h"
#include "core/errors.h"
#include "core/locale_facts.h"
#include "core/program_folder.h"
#include "core/text_util.h"
#include "shell/startup.h"

namespace mc {

namespace {

constexpr std::string_view kUsage = R"(usage: codex-cli [options] COMMAND [ARGS]

Commands:
  to-jd CALTYPE TEXT        the Julian Day of a date typed as in the date box
  from-jd CALTYPE JD [JD2]  the date of a Julian Day; with JD2 one line
                            "JD<TAB>date" for every day from JD to JD2
  today                     today's Gregorian date and Julian Day
  calendars                 the calendar codes with their names and years

Options:
  --folder DIR        use DIR as the program folder (default: the folder of
                      this executable)
  --now DATE-TIME     take YYYY-MM-DDTHH:MM[:SS] as the present moment
  --date-order ORDER  d/m/y, m/d/y, y/m/d, d/y/m, y/d/m or m/y/d for Gregorian
                      dates (default: the locale's short date format)
  --yes, --no         the answer to the program's questions (default --no)
  --help, --version

Exit status: 0 done, 1 input refused (the program's message on stderr),
2 set-up failure (program folder or mercod.ini).
)";

struct Options {
  std::filesystem::path folder;
  std::optional<LocalDateTime> now;
  std::optional<std::string> dateOrder;
  bool yes = false;
  std::vector<std::string> command;
};

class Cli {
 public:
  Cli(Context& ctx, std::ostream& out, std::ostream& err) : ctx_(ctx), out_(out), err_(err) {}

  int Run(const std::vector<std::string>& cmd) {
    const std::string& name = cmd[0];
    std::vector<std::string> a(cmd.begin() + 1, cmd.end());
    if (name == "to-jd" && a.size() == 2) return ToJD(a[0], a[1]);
    if (name == "from-jd" && (a.size() == 2 || a.size() == 3))
      return FromJD(a[0], a[1], a.size() == 3 ? std::optional(a[2]) : std::nullopt);
    if (name == "today" && a.empty()) return Today();
    if (name == "calendars" && a.empty()) return ListCalendars();
    err_ << "codex-cli: unknown command or wrong arguments: " << name << "\n" << kUsage;
    return kExitRefused;
  }

 private:
  std::optional<CalType> Calendar(const std::string& code) {
    auto type = CalTypeOfCode(code);
    if (!type) {
      err_ << "codex-cli: unknown calendar code " << code << " (see codex-cli calendars)\n";
      return std::nullopt;
    }
    if (*type != CalType::JDA && !Calendars(ctx_).HasRules(*type)) {
      err_ << "codex-cli: calendar " << code << " is not available in this version\n";
      return std::nullopt;
    }
    return type;
  }

  int ToJD(const std::string& code, const std::string& text) {
    auto type = Calendar(code);
    if (!type) return kExitRefused;
    JD jd = 0;
    if (*type == CalType::JDA) {
      jd = CheckJDText(ctx_, text);
      if (jd == 0) {
        if (Trim(text).empty()) ShowError(ctx_, Err("Julian Day value is outside specified range."));
        return kExitRefused;
      }
    } else {
      auto date = ParseDateText(ctx_, *type, text);
      if (!date) return kExitRefused;
      jd = Calendars(ctx_).DateToJD(*type, date->day, date->month, date->year);
    }
    out_ << jd << '\n';
    return kExitOk;
  }

  // A day number inside the calendar's supported range, else its message.
  bool InRange(CalType type, JD jd) {
    if (jd < FirstJulianDay() || jd > LastJulianDay()) {
      ShowError(ctx_, Err("Julian Day value is outside specified range."));
      return false;
    }
    if (type == CalType::JDA) return true;
    const CalendarInfo& info = InfoOf(type);
    if (jd < FirstJD(ctx_, type)) {
      ValidateYearText(ctx_, type, std::to_string(info.firstYear - 1));
      return false;
    }
    int year = Calendars(ctx_).JDToDate(type, jd).year;
    if (info.lastYear != 0 && year > info.lastYear) {
      ValidateYearText(ctx_, type, std::to_string(year));
      return false;
    }
    return true;
  }

  int FromJD(const std::string& code, const std::string& fromText,
             const std::optional<std::string>& toText) {
    auto type = Calendar(code);
    if (!type) return kExitRefused;
    const bool range = toText.has_value();
    long long from = 0, to = 0;
    if (!ParseInt(fromText, from) || !ParseInt(toText.value_or(fromText), to)) {
      ShowError(ctx_, Err("Julian Day value is outside specified range."));
      return kExitRefused;
    }
    if (!InRange(*type, static_cast<JD>(from)) || !InRange(*type, static_cast<JD>(to)))
      return kExitRefused;
    CalendarEngine& engine = Calendars(ctx_);
    std::string buffer;
    for (long long jd = from; jd <= to; ++jd) {
      if (range) buffer += std::to_string(jd) + '\t';
      if (*type == CalType::JDA)
        buffer += std::to_string(jd);
      else
        buffer += FormatDateText(ctx_, *type, engine.JDToDate(*type, static_cast<JD>(jd)));
      buffer += '\n';
      if (buffer.size() > (1 << 16)) {
        out_ << buffer;
        buffer.clear();
      }
    }
    out_ << buffer;
    return kExitOk;
  }

  int Today() {
    LocalDateTime now = ctx_.Now();
    JD jd = GregorianToJD(now.day, now.month, now.year);
    out_ << FormatDateText(ctx_, CalType::Greg, now.day, now.month, now.year) << '\t' << jd
         << '\n';
    return kExitOk;
  }

  int ListCalendars() {
    for (int i = 0; i < kCalTypeCount; ++i) {
      const CalendarInfo& c = InfoOf(static_cast<CalType>(i));
      if (c.listName.empty()) continue;
      out_ << c.code << '\t' << c.listName;
      if (c.lastYear != 0) out_ << '\t' << c.firstYear << '-' << c.lastYear;
      out_ << (Calendars(ctx_).HasRules(c.type) || c.type == CalType::JDA ? "" : "\t(not available)")
           << '\n';
    }
    return kExitOk;
  }

  Context& ctx_;
  std::ostream& out_;
  std::ostream& err_;
};

// Global options, then the command and its arguments. Nothing on a usage error.
std::optional<Options> ParseOptions(const std::vector<std::string>& args, std::ostream& out,
                                    std::ostream& err, int& status) {
  Options o;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&]() -> std::optional<std::string> {
      if (i + 1 >= args.size()) {
        err << "codex-cli: " << a << " needs a value\n";
        return std::nullopt;
      }
      return args[++i];
    };
    if (!o.command.empty()) {
      o.command.push_back(a);
    } else if (a == "--help" || a == "-h") {
      out << kUsage;
      status = kExitOk;
      return std::nullopt;
    } else if (a == "--version") {
      out << "codex-cli (Meridian Codex) " << CODEX_VERSION << '\n';
      status = kExitOk;
      return std::nullopt;
    } else if (a == "--folder") {
      auto v = value();
      if (!v) return std::nullopt;
      o.folder = *v;
    } else if (a == "--now") {
      auto v = value();
      if (!v) return std::nullopt;
      o.now = ParseIsoDateTime(*v);
      if (!o.now) {
        err << "codex-cli: --now wants YYYY-MM-DDTHH:MM[:SS], not " << *v << '\n';
        return std::nullopt;
      }
    } else if (a == "--date-order") {
      auto v = value();
      if (!v) return std::nullopt;
      if (!IsKnownDateOrder(*v)) {
        err << "codex-cli: --date-order is one of d/m/y m/d/y y/m/d d/y/m y/d/m m/y/d\n";
        return std::nullopt;
      }
      o.dateOrder = *v;
    } else if (a == "--yes") {
      o.yes = true;
    } else if (a == "--no") {
      o.yes = false;
    } else if (StartsWith(a, "--")) {
      err << "codex-cli: unknown option " << a << '\n';
      return std::nullopt;
    } else {
      o.command.push_back(a);
    }
  }
  if (o.command.empty()) {
    err << kUsage;
    return std::nullopt;
  }
  return o;
}

}  // namespace

int RunCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  int status = kExitRefused;
  auto options = ParseOptions(args, out, err, status);
  if (!options) return status;

  std::filesystem::path folder = options->folder.empty() ? GetExeFolder() : options->folder;
  if (!folder.empty() && !std::filesystem::is_directory(folder)) folder.clear();
  SystemClock systemClock;
  FixedClock fixedClock(options->now.value_or(LocalDateTime{}));
  Clock& clock = options->now ? static_cast<Clock&>(fixedClock) : systemClock;
  CliSink sink(err, options->yes);
  Context ctx(folder, clock, sink);

  StartOptions start;
  start.dateOrder = options->dateOrder;
  if (StartProgram(ctx, start) != StartOutcome::Ready) return kExitSetup;
  return Cli(ctx, out, err).Run(options->command);
}

}  // namespace mc
