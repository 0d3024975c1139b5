#include <gtest/gtest.h>

#include "core/ini_file.h"
#include "shell/tips.h"
#include "shell/updates.h"
#include "support/local_http_server.h"
#include "support/test_program.h"

namespace mc {
namespace {

TEST(TipOfTheDay, ShowsTipsInTurnAndWraps) {
  test::TestProgram p;
  p.Start();
  p.Write("DayTips.dat",
          "> a comment\r\nFirst tip. Second line.\r\n\r\nSecond tip\r\nThird tip\r\n");
  UpdateIniFile(p.ctx, 0, "Last Tip Shown Number", "2");
  p.ctx.settings.lastTipNumber = 2;
  TipOfTheDay tips(p.ctx);
  ASSERT_TRUE(tips.Load());
  EXPECT_EQ(tips.Tips().size(), 3u);
  EXPECT_EQ(tips.Next(), "Third tip");
  EXPECT_EQ(tips.Next(), "First tip. Second line.");  // wraps to line 1
  EXPECT_EQ(tips.Number(), 1);
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Last Tip Shown Number"), "1");
  EXPECT_EQ(TipOfTheDay::DisplayText("One. Two. Three.x. End."),
            "One.\r\nTwo.\r\nThree.x.\r\nEnd.");

  // A number beyond a shortened file starts again at the first tip.
  p.ctx.settings.lastTipNumber = 40;
  EXPECT_EQ(tips.Next(), "First tip. Second line.");

  tips.SetShowAtStart(false);
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Show Tip of the Day"), "No");
  EXPECT_FALSE(tips.ShowAtStart());

  std::filesystem::remove(p.File("DayTips.dat"));
  EXPECT_FALSE(tips.Load());
  EXPECT_EQ(p.sink.Last(), "Missing file DayTips.dat.");
  EXPECT_EQ(tips.Next(), "");
}

TEST(TipOfTheDay, ShippedTipsReadWell) {
  test::TestProgram p;
  p.Start();
  TipOfTheDay tips(p.ctx);
  ASSERT_TRUE(tips.Load());
  EXPECT_GE(tips.Tips().size(), 30u);
  for (const auto& tip : tips.Tips()) {
    EXPECT_LE(tip.size(), 260u) << tip;
    EXPECT_TRUE(tip.back() == '.' || tip.back() == '?' || tip.back() == '"') << tip;
  }
}

class UpdatesTest : public ::testing::Test {
 protected:
  UpdatesTest() { p.Start(); }
  void PointAt(const std::string& url) {
    UpdateCheckAddress(p.ctx);  // adds the key with its default
    UpdateIniFile(p.ctx, 0, "Update Check Address", url);
  }
  test::TestProgram p;
};

TEST_F(UpdatesTest, NewerAndSameVersion) {
  test::LocalHttpServer server({{200, "191\r\nMeridian Codex 191\r\n"}, {200, "190"}});
  PointAt(server.Url("/codex/version.txt"));
  p.Write("version.txt", "old copy");
  EXPECT_EQ(CheckForUpdates(p.ctx, 5), UpdateOutcome::NewerVersion);
  EXPECT_EQ(p.sink.messages.back().caption, "Information!");
  EXPECT_EQ(p.sink.Last(),
            "A new version of Meridian Codex (191) is available. Visit http://127.0.0.1:" +
                std::to_string(server.Port()) + " to download it.");
  EXPECT_EQ(p.Read("version.txt"), "191\r\nMeridian Codex 191\r\n");
  EXPECT_EQ(CheckForUpdates(p.ctx, 5), UpdateOutcome::LatestVersion);
  EXPECT_NE(p.sink.Last().find("You have the latest released version of Meridian Codex."),
            std::string::npos);
  EXPECT_EQ(p.Read("version.txt"), "190");
}

TEST_F(UpdatesTest, UnreachableAsksWhetherToTryAgain) {
  PointAt("http://127.0.0.1:" + std::to_string(test::LocalHttpServer::ClosedPort()) +
          "/version.txt");
  p.Write("version.txt", "old copy");
  p.sink.answers = {true, false};
  EXPECT_EQ(CheckForUpdates(p.ctx, 5), UpdateOutcome::Unreachable);
  ASSERT_EQ(p.sink.messages.size(), 2u);
  EXPECT_EQ(p.sink.messages[0],
            (test::Message{"Warning!", "Can't access remote data. Try again?"}));
  EXPECT_FALSE(std::filesystem::exists(p.File("version.txt")));  // the old copy went first

  // A missing file, then a file without a number, then success on the third try.
  test::LocalHttpServer server({{404, ""}, {200, "no number here"}, {200, "version 200"}});
  PointAt(server.Url("/version.txt"));
  p.sink.Clear();
  p.sink.answers = {true, true};
  EXPECT_EQ(CheckForUpdates(p.ctx, 5), UpdateOutcome::NewerVersion);
  EXPECT_EQ(server.Requests(), 3);
  EXPECT_EQ(p.sink.messages.size(), 3u);
}

TEST_F(UpdatesTest, AddressIsASettingAddedWhenMissing) {
  EXPECT_EQ(UpdateCheckAddress(p.ctx), kDefaultUpdateAddress);
  std::filesystem::copy_file(CODEX_TEST_DATA_DIR "/mercod-158.ini", p.File("mercod.ini"),
                             std::filesystem::copy_options::overwrite_existing);
  EXPECT_EQ(UpdateCheckAddress(p.ctx), kDefaultUpdateAddress);
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_EQ(SiteOf("https://example.org/a/b.txt"), "https://example.org");
  EXPECT_EQ(FirstNumber("  v191.2"), 191);
  EXPECT_FALSE(FirstNumber("none").has_value());
}

}  // namespace
}  // namespace mc
