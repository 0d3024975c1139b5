#include <gtest/gtest.h>

#include <sstream>

#include "cli/cli_app.h"
#include "support/cli_run.h"

namespace mc {
namespace {

using test::CliRun;

class ViewCommandsTest : public test::CliFixture {};

TEST_F(ViewCommandsTest, MonthCalendarPrintsTheGrid) {
  const std::string january2000 =
      "       January 2000\r\n\r\n"
      "   S  M  T  W  T  F  S\r\n" +
      std::string(19, ' ') +
      "  1\r\n"
      "   2  3  4  5  6  7  8\r\n"
      "   9 10 11 12 13 14 15\r\n"
      "  16 17 18 19 20 21 22\r\n"
      "  23 24 25 26 27 28 29\r\n"
      "  30 31\r\n";
  CliRun r = Cli({"report", "month-calendar", "Greg", "2000", "1"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, january2000);
  // The list's text in any case, and plain line ends.
  EXPECT_EQ(Cli({"report", "month-calendar", "Greg", "2000", "january"}).out, january2000);
  r = Cli({"--lf", "report", "month-calendar", "Heb", "5784", "Adar II"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(r.out.starts_with("       Adar II 5784\n\n   S  M  T  W  T  F  S\n")) << r.out;
  EXPECT_EQ(r.out.find('\r'), std::string::npos);
  // The seventh entry of a common Hebrew year is Nisan.
  EXPECT_TRUE(
      Cli({"report", "month-calendar", "Heb", "5785", "7"}).out.starts_with("        Nisan 5785"));
  // November 1582 can be shown whatever month today is; October can't.
  r = Cli({"report", "month-calendar", "Greg", "1582", "11"}, "2026-01-15T09:00");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(r.out.starts_with("      November 1582")) << r.out;
}

TEST_F(ViewCommandsTest, MonthCalendarRefusals) {
  CliRun r = Cli({"report", "month-calendar", "Greg", "1582", "10"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Error Detected!: Months earlier than November in 1582 cannot be displayed.\n");
  r = Cli({"report", "month-calendar", "Greg", "10000", "1"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Error Detected!: Gregorian year must not exceed 9999.\n");
  r = Cli({"report", "month-calendar", "Greg", "2024", "Smarch"});
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("no month Smarch"), std::string::npos);
  EXPECT_EQ(Cli({"report", "month-calendar", "Greg", "2024", "13"}).status, 1);
  r = Cli({"report", "month-calendar", "Yor", "10068", "1"});  // not in the list
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("Yor is not a calendar of the Month Calendars list"), std::string::npos);
  EXPECT_EQ(Cli({"report", "month-calendar", "Greg", "2024"}).status, 1);  // usage
}

TEST_F(ViewCommandsTest, YearCalendarPrintsThePage) {
  CliRun r = Cli({"--lf", "report", "year-calendar", "Greg", "1582"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(r.out.starts_with("*** Julian/Gregorian Calendar for 1582 ***\n\n10 days omitted"));
  EXPECT_TRUE(r.out.ends_with("are only leap years if exactly divisible by 400.\n"));
  r = Cli({"report", "year-calendar", "Greg"});  // blank: this year
  EXPECT_TRUE(r.out.starts_with("*** Gregorian Calendar for 2026 ***\r\n\r\n"));
  EXPECT_TRUE(r.out.ends_with("\r\n\r\n"));
  r = Cli({"report", "year-calendar", "Paw", "2026"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(r.out.starts_with("*** Balinese Pawukon Calendar for Gregorian Year 2026 ***"));

  r = Cli({"report", "year-calendar", "Greg", "1581"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Error Detected!: Gregorian year must be greater than 1581.\n");
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(Cli({"report", "year-calendar", "Greg", "x"}).err,
            "Error Detected!: Year value must be numeric.\n");
  EXPECT_EQ(Cli({"report", "year-calendar", "JDA", "2026"}).status, 1);

  std::ostringstream out, err;
  EXPECT_EQ(RunCli({"--help"}, out, err), 0);
  EXPECT_NE(out.str().find("report month-calendar CALTYPE YEAR MONTH"), std::string::npos);
  EXPECT_NE(out.str().find("report year-calendar CALTYPE [YEAR]"), std::string::npos);
}

}  // namespace
}  // namespace mc
