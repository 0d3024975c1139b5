#include "cli/cli_app.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/cli_run.h"

namespace mc {
namespace {

using test::CliRun;

class CliTest : public test::CliFixture {};

TEST_F(CliTest, ConvertsBothWays) {
  EXPECT_EQ(Cli({"to-jd", "Greg", "15/10/1582"}).out, "2299161\n");
  EXPECT_EQ(Cli({"to-jd", "JDA", "2451545"}).out, "2451545\n");
  EXPECT_EQ(Cli({"from-jd", "Jul", "2299160"}).out, "4/10/1582\n");
  EXPECT_EQ(Cli({"from-jd", "Greg", "2451544", "2451546"}).out,
            "2451544\t31/12/1999\n2451545\t1/1/2000\n2451546\t2/1/2000\n");
  EXPECT_EQ(Cli({"today"}).out, "23/11/2026\t2461368\n");
}

TEST_F(CliTest, RefusedInputShowsTheProgramsMessage) {
  CliRun r = Cli({"to-jd", "Greg", "29/2/1900"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Error Detected!: Invalid day value.\n");
  r = Cli({"from-jd", "Greg", "2299160"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Error Detected!: Gregorian year must be greater than 1581.\n");
  EXPECT_EQ(Cli({"from-jd", "JDA", "99999999"}).status, 1);
  EXPECT_EQ(Cli({"to-jd", "Nope", "1/1/1"}).status, 1);
  EXPECT_EQ(Cli({"to-jd", "Greg"}).status, 1);
}

TEST_F(CliTest, SetUpFailuresExitWithTwo) {
  std::filesystem::remove(p.File("mercod.ini"));
  CliRun r = Cli({"today"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.err,
            "Failure!: File mercod.ini not found. Exit program -- it will not run properly.\n");
  std::ostringstream out, err;
  EXPECT_EQ(RunCli({"--folder", "/no/such/folder", "today"}, out, err), 2);
  EXPECT_EQ(err.str(), "Error Detected!: Installation folder not found.\n");
}

TEST_F(CliTest, HelpAndUsage) {
  std::ostringstream out, err;
  EXPECT_EQ(RunCli({"--help"}, out, err), 0);
  EXPECT_NE(out.str().find("from-jd CALTYPE JD [JD2]"), std::string::npos);
  EXPECT_EQ(RunCli({"--date-order", "x/y/z", "today"}, out, err), 1);
  EXPECT_EQ(RunCli({"--now", "yesterday", "today"}, out, err), 1);
}

}  // namespace
}  // namespace mc
