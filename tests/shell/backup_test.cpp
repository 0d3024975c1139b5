#include "shell/backup.h"

#include <gtest/gtest.h>

#include "core/ini_file.h"
#include "support/test_program.h"

namespace mc {
namespace {

class BackupTest : public ::testing::Test {
 protected:
  BackupTest() { p.Start(); }
  // Every kind of file a backup knows, and two it must leave alone.
  void WriteUserFiles() {
    for (const char* name :
         {"mercod.dat", "person.dat", "purged.dat", "localhols.dat", "mynotes.txt", "mycities.dat",
          "myunit.dat", "myconvdata.dat", "pw.dat", "PEYR.dat", "a.sff", "b.shf", "route.tsp",
          "data.sta", "other.txt"})
      p.Write(name, std::string("content of ") + name + "\r\n\x01\xff");
  }
  std::string Backed(const std::string& name) { return p.Read("backup/" + name); }

  test::TestProgram p;
};

TEST_F(BackupTest, ListsTheFilesInOrder) {
  WriteUserFiles();
  EXPECT_EQ(
      BackupFileNames(p.ctx),
      (std::vector<std::string>{"mercod.ini", "mercod.dat", "person.dat", "purged.dat",
                                "localhols.dat", "mynotes.txt", "mycities.dat", "myunit.dat",
                                "pw.dat", "PEYR.dat", "a.sff", "b.shf", "route.tsp", "data.sta"}));
}

TEST_F(BackupTest, BackupThenRestoreAllBringsEveryFileBackByteForByte) {
  WriteUserFiles();
  ASSERT_TRUE(Backup(p.ctx));
  const std::string folder = p.File("backup").string();
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Success!", "Files successfully backed up to folder " + folder + "."}));
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Last File Backup Date"), "23 November 2026");
  EXPECT_EQ(Backed("mercod.ini"), p.Read("mercod.ini"));  // with the date in it
  EXPECT_FALSE(std::filesystem::exists(p.File("backup/myconvdata.dat")));
  EXPECT_FALSE(std::filesystem::exists(p.File("backup/other.txt")));

  std::map<std::string, std::string> before;
  for (const auto& name : BackupFileNames(p.ctx)) before[name] = p.Read(name);
  for (const auto& [name, content] : before) p.Write(name, "changed since");
  UpdateIniFile(p.ctx, 0, "Show Seconds", "No");  // mercod.ini changed through the program
  p.ctx.settings.showSeconds = "No";

  p.sink.Clear();
  ASSERT_TRUE(Restore(p.ctx, RestoreKind::All));
  EXPECT_EQ(p.sink.Last(), "All backed up files successfully restored.");
  for (const auto& [name, content] : before) {
    // The password file and the purged list of the year come back only
    // with their own commands; the .sff sessions are not restored.
    if (name == "pw.dat" || name == "PEYR.dat" || name == "a.sff")
      EXPECT_EQ(p.Read(name), "changed since") << name;
    else
      EXPECT_EQ(p.Read(name), content) << name;
  }
  // The restored settings are the ones in force.
  EXPECT_EQ(p.ctx.settings.showSeconds, "Yes");
  EXPECT_TRUE(p.ctx.settings.fontsChanged);

  p.Write("PEYR.dat", "changed");
  p.Write("mercod.dat", "changed");
  ASSERT_TRUE(Restore(p.ctx, RestoreKind::Reminders));
  EXPECT_EQ(p.sink.Last(), "Backup copy of Reminders successfully restored.");
  EXPECT_EQ(p.Read("PEYR.dat"), before["PEYR.dat"]);
  EXPECT_EQ(p.Read("mercod.dat"), before["mercod.dat"]);
}

TEST_F(BackupTest, EachRestoreSaysWhatIsMissing) {
  EXPECT_FALSE(Restore(p.ctx, RestoreKind::All));
  EXPECT_EQ(p.sink.Last(), "Backup folder not found.");
  EXPECT_FALSE(Restore(p.ctx, RestoreKind::IniFile));
  EXPECT_EQ(p.sink.Last(), "Backup copy of file mercod.ini not found.");
  EXPECT_FALSE(Restore(p.ctx, RestoreKind::QuickNotes));
  EXPECT_EQ(p.sink.Last(), "Backup copy of Quick Notes not found.");
  EXPECT_FALSE(Restore(p.ctx, RestoreKind::Reminders));
  EXPECT_EQ(p.sink.Last(), "Backup copy of Reminders not found.");
  EXPECT_EQ(p.sink.messages.back().caption, "Error Detected!");

  p.Write("mynotes.txt", "notes");
  ASSERT_TRUE(Backup(p.ctx));
  p.Write("mynotes.txt", "lost notes");
  p.Write("mercod.dat", "reminders made after the backup");
  ASSERT_TRUE(Restore(p.ctx, RestoreKind::QuickNotes));
  EXPECT_EQ(p.sink.Last(), "Backup copy of Quick Notes successfully restored.");
  EXPECT_EQ(p.Read("mynotes.txt"), "notes");
  EXPECT_FALSE(Restore(p.ctx, RestoreKind::Reminders));  // no reminders were backed up
  EXPECT_EQ(p.Read("mercod.dat"), "reminders made after the backup");
}

TEST_F(BackupTest, RestoredOlderSettingsFileIsUpgradedAndRead) {
  std::filesystem::create_directory(p.File("backup"));
  std::filesystem::copy_file(CODEX_TEST_DATA_DIR "/mercod-158.ini", p.File("backup/mercod.ini"));
  ASSERT_TRUE(Restore(p.ctx, RestoreKind::IniFile));
  EXPECT_EQ(p.sink.Last(), "Backup copy of file mercod.ini successfully restored.");
  EXPECT_EQ(p.ctx.settings.versionNum, 190);
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Version"), "190");
  EXPECT_EQ(p.ctx.settings.dateOrder, "d/m/y");  // what start-up found stays
}

TEST_F(BackupTest, LastBackupDate) {
  ShowLastBackupDate(p.ctx);
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Information!",
                           "Files have not been backed up since this feature was introduced."}));
  ASSERT_TRUE(Backup(p.ctx));
  ShowLastBackupDate(p.ctx);
  EXPECT_EQ(p.sink.Last(), "Files last backed up on 23 November 2026.");
  EXPECT_EQ(BackupDateText({2027, 1, 5, 0, 0, 0, 0}), "5 January 2027");
}

}  // namespace
}  // namespace mc
