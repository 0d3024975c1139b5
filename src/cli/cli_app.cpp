#include "cli/cli_app.h"

#include <optional>
#include <ostream>

#include "cli/cli_sink.h"
#include "cli/commands.h"
#include "core/locale_facts.h"
#include "core/program_folder.h"
#include "core/text_util.h"
#include "shell/startup.h"

namespace mc {

namespace {

std::vector<CliCommand> AllCommands() {
  std::vector<CliCommand> all;
  for (auto group :
       {CalendarCommands, ReminderCommands, CycleCommands, ExpressionCommands, ViewCommands}) {
    auto commands = group();
    all.insert(all.end(), commands.begin(), commands.end());
  }
  return all;
}

void PrintUsage(std::ostream& out, const std::vector<CliCommand>& commands) {
  out << "usage: codex-cli [options] COMMAND [ARGS]\n\nCommands:\n";
  // The synopsis, then the summary wrapped to 80 columns in a column of its own.
  constexpr std::size_t kColumn = 30, kWidth = 80;
  for (const auto& c : commands) {
    std::string line = "  " + std::string(c.synopsis);
    if (line.size() + 1 > kColumn) {
      out << line << '\n';
      line.clear();
    }
    line = PadRight(line, kColumn);
    std::string_view rest = c.summary;
    while (!rest.empty()) {
      std::size_t room = kWidth - kColumn;
      std::size_t cut = rest.size() <= room ? rest.size() : rest.rfind(' ', room);
      if (cut == std::string_view::npos || cut == 0) cut = std::min(rest.size(), room);
      out << line << rest.substr(0, cut) << '\n';
      rest = Trim(rest.substr(cut));
      line = std::string(kColumn, ' ');
    }
  }
  out << R"(
Options:
  --folder DIR        use DIR as the program folder (default: the folder of
                      this executable)
  --now DATE-TIME     take YYYY-MM-DDTHH:MM[:SS] as the present moment
  --date-order ORDER  d/m/y, m/d/y, y/m/d, d/y/m, y/d/m or m/y/d for Gregorian
                      dates (default: the locale's short date format)
  --yes, --no         the answer to the program's questions (default --no)
  --lf                reports with LF line ends rather than CR LF
  --help, --version

Messages go to stderr as "Caption: text". Exit status: 0 done, 1 input
refused, 2 set-up failure (program folder, mercod.ini or a data file).
)";
}

struct Options {
  std::filesystem::path folder;
  std::optional<LocalDateTime> now;
  std::optional<std::string> dateOrder;
  bool yes = false;
  bool lf = false;
  std::vector<std::string> command;
};

// Global options, then the command and its words. Nothing after a usage
// error or after --help and --version, with `status` set.
std::optional<Options> ParseOptions(const std::vector<std::string>& args,
                                    const std::vector<CliCommand>& commands, std::ostream& out,
                                    std::ostream& err, int& status) {
  Options o;
  status = kExitRefused;
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
      PrintUsage(out, commands);
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
    } else if (a == "--yes" || a == "--no") {
      o.yes = a == "--yes";
    } else if (a == "--lf") {
      o.lf = true;
    } else if (StartsWith(a, "--")) {
      err << "codex-cli: unknown option " << a << '\n';
      return std::nullopt;
    } else {
      o.command.push_back(a);
    }
  }
  if (o.command.empty()) {
    PrintUsage(err, commands);
    return std::nullopt;
  }
  return o;
}

}  // namespace

int RunCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  const std::vector<CliCommand> commands = AllCommands();
  int status = kExitRefused;
  auto options = ParseOptions(args, commands, out, err, status);
  if (!options) return status;

  // "report NAME" is one command of two words.
  if (options->command[0] == "report" && options->command.size() > 1) {
    options->command[1] = "report " + options->command[1];
    options->command.erase(options->command.begin());
  }
  const CliCommand* command = nullptr;
  for (const auto& c : commands)
    if (c.name == options->command[0]) command = &c;
  if (!command) {
    err << "codex-cli: unknown command " << options->command[0] << '\n';
    PrintUsage(err, commands);
    return kExitRefused;
  }

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

  CliEnv env{ctx, out, err, options->lf};
  std::vector<std::string> words(options->command.begin() + 1, options->command.end());
  int rc = command->run(env, words);
  if (rc == kExitUsage) {
    err << "usage: codex-cli " << command->synopsis << '\n';
    return kExitRefused;
  }
  return rc;
}

}  // namespace mc
