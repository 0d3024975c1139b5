// The start-up password. No password is kept: a digest of it stands in two
// places that must agree, the per-user setting StartUp/Password and the file
// pw.dat of the program folder, so that removing one of them does not open
// the lock.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/context.h"
#include "core/user_settings.h"

namespace mc {

inline constexpr std::string_view kPasswordAlphabet =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
inline constexpr std::size_t kMinPasswordLength = 8;

// The per-user store of the program ("Meridian Codex").
UserSettingsStore ProgramUserSettings();

// The decimal digest of a password: the character codes plus 97, three
// digits each, from the last character to the first, times one fixed
// 101-digit constant plus another. "-1" when the arithmetic failed.
std::string PasswordDigest(Context& ctx, std::string_view password);

// Every character is a digit or an ASCII letter.
bool HasOnlyPasswordCharacters(std::string_view password);

// The two places of the digest.
class PasswordLock {
 public:
  PasswordLock(Context& ctx, UserSettingsStore store) : ctx_(ctx), store_(std::move(store)) {}

  std::string SettingDigest() const;
  bool FileExists() const;
  // The first line of pw.dat that does not begin with ">" ("" when none).
  std::string FileDigest() const;
  // Both empty, or both present and equal.
  bool Consistent() const;
  bool IsSet() const { return !SettingDigest().empty(); }
  // True when `password` is well formed and its digest is the stored one.
  bool Matches(std::string_view password) const;

  // Writes the digest to pw.dat and the setting; on a failure neither changes.
  bool Store(const std::string& digest);
  // Removes pw.dat and the setting; on a failure neither changes.
  bool Clear();

 private:
  Context& ctx_;
  UserSettingsStore store_;
};

// The check at start. Shows the security message and answers false when the
// two places disagree; otherwise, with a password set, asks for it until it
// is right (true), the reply is empty or the user gives up (false).
bool CheckStartupPassword(Context& ctx, UserSettingsStore store);

// The Password Manager screen (form 63).
class PasswordManagerScreen {
 public:
  enum class Mode { Save, Remove };

  PasswordManagerScreen(Context& ctx, UserSettingsStore store)
      : ctx_(ctx), lock_(ctx, std::move(store)) {}

  Mode mode = Mode::Save;
  std::string currentPassword, newPassword, confirmPassword;

  // "&Save": the first password, or a change of it when one is set. True
  // when saved; the inputs are then cleared.
  bool Save();
  // "&Remove".
  bool Remove();

  const PasswordLock& Lock() const { return lock_; }

 private:
  bool CheckNew(const std::string& next, const std::string& confirm, bool change);
  void ClearInputs();

  Context& ctx_;
  PasswordLock lock_;
};

}  // namespace mc
