#include <gtest/gtest.h>

#include "support/cli_run.h"

namespace mc::test {
namespace {

TEST(CliCalendars, ConvertsTheNewCalendarsBothWays) {
  TestProgram p;
  CliRun r = RunCliIn(p, {"to-jd", "UAQ", "1/9/1447"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "2461090\n");
  r = RunCliIn(p, {"from-jd", "Heb", "2461368"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "13/3/5787\n");
  r = RunCliIn(p, {"to-jd", "Heb", "1/6L/5784"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "2460381\n");  // 11 March 2024
}

// A missing Umm al-Qura table is a set-up failure: the run-time message, and
// exit status 2 whatever the command.
TEST(CliCalendars, MissingUmmAlQuraTableStopsTheStart) {
  TestProgram p;
  std::filesystem::remove(p.File("ummalqur.dat"));
  CliRun r = RunCliIn(p, {"to-jd", "Greg", "1/1/2000"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_NE(r.err.find("File ummalqur.dat not found error"), std::string::npos) << r.err;
}

}  // namespace
}  // namespace mc::test
