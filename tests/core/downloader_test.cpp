#include "core/downloader.h"

#include <gtest/gtest.h>

#include "core/safe_file.h"
#include "support/local_http_server.h"
#include "support/test_program.h"

namespace mc {
namespace {

TEST(Downloader, FetchesIntoTheFileOrLeavesNothing) {
  test::TempFolder folder;
  const auto file = folder.path() / "version.txt";
  test::LocalHttpServer server({{200, "191\r\n"}, {404, "gone"}});
  DownloadResult ok = DownloadToFile(server.Url("/version.txt"), file);
  EXPECT_TRUE(ok.ok) << ok.error;
  EXPECT_EQ(ok.httpStatus, 200);
  EXPECT_EQ(*ReadWholeFile(file), "191\r\n");

  // A 404 is a failure and replaces nothing.
  DownloadResult missing = DownloadToFile(server.Url("/version.txt"), file);
  EXPECT_FALSE(missing.ok);
  EXPECT_EQ(missing.httpStatus, 404);
  EXPECT_EQ(*ReadWholeFile(file), "191\r\n");
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "version.txt.part"));

  std::filesystem::remove(file);
  DownloadOptions quick;
  quick.timeoutSeconds = 5;
  DownloadResult refused = DownloadToFile(
      "http://127.0.0.1:" + std::to_string(test::LocalHttpServer::ClosedPort()) + "/v.txt", file,
      quick);
  EXPECT_FALSE(refused.ok);
  EXPECT_FALSE(refused.error.empty());
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST(Downloader, KeepGoingFalseAbandonsTheTransfer) {
  test::TempFolder folder;
  test::LocalHttpServer server({{200, std::string(1 << 20, 'x')}});
  DownloadOptions options;
  options.keepGoing = [] { return false; };
  DownloadResult r = DownloadToFile(server.Url("/big"), folder.path() / "big", options);
  EXPECT_FALSE(r.ok);
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "big"));
}

}  // namespace
}  // namespace mc
