#include "shell/quick_notes.h"

#include <gtest/gtest.h>

#include "core/ini_file.h"
#include "support/test_program.h"

namespace mc {
namespace {

TEST(QuickNotesFile, OnlyExactDelimitersSelectASheet) {
  EXPECT_EQ(DelimiterLine(7), "{*[*(<Sheet 7>)*]*}");
  EXPECT_EQ(DelimiterSheet("{*[*(<Sheet 7>)*]*}"), 7);
  EXPECT_EQ(DelimiterSheet("{*[*(<Sheet 15>)*]*}"), 15);
  for (const char* text : {"{*[*(<Sheet 7>>)*]*}", "{*[*(<Sheet 7 >)*]*}", "{*[*(<Sheet  7>)*]*}",
                           "{*[*(<Sheet 7>)*]*} ", " {*[*(<Sheet 7>)*]*}", "{*[*(<Sheet 16>)*]*}",
                           "{*[*(<Sheet 0>)*]*}", "{*[*(<Sheet 7 8>)*]*}", "{*[*(<Sheet x>)*]*}",
                           "{*[*(<Sheet >)*]*}", "{*[*(<Sheet 007>)*]*}", "{*[*(<Sheet -1>)*]*}"})
    EXPECT_FALSE(DelimiterSheet(text).has_value()) << text;
}

TEST(QuickNotesFile, TrickySheetsRoundTrip) {
  Sheets sheets;
  sheets[1] = "first line\nsecond line";
  sheets[6] =
      "\nstarts empty\n{*[*(<Sheet 3>>)*]*}\n{*[*(<Sheet 3 >)*]*}\n\n\nends with two empties\n\n";
  sheets[14] = "  indented\ttabbed  \nUnicode: café ≠ 😀";
  sheets[9] = " \n\t\n";  // blank: takes no room
  const std::string file = NotesFileContent(sheets);
  EXPECT_EQ(file.substr(0, 35), "{*[*(<Sheet 2>)*]*}\r\n\r\nfirst line\r\n");
  EXPECT_EQ(file.find("<Sheet 10>"), std::string::npos);
  std::size_t blocks = 0;
  for (auto at = file.find("{*[*(<Sheet "); at != std::string::npos;
       at = file.find("{*[*(<Sheet ", at + 1))
    if (at == 0 || file[at - 1] == '\n') ++blocks;
  EXPECT_EQ(blocks, 5u);  // three sheets and two look-alike lines of sheet 7
  Sheets back = ParseNotesFile(file);
  sheets[9].clear();
  EXPECT_EQ(back, sheets);
  EXPECT_EQ(NotesFileContent(back), file);
}

TEST(QuickNotesFile, ReadsWhatUsersMayHaveWritten) {
  // LF line ends, text ahead of the first delimiter, a sheet given twice.
  Sheets s = ParseNotesFile(
      "loose text\n{*[*(<Sheet 3>)*]*}\n\nthree\n\n{*[*(<Sheet 1>)*]*}\n\none\n"
      "\n{*[*(<Sheet 3>)*]*}\n\nthree again\n\n");
  EXPECT_EQ(s[0], "loose text\none");
  EXPECT_EQ(s[2], "three again");
  // A line that reads exactly as a delimiter is written with a trailing blank.
  Sheets tricky;
  tricky[0] = "{*[*(<Sheet 2>)*]*}";
  EXPECT_EQ(ParseNotesFile(NotesFileContent(tricky))[0], "{*[*(<Sheet 2>)*]*} ");
}

class QuickNotesTest : public ::testing::Test {
 protected:
  QuickNotesTest() { p.Start(); }
  test::TestProgram p;
};

TEST_F(QuickNotesTest, LoadEditSave) {
  p.Write("mynotes.txt", NotesFileContent(Sheets{"", "groceries"}));
  UpdateIniFile(p.ctx, 25, "Last Sheet Used", "2");
  QuickNotesScreen q(p.ctx);
  q.Load();
  EXPECT_EQ(q.CurrentSheet(), 2);
  EXPECT_EQ(q.TabNames()[14], "Sheet 15");
  EXPECT_EQ(q.Texts()[1], "groceries");
  EXPECT_FALSE(q.Save());
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Information!", "No Quick Notes changes to save."}));
  EXPECT_TRUE(q.SetText(7, "seven"));
  EXPECT_TRUE(q.Changed());
  EXPECT_TRUE(q.Save());
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Success!", "Quick Notes contents successfully saved."}));
  EXPECT_FALSE(q.Changed());
  EXPECT_EQ(p.Read("mynotes.txt"),
            "{*[*(<Sheet 2>)*]*}\r\n\r\ngroceries\r\n\r\n{*[*(<Sheet 7>)*]*}\r\n\r\nseven\r\n\r\n");
  q.ChooseSheet(7);
  EXPECT_EQ(ReadIniFile(p.ctx, 25, "Last Sheet Used"), "7");
}

TEST_F(QuickNotesTest, SheetLimitWarnsOnceAndCutsAtSave) {
  QuickNotesScreen q(p.ctx);
  q.Load();
  std::string big(kSheetCharacterLimit, 'x');
  EXPECT_TRUE(q.SetText(3, big));
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_FALSE(q.SetText(3, big + "é"));
  EXPECT_FALSE(q.SetText(3, big + "éé"));
  ASSERT_EQ(p.sink.messages.size(), 1u);
  EXPECT_EQ(p.sink.messages[0].caption, "Warning!");
  EXPECT_EQ(p.sink.Last().rfind("Sheet 3 now contains more than 65535 characters", 0), 0u);
  p.sink.Clear();
  EXPECT_TRUE(q.Save());
  ASSERT_EQ(p.sink.messages.size(), 2u);
  EXPECT_EQ(p.sink.messages[0].text.rfind("Sheet 3 contained more than 65535 characters.", 0), 0u);
  EXPECT_EQ(q.Texts()[2], big);
  QuickNotesScreen again(p.ctx);
  again.Load();
  EXPECT_EQ(again.Texts()[2], big);
  EXPECT_EQ(CutToCharacters("aé😀b", 3), "aé😀");
}

TEST_F(QuickNotesTest, RenamingTabs) {
  QuickNotesScreen q(p.ctx);
  q.Load();
  p.sink.replies = {"Shopping list", "A name far too long", "Sheet 2", "  ",
                    std::nullopt,    "Sheet 1 = me"};
  EXPECT_TRUE(q.RenameTab(1));
  EXPECT_EQ(q.TabNames()[0], "Shopping list");
  EXPECT_EQ(ReadIniFile(p.ctx, 25, "Tab 1 Name"), "Shopping list");
  EXPECT_EQ(ReadIniFile(p.ctx, 25, "Tab 10 Name"), "Sheet 10");
  EXPECT_EQ(p.sink.messages[0],
            (test::Message{"Tab Renaming", "Enter the new tab name (max. 15 characters)."}));
  EXPECT_FALSE(q.RenameTab(3));
  EXPECT_EQ(p.sink.Last(), "Tab name too long.");
  EXPECT_FALSE(q.RenameTab(3));
  EXPECT_EQ(p.sink.messages.back().caption, "Warning!");
  EXPECT_EQ(p.sink.Last().rfind("New name already exists as a tab name.", 0), 0u);
  const auto count = p.sink.messages.size();
  EXPECT_FALSE(q.RenameTab(3));                  // blank
  EXPECT_FALSE(q.RenameTab(3));                  // cancelled
  EXPECT_EQ(p.sink.messages.size(), count + 2);  // only the two prompts
  EXPECT_TRUE(q.RenameTab(10));
  EXPECT_EQ(ReadIniFile(p.ctx, 25, "Tab 10 Name"), "Sheet 1 = me");
  EXPECT_EQ(ReadIniFile(p.ctx, 25, "Tab 1 Name"), "Shopping list");
}

}  // namespace
}  // namespace mc
