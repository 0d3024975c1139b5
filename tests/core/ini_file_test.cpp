#include "core/ini_file.h"

#include <gtest/gtest.h>

#include "core/text_util.h"
#include "support/test_program.h"

namespace mc {
namespace {

const char* kSmallIni =
    "[Form0]\r\n"
    "Version = 190\r\n"
    "Message = a=b = c \r\n"
    "Country = UK\r\n"
    "\r\n"
    "[Form2]\r\n"
    "> Add Reminders\r\n"
    "Button Colour = 1\r\n"
    "\r\n"
    "[Form20]\r\n"
    "Button Colour = 2\r\n"
    "\r\n"
    "[Form71]\r\n"
    "Country 1 = England UK\r\n"
    "Country 10 = Japan\r\n";

class IniFileTest : public ::testing::Test {
 protected:
  IniFileTest() : p(false) { p.Write("mercod.ini", kSmallIni); }
  test::TestProgram p;
};

TEST_F(IniFileTest, ReadsByPrefixInLineOrder) {
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Message"), "a=b = c");  // from the first '=' on, trimmed
  EXPECT_EQ(ReadIniFile(p.ctx, 71, "Country 1"), "England UK");
  EXPECT_EQ(ReadIniFile(p.ctx, 71, "Country 10"), "Japan");
  // With the lines swapped, "Country 1" finds the line of "Country 10".
  p.Write("mercod.ini", "[Form71]\r\nCountry 10 = Japan\r\nCountry 1 = England UK\r\n");
  EXPECT_EQ(ReadIniFile(p.ctx, 71, "Country 1"), "Japan");
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(IniFileTest, MissingKeysAndSectionsAreReported) {
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Debug"), "No");  // read before any upgrade: no box
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_EQ(ReadIniFile(p.ctx, 2, "Country"), "");  // the search stops at the next section
  EXPECT_EQ(p.sink.Last(), "Parameter Country not found in mercod.ini.");
  EXPECT_EQ(ReadIniFile(p.ctx, 9, "Anything"), "");
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Error Detected!", "Form 9 not found in mercod.ini."}));
  std::filesystem::remove(p.File("mercod.ini"));
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Version"), "");
  EXPECT_EQ(
      p.sink.messages.back(),
      (test::Message{"Failure!",
                     "File mercod.ini not found. Exit program -- it will not run properly."}));
}

TEST_F(IniFileTest, UpdateKeepsThePreviousCopyAndRemovesItsWorkFile) {
  UpdateIniFile(p.ctx, 20, "Button Colour", "99");
  EXPECT_EQ(ReadIniFile(p.ctx, 20, "Button Colour"), "99");
  EXPECT_EQ(ReadIniFile(p.ctx, 2, "Button Colour"), "1");
  EXPECT_EQ(p.Read("mercod.bak"), kSmallIni);
  EXPECT_FALSE(std::filesystem::exists(p.File("temp.ini")));
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(IniFileTest, FailedUpdatesLeaveEveryFileAlone) {
  p.Write("mercod.bak", "old");
  p.Write("temp.ini", "stale work file");
  UpdateIniFile(p.ctx, 2, "Country", "X");
  EXPECT_EQ(p.sink.Last(), "Parameter Country not found in mercod.ini.");
  UpdateIniFile(p.ctx, 5, "Country", "X");
  EXPECT_EQ(p.sink.Last(), "Form 5 not found in mercod.ini.");
  EXPECT_EQ(p.Read("mercod.ini"), kSmallIni);
  EXPECT_EQ(p.Read("mercod.bak"), "old");
  EXPECT_FALSE(std::filesystem::exists(p.File("temp.ini")));
}

TEST_F(IniFileTest, AddingAnExistingKeyOrSectionChangesNothing) {
  p.Write("mercod.bak", "old");
  AddIniParameter(p.ctx, 0, "Country", "France");
  EXPECT_TRUE(AddIniSection(p.ctx, 20, "Geometry Calculator"));
  EXPECT_EQ(p.Read("mercod.ini"), kSmallIni);
  EXPECT_EQ(p.Read("mercod.bak"), "old");
  EXPECT_FALSE(std::filesystem::exists(p.File("APtemp.ini")));
  EXPECT_FALSE(std::filesystem::exists(p.File("AFtemp.ini")));
}

TEST_F(IniFileTest, NewKeysEndTheirSectionAndNewSectionsEndTheFile) {
  AddIniParameter(p.ctx, 0, "Debug", "No");
  AddIniParameter(p.ctx, 71, "Location 1", "London");  // last section: appended at the end
  EXPECT_FALSE(AddIniSection(p.ctx, 28, "Find and Replace Text"));
  AddIniParameter(p.ctx, 28, "Button Colour", "5");
  auto lines = SplitLines(p.Read("mercod.ini"));
  std::vector<std::string> expected = {"[Form0]",      "Version = 190", "Message = a=b = c ",
                                       "Country = UK", "Debug = No",    ""};
  EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 6), expected);
  std::vector<std::string> tail = {"Country 10 = Japan",      "Location 1 = London", "", "[Form28]",
                                   "> Find and Replace Text", "Button Colour = 5"};
  EXPECT_EQ(std::vector<std::string>(lines.end() - 6, lines.end()), tail);
  EXPECT_EQ(ReadIniFile(p.ctx, 28, "Button Colour"), "5");
}

TEST_F(IniFileTest, AllFormsUpdateLeavesTheSectionsAboveForm2Alone) {
  p.Write("mercod.ini", std::string("[Form1]\r\nButton Colour = 0\r\n\r\n") + kSmallIni);
  UpdateIniAllForms(p.ctx, "Button Colour", "8");
  EXPECT_EQ(ReadIniFile(p.ctx, 1, "Button Colour"), "0");
  EXPECT_EQ(ReadIniFile(p.ctx, 2, "Button Colour"), "8");
  EXPECT_EQ(ReadIniFile(p.ctx, 20, "Button Colour"), "8");
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Country"), "UK");
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(IniFileTest, TracesTheUpdateWhenDebugIsOn) {
  p.ctx.settings.debugOn = true;
  UpdateIniFile(p.ctx, 0, "Country", "France");
  auto trace = SplitLines(p.Read("debug.txt"));
  std::vector<std::string> expected = {
      "UpdateIniFile entered. FormNumber = 0. ParamName$ = Country. ParamVal$ = France",
      "UpdateIniFile. File mercod.ini successfully opened.",
      "UpdateIniFile. File temp.ini successfully opened.",
      "UpdateIniFile. Search for form completed.",
      "UpdateIniFile. Search for parameter completed.",
      "UpdateIniFile. Remaining lines in file mercod.ini copied to file temp.ini.",
      "UpdateIniFile. File renaming about to begin.",
      "UpdateIniFile. File temp.ini renamed as mercod.ini."};
  EXPECT_EQ(trace, expected);
}

}  // namespace
}  // namespace mc
