// codex-cli expr: lines from the arguments or from standard input.
#include <gtest/gtest.h>

#include <sstream>

#include "cli/commands.h"
#include "support/cli_run.h"

namespace mc::test {
namespace {

// codex-cli expr with plain line ends.
CliRun Expr(const TestProgram& p, std::vector<std::string> words) {
  words.insert(words.begin(), {"--lf", "expr"});
  return RunCliIn(p, words);
}

TEST(ExprCommand, LinesFromArguments) {
  TestProgram p;
  CliRun r = Expr(p, {"2+3", "x = 2", "f(t) = t*x", "f(4)", "'note", "uservars"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "==> 5\n==> x = 2\n==> Function f(t) accepted\n==> 8\n==> x\n");
  EXPECT_EQ(r.err, "");

  r = Expr(p, {"--degrees", "--digits", "3", "--echo", "sin(30)+1/3"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "sin(30) + 1 / 3\n==> 0.833\n");

  // A refused line: its message, the other lines go on, exit status 1.
  r = Expr(p, {"1/0", "7"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "==> 7\n");
  EXPECT_EQ(r.err, "Error Detected!: Denominator = 0 error using /, \\ or mod.\n");

  r = Expr(p, {"--digits", "15", "1"});
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("--digits wants a number from 1 to 14"), std::string::npos);
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
