#include "reminders/report.h"

#include <gtest/gtest.h>

#include "calendars/gregorian.h"
#include "core/ini_file.h"
#include "core/text_util.h"
#include "reminder_test_util.h"
#include "reminders/reminder_text.h"

namespace mc::test {
namespace {

const std::string kRule(88, '-');

std::vector<std::string> Lines(const std::string& text) {
  EXPECT_TRUE(text.size() >= 2 && text.substr(text.size() - 2) == "\r\n");
  return SplitLines(text);
}

TEST(ReminderText, FieldsReadAsYearsSince) {
  TestProgram p;
  p.Start();
  Context& c = p.ctx;
  EXPECT_EQ(ExpandReminderField(c, "<1950> years married", 2026), "76 years married");
  EXPECT_EQ(ExpandReminderField(c, " <1950!> years married ", 2026), "76th years married");
  EXPECT_EQ(ExpandReminderField(c, "Our <2015!>", 2026), "Our 11th");
  EXPECT_EQ(ExpandReminderField(c, "<2004!>", 2026), "22nd");
  EXPECT_EQ(ExpandReminderField(c, "<1913!>", 2026), "113th");
  EXPECT_EQ(ExpandReminderField(c, "<2025!>", 2026), "1st");
  EXPECT_EQ(ExpandReminderField(c, "<2023 !>", 2026), "3rd");
  EXPECT_EQ(ExpandReminderField(c, "<2014!>", 2026), "12th");
  EXPECT_EQ(ExpandReminderField(c, "Born <2026>", 2026), "");  // not happened yet
  EXPECT_EQ(ExpandReminderField(c, "<12> too close", 2026), "<12> too close");
  EXPECT_EQ(ExpandReminderField(c, "<1066> Hastings", 2026), "<1066> Hastings");
  EXPECT_EQ(ExpandReminderField(c, "a > b < c", 2026), "a > b < c");
  c.settings.processRemFields = "No";
  EXPECT_EQ(ExpandReminderField(c, "<1950> years", 2026), "<1950> years");
  EXPECT_EQ(OutOfDateLine(1, 5, 2026, " Dentist "), "Jan  5  2026  Dentist");
  EXPECT_EQ(OutOfDateLine(1, 15, 2026, "Dentist"), "Jan 15  2026  Dentist");
}

TEST(ReminderReportTest, ListsBothYearsPurgesAndKeepsPeyr) {
  TestProgram p;  // Monday 23 November 2026
  p.Start();
  InsertReminder(p.ctx, 1123, 2026, "Dentist");
  InsertReminder(p.ctx, 1201, 2026, "Party");
  InsertReminder(p.ctx, 101, kEveryYear, "<1950> years married");
  InsertReminder(p.ctx, 202, 2027, "Groundhog");
  InsertReminder(p.ctx, 1122, 2026, "Yesterday");
  InsertReminder(p.ctx, 1124, kEveryYear, "Every day after");
  ReminderReport r = BuildReminderReport(p.ctx);
  std::vector<std::string> want = {"*** List of Reminders ***",
                                   "",
                                   kRule,
                                   "Year   Day   Date     DTG   Event",
                                   kRule,
                                   "2026   Mon   Nov 23     0   Dentist",
                                   "       Tue   Nov 24     1   Every day after",
                                   "       Tue   Dec  1     8   Party",
                                   "",
                                   "2027   Fri   Jan  1    39   77 years married",
                                   "       Tue   Feb  2    71   Groundhog",
                                   "       Wed   Nov 24   366   Every day after",
                                   kRule,
                                   "",
                                   "DTG = Days to Go (until event occurs)"};
  EXPECT_EQ(Lines(r.text), want);
  EXPECT_EQ(r.minDTG, 0);
  EXPECT_EQ(r.lamp, LampColour::Red);
  EXPECT_EQ(ReportFontMode(r), "UFW");
  // The first passed every-year reminder starts PEYR.dat without reaching purged.dat.
  EXPECT_EQ(p.Read("purged.dat"), "Nov 22  2026  Yesterday\r\n");
  EXPECT_EQ(p.Read("PEYR.dat"), "Jan  1  2026  76 years married\r\n");
  const JD today = GregorianToJD(23, 11, 2026);
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "RemProc Julian Value"), std::to_string(today));
  EXPECT_EQ(p.ctx.settings.remProcJD, today);

  // Within the day the report is the same; a second passed one joins both lists.
  EXPECT_EQ(BuildReminderReport(p.ctx).text, r.text);
  InsertReminder(p.ctx, 315, kEveryYear, "Ides");
  BuildReminderReport(p.ctx);
  EXPECT_EQ(p.Read("PEYR.dat"), "Jan  1  2026  76 years married; Mar 15  2026  Ides\r\n");
  EXPECT_EQ(p.Read("purged.dat"), "Nov 22  2026  Yesterday\r\nMar 15  2026  Ides\r\n");
  BuildReminderReport(p.ctx);
  EXPECT_EQ(p.Read("purged.dat"), "Nov 22  2026  Yesterday\r\nMar 15  2026  Ides\r\n");
}

TEST(ReminderReportTest, EmptyStoresAndSectionsOfOneYear) {
  TestProgram p;
  p.Start();
  ReminderReport r = BuildReminderReport(p.ctx);
  EXPECT_EQ(r.text, "No personal reminders currently defined.");
  EXPECT_EQ(ReportFontMode(r), "PW");
  EXPECT_EQ(r.lamp, LampColour::Hidden);

  // Only next year's reminders: the head, then section B.
  InsertReminder(p.ctx, 105, 2027, "Later");
  auto lines = Lines(BuildReminderReport(p.ctx).text);
  ASSERT_EQ(lines.size(), 9u);
  EXPECT_EQ(lines[4], kRule);
  EXPECT_EQ(lines[5], "2027   Tue   Jan  5    43   Later");
  EXPECT_EQ(lines[6], kRule);

  // Purged to nothing: Head 0, and the next report removes the files.
  SetDate(p, 2027, 1, 6);
  r = BuildReminderReport(p.ctx);
  EXPECT_EQ(HeaderOf(p.ctx).head, 0);
  EXPECT_TRUE(std::filesystem::exists(p.File("person.dat")));
  r = BuildReminderReport(p.ctx);
  EXPECT_EQ(r.text, "No personal reminders currently defined.");
  EXPECT_FALSE(std::filesystem::exists(p.File("person.dat")));
  EXPECT_FALSE(std::filesystem::exists(p.File("mercod.dat")));
}

TEST(ReminderReportTest, AYearEndWithTheTimer) {
  TestProgram p(true, {2026, 12, 30, 9, 0, 0, 0});
  p.Start();
  InsertReminder(p.ctx, 1231, 2026, "NYE");
  InsertReminder(p.ctx, 101, kEveryYear, "New Year");
  InsertReminder(p.ctx, 102, 2027, "Back to work");
  InsertReminder(p.ctx, 601, kEveryYear, "June");  // passed: PEYR.dat

  ReminderLoadResult load = ReminderLoadReport(p.ctx);
  EXPECT_FALSE(load.leaveLoad);
  EXPECT_EQ(load.report.minDTG, 1);
  EXPECT_EQ(load.report.lamp, LampColour::LightOrange);
  EXPECT_EQ(load.signal.soundPlays, 1);
  EXPECT_EQ(load.signal.notice, "");
  EXPECT_TRUE(std::filesystem::exists(p.File("PEYR.dat")));

  // The rest of the day: nothing to do, and no file is read.
  SetDate(p, 2026, 12, 30, 23, 59);
  EXPECT_FALSE(ReminderDayCheck(p.ctx, load.report.text, false).rebuilt);
  p.clock.Set({2026, 12, 31, 0, 0, 0, 0});
  EXPECT_FALSE(ReminderDayCheck(p.ctx, load.report.text, false).rebuilt);
  p.clock.Set({2026, 12, 31, 0, 0, 1, 0});
  ReminderTickResult tick = ReminderDayCheck(p.ctx, load.report.text, false);
  ASSERT_TRUE(tick.rebuilt);
  EXPECT_TRUE(tick.replaceOutput);
  EXPECT_EQ(tick.report.minDTG, 0);
  EXPECT_EQ(tick.signal.soundPlays, 2);
  EXPECT_EQ(tick.signal.notice, "You have a reminder set for today.");
  auto lines = Lines(tick.report.text);
  EXPECT_EQ(lines[5], "2026   Thu   Dec 31     0   NYE");
  EXPECT_EQ(lines[7], "2027   Fri   Jan  1     1   New Year");
  EXPECT_FALSE(ReminderDayCheck(p.ctx, tick.report.text, false).rebuilt);

  // New Year's Day with the alarm set: no box; yesterday's reminder is purged.
  p.clock.Set({2027, 1, 1, 0, 5, 0, 0});
  p.ctx.settings.reminderAudio = "Off";
  tick = ReminderDayCheck(p.ctx, "something else", true);
  ASSERT_TRUE(tick.rebuilt);
  EXPECT_FALSE(tick.replaceOutput);
  EXPECT_EQ(tick.signal.soundPlays, 0);
  EXPECT_EQ(tick.signal.notice, "");
  lines = Lines(tick.report.text);
  EXPECT_EQ(lines[5], "2027   Fri   Jan  1     0   New Year");
  EXPECT_EQ(lines[6], "       Sat   Jan  2     1   Back to work");
  EXPECT_EQ(lines[9], "2028   Sat   Jan  1   365   New Year");
  // New Year started PEYR.dat on the 30th; June, the second, went to purged.dat too.
  EXPECT_EQ(p.Read("purged.dat"), "Jun  1  2026  June\r\nDec 31  2026  NYE\r\n");

  // The next start in the new year clears last year's PEYR.dat.
  p.Start();
  EXPECT_FALSE(std::filesystem::exists(p.File("PEYR.dat")));
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "PEYR File Creation Year"), "2027");

  // An imminent reminder plays once at the timer whatever the audio switch says.
  p.clock.Set({2027, 1, 2, 8, 0, 0, 0});
  InsertReminder(p.ctx, 105, 2027, "Soon");
  tick = ReminderDayCheck(p.ctx, "", false);
  EXPECT_EQ(tick.report.minDTG, 0);
  p.clock.Set({2027, 1, 3, 8, 0, 0, 0});
  tick = ReminderDayCheck(p.ctx, "", false);
  EXPECT_EQ(tick.report.minDTG, 2);
  EXPECT_EQ(tick.signal.soundPlays, 1);
  EXPECT_EQ(tick.signal.notice, "One of your set reminders is imminent.");
}

TEST(ReminderReportTest, OutOfDateListing) {
  TestProgram p(true, {2027, 1, 1, 10, 0, 0, 0});
  p.Start();
  EXPECT_FALSE(OutOfDateListing(p.ctx));
  EXPECT_EQ(p.sink.Last(), "No out-of-date reminders exist.");
  std::string purged;
  for (int d = 1; d <= 6; ++d)
    purged += OutOfDateLine(12, d, 2025, "Advent " + std::to_string(d)) + "\r\n";
  purged += "not a reminder line\r\n";
  purged += OutOfDateLine(12, 31, 2026, "NYE") + "\r\n";
  p.Write("purged.dat", purged);
  auto text = OutOfDateListing(p.ctx);
  ASSERT_TRUE(text);
  auto lines = Lines(*text);
  const std::string rule(8 + 29, '-');
  ASSERT_EQ(lines.size(), 16u);
  EXPECT_EQ(lines[0], "");
  EXPECT_EQ(lines[1], "*** List of Out-of-Date Reminders ***");
  EXPECT_EQ(lines[2], rule);
  EXPECT_EQ(lines[3], "Year   Day   Date      DGB   Event");
  EXPECT_EQ(lines[5], "2025   Mon   Dec  1    396   Advent 1");
  EXPECT_EQ(lines[6], "       Tue   Dec  2    395   Advent 2");
  EXPECT_EQ(lines[9], "2025   Fri   Dec  5    392   Advent 5");  // every fifth line
  EXPECT_EQ(lines[10], "       Sat   Dec  6    391   Advent 6");
  EXPECT_EQ(lines[11], "");  // a new year
  EXPECT_EQ(lines[12], "2026   Thu   Dec 31      1   NYE");
  EXPECT_EQ(lines[15], "DGB = Days Gone By (since event occurred)");
}

TEST(ReminderReportTest, MovingAReminderWithinItsDay) {
  TestProgram p;
  p.Start();
  InsertReminder(p.ctx, 1125, 2026, "First");
  InsertReminder(p.ctx, 1125, 2026, "Second");
  InsertReminder(p.ctx, 1126, 2026, "Other day");
  InsertReminder(p.ctx, 1125, kEveryYear, "Yearly");
  const std::string text = BuildReminderReport(p.ctx).text;
  auto lines = Lines(text);
  ASSERT_EQ(lines[6], "       Wed   Nov 25     2   Second");
  std::size_t caret = text.find("Second") + 2;
  auto moved = MoveReminderInList(p.ctx, text, caret, true);
  ASSERT_TRUE(moved);
  lines = Lines(moved->report.text);
  EXPECT_EQ(lines[5], "2026   Wed   Nov 25     2   Second");
  EXPECT_EQ(lines[6], "       Wed   Nov 25     2   First");
  EXPECT_EQ(moved->report.text.substr(moved->caret, 4), "2026");
  std::vector<Entry> want = {{1125, 2026, "Second"},
                             {1125, 2026, "First"},
                             {1125, kEveryYear, "Yearly"},
                             {1126, 2026, "Other day"}};
  EXPECT_EQ(ListOf(p.ctx), want);
  // Not past the head, not onto another date, not across sections.
  const std::string t = moved->report.text;
  EXPECT_FALSE(MoveReminderInList(p.ctx, t, t.find("Second"), true));
  EXPECT_FALSE(MoveReminderInList(p.ctx, t, t.find("Yearly"), false));
  EXPECT_FALSE(MoveReminderInList(p.ctx, t, t.find("DTG ="), true));
  EXPECT_FALSE(MoveReminderInList(p.ctx, "something else", 3, true));
}

TEST(ReminderReportTest, LeavingAScreenSaysWhenTheListMustBeRebuilt) {
  TestProgram p;
  p.Start();
  EXPECT_FALSE(LeaveReminderScreen(p.ctx, "*** List of Reminders ***"));
  InsertReminder(p.ctx, 1225, 2026, "Xmas");
  EXPECT_TRUE(LeaveReminderScreen(p.ctx, "No personal reminders currently defined."));
  EXPECT_FALSE(Reminders(p.ctx).remindersChanged);
  InsertReminder(p.ctx, 1226, 2026, "Boxing");
  EXPECT_FALSE(LeaveReminderScreen(p.ctx, "*** Date Conversions ***"));
}

}  // namespace
}  // namespace mc::test
