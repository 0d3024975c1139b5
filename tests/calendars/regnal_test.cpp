#include "calendars/regnal.h"

#include <gtest/gtest.h>

#include "calendars/gregorian.h"
#include "support/program_test.h"

namespace mc {
namespace {

// The clock stands at 23 November 2026.
class Regnal : public test::ProgramTest {
 protected:
  std::vector<std::string> Greg(int d, int m, int y) {
    return RegnalLines(p.ctx, GregorianToJD(d, m, y), RegnalStyle::Gregorian);
  }
  std::vector<std::string> Jul(int d, int m, int y) {
    return RegnalLines(p.ctx, JulianToJD(d, m, y), RegnalStyle::Julian);
  }
};

using Lines = std::vector<std::string>;

TEST_F(Regnal, AccessionDaysReportBothMonarchs) {
  EXPECT_EQ(Greg(8, 9, 2022), (Lines{"Date is in regnal year 71 of Queen Elizabeth II.",
                                     "Date is also in regnal year 1 of King Charles III."}));
  EXPECT_EQ(Greg(9, 9, 2022), (Lines{"Date is in regnal year 1 of King Charles III."}));
  EXPECT_EQ(Greg(25, 10, 1760), (Lines{"Date is in regnal year 34 of King George II.",
                                       "Date is also in regnal year 1 of King George III."}));
  EXPECT_EQ(Greg(22, 1, 1901), (Lines{"Date is in regnal year 64 of Queen Victoria.",
                                      "Date is also in regnal year 1 of King Edward VII."}));
  EXPECT_EQ(Jul(4, 3, 1461), (Lines{"Date is in regnal year 39 of King Henry VI.",
                                    "Date is also in regnal year 1 of King Edward IV."}));
  EXPECT_EQ(Jul(6, 7, 1553), (Lines{"Date is in regnal year 7 of King Edward VI.",
                                    "Date is also in regnal year 1 of Queen Jane."}));
}

TEST_F(Regnal, YearsTurnOnTheAnniversary) {
  EXPECT_EQ(Greg(19, 6, 1900)[0], "Date is in regnal year 63 of Queen Victoria.");
  EXPECT_EQ(Greg(20, 6, 1900)[0], "Date is in regnal year 64 of Queen Victoria.");
  EXPECT_EQ(Greg(5, 2, 2022)[0], "Date is in regnal year 70 of Queen Elizabeth II.");
  EXPECT_EQ(Greg(6, 2, 2022)[0], "Date is in regnal year 71 of Queen Elizabeth II.");
  // After the change of calendar George II's years still turn on 11 June
  // (Julian), 22 June in the new reckoning.
  EXPECT_EQ(Greg(21, 6, 1753)[0], "Date is in regnal year 26 of King George II.");
  EXPECT_EQ(Greg(22, 6, 1753)[0], "Date is in regnal year 27 of King George II.");
  EXPECT_EQ(Jul(24, 12, 1067), (Lines{"Date is in regnal year 1 of King William I."}));
  EXPECT_EQ(Jul(25, 12, 1067), (Lines{"Date is in regnal year 2 of King William I."}));
}

TEST_F(Regnal, TheCalendarChange) {
  EXPECT_EQ(Greg(14, 9, 1752), (Lines{"Date is in regnal year 26 of King George II."}));
  EXPECT_TRUE(Greg(13, 9, 1752).empty());  // the Gregorian report starts here
  EXPECT_TRUE(Greg(1, 1, 1700).empty());
  EXPECT_EQ(RegnalLines(p.ctx, JulianToJD(2, 9, 1752), RegnalStyle::Julian),
            (Lines{"Date is in regnal year 26 of King George II."}));
}

TEST_F(Regnal, JulianReportNamesTheReignsAroundAGap) {
  EXPECT_EQ(Jul(19, 10, 1216), (Lines{"Date is in regnal year 18 of King John."}));
  EXPECT_EQ(Jul(20, 10, 1216),
            (Lines{"Date occurred in the period between the reigns of John and Henry III"}));
  EXPECT_EQ(Jul(28, 10, 1216), (Lines{"Date is in regnal year 1 of King Henry III."}));
  EXPECT_EQ(Jul(10, 9, 1087),
            (Lines{"Date occurred in the period between the reigns of William I and William II"}));
  EXPECT_TRUE(Jul(1, 1, 1000).empty());  // before the first reign
}

TEST_F(Regnal, HenryVIsSecondReign) {
  EXPECT_EQ(Jul(2, 10, 1470), (Lines{"Date is in regnal year 10 of King Edward IV."}));
  EXPECT_EQ(Jul(3, 10, 1470), (Lines{"Date is in regnal year 10 of King Edward IV.",
                                     "Date is also in regnal year 49 of King Henry VI."}));
  EXPECT_EQ(Jul(1, 1, 1471), (Lines{"Date is in regnal year 49 of King Henry VI."}));
  EXPECT_EQ(Jul(12, 4, 1471), (Lines{"Date is in regnal year 11 of King Edward IV."}));
  EXPECT_EQ(Jul(1, 1, 1480), (Lines{"Date is in regnal year 19 of King Edward IV."}));
  EXPECT_EQ(Jul(1, 1, 1555), (Lines{"Date is in regnal year 1 of Queen Philip & Mary."}));
}

TEST_F(Regnal, TheReignInProgressFollowsTheClock) {
  auto records = ReadRegnalFile(p.ctx);
  ASSERT_TRUE(records);
  const RegnalRecord& last = records->back();
  EXPECT_EQ(last.name, "Charles III");
  EXPECT_TRUE(last.inProgress);
  EXPECT_EQ(last.lastYear, 2026 + 1 - 2022);
  EXPECT_EQ(last.end, (CalDate{31, 12, 2027}));
  EXPECT_EQ(Greg(31, 12, 2027), (Lines{"Date is in regnal year 6 of King Charles III."}));
  EXPECT_TRUE(Greg(1, 1, 2028).empty());
  EXPECT_EQ(Greg(23, 11, 2026), (Lines{"Date is in regnal year 5 of King Charles III."}));
}

TEST_F(Regnal, FileFaults) {
  p.Write("regnal.dat", ">heading\r\nWilliam I,1,21,25,12,1066,9,9,1087\r\nbroken line\r\n");
  EXPECT_FALSE(RegnalYearOf(p.ctx, JulianToJD(1, 1, 1070), RegnalStyle::Julian));
  EXPECT_EQ(p.sink.Last(), "Type mismatch error (ProcNum = 0).");
  p.Write("regnal.dat", "William I,1,21,25,12,1066,9,9,1087\r\n");
  EXPECT_EQ(Jul(25, 12, 1070), (Lines{"Date is in regnal year 5 of King William I."}));
  std::filesystem::remove(p.File("regnal.dat"));
  EXPECT_TRUE(Jul(25, 12, 1070).empty());
  EXPECT_EQ(p.sink.Last(), "File regnal.dat not found error (ProcNum = 0).");
}

}  // namespace
}  // namespace mc
