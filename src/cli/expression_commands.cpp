// The Expression Calculator from the command line: lines from the arguments
// or from standard input, calculated as the session calculates them.
#include <iostream>
#include <ostream>

#include "cli/commands.h"
#include "core/text_util.h"
#include "maths/expression_screen.h"

namespace mc {

namespace {

struct ExprOptions {
  bool echo = false;
  std::optional<AngleMeasure> angle;
  std::optional<int> sigFigs;
  std::vector<std::string> lines;
};

// Leading options, then the lines. False on a malformed option.
bool ParseExprWords(CliEnv& env, const std::vector<std::string>& words, ExprOptions& o) {
  std::size_t i = 0;
  for (; i < words.size(); ++i) {
    const std::string& w = words[i];
    if (w == "--") {
      ++i;
      break;
    }
    if (w == "--echo") {
      o.echo = true;
    } else if (w == "--degrees") {
      o.angle = AngleMeasure::Degrees;
    } else if (w == "--radians") {
      o.angle = AngleMeasure::Radians;
    } else if (w == "--digits") {
      long long n = 0;
      if (i + 1 >= words.size() || !ParseInt(words[i + 1], n) || n < 1 || n > 14) {
        env.err << "codex-cli: --digits wants a number from 1 to 14\n";
        return false;
      }
      o.sigFigs = static_cast<int>(n);
      ++i;
    } else {
      break;
    }
  }
  o.lines.assign(words.begin() + static_cast<std::ptrdiff_t>(i), words.end());
  return true;
}

}  // namespace

int RunExpressionLines(CliEnv& env, const std::vector<std::string>& words, std::istream& in) {
  ExprOptions o;
  if (!ParseExprWords(env, words, o)) return kExitRefused;
  ExpressionCalculatorScreen screen(env.ctx);
  // Options of this run only: the settings file keeps the screen's own.
  if (o.angle) screen.session().engine().angle = *o.angle;
  if (o.sigFigs) screen.session().engine().sigFigs = *o.sigFigs;
  const char* eol = env.plainLineEnds ? "\n" : "\r\n";
  bool allOk = true;
  auto one = [&](const std::string& line) {
    screen.TypeLine(line);
    LineResult r = screen.Calculate();
    if (o.echo) env.out << r.shown << eol;
    for (const auto& out : r.output) env.out << out << eol;
    if (!r.ok()) allOk = false;
  };
  if (!o.lines.empty()) {
    for (const auto& line : o.lines) one(line);
  } else {
    std::string line;
    while (std::getline(in, line)) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      one(line);
    }
  }
  env.out.flush();
  return allOk ? kExitOk : kExitRefused;
}

std::vector<CliCommand> ExpressionCommands() {
  return {
      {"expr", "expr [--degrees|--radians] [--digits N] [--echo] [LINE ...]",
       "Expression Calculator lines (from standard input when none are given)",
       [](CliEnv& env, const std::vector<std::string>& a) {
         return RunExpressionLines(env, a, std::cin);
       }},
  };
}

}  // namespace mc
