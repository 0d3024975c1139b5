#include "shell/startup.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>

#include "core/ini_file.h"
#include "core/text_util.h"
#include "shell/ini_upgrade.h"
#include "support/test_program.h"

namespace mc {
namespace {

std::string ReadFile(const std::filesystem::path& p) {
  std::ifstream in(p, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

// Section heads and "section/key" names of a settings file, in file order.
std::vector<std::string> Keys(const std::string& content) {
  std::vector<std::string> keys;
  std::string section;
  for (const auto& line : SplitLines(content)) {
    if (StartsWith(line, "[")) {
      section = line;
      keys.push_back(line);
    } else if (auto eq = line.find(" = "); eq != std::string::npos) {
      keys.push_back(section + line.substr(0, eq));
    }
  }
  return keys;
}

TEST(Startup, AVersion158FileClimbsToTheShippedLayoutInOneStart) {
  test::TestProgram p(false);
  p.Write("mercod.ini", ReadFile(std::filesystem::path(CODEX_TEST_DATA_DIR) / "mercod-158.ini"));
  p.Write("ummalqur.dat", ReadFile(std::filesystem::path(CODEX_DATA_DIR) / "ummalqur.dat"));
  p.Start();
  EXPECT_EQ(p.ctx.settings.versionNum, kCurrentIniVersion);
  const std::string climbed = p.Read("mercod.ini");
  const std::string shipped = ReadFile(std::filesystem::path(CODEX_DATA_DIR) / "mercod.ini");
  // The same sections and keys in the same order as the default file.
  EXPECT_EQ(Keys(climbed), Keys(shipped));
  // Section 28 arrives at the step to 176, behind section 76.
  EXPECT_LT(climbed.find("[Form76]"), climbed.find("[Form28]"));
  // Colours by the palette of the step that added the section.
  EXPECT_EQ(ReadIniFile(p.ctx, 27, "Screen Background Colour"), "16313285");
  EXPECT_EQ(ReadIniFile(p.ctx, 71, "Screen Background Colour"), "16774593");
  EXPECT_EQ(ReadIniFile(p.ctx, 84, "Screen Background Colour"), "16440764");
  EXPECT_EQ(ReadIniFile(p.ctx, 1, "Button Colour"), "15916706");
  EXPECT_EQ(ReadIniFile(p.ctx, 1, "Show Menu Item 3"), "Yes");
  EXPECT_EQ(ReadIniFile(p.ctx, 71, "Country 10"), "USA");
  EXPECT_EQ(ReadIniFile(p.ctx, 8, "Category 1"), "Choose category");
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "PEYR File Creation Year"), "2026");
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST(Startup, AnUpToDateFileIsNotRewritten) {
  test::TestProgram p;
  const std::string before = p.Read("mercod.ini");
  p.Start();
  EXPECT_EQ(p.Read("mercod.ini"), before);
  EXPECT_FALSE(std::filesystem::exists(p.File("mercod.bak")));
}

TEST(Startup, TheTraceOfAQuietRunHoldsTwoLines) {
  test::TestProgram p;
  p.Write("debug.txt", "left over from the last run\r\n");
  p.Start();
  auto trace = SplitLines(p.Read("debug.txt"));
  ASSERT_EQ(trace.size(), 2u);
  EXPECT_EQ(trace[0], "Main form load. ExeFolder$ = " + p.folder.path().string());
  EXPECT_EQ(trace[1], "Main form load. File mercod.ini exists.");
}

TEST(Startup, WithoutMercodIniNothingElseHappens) {
  test::TestProgram p(false);
  StartOptions options;
  options.detectLocale = false;
  EXPECT_EQ(StartProgram(p.ctx, options), StartOutcome::MissingIniFile);
  ASSERT_EQ(p.sink.messages.size(), 1u);
  EXPECT_EQ(
      p.sink.messages[0],
      (test::Message{"Failure!",
                     "File mercod.ini not found. Exit program -- it will not run properly."}));
  EXPECT_EQ(SplitLines(p.Read("debug.txt")).back(),
            "Main form load. File mercod.ini does not exist.");
}

TEST(Startup, FillsTheSettingsBlock) {
  test::TestProgram p;
  UpdateIniFile(p.ctx, 0, "Wait Time", "2");
  UpdateIniFile(p.ctx, 0, "Wait Unit", "Days");
  UpdateIniFile(p.ctx, 0, "Latitude", "-33.87");
  p.Start("y/m/d");
  const SettingsBlock& s = p.ctx.settings;
  EXPECT_EQ(s.alarm.waitTimeMinutes, 2880);
  EXPECT_FLOAT_EQ(s.homeLatitude, -33.87f);
  EXPECT_EQ(s.homeLocation, "London");
  EXPECT_EQ(s.mayanConstant, 584283);
  EXPECT_EQ(s.dateOrder, "y/m/d");
  EXPECT_EQ(s.displayFixedFont.name, "Courier New");
  EXPECT_EQ(s.displayFixedFont.size, 9);
  EXPECT_FALSE(s.debugOn);
}

TEST(Startup, ANewYearStartsANewPurgedList) {
  test::TestProgram p(true, {2027, 1, 1, 8, 0, 0, 0});
  p.Write("PEYR.dat", "last year's list");
  p.Write("myopt.dat", "obsolete");
  p.Start();
  EXPECT_FALSE(std::filesystem::exists(p.File("PEYR.dat")));
  EXPECT_FALSE(std::filesystem::exists(p.File("myopt.dat")));
  EXPECT_EQ(p.ctx.settings.peyrYear, 2027);
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "PEYR File Creation Year"), "2027");

  test::TestProgram same(true);
  same.Write("PEYR.dat", "this year's list");
  same.Start();
  EXPECT_TRUE(std::filesystem::exists(same.File("PEYR.dat")));
}

}  // namespace
}  // namespace mc
