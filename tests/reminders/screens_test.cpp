#include <gtest/gtest.h>

#include "core/ini_file.h"
#include "core/text_util.h"
#include "reminder_test_util.h"
#include "reminders/add_screen.h"
#include "reminders/edit_screen.h"
#include "reminders/month_screen.h"
#include "reminders/report.h"
#include "reminders/utilities_screen.h"
#include "support/cli_run.h"

namespace mc::test {
namespace {

// Saves one Type 1 entry; the message shown, or "" when it saved.
std::string SaveType1(TestProgram& p, const std::string& msg, const std::string& dm,
                      YearOption year = YearOption::ThisYear) {
  AddRemindersScreen s(p.ctx);
  s.message = msg;
  s.dayMonth = dm;
  s.yearOption = year;
  p.sink.Clear();
  bool ok = s.Save();
  EXPECT_EQ(ok, p.sink.messages.empty()) << p.sink.Last();
  return p.sink.Last();
}

TEST(AddRemindersScreenTest, Type1ChecksInOrder) {
  TestProgram p;  // 23 November 2026
  p.Start();
  EXPECT_EQ(SaveType1(p, " ", "1/12"), "No message.");
  EXPECT_EQ(SaveType1(p, std::string(61, 'x'), "1/12"),
            "Message contains more than 60 characters.");
  EXPECT_EQ(SaveType1(p, "m", ""), "No values specified for d and m.");
  EXPECT_EQ(SaveType1(p, "m", "1-12"), "Missing / between d and m");
  EXPECT_EQ(SaveType1(p, "m", "x/12"), "Day value must be numeric.");
  EXPECT_EQ(SaveType1(p, "m", "1/x"), "Month value must be numeric.");
  EXPECT_EQ(SaveType1(p, "m", "1/13"), "Invalid month value.");
  EXPECT_EQ(SaveType1(p, "m", "31/11"), "Invalid day value.");
  EXPECT_EQ(SaveType1(p, "m", "29/2"), "Invalid day value.");  // 2026 is common
  EXPECT_EQ(SaveType1(p, "m", "29/2", YearOption::EveryYear),
            "February 29 does not occur every year.");
  EXPECT_EQ(SaveType1(p, "m", "1/11"), "Date must not be in the past.");
  EXPECT_FALSE(std::filesystem::exists(p.File("person.dat")));

  // The same date every year is stored, and noted at once in PEYR.dat.
  EXPECT_EQ(SaveType1(p, "Ann <1990!>", "1/11", YearOption::EveryYear), "");
  EXPECT_EQ(p.Read("PEYR.dat"), "Nov  1  2026  Ann 36th\r\n");
  EXPECT_EQ(SaveType1(p, "Bob", "5/3", YearOption::EveryYear), "");
  EXPECT_EQ(p.Read("PEYR.dat"), "Nov  1  2026  Ann 36th;Mar  5  2026  Bob\r\n");
  EXPECT_EQ(SaveType1(p, "29 Feb", "29/2", YearOption::NextYear), "Invalid day value.");

  // A dated reminder with "<" and ">" asks first.
  AddRemindersScreen s(p.ctx);
  s.message = "x <2000> y";
  s.dayMonth = "1/12";
  p.sink.answers = {false};
  EXPECT_FALSE(s.Save());
  EXPECT_EQ(s.message, "x <2000> y");  // left for correction
  p.sink.answers = {true};
  EXPECT_TRUE(s.Save());
  EXPECT_EQ(s.Information(), "Reminder(s) have been successfully processed.");
  EXPECT_EQ(s.message, "");
  // Saving the same entry twice adds nothing but still says success.
  EXPECT_EQ(SaveType1(p, "Dentist", "25/11"), "");
  EXPECT_EQ(SaveType1(p, "Dentist", "25/11"), "");
  EXPECT_EQ(ListOf(p.ctx).size(), 4u);
}

TEST(AddRemindersScreenTest, SeriesAndSpans) {
  TestProgram p;
  p.Start();
  AddRemindersScreen s(p.ctx);
  s.message = "Daily";
  s.dayMonth = "23/11";
  s.SetSeries(true);
  EXPECT_EQ(s.seriesEndYear, 2027);
  s.seriesDays = "abc";
  EXPECT_FALSE(s.Save());
  EXPECT_EQ(p.sink.Last(), "Number of days must be numeric.");
  s.seriesDays = "0";
  EXPECT_FALSE(s.Save());
  EXPECT_EQ(p.sink.Last(), "Number of days must be greater than 0.");
  s.seriesDays = "731";
  EXPECT_FALSE(s.Save());
  EXPECT_EQ(p.sink.Last(), "Number of days must not exceed 730.");
  s.seriesDays = "1";
  s.seriesEndYear = 2028;
  EXPECT_FALSE(s.Save());
  EXPECT_EQ(p.sink.Last(), "Year values must not be greater than 2027.");
  s.seriesEndYear = 2027;
  ASSERT_TRUE(s.Save());
  // Every remaining day of this year and all of next: 39 + 365.
  EXPECT_EQ(s.InsertedCount(), 404);
  EXPECT_EQ(ListOf(p.ctx).size(), 404u);
  EXPECT_TRUE(CheckReminderStore(p.ctx));

  TestProgram q;
  q.Start();
  AddRemindersScreen t(q.ctx);
  t.message = "Rent";
  t.ChooseType(3);
  t.type3Day = "31";
  t.fromMonth = 4, t.fromYear = 2027, t.toMonth = 6, t.toYear = 2027;
  ASSERT_TRUE(t.Save());
  EXPECT_EQ(ListOf(q.ctx), (std::vector<Entry>{{531, 2027, "Rent"}}));
  t.message = "Five Mondays";
  t.ChooseType(2);
  t.ordinal = "Fifth";
  t.weekday = "Monday";
  t.fromMonth = 11, t.fromYear = 2026, t.toMonth = 3, t.toYear = 2027;
  ASSERT_TRUE(t.Save());
  // November 2026 (the 30th) and March 2027 (the 29th) have five Mondays.
  EXPECT_EQ(ListOf(q.ctx).size(), 3u);
  t.message = "Pay day";
  t.ChooseType(3);
  t.type3Day = "Second last";
  t.fromMonth = 1, t.fromYear = 2027, t.toMonth = 2, t.toYear = 2027;
  ASSERT_TRUE(t.Save());
  t.message = "Swim";
  t.ChooseType(2);
  t.ordinal = "Every";
  t.weekday = "Saturday";
  t.fromMonth = 12, t.fromYear = 2026, t.toMonth = 12, t.toYear = 2026;
  ASSERT_TRUE(t.Save());
  EXPECT_EQ(t.InsertedCount(), 4);  // 5, 12, 19, 26 December
  auto list = ListOf(q.ctx);
  EXPECT_NE(std::find(list.begin(), list.end(), Entry{130, 2027, "Pay day"}), list.end());
  EXPECT_NE(std::find(list.begin(), list.end(), Entry{227, 2027, "Pay day"}), list.end());

  struct Span {
    int fm, fy, tm, ty;
    std::string message;
  };
  for (const Span& sp :
       std::vector<Span>{{10, 2026, 12, 2026, "A specified month is in the past."},
                         {1, 2028, 2, 2028, "Year values must not be greater than 2027."},
                         {1, 2025, 2, 2025, "Year values must not be less than 2026."},
                         {2, 2027, 12, 2026, "Year values are wrongly ordered."},
                         {5, 2027, 2, 2027, "Month values are wrongly ordered within year."}}) {
    t.message = "x";
    t.ChooseType(2);
    t.fromMonth = sp.fm, t.fromYear = sp.fy, t.toMonth = sp.tm, t.toYear = sp.ty;
    EXPECT_FALSE(t.Save());
    EXPECT_EQ(q.sink.Last(), sp.message);
  }
  t.message = "x";
  t.ChooseType(3);
  t.type3Day = "Whenever";
  t.fromMonth = 12, t.fromYear = 2026, t.toMonth = 12, t.toYear = 2026;
  EXPECT_FALSE(t.Save());
  EXPECT_EQ(q.sink.Last(), "Invalid day value in Type 3 reminder specification.");
}

TEST(AddRemindersScreenTest, PasteIsCutToTheMessageField) {
  TestProgram p;
  p.Start();
  AddRemindersScreen s(p.ctx);
  s.message = std::string(50, 'a');
  p.sink.answers = {false, true};
  auto clip = [] { return std::optional<std::string>(std::string(20, 'b')); };
  EXPECT_FALSE(s.PasteIntoMessage(clip, 50, 0));
  EXPECT_EQ(p.sink.Last(),
            "Text to be pasted will be truncated to 10 characters. Do you wish to continue?");
  EXPECT_TRUE(s.PasteIntoMessage(clip, 50, 0));
  EXPECT_EQ(s.message, std::string(50, 'a') + std::string(10, 'b'));
  EXPECT_EQ(s.MessageCount(), "60");
  int tries = 0;
  p.sink.answers = {true, false};
  EXPECT_FALSE(s.PasteIntoMessage(
      [&] {
        ++tries;
        return std::optional<std::string>();
      },
      0, 0));
  EXPECT_EQ(tries, 2);
  EXPECT_EQ(p.sink.Last(), "Can't open Clipboard. Try again?");

  // The message is one line: the clipboard's breaks and tabs become blanks.
  s.message = "To: ";
  EXPECT_TRUE(s.PasteIntoMessage(
      [] { return std::optional<std::string>("Anna\r\nBob\nCarl\tDee"); }, 4, 0));
  EXPECT_EQ(s.message, "To: Anna Bob Carl Dee");
}

TEST(EditRemindersScreenTest, UpdateAndDelete) {
  TestProgram p;
  p.Start();
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  InsertReminder(p.ctx, 1201, kEveryYear, "Party");
  InsertReminder(p.ctx, 1202, 2026, "Party");
  InsertReminder(p.ctx, 1203, 2026, "Party time");
  Reminders(p.ctx).remindersChanged = false;
  EditRemindersScreen e(p.ctx);
  auto lines = SplitLines(e.Listing());
  EXPECT_EQ(lines[0], "*** Reminder List ***");
  EXPECT_EQ(lines[2], "Rem#   Date    Year    Message");
  EXPECT_EQ(lines[4], "1      25/11   2026    Dentist");
  EXPECT_EQ(lines[5], "2      1/12    Every   Party");
  EXPECT_FALSE(e.Update());
  EXPECT_EQ(p.sink.Last(), "No reminder has been selected.");
  EXPECT_FALSE(e.SelectLine(2));
  ASSERT_TRUE(e.SelectLine(4));
  EXPECT_EQ(e.dateField, "25/11");
  EXPECT_FALSE(e.Update());
  EXPECT_EQ(p.sink.Last(), "Reminder has not been updated -- no need to save.");
  e.dateField = "1/11";
  EXPECT_FALSE(e.Update());
  EXPECT_EQ(p.sink.Last(), "Date specified must not be in the past.");
  e.dateField = "15/12";  // only the date changes: it moves to its place
  ASSERT_TRUE(e.Update());
  EXPECT_EQ(e.Status(), "Updated reminder has been successfully processed.");
  EXPECT_TRUE(Reminders(p.ctx).remindersChanged);
  EXPECT_EQ(ListOf(p.ctx).back(), (Entry{1215, 2026, "Dentist"}));

  // All with one message: whole messages only.
  lines = SplitLines(e.Listing());
  ASSERT_TRUE(e.SelectLine(4));
  EXPECT_EQ(e.messageField, "Party");
  e.allWithMessage = true;
  EXPECT_EQ(e.DeleteCaption(), "&Delete Reminders");
  p.sink.answers = {true};
  ASSERT_TRUE(e.Delete());
  EXPECT_EQ(e.Status(),
            "All reminders containing selected message have been successfully deleted.");
  std::vector<Entry> want = {{1203, 2026, "Party time"}, {1215, 2026, "Dentist"}};
  EXPECT_EQ(ListOf(p.ctx), want);
  e.allWithMessage = false;
  for (int i = 0; i < 2; ++i) {
    ASSERT_TRUE(e.SelectLine(4));
    p.sink.answers = {true};
    ASSERT_TRUE(e.Delete());
  }
  EXPECT_EQ(e.Status(), "Reminder has been successfully deleted.");
  EXPECT_EQ(HeaderOf(p.ctx).head, 0);  // the last one gone: Head 0
  EXPECT_TRUE(CheckReminderStore(p.ctx));
}

TEST(RemindersByMonthScreenTest, MarksClicksAndDoubleClicks) {
  TestProgram p;
  p.Start();
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  InsertReminder(p.ctx, 1125, kEveryYear, "Wedding <2000!>");
  InsertReminder(p.ctx, 1104, 2027, "Next year only");
  p.Write("purged.dat", "Nov  2  2026  Gone\r\nNov  3  2025  Last year\r\n");
  RemindersByMonthScreen m(p.ctx);
  EXPECT_EQ(m.Month(), 11);
  std::vector<int> marked;
  for (const auto& c : m.Cells())
    if (c.marked) marked.push_back(c.day);
  EXPECT_EQ(marked, (std::vector<int>{2, 25}));
  EXPECT_TRUE(m.Cells()[22].today);
  EXPECT_EQ(m.Cells()[0].column, 1);  // 1 November 2026 was a Sunday
  EXPECT_EQ(m.ClickDate(25),
            "2 Reminders for Wednesday 25 November 2026\r\nDentist\r\nWedding 26th");
  EXPECT_EQ(m.ClickDate(2), "1 Reminder for Monday 2 November 2026\r\nGone");
  EXPECT_EQ(m.ClickDate(3), "");
  m.ChooseYear(ShownYear::LastYear);
  EXPECT_EQ(m.ClickDate(3), "1 Reminder for Monday 3 November 2025\r\nLast year");
  m.ChooseYear(ShownYear::NextYear);
  EXPECT_NE(m.ClickDate(4), "");
  EXPECT_EQ(m.ClickDate(25), "1 Reminder for Thursday 25 November 2027\r\nWedding 27th");
  auto add = m.DoubleClickDate(9);
  EXPECT_EQ(p.ctx.settings.currentForm, "Form4");
  EXPECT_EQ(add.option, YearOption::NextYear);
  m.SpinUp();
  EXPECT_EQ(m.Month(), 12);
  m.SpinUp();
  EXPECT_EQ(m.Month(), 12);  // no year after next
  m.ChooseYear(ShownYear::ThisYear);
  m.SpinUp();
  EXPECT_EQ(m.Month(), 1);
  EXPECT_EQ(m.Shown(), ShownYear::NextYear);

  m.ChooseYear(ShownYear::ThisYear);
  m.ChooseMonth(11);
  auto grid = SplitLines(m.GridText());
  EXPECT_EQ(grid[0], "      November 2026");
  EXPECT_EQ(grid[2], "   S  M  T  W  T  F  S");
  EXPECT_EQ(grid[3], "   1  2  3  4  5  6  7");
  EXPECT_EQ(grid[7], "  29 30");
  p.ctx.settings.startDay = 0;  // weeks from Saturday
  m.Fill();
  EXPECT_EQ(m.Cells()[0].column, 2);
  grid = SplitLines(m.GridText());
  EXPECT_EQ(grid[2], "   S  S  M  T  W  T  F");
  EXPECT_EQ(grid[3], "      1  2  3  4  5  6");
  p.ctx.settings.startDay = 2;  // from Monday
  m.Fill();
  EXPECT_EQ(SplitLines(m.GridText())[2], "   M  T  W  T  F  S  S");
  EXPECT_EQ(m.Cells()[0].column, 7);
  p.ctx.settings.startDay = 1;
  m.Fill();
  std::string report = m.ReportText();
  EXPECT_TRUE(StartsWith(report, "*** Reminder List for Month ***\r\n"));
  EXPECT_NE(report.find("Wed  25 Nov 2026   Dentist\r\n"), std::string::npos);
}

FieldFormat Slashes() {
  return {"day month year message", "Forward Slash /", ""};
}

TEST(ReminderUtilitiesTest, ExportImportRoundTripAddsNothing) {
  TestProgram p;
  p.Start();
  EXPECT_FALSE(ExportReminders(p.ctx, Slashes()));
  EXPECT_EQ(p.sink.Last(), "No reminders to export.");
  EXPECT_FALSE(ExportReminders(p.ctx, {"Choose field order", "Tab", ""}));
  EXPECT_EQ(p.sink.Last(), "Field order not defined.");
  EXPECT_FALSE(ExportReminders(p.ctx, {"day month year message", "", ""}));
  EXPECT_EQ(p.sink.Last(), "Field separator not defined.");
  EXPECT_FALSE(ExportReminders(p.ctx, {"day month year message", "User Specified", ""}));
  EXPECT_EQ(p.sink.Last(), "User specified separator missing.");

  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  InsertReminder(p.ctx, 101, kEveryYear, "New Year");
  p.Write("newrems.txt", "old import");
  ASSERT_TRUE(ExportReminders(p.ctx, {"year month day message", "Semicolon ;", ""}));
  EXPECT_EQ(p.sink.Last(), "2 reminders have been successfully exported to file myrems.txt.");
  EXPECT_EQ(p.Read("myrems.txt"), "every;1;1;New Year\r\n2026;11;25;Dentist\r\n");
  EXPECT_EQ(p.Read("newrems.old"), "old import");
  EXPECT_FALSE(std::filesystem::exists(p.File("newrems.txt")));

  std::filesystem::rename(p.File("myrems.txt"), p.File("newrems.txt"));
  auto before = ListOf(p.ctx);
  p.sink.answers = {true};
  ASSERT_TRUE(ImportReminders(p.ctx, {"year month day message", "Semicolon ;", ""}));
  EXPECT_EQ(p.sink.Last(), "2 reminders have been successfully imported.");
  EXPECT_EQ(ListOf(p.ctx), before);
}

TEST(ReminderUtilitiesTest, FilesChosenByTheUserAreNamedInTheMessages) {
  TestProgram p;
  p.Start();
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  std::filesystem::create_directory(p.File("elsewhere"));
  const auto out = p.File("elsewhere/mine.txt");
  ASSERT_TRUE(ExportReminders(p.ctx, Slashes(), out));
  EXPECT_EQ(p.sink.Last(),
            "1 reminder has been successfully exported to file " + out.string() + ".");
  EXPECT_EQ(p.Read("elsewhere/mine.txt"), "25/11/2026/Dentist\r\n");
  EXPECT_FALSE(std::filesystem::exists(p.File("myrems.txt")));

  const auto missing = p.File("elsewhere/none.txt");
  p.sink.answers = {true};
  EXPECT_FALSE(ImportReminders(p.ctx, Slashes(), missing));
  EXPECT_EQ(p.sink.messages[p.sink.messages.size() - 2].text,
            "Data will be imported from the file " + missing.string() +
                ". Please confirm that you wish to continue.");
  EXPECT_EQ(p.sink.Last(), "File " + missing.string() + " not found error (ProcNum = 0).");

  p.Write("elsewhere/mine.txt", "1/12/2026/Party\r\n");
  p.sink.answers = {true};
  ASSERT_TRUE(ImportReminders(p.ctx, Slashes(), p.File("elsewhere/mine.txt")));
  EXPECT_EQ(p.sink.Last(), "1 reminder has been successfully imported.");
  EXPECT_EQ(ListOf(p.ctx).size(), 2u);
}

TEST(ReminderUtilitiesTest, ImportRefusesBadLinesIntoRejects) {
  TestProgram p;
  p.Start();
  p.sink.answers = {true};
  EXPECT_FALSE(ImportReminders(p.ctx, Slashes()));
  EXPECT_EQ(p.sink.Last(), "Missing reminder import file newrems.txt.");
  p.sink.answers = {false};
  EXPECT_FALSE(ImportReminders(p.ctx, Slashes()));
  EXPECT_TRUE(StartsWith(p.sink.Last(), "Data will be imported from the file newrems.txt."));

  const std::string long61(61, 'z');
  p.Write("newrems.txt",
          "1/1/every/New Year\r\n"
          "5/5/2025/Too old\r\n"
          "5/5\r\n"
          "/5/2027/x\r\n"
          "5//2027/x\r\n"
          "5/5//x\r\n"
          "5/13/2027/x\r\n"
          "5/5/2029/x\r\n"
          "31/4/2027/x\r\n"
          "29/2/every/x\r\n"
          "5/5/2027/\r\n"
          "1/11/2026/Gone\r\n"
          "25/12/\"2026/\"Quoted, with / inside\"\r\n"
          "2/1/2027/" +
              long61 + "\r\n");
  p.sink.answers = {true};
  p.sink.Clear();
  ASSERT_TRUE(ImportReminders(p.ctx, Slashes()));
  EXPECT_EQ(p.sink.Last(),
            "3 reminders have been successfully imported. 11 rejects are in the file rejects.txt.");
  std::vector<Entry> want = {{101, kEveryYear, "New Year"},
                             {102, 2027, std::string(60, 'z')},
                             {1225, 2026, "Quoted, with / inside"}};
  EXPECT_EQ(ListOf(p.ctx), want);
  bool truncated = false;
  for (const auto& m : p.sink.messages)
    truncated =
        truncated || (m.caption == "Warning!" &&
                      m.text == "Reminder message truncated to 60 characters during importation.");
  EXPECT_TRUE(truncated);
  auto rejects = SplitLines(p.Read("rejects.txt"));
  ASSERT_EQ(rejects.size(), 33u);
  EXPECT_EQ(rejects[0], "5/5/2025/Too old");
  EXPECT_EQ(rejects[1], "Year must not be in the past.");
  EXPECT_EQ(rejects[2], "");
  std::vector<std::string> reasons;
  for (std::size_t i = 1; i < rejects.size(); i += 3) reasons.push_back(rejects[i]);
  EXPECT_EQ(reasons, (std::vector<std::string>{
                         "Year must not be in the past.", "Missing field delimiter.",
                         "Empty day field in record.", "Empty month field in record.",
                         "Empty year field in record.", "Invalid month value.",
                         "Year value is greater than current year value + 1.", "Invalid day value.",
                         "February 29 does not occur every year.", "No message.",
                         "Date must not be in the past."}));
}

TEST(ReminderUtilitiesTest, SwitchesAndCommands) {
  TestProgram p;
  p.Start();
  ReminderUtilitiesScreen u(p.ctx);
  EXPECT_TRUE(u.AudioSignal());
  u.SetAudioSignal(false);
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Reminder Audio Signal"), "Off");
  EXPECT_TRUE(u.SetProcessFields(false, "*** List of Reminders ***\r\n"));
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Process Reminder Fields"), "No");
  // The list is rebuilt as the screen is left.
  EXPECT_TRUE(LeaveReminderScreen(p.ctx, "*** List of Reminders ***\r\n"));
  EXPECT_FALSE(u.SetProcessFields(true, "other"));
  EXPECT_FALSE(Reminders(p.ctx).remindersChanged);
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  u.action = UtilityAction::PrintStructures;
  u.Run();
  EXPECT_TRUE(StartsWith(u.PrintText(), "Head = 1\r\n"));
  u.action = UtilityAction::Compact;
  u.Run();
  EXPECT_EQ(p.sink.Last(), "Reminders file successfully compacted.");
}

// codex-cli with plain line ends: what it wrote to both streams.
std::string Cli(TestProgram& p, std::vector<std::string> args, int* status = nullptr) {
  args.insert(args.begin(), "--lf");
  const CliRun r = RunCliIn(p, args);
  if (status) *status = r.status;
  return r.out + r.err;
}

TEST(ReminderCommandsTest, AddListAndExportFromTheCommandLine) {
  TestProgram p;
  int rc = 0;
  EXPECT_EQ(Cli(p, {"reminders", "add", "--message", "Dentist", "--date", "25/11"}, &rc),
            "Reminder(s) have been successfully processed.\n");
  EXPECT_EQ(rc, 0);
  Cli(p, {"reminders", "add", "--message", "Bins", "--type", "3", "--day", "Last", "--from",
          "12/2026", "--to", "1/2027"});
  EXPECT_EQ(Cli(p, {"reminders", "add", "--message", "x", "--date", "1/1"}, &rc),
            "Error Detected!: Date must not be in the past.\n");
  EXPECT_EQ(rc, 1);
  std::string list = Cli(p, {"reminders", "list"});
  EXPECT_NE(list.find("2026   Wed   Nov 25     2   Dentist\n"), std::string::npos);
  EXPECT_NE(list.find("2027   Sun   Jan 31    69   Bins\n"), std::string::npos);
  EXPECT_EQ(Cli(p, {"reminders", "check"}), "consistent\n");
  Cli(p, {"reminders", "export", "--order", "day month year message", "--separator", ","});
  EXPECT_EQ(p.Read("myrems.txt"), "31,1,2027,Bins\r\n25,11,2026,Dentist\r\n31,12,2026,Bins\r\n");
  EXPECT_NE(Cli(p, {"reminders", "structures"}).find("MaxRemNum = 3"), std::string::npos);
}

}  // namespace
}  // namespace mc::test
