// The commands of codex-cli, grouped by subsystem. Each group lives in its
// own source file and lists its commands; cli_app.cpp gathers the groups.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"

namespace mc {

// What a command works with: the started program, its output streams and the
// global options that concern output.
struct CliEnv {
  Context& ctx;
  std::ostream& out;
  std::ostream& err;
  bool plainLineEnds = false;  // --lf: reports with LF rather than CR LF
};

struct CliCommand {
  std::string_view name;      // first word of the command line
  std::string_view synopsis;  // "to-jd CALTYPE TEXT"
  std::string_view summary;   // one line for --help
  // Runs with the words after the name; returns the exit status, or -1 when
  // the words don't fit the command (usage is then printed).
  std::function<int(CliEnv&, const std::vector<std::string>&)> run;
};

// Exit statuses of codex-cli.
inline constexpr int kExitOk = 0;
inline constexpr int kExitRefused = 1;  // input refused, with the program's message
inline constexpr int kExitSetup = 2;    // no program folder or no mercod.ini
inline constexpr int kExitUsage = -1;

std::vector<CliCommand> CalendarCommands();
std::vector<CliCommand> ReminderCommands();
std::vector<CliCommand> CycleCommands();
std::vector<CliCommand> ExpressionCommands();
std::vector<CliCommand> ViewCommands();
// The expr command over a given input stream (standard input when no lines are given).
int RunExpressionLines(CliEnv& env, const std::vector<std::string>& words, std::istream& in);

}  // namespace mc
