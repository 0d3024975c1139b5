#include <gtest/gtest.h>

#include <sstream>

#include "cli/cli_app.h"
#include "support/test_program.h"

namespace mc::test {
namespace {

int RunIn(const TestProgram& p, std::vector<std::string> words, std::string& out,
          std::string& err) {
  std::vector<std::string> args{"--folder", p.folder.path().string(), "--now", "2026-11-23T10:30"};
  args.insert(args.end(), words.begin(), words.end());
  std::ostringstream o, e;
  int rc = RunCli(args, o, e);
  out = o.str();
  err = e.str();
  return rc;
}

TEST(CliCalendars, ConvertsTheNewCalendarsBothWays) {
  TestProgram p;
  std::string out, err;
  EXPECT_EQ(RunIn(p, {"to-jd", "UAQ", "1/9/1447"}, out, err), 0) << err;
  EXPECT_EQ(out, "2461090\n");
  EXPECT_EQ(RunIn(p, {"from-jd", "Heb", "2461368"}, out, err), 0) << err;
  EXPECT_EQ(out, "13/3/5787\n");
  EXPECT_EQ(RunIn(p, {"to-jd", "Heb", "1/6L/5784"}, out, err), 0) << err;
  EXPECT_EQ(out, "2460381\n");  // 11 March 2024
}

// A missing Umm al-Qura table is a set-up failure: the run-time message, and
// exit status 2 whatever the command.
TEST(CliCalendars, MissingUmmAlQuraTableStopsTheStart) {
  TestProgram p;
  std::filesystem::remove(p.File("ummalqur.dat"));
  std::string out, err;
  EXPECT_EQ(RunIn(p, {"to-jd", "Greg", "1/1/2000"}, out, err), 2);
  EXPECT_EQ(out, "");
  EXPECT_NE(err.find("File ummalqur.dat not found error"), std::string::npos) << err;
}

}  // namespace
}  // namespace mc::test
