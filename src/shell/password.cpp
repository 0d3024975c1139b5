#include "shell/password.h"

#include <cstdio>

#include "core/errors.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "maths/bignum.h"

namespace mc {

namespace {

// The digest's two constants. A digest is only valid with the constants that
// made it, so these never change.
constexpr std::string_view kDigestFactor =
    "82281866201164104575004079337915668596608884442056734067884237782602416835244856286439063"
    "071310506733";
constexpr std::string_view kDigestOffset =
    "83365494405553579285699901681521535898965130348014369981166394046892294278245937454356996"
    "430436912312";

constexpr std::string_view kSection = "StartUp";
constexpr std::string_view kKey = "Password";
constexpr std::string_view kFileName = "pw.dat";

bool WellFormed(std::string_view password) {
  return password.size() >= kMinPasswordLength && HasOnlyPasswordCharacters(password);
}

}  // namespace

UserSettingsStore ProgramUserSettings() {
  return UserSettingsStore::ForApplication("Meridian Codex");
}

bool HasOnlyPasswordCharacters(std::string_view password) {
  return password.find_first_not_of(kPasswordAlphabet) == std::string_view::npos;
}

std::string PasswordDigest(Context& ctx, std::string_view password) {
  std::string codes;
  for (auto it = password.rbegin(); it != password.rend(); ++it) {
    char three[8];
    std::snprintf(three, sizeof three, "%03d", static_cast<unsigned char>(*it) + 97);
    codes += three;
  }
  if (codes.empty()) codes = "0";
  std::string product = LongMul(ctx, codes, kDigestFactor);
  if (product == kNumberFailure) return product;
  return LongAdd(ctx, product, kDigestOffset);
}

std::string PasswordLock::SettingDigest() const {
  return store_.Get(kSection, kKey);
}

bool PasswordLock::FileExists() const {
  return std::filesystem::exists(ctx_.FilePath(kFileName));
}

std::string PasswordLock::FileDigest() const {
  ctx_.settings.lastFileOpened = std::string(kFileName);
  auto content = ReadWholeFile(ctx_.FilePath(kFileName));
  if (!content) return {};
  for (const auto& line : SplitLines(*content))
    if (!StartsWith(line, ">")) return TrimCopy(line);
  return {};
}

bool PasswordLock::Consistent() const {
  const std::string setting = SettingDigest();
  const bool file = FileExists();
  if (setting.empty() != !file) return false;
  return setting.empty() || FileDigest() == setting;
}

bool PasswordLock::Matches(std::string_view password) const {
  if (!WellFormed(password)) return false;
  const std::string setting = SettingDigest();
  return !setting.empty() && PasswordDigest(ctx_, password) == setting;
}

bool PasswordLock::Store(const std::string& digest) {
  const auto file = ctx_.FilePath(kFileName);
  const auto previous = ReadWholeFile(file);
  ctx_.settings.lastFileOpened = std::string(kFileName);
  if (!WriteFileAtomically(
          file, JoinCrLf({">", "> DO NOT alter the contents of this file", ">", digest}))) {
    ShowRunTimeError(ctx_, kPathFileAccess);
    return false;
  }
  if (!store_.Save(kSection, kKey, digest)) {
    // Put pw.dat back as it was, so that the two places still agree.
    if (previous)
      WriteFileAtomically(file, *previous);
    else
      RemoveIfExists(file);
    ctx_.settings.lastFileOpened = store_.File().string();
    ShowRunTimeError(ctx_, kPathFileAccess);
    return false;
  }
  return true;
}

bool PasswordLock::Clear() {
  const auto file = ctx_.FilePath(kFileName);
  const auto previous = ReadWholeFile(file);
  ctx_.settings.lastFileOpened = std::string(kFileName);
  if (!RemoveIfExists(file)) {
    ShowRunTimeError(ctx_, kPathFileAccess);
    return false;
  }
  if (!store_.Delete(kSection, kKey)) {
    if (previous) WriteFileAtomically(file, *previous);
    ctx_.settings.lastFileOpened = store_.File().string();
    ShowRunTimeError(ctx_, kPathFileAccess);
    return false;
  }
  return true;
}

bool CheckStartupPassword(Context& ctx, UserSettingsStore store) {
  PasswordLock lock(ctx, std::move(store));
  if (!lock.Consistent()) {
    ctx.Trace("Main form load. Password store inconsistent.");
    ShowError(ctx, Err("Password protection mechanism indicates a possible security violation."));
    return false;
  }
  if (!lock.IsSet()) return true;
  for (;;) {
    ctx.settings.inputReply = "-1";
    ctx.settings.currentForm = "Form1";
    auto reply =
        ctx.sink().Input("Password Entry", "Enter your Meridian Codex password.", true, "0");
    ctx.settings.inputReply = reply ? *reply : "";
    const std::string password = TrimCopy(ctx.settings.inputReply);
    if (password.empty()) return false;
    if (lock.Matches(password)) return true;
    if (!ctx.sink().Ask(kFailure, "Invalid password - try again?")) return false;
  }
}

bool PasswordManagerScreen::CheckNew(const std::string& next, const std::string& confirm,
                                     bool change) {
  if (next != confirm) {
    ShowError(ctx_, change ? Err("New password confirmation failed.")
                           : Err("Password confirmation failed."));
    return false;
  }
  if (next.size() < kMinPasswordLength) {
    ShowError(ctx_, change ? Err("New password must contain at least 8 characters.")
                           : Err("Password must contain at least 8 characters."));
    return false;
  }
  if (!HasOnlyPasswordCharacters(next)) {
    ShowError(ctx_, change ? Err("Invalid character detected in new password.")
                           : Err("Invalid character detected in password."));
    return false;
  }
  return true;
}

void PasswordManagerScreen::ClearInputs() {
  currentPassword.clear();
  newPassword.clear();
  confirmPassword.clear();
}

bool PasswordManagerScreen::Save() {
  const std::string current = TrimCopy(currentPassword);
  const std::string next = TrimCopy(newPassword);
  const std::string confirm = TrimCopy(confirmPassword);
  const bool change = lock_.IsSet();
  if (change) {
    if (current.empty()) {
      ShowError(ctx_, Err("Password has already been defined."));
      return false;
    }
    if (!lock_.Matches(current)) {
      ShowError(ctx_, Err("Current password is invalid - please try again."));
      return false;
    }
  }
  if (!CheckNew(next, confirm, change)) return false;
  const std::string digest = PasswordDigest(ctx_, next);
  if (digest == kNumberFailure || !lock_.Store(digest)) return false;
  ctx_.sink().Show(kInformation,
                   change ? "New password successfully saved." : "Password successfully saved.");
  ClearInputs();
  return true;
}

bool PasswordManagerScreen::Remove() {
  if (!lock_.IsSet()) {
    ShowError(ctx_, Err("No password currently defined."));
    return false;
  }
  if (!lock_.Matches(TrimCopy(currentPassword))) {
    ShowError(ctx_, Err("Current password is invalid - please try again."));
    return false;
  }
  if (!lock_.Clear()) return false;
  ctx_.sink().Show(kInformation, "Password successfully removed.");
  ClearInputs();
  return true;
}

}  // namespace mc
