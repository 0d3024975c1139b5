#include <gtest/gtest.h>

#include "support/cli_run.h"

namespace mc {
namespace {

using test::CliRun;

class CycleCli : public test::CliFixture {};

TEST_F(CycleCli, LongCountBothWaysAndDayCycles) {
  EXPECT_EQ(Cli({"to-jd", "May", "13.0.0.0.0"}).out, "2456283\n");
  EXPECT_EQ(Cli({"from-jd", "May", "2456283"}).out, "13.0.0.0.0\n");
  EXPECT_EQ(Cli({"from-jd", "Haab", "2456283"}).out, "3/13\n");
  EXPECT_EQ(Cli({"from-jd", "Tzo", "2456283"}).out, "4/20\n");
  EXPECT_EQ(Cli({"from-jd", "Ton", "2456283"}).out, "4/20\n");
  EXPECT_EQ(Cli({"from-jd", "Xih", "2456283", "2456284"}).out, "2456283\t17/4\n2456284\t18/4\n");
  CliRun r = Cli({"to-jd", "May", "6.19.19.17.19"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Error Detected!: Baktun value is not in the range 7 to 33.\n");
  r = Cli({"to-jd", "May", "33.19.0.0.0"});
  EXPECT_EQ(r.err, "Error Detected!: Mayan long count date lies outside supported range.\n");
  EXPECT_EQ(Cli({"to-jd", "Haab", "1/1"}).status, 1);
}

TEST_F(CycleCli, BalineseSecondDayIsRefused) {
  CliRun r = Cli({"to-jd", "Bal", "24/7/1921"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Error Detected!: Second day of a Balinese Saka pengunalatri.\n");
  EXPECT_EQ(Cli({"to-jd", "Bal", "2/10/1942"}).out, "2458934\n");
  EXPECT_EQ(Cli({"from-jd", "Bal", "2458934"}).out, "2/10/1942\n");
}

TEST_F(CycleCli, RomanNumeralsBothWays) {
  EXPECT_EQ(Cli({"roman", "2026"}).out, "MMXXVI\n");
  EXPECT_EQ(Cli({"roman", "mmxxvi"}).out, "2026\n");
  EXPECT_EQ(Cli({"roman", "IIII"}).err, "Error Detected!: Invalid Roman numeral.\n");
  EXPECT_EQ(Cli({"roman", "4000"}).err,
            "Error Detected!: Number must be an integer in the range 1 to 3999.\n");
  EXPECT_EQ(Cli({"roman", "2.5"}).err,
            "Error Detected!: Number must be an integer in the range 1 to 3999.\n");
  EXPECT_EQ(Cli({"roman", "-3"}).err,
            "Error Detected!: Number to be converted must be positive.\n");
  EXPECT_EQ(Cli({"roman-date", "15/3/44"}).out, "Idus Martiae, DCCXCVII AUC.\n");
}

TEST_F(CycleCli, RegnalAndCycles) {
  EXPECT_EQ(Cli({"regnal", "2461368"}).out, "Date is in regnal year 5 of King Charles III.\n");
  const std::string out = Cli({"cycles", "2456283"}).out;
  EXPECT_NE(out.find("Mayan religious tzolkin   4 Ahau\n"), std::string::npos);
  EXPECT_NE(out.find("                          Pasar = Wagé\n"), std::string::npos);
  EXPECT_NE(out.find("Balinese Saka             Friday, Kapitu Penanggal 8, 1934\n"),
            std::string::npos);
}

}  // namespace
}  // namespace mc
