// codex-cli run over a test program's folder, as a user types it, and a
// fixture holding the program. For test programs that link codex_cli_lib.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "cli/cli_app.h"
#include "support/test_program.h"

namespace mc::test {

// The exit status and the text of both streams of one run.
struct CliRun {
  int status = 0;
  std::string out, err;
};

// The time of the test program's clock, as --now takes it.
inline constexpr const char* kCliNow = "2026-11-23T10:30";

// Runs codex-cli with `--folder` on the program's folder, `--now` and a d/m/y
// date order, then `args`: further options, the command and its words.
inline CliRun RunCliIn(const TestProgram& p, const std::vector<std::string>& args,
                       const std::string& now = kCliNow) {
  std::vector<std::string> full = {"--folder", p.folder.path().string(), "--now",
                                   now,        "--date-order",           "d/m/y"};
  full.insert(full.end(), args.begin(), args.end());
  std::ostringstream out, err;
  const int status = RunCli(full, out, err);
  return {status, out.str(), err.str()};
}

// A test program of its own for each test, with codex-cli over its folder.
class CliFixture : public ::testing::Test {
 protected:
  CliRun Cli(const std::vector<std::string>& args, const std::string& now = kCliNow) {
    return RunCliIn(p, args, now);
  }
  TestProgram p;
};

}  // namespace mc::test
