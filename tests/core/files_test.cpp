#include <gtest/gtest.h>

#include "core/instance_lock.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "support/test_program.h"

namespace mc {
namespace {

TEST(TextLines, ReadLfAndCrLfAlike) {
  using V = std::vector<std::string>;
  EXPECT_EQ(SplitLines("a\r\nb\r\n"), (V{"a", "b"}));
  EXPECT_EQ(SplitLines("a\nb"), (V{"a", "b"}));
  EXPECT_EQ(SplitLines("a\r\n\r\nb\n"), (V{"a", "", "b"}));
  EXPECT_EQ(SplitLines(""), V{});
  EXPECT_EQ(JoinCrLf({"a", ""}), "a\r\n\r\n");
  EXPECT_EQ(PadRight("Fête", 6), "Fête  ");
  EXPECT_EQ(PadLeft("7", 3), "  7");
}

TEST(SafeFile, AFailedWriteLeavesTheOldFileWhole) {
  test::TempFolder dir;
  auto target = dir.path() / "notes.txt";
  ASSERT_TRUE(WriteFileAtomically(target, "first"));
  EXPECT_EQ(*ReadWholeFile(target), "first");
  ASSERT_TRUE(WriteFileAtomically(target, "second"));
  EXPECT_EQ(*ReadWholeFile(target), "second");
  // A target whose work file can't be created: nothing changes, nothing is left behind.
  std::filesystem::create_directory(dir.path() / "notes.txt.tmp");
  std::filesystem::create_directory(dir.path() / "notes.txt.tmp" / "x");
  EXPECT_FALSE(WriteFileAtomically(target, "third"));
  EXPECT_EQ(*ReadWholeFile(target), "second");
}

TEST(InstanceLock, OnlyOneCopyPerFolder) {
  test::TempFolder dir;
  InstanceLock first(dir.path());
  ASSERT_TRUE(first.Acquired());
  {
    InstanceLock second(dir.path());
    EXPECT_FALSE(second.Acquired());
  }
  test::TempFolder other;
  InstanceLock elsewhere(other.path());
  EXPECT_TRUE(elsewhere.Acquired());
}

}  // namespace
}  // namespace mc
