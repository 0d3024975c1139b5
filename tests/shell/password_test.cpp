#include "shell/password.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "core/safe_file.h"
#include "shell/startup.h"
#include "support/test_program.h"

namespace mc {
namespace {

// A program folder and a configuration folder of the test's own.
class PasswordTest : public ::testing::Test {
 protected:
  PasswordTest() {
    if (const char* old = std::getenv("XDG_CONFIG_HOME")) saved_ = old;
    ::setenv("XDG_CONFIG_HOME", config.path().c_str(), 1);
    p.Start();
  }
  ~PasswordTest() override {
    if (saved_)
      ::setenv("XDG_CONFIG_HOME", saved_->c_str(), 1);
    else
      ::unsetenv("XDG_CONFIG_HOME");
  }
  UserSettingsStore Store() { return ProgramUserSettings(); }
  std::string Setting() { return Store().Get("StartUp", "Password"); }
  // Defines a password through the Password Manager.
  void Define(const std::string& password) {
    PasswordManagerScreen screen(p.ctx, Store());
    screen.newPassword = screen.confirmPassword = password;
    ASSERT_TRUE(screen.Save());
    p.sink.Clear();
  }

  test::TempFolder config;
  test::TestProgram p;
  std::optional<std::string> saved_;
};

TEST_F(PasswordTest, DigestIsTheReversedCodesTimesAConstantPlusAnother) {
  EXPECT_EQ(PasswordDigest(p.ctx, "abcdefgh"),
            "165551278700736270509265386079814327621848122374097474064344308709084247502578489742"
            "58008024749482994983971180957534156153514");
  EXPECT_EQ(PasswordDigest(p.ctx, "Passw0rdZ"),
            "154029358806817462732367181863801300182735532668728318402815295182289598395710140224"
            "94514656261509834889270029991577114098806053");
  EXPECT_NE(PasswordDigest(p.ctx, "ABCDEFGH"), PasswordDigest(p.ctx, "abcdefgh"));
  EXPECT_NE(PasswordDigest(p.ctx, "abcdefgh"), PasswordDigest(p.ctx, "hgfedcba"));
  EXPECT_TRUE(HasOnlyPasswordCharacters("Az09Zz"));
  EXPECT_FALSE(HasOnlyPasswordCharacters("abc defg"));
  EXPECT_FALSE(HasOnlyPasswordCharacters("abcdefg!"));
}

TEST_F(PasswordTest, NoPasswordMeansNoQuestion) {
  EXPECT_TRUE(CheckStartupPassword(p.ctx, Store()));
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(PasswordTest, EitherPlaceAloneOrAnEditedDigestEndsTheProgram) {
  const std::string violation =
      "Password protection mechanism indicates a possible security violation.";
  Define("Secret123");
  const std::string pw = p.Read("pw.dat");
  EXPECT_EQ(pw, ">\r\n> DO NOT alter the contents of this file\r\n>\r\n" + Setting() + "\r\n");

  std::filesystem::remove(p.File("pw.dat"));  // the setting without the file
  EXPECT_FALSE(CheckStartupPassword(p.ctx, Store()));
  EXPECT_EQ(p.sink.Last(), violation);
  EXPECT_EQ(p.sink.messages.size(), 1u);  // no prompt

  p.Write("pw.dat", pw);
  const std::string digest = Setting();
  Store().Delete("StartUp", "Password");  // the file without the setting
  p.sink.Clear();
  EXPECT_FALSE(CheckStartupPassword(p.ctx, Store()));
  EXPECT_EQ(p.sink.Last(), violation);

  Store().Save("StartUp", "Password", digest);
  std::string edited = pw;
  edited[edited.size() - 3] = edited[edited.size() - 3] == '1' ? '2' : '1';
  p.Write("pw.dat", edited);
  p.sink.Clear();
  EXPECT_FALSE(CheckStartupPassword(p.ctx, Store()));
  EXPECT_EQ(p.sink.Last(), violation);
  EXPECT_EQ(p.sink.messages[0].caption, "Error Detected!");
}

TEST_F(PasswordTest, PromptLoopsUntilRightOrGivenUp) {
  Define("Secret123");
  // A wrong one, Yes to try again, a too short one, Yes, then the right one.
  p.sink.replies = {"Secret124", "Secret1", " Secret123 "};
  p.sink.answers = {true, true};
  EXPECT_TRUE(CheckStartupPassword(p.ctx, Store()));
  ASSERT_EQ(p.sink.messages.size(), 5u);
  EXPECT_EQ(p.sink.messages[0],
            (test::Message{"Password Entry", "Enter your Meridian Codex password."}));
  EXPECT_EQ(p.sink.messages[1], (test::Message{"Failure!", "Invalid password - try again?"}));
  EXPECT_EQ(p.sink.messages[3].text, "Invalid password - try again?");

  // No after a wrong one ends the program.
  p.sink.Clear();
  p.sink.replies = {"secret123"};
  p.sink.answers = {false};
  EXPECT_FALSE(CheckStartupPassword(p.ctx, Store()));

  // An empty reply, or a cancel, ends it without a message.
  p.sink.Clear();
  p.sink.replies = {""};
  EXPECT_FALSE(CheckStartupPassword(p.ctx, Store()));
  EXPECT_EQ(p.sink.messages.size(), 1u);
  p.sink.Clear();
  EXPECT_FALSE(CheckStartupPassword(p.ctx, Store()));  // no reply scripted: cancelled
  EXPECT_EQ(p.sink.messages.size(), 1u);
}

TEST_F(PasswordTest, StartUpAsksOnlyWhenTold) {
  Define("Secret123");
  StartOptions options;
  options.detectLocale = false;
  EXPECT_EQ(StartProgram(p.ctx, options), StartOutcome::Ready);  // the command line
  EXPECT_TRUE(p.sink.messages.empty());
  options.checkPassword = true;
  p.sink.replies = {""};
  EXPECT_EQ(StartProgram(p.ctx, options), StartOutcome::PasswordRefused);
  p.sink.replies = {"Secret123"};
  EXPECT_EQ(StartProgram(p.ctx, options), StartOutcome::Ready);
}

TEST_F(PasswordTest, ManagerDefinesChecksEachRuleInOrder) {
  PasswordManagerScreen s(p.ctx, Store());
  auto attempt = [&](const char* current, const char* next, const char* confirm) {
    s.currentPassword = current;
    s.newPassword = next;
    s.confirmPassword = confirm;
    p.sink.Clear();
    return s.Save();
  };
  EXPECT_FALSE(attempt("", "abcdefgh", "abcdefgX"));
  EXPECT_EQ(p.sink.Last(), "Password confirmation failed.");
  EXPECT_FALSE(attempt("", "abcdefg", "abcdefg"));
  EXPECT_EQ(p.sink.Last(), "Password must contain at least 8 characters.");
  EXPECT_FALSE(attempt("", "abcd efgh", "abcd efgh"));
  EXPECT_EQ(p.sink.Last(), "Invalid character detected in password.");
  EXPECT_FALSE(std::filesystem::exists(p.File("pw.dat")));
  EXPECT_TRUE(attempt("", " abcdefgh ", "abcdefgh"));  // inputs are trimmed
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Information!", "Password successfully saved."}));
  EXPECT_TRUE(s.newPassword.empty() && s.confirmPassword.empty());
  EXPECT_EQ(Setting(), PasswordDigest(p.ctx, "abcdefgh"));
  EXPECT_TRUE(s.Lock().Consistent());

  EXPECT_FALSE(attempt("", "zyxwvuts", "zyxwvuts"));
  EXPECT_EQ(p.sink.Last(), "Password has already been defined.");
  EXPECT_FALSE(attempt("abcdefgX", "zyxwvuts", "zyxwvuts"));
  EXPECT_EQ(p.sink.Last(), "Current password is invalid - please try again.");
  EXPECT_FALSE(attempt("abcdefgh", "zyxwvuts", "zyxwvutX"));
  EXPECT_EQ(p.sink.Last(), "New password confirmation failed.");
  EXPECT_FALSE(attempt("abcdefgh", "zyxw", "zyxw"));
  EXPECT_EQ(p.sink.Last(), "New password must contain at least 8 characters.");
  EXPECT_FALSE(attempt("abcdefgh", "zyxwvut_", "zyxwvut_"));
  EXPECT_EQ(p.sink.Last(), "Invalid character detected in new password.");
  EXPECT_EQ(Setting(), PasswordDigest(p.ctx, "abcdefgh"));
  EXPECT_TRUE(attempt("abcdefgh", "zyxwvuts", "zyxwvuts"));
  EXPECT_EQ(p.sink.Last(), "New password successfully saved.");
  EXPECT_TRUE(s.Lock().Matches("zyxwvuts"));
  EXPECT_TRUE(s.Lock().Consistent());
}

TEST_F(PasswordTest, ManagerRemovesOnlyWithTheCurrentPassword) {
  PasswordManagerScreen s(p.ctx, Store());
  s.mode = PasswordManagerScreen::Mode::Remove;
  EXPECT_FALSE(s.Remove());
  EXPECT_EQ(p.sink.Last(), "No password currently defined.");
  Define("Secret123");
  s.currentPassword = "Secret12";
  EXPECT_FALSE(s.Remove());
  EXPECT_EQ(p.sink.Last(), "Current password is invalid - please try again.");
  EXPECT_TRUE(std::filesystem::exists(p.File("pw.dat")));
  s.currentPassword = "Secret123";
  EXPECT_TRUE(s.Remove());
  EXPECT_EQ(p.sink.Last(), "Password successfully removed.");
  EXPECT_FALSE(std::filesystem::exists(p.File("pw.dat")));
  EXPECT_EQ(Setting(), "");
  EXPECT_TRUE(CheckStartupPassword(p.ctx, Store()));
}

}  // namespace
}  // namespace mc
