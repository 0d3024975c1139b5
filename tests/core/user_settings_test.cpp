#include "core/user_settings.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "core/safe_file.h"
#include "support/test_program.h"

namespace mc {
namespace {

TEST(UserSettings, KeysLiveInTheirSectionsAndSurviveRewrites) {
  test::TempFolder folder;
  UserSettingsStore store(folder.path() / "deep" / "App" / "settings.ini");
  EXPECT_EQ(store.Get("StartUp", "Password"), "");  // no file yet
  ASSERT_TRUE(store.Save("StartUp", "Password", "123"));
  ASSERT_TRUE(store.Save("Other", "Password", "x=y"));
  ASSERT_TRUE(store.Save("StartUp", "Pass", "short key"));
  EXPECT_EQ(store.Get("StartUp", "Password"), "123");
  EXPECT_EQ(store.Get("StartUp", "Pass"), "short key");
  EXPECT_EQ(store.Get("Other", "Password"), "x=y");
  ASSERT_TRUE(store.Save("StartUp", "Password", "456"));
  EXPECT_EQ(store.Get("StartUp", "Password"), "456");
  EXPECT_EQ(*ReadWholeFile(store.File()),
            "[StartUp]\nPassword=456\nPass=short key\n\n[Other]\nPassword=x=y\n");
  ASSERT_TRUE(store.Delete("StartUp", "Password"));
  EXPECT_EQ(store.Get("StartUp", "Password"), "");
  EXPECT_EQ(store.Get("Other", "Password"), "x=y");
  EXPECT_TRUE(store.Delete("Nowhere", "Key"));
}

TEST(UserSettings, ApplicationFolderUnderTheConfigFolder) {
  test::TempFolder folder;
  const char* old = std::getenv("XDG_CONFIG_HOME");
  std::string saved = old ? old : "";
  ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
  EXPECT_EQ(UserSettingsStore::ForApplication("Meridian Codex").File(),
            folder.path() / "MeridianCodex" / "settings.ini");
  ::setenv("XDG_CONFIG_HOME", "relative/path", 1);  // not absolute: ignored
  EXPECT_EQ(UserSettingsStore::ConfigFolder().filename(), ".config");
  if (old)
    ::setenv("XDG_CONFIG_HOME", saved.c_str(), 1);
  else
    ::unsetenv("XDG_CONFIG_HOME");
}

}  // namespace
}  // namespace mc
