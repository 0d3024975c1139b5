#include "shell/save_output.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace mc {
namespace {

TEST(SaveOutput, MainScreenWritesLineByLine) {
  LocalDateTime today{2026, 11, 23, 0, 0, 0, 0};
  EXPECT_EQ(SavedOutputContent("a\r\n\r\nb\r\n", SaveStyle::MainScreen, today), "a\r\n\r\nb\r\n");
  EXPECT_EQ(SavedOutputContent("a\r\nb", SaveStyle::MainScreen, today), "a\r\nb\r\n");
}

TEST(SaveOutput, OtherScreensAddTheDateLine) {
  LocalDateTime today{2026, 11, 23, 0, 0, 0, 0};
  EXPECT_EQ(SavedOutputContent("*** Report ***\r\nx", SaveStyle::Screen, today),
            "*** Report ***\r\nx\r\n\r\nFile produced on November 23, 2026\r\n");
}

TEST(SaveOutput, ConfirmsOrDoesNothing) {
  test::TestProgram p(false);
  auto file = p.File("out.txt");
  EXPECT_FALSE(SaveOutput(p.ctx, "  \r\n ", file, SaveStyle::Screen));
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_TRUE(SaveOutput(p.ctx, "text", file, SaveStyle::MainScreen));
  EXPECT_EQ(
      p.sink.messages.back(),
      (test::Message{"Success!", "Output successfully saved as file " + file.string() + "."}));
  EXPECT_FALSE(SaveOutput(p.ctx, "text", p.File("no/such/dir/out.txt"), SaveStyle::Screen));
  EXPECT_EQ(p.sink.messages.back().caption, "Error Detected!");
}

}  // namespace
}  // namespace mc
