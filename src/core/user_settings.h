// The per-user settings store: settings that belong to the person rather than
// to a program folder, kept by application, section and key in a small file
// under the user's configuration folder ($XDG_CONFIG_HOME, or ~/.config):
// application "Meridian Codex" lives in MeridianCodex/settings.ini.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace mc {

class UserSettingsStore {
 public:
  explicit UserSettingsStore(std::filesystem::path file) : file_(std::move(file)) {}

  // The store of an application for the present user: the application's name
  // without blanks, as a folder of the configuration folder.
  static UserSettingsStore ForApplication(std::string_view application);
  // $XDG_CONFIG_HOME when it is set and absolute, else $HOME/.config.
  static std::filesystem::path ConfigFolder();

  const std::filesystem::path& File() const { return file_; }

  // The value of a key, or "" when the file, the section or the key is absent.
  std::string Get(std::string_view section, std::string_view key) const;
  // Sets a key, creating the folder, file and section as needed. False when
  // the file could not be written (the old file is then untouched).
  bool Save(std::string_view section, std::string_view key, std::string_view value);
  // Removes a key; true when it is gone afterwards.
  bool Delete(std::string_view section, std::string_view key);

 private:
  std::filesystem::path file_;
};

}  // namespace mc
