// codex-cli expr: lines from the arguments or from standard input.
#include <gtest/gtest.h>

#include <sstream>

#include "cli/cli_app.h"
#include "cli/commands.h"
#include "support/test_program.h"

namespace mc::test {
namespace {

int Cli(TestProgram& p, std::vector<std::string> words, std::string& out, std::string& err) {
  std::vector<std::string> args = {"--folder", p.folder.path().string(), "--lf"};
  args.insert(args.end(), words.begin(), words.end());
  std::ostringstream o, e;
  int rc = RunCli(args, o, e);
  out = o.str();
  err = e.str();
  return rc;
}

TEST(ExprCommand, LinesFromArguments) {
  TestProgram p;
  std::string out, err;
  EXPECT_EQ(Cli(p, {"expr", "2+3", "x = 2", "f(t) = t*x", "f(4)", "'note", "uservars"}, out, err),
            0);
  EXPECT_EQ(out, "==> 5\n==> x = 2\n==> Function f(t) accepted\n==> 8\n==> x\n");
  EXPECT_EQ(err, "");

  EXPECT_EQ(Cli(p, {"expr", "--degrees", "--digits", "3", "--echo", "sin(30)+1/3"}, out, err), 0);
  EXPECT_EQ(out, "sin(30) + 1 / 3\n==> 0.833\n");

  // A refused line: its message, the other lines go on, exit status 1.
  EXPECT_EQ(Cli(p, {"expr", "1/0", "7"}, out, err), 1);
  EXPECT_EQ(out, "==> 7\n");
  EXPECT_EQ(err, "Error Detected!: Denominator = 0 error using /, \\ or mod.\n");

  EXPECT_EQ(Cli(p, {"expr", "--digits", "15", "1"}, out, err), 1);
  EXPECT_NE(err.find("--digits wants a number from 1 to 14"), std::string::npos);
}

TEST(ExprCommand, LinesFromStandardInputWithCrLf) {
  TestProgram p;
  p.Start();
  std::ostringstream out, err;
  CliEnv env{p.ctx, out, err, false};
  std::istringstream in("a = 1/4\r\n\r\na*2\n");
  EXPECT_EQ(RunExpressionLines(env, {}, in), 0);
  EXPECT_EQ(out.str(), "==> a = 0.25\r\n==> 0.5\r\n");
}

}  // namespace
}  // namespace mc::test
