#include "reminders/store.h"

#include <gtest/gtest.h>

#include "core/ini_file.h"
#include "core/text_util.h"
#include "reminder_test_util.h"
#include "reminders/report.h"
#include "reminders/store_files.h"
#include "reminders/utilities_screen.h"

namespace mc::test {
namespace {

TEST(ReminderStore, InsertKeepsDateOrderAndRefusesWhatIsAlreadyCovered) {
  TestProgram p;
  p.Start();
  EXPECT_EQ(InsertReminder(p.ctx, 1125, 2026, "Dentist"), InsertOutcome::Inserted);
  EXPECT_EQ(HeaderOf(p.ctx), (StoreHeader{1, 1, 0}));  // the first reminder
  EXPECT_TRUE(Reminders(p.ctx).remindersChanged);
  Reminders(p.ctx).remindersChanged = false;

  EXPECT_EQ(InsertReminder(p.ctx, 1125, 2026, "  Dentist "), InsertOutcome::AlreadyCovered);
  EXPECT_FALSE(Reminders(p.ctx).remindersChanged);
  EXPECT_EQ(InsertReminder(p.ctx, 1201, 2026, "Party"), InsertOutcome::Inserted);
  EXPECT_EQ(InsertReminder(p.ctx, 1124, 2026, "Early"), InsertOutcome::Inserted);
  EXPECT_EQ(HeaderOf(p.ctx).head, 3);  // inserted ahead of the first
  EXPECT_EQ(InsertReminder(p.ctx, 1125, 2026, "Second"), InsertOutcome::Inserted);
  EXPECT_EQ(InsertReminder(p.ctx, 1125, 2027, "Dentist"), InsertOutcome::Inserted);  // other year
  EXPECT_EQ(InsertReminder(p.ctx, 301, kEveryYear, "Spring"), InsertOutcome::Inserted);
  EXPECT_EQ(InsertReminder(p.ctx, 301, 2027, "Spring"), InsertOutcome::AlreadyCovered);

  std::vector<Entry> want = {{301, kEveryYear, "Spring"}, {1124, 2026, "Early"},
                             {1125, 2026, "Dentist"},     {1125, 2026, "Second"},
                             {1125, 2027, "Dentist"},     {1201, 2026, "Party"}};
  EXPECT_EQ(ListOf(p.ctx), want);  // same day: in order of insertion
  EXPECT_TRUE(CheckReminderStore(p.ctx));
}

TEST(ReminderStore, WideningTurnsADatedReminderIntoEveryYearInPlace) {
  TestProgram p;
  p.Start();
  InsertReminder(p.ctx, 1225, 2026, "Xmas");
  InsertReminder(p.ctx, 1225, 2026, "Tree");
  InsertReminder(p.ctx, 1225, 2027, "Xmas");
  InsertReminder(p.ctx, 1226, 2026, "Boxing");
  Reminders(p.ctx).remindersChanged = false;
  EXPECT_EQ(InsertReminder(p.ctx, 1225, kEveryYear, "Xmas"), InsertOutcome::Widened);
  EXPECT_FALSE(Reminders(p.ctx).remindersChanged);
  // Slot 1 holds it now; the later 2027 duplicate (slot 3) went to the free chain.
  ReminderStore s(p.ctx);
  ASSERT_TRUE(s.Open());
  EXPECT_EQ(s.Slot(1).year, kEveryYear);
  EXPECT_EQ(s.Header(), (StoreHeader{4, 1, 3}));
  EXPECT_TRUE(s.Slot(3).IsBlank());
  std::vector<Entry> want = {
      {1225, kEveryYear, "Xmas"}, {1225, 2026, "Tree"}, {1226, 2026, "Boxing"}};
  EXPECT_EQ(ListOf(p.ctx), want);
  EXPECT_TRUE(CheckReminderStore(p.ctx));
}

TEST(ReminderStore, FreedSlotsAreReusedLastFreedFirst) {
  TestProgram p;
  p.Start();
  for (int d = 1; d <= 5; ++d) InsertReminder(p.ctx, 1200 + d, 2026, "R" + std::to_string(d));
  ReminderStore s(p.ctx);
  ASSERT_TRUE(s.Open());
  s.Unlink(2);
  s.Unlink(4);
  s.Unlink(1);  // the head
  ASSERT_TRUE(s.Commit());
  EXPECT_EQ(HeaderOf(p.ctx), (StoreHeader{5, 3, 1}));
  EXPECT_TRUE(CheckReminderStore(p.ctx));
  InsertReminder(p.ctx, 1210, 2026, "A");
  InsertReminder(p.ctx, 1211, 2026, "B");
  InsertReminder(p.ctx, 1212, 2026, "C");
  ReminderStore t(p.ctx);
  ASSERT_TRUE(t.Open());
  EXPECT_EQ(t.Header().maxRemNum, 5);
  EXPECT_EQ(t.Slot(1).Text(), "A");
  EXPECT_EQ(t.Slot(4).Text(), "B");
  EXPECT_EQ(t.Slot(2).Text(), "C");
}

TEST(ReminderStore, SlotsAreSixtyEightLittleEndianBytes) {
  TestProgram p;
  p.Start();
  InsertReminder(p.ctx, 321, kEveryYear, "Spring");
  std::string b = p.Read("person.dat");
  ASSERT_EQ(b.size(), 68u);
  EXPECT_EQ(static_cast<unsigned char>(b[0]), 321 & 0xFF);
  EXPECT_EQ(static_cast<unsigned char>(b[1]), 321 >> 8);
  EXPECT_EQ(b.substr(2, 60), "Spring" + std::string(54, ' '));
  EXPECT_EQ(static_cast<unsigned char>(b[62]) | static_cast<unsigned char>(b[63]) << 8, 10000);
  EXPECT_EQ(p.Read("mercod.dat"), "1,1,0\r\n");
  // A message longer than the field is cut, never inside a character.
  EXPECT_EQ(FitMessage(std::string(59, 'a') + "é"), std::string(59, 'a'));
}

TEST(ReminderStore, CheckReportsEachFindingAndNeverChangesADamagedStore) {
  struct Case {
    std::vector<ReminderSlot> slots;
    StoreHeader header;
    std::string finding;
  };
  const std::vector<Case> cases = {
      {{MakeSlot(101, 2026, "a", 0, 0), MakeSlot(102, 2026, "b", 1, 0)},
       {2, 1, 0},
       "Unlinked active or deleted reminder slot."},
      {{MakeSlot(101, 2026, "a", 0, 2), MakeSlot(102, 2026, "b", 1, 0)},
       {2, 1, 2},
       "Active or deleted reminder slot linked in more than once."},
      {{MakeSlot(101, 2026, "a", 0, 2), MakeSlot(102, 2026, "b", 1, 1)},  // a cycle
       {2, 1, 0},
       "Active or deleted reminder slot linked in more than once."},
      {{MakeSlot(101, 2026, "a", 0, 0), MakeSlot(0, 0, "left over", 0, 0)},
       {2, 1, 2},
       "Deleted reminder slot has not been re-initialised."},
      {{MakeSlot(101, 2026, "a", 0, 3), MakeSlot(102, 2026, "b", 1, 0)},
       {2, 1, 0},
       "Unlinked active or deleted reminder slot."},
      {{MakeSlot(101, 2026, "a", 0, 2), MakeSlot(102, 2026, "b", 1, 0)},
       {3, 1, 0},  // more slots claimed than the file holds
       "Maximum slot number does not agree with MaxRemNum."},
      {{MakeSlot(101, 2026, "a", 0, 2), MakeSlot(102, 2026, "b", 2, 0)},  // wrong back link
       {2, 1, 0},
       "Unlinked active or deleted reminder slot."},
  };
  for (const auto& c : cases) {
    TestProgram p;
    p.Start();
    WriteStore(p, c.slots, c.header);
    const std::string before = p.Read("person.dat");
    EXPECT_FALSE(CheckReminderStore(p.ctx)) << c.finding;
    EXPECT_EQ(p.sink.Last(), c.finding);
    p.sink.Clear();
    EXPECT_EQ(InsertReminder(p.ctx, 105, 2026, "new"), InsertOutcome::Failed);
    EXPECT_EQ(p.sink.Last(), c.finding);
    EXPECT_EQ(p.Read("person.dat"), before);
  }
}

TEST(ReminderStore, DamagedOrMissingFilesGiveTheMessageNotACrash) {
  const std::vector<std::pair<std::string, std::string>> mercods = {
      {"garbage", "x,y"}, {"short", "1,1"}, {"negative", "1,-1,0"}, {"huge", "99999,1,0"}};
  for (const auto& [name, text] : mercods) {
    TestProgram p;
    p.Start();
    InsertReminder(p.ctx, 101, 2026, "keep me");
    p.Write("mercod.dat", text);
    EXPECT_FALSE(CheckReminderStore(p.ctx)) << name;
    EXPECT_EQ(p.sink.Last(), "Maximum slot number does not agree with MaxRemNum.");
    EXPECT_EQ(p.Read("person.dat").size(), 68u);  // nothing deleted
  }
  TestProgram p;
  p.Start();
  InsertReminder(p.ctx, 101, 2026, "keep me");
  std::filesystem::remove(p.File("mercod.dat"));
  EXPECT_FALSE(CheckReminderStore(p.ctx));
  EXPECT_TRUE(std::filesystem::exists(p.File("person.dat")));
  p.Write("mercod.dat", "1,1,0\r\n");
  p.Write("person.dat", p.Read("person.dat").substr(0, 50));  // truncated slot
  EXPECT_FALSE(CheckReminderStore(p.ctx));
  // An empty person.dat is no store at all, and goes.
  p.Write("person.dat", "");
  EXPECT_TRUE(CheckReminderStore(p.ctx));
  EXPECT_FALSE(std::filesystem::exists(p.File("person.dat")));
}

// An empty person.dat holds no reminders: whichever command finds it
// deletes it, and says what it says of an empty store.
TEST(ReminderStore, AnEmptyPersonFileGoesWhicheverCommandFindsIt) {
  TestProgram p;
  p.Start();
  p.Write("person.dat", "");
  EXPECT_EQ(BuildReminderReport(p.ctx).text, "No personal reminders currently defined.");
  EXPECT_FALSE(std::filesystem::exists(p.File("person.dat")));

  p.Write("person.dat", "");
  EXPECT_FALSE(CompactReminders(p.ctx));
  EXPECT_EQ(p.sink.Last(), "No reminders have yet been defined.");
  EXPECT_FALSE(std::filesystem::exists(p.File("person.dat")));

  p.Write("person.dat", "");
  EXPECT_FALSE(ExportReminders(p.ctx, {"day month year message", "Comma ,", ""}));
  EXPECT_EQ(p.sink.Last(), "No reminders to export.");
  EXPECT_FALSE(std::filesystem::exists(p.File("person.dat")));
  EXPECT_FALSE(std::filesystem::exists(p.File("myrems.txt")));
}

TEST(ReminderStore, CompactionRenumbersInListOrder) {
  TestProgram p;
  p.Start();
  for (int d = 1; d <= 6; ++d) InsertReminder(p.ctx, 1231 - d, 2026, "R" + std::to_string(d));
  ReminderStore s(p.ctx);
  ASSERT_TRUE(s.Open());
  s.Unlink(2);
  s.Unlink(5);
  ASSERT_TRUE(s.Commit());
  auto before = ListOf(p.ctx);
  EXPECT_TRUE(CompactReminders(p.ctx));
  EXPECT_EQ(p.sink.Last(), "Reminders file successfully compacted.");
  EXPECT_EQ(HeaderOf(p.ctx), (StoreHeader{4, 1, 0}));
  EXPECT_EQ(ListOf(p.ctx), before);
  EXPECT_EQ(p.Read("person.dat").size(), 4u * 68);
  EXPECT_FALSE(std::filesystem::exists(p.File("newfile.dat")));
  EXPECT_TRUE(CheckReminderStore(p.ctx));

  TestProgram q;
  q.Start();
  EXPECT_FALSE(CompactReminders(q.ctx));
  EXPECT_EQ(q.sink.Last(), "No reminders have yet been defined.");
}

TEST(ReminderStore, StructuresListingColumns) {
  TestProgram p;
  p.Start();
  EXPECT_EQ(PrintReminderStructures(p.ctx), "");  // no files, no words
  InsertReminder(p.ctx, 321, kEveryYear, "Spring");
  InsertReminder(p.ctx, 1105, 2026, std::string(45, 'x'));
  InsertReminder(p.ctx, 1106, 2026, "gone");
  ReminderStore s(p.ctx);
  ASSERT_TRUE(s.Open());
  s.Unlink(3);
  ASSERT_TRUE(s.Commit());
  auto lines = SplitLines(PrintReminderStructures(p.ctx));
  ASSERT_EQ(lines.size(), 14u);
  EXPECT_EQ(lines[0], "Head = 1");
  EXPECT_EQ(lines[1], "MaxRemNum = 3");
  EXPECT_EQ(lines[2], "FreeHead = 3");
  EXPECT_EQ(lines[6], "Rem#   Month    Day    Message" + std::string(40, ' ') +
                          "Year        LLink     RLink");
  // Numbers print with a blank before and after them, at the columns 10, 17,
  // 70, 82 and 92; the message at 24 and "Every" at 70.
  auto at = [&](int line, std::size_t col, std::size_t n) {
    return lines[line].substr(col - 1, n);
  };
  EXPECT_EQ(lines[8].substr(0, 3), " 1 ");
  EXPECT_EQ(at(8, 10, 3), " 3 ");
  EXPECT_EQ(at(8, 17, 4), " 21 ");
  EXPECT_EQ(at(8, 24, 7), "Spring ");
  EXPECT_EQ(at(8, 70, 6), "Every ");
  EXPECT_EQ(at(8, 82, 3), " 0 ");
  EXPECT_EQ(lines[8].substr(91), " 2");
  EXPECT_EQ(at(9, 24, 41), std::string(36, 'x') + " ... ");
  EXPECT_EQ(at(9, 70, 6), " 2026 ");
  EXPECT_EQ(lines[11], "Free Slots");
  EXPECT_EQ(lines[13].substr(0, 3), " 3 ");
  EXPECT_EQ(lines[13].substr(69, 3), " 0 ");
}

TEST(ReminderStore, OneTimeWideningOfFortyByteMessages) {
  TestProgram p;
  p.Start();
  WriteStore(
      p,
      {MakeSlot(101, kEveryYear, std::string(40, 'y'), 0, 2), MakeSlot(102, 2026, "second", 1, 0)},
      {2, 1, 0}, kOldSlotSize);
  std::filesystem::create_directory(p.File("backup"));
  p.Write("backup/person.dat", "old layout");
  UpdateIniFile(p.ctx, 0, "Rem Message Length Updated", "No");
  p.ctx.settings.remLengthUpdated = "No";
  WidenReminderMessages(p.ctx);
  EXPECT_EQ(p.Read("person.dat").size(), 2u * 68);
  std::vector<Entry> want = {{101, kEveryYear, std::string(40, 'y')}, {102, 2026, "second"}};
  EXPECT_EQ(ListOf(p.ctx), want);
  EXPECT_FALSE(std::filesystem::exists(p.File("backup/person.dat")));
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Rem Message Length Updated"), "Yes");
  EXPECT_FALSE(std::filesystem::exists(p.File("newperson.dat")));
  // Run again (a start that stopped before noting it): the 68-byte store stays.
  UpdateIniFile(p.ctx, 0, "Rem Message Length Updated", "No");
  WidenReminderMessages(p.ctx);
  EXPECT_EQ(ListOf(p.ctx), want);
}

TEST(ReminderStore, UpgradeFromAnOldSettingsFileWidensAndBuildsPeyr) {
  TestProgram p(true, {2026, 11, 23, 10, 30, 0, 0});
  std::filesystem::copy_file(std::string(CODEX_TEST_DATA_DIR) + "/mercod-158.ini",
                             p.File("mercod.ini"),
                             std::filesystem::copy_options::overwrite_existing);
  // A store from before the wider messages: birthdays in March (passed) and December.
  WriteStore(p,
             {MakeSlot(315, kEveryYear, "<1990!> birthday of Ann", 0, 2),
              MakeSlot(1224, kEveryYear, "Eve", 1, 3), MakeSlot(1225, 2026, "Dinner", 2, 0)},
             {3, 1, 0}, kOldSlotSize);
  p.Start();
  EXPECT_EQ(p.Read("PEYR.dat"), "Mar 15  2026  36th birthday of Ann\r\n");
  EXPECT_EQ(p.Read("person.dat").size(), 3u * 68);
  EXPECT_EQ(ListOf(p.ctx).back(), (Entry{1225, 2026, "Dinner"}));
  EXPECT_EQ(p.ctx.settings.remLengthUpdated, "Yes");
}

}  // namespace
}  // namespace mc::test
