#include "shell/backup.h"

#include <algorithm>
#include <functional>

#include "calendars/names.h"
#include "core/errors.h"
#include "core/ini_file.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "shell/startup.h"

namespace mc {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBackupFolder = "backup";

bool EndsWith(std::string_view s, std::string_view suffix) {
  return s.size() >= suffix.size() && s.substr(s.size() - suffix.size()) == suffix;
}

// Names of the regular files of a folder that pass the test, sorted.
std::vector<std::string> FilesMatching(const fs::path& folder,
                                       const std::function<bool(const std::string&)>& test) {
  std::vector<std::string> names;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(folder, ec)) {
    if (!entry.is_regular_file(ec)) continue;
    std::string name = entry.path().filename().string();
    if (test(ToLower(name))) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool IsMyDat(const std::string& lower) {
  return StartsWith(lower, "my") && EndsWith(lower, ".dat");
}

// The names in `fixed` that exist in the folder, then each group of patterns.
std::vector<std::string> Present(const fs::path& folder, std::initializer_list<const char*> fixed) {
  std::vector<std::string> names;
  for (const char* name : fixed)
    if (fs::exists(folder / name)) names.emplace_back(name);
  return names;
}

void Append(std::vector<std::string>& names, const std::vector<std::string>& more) {
  for (const auto& n : more)
    if (std::find(names.begin(), names.end(), n) == names.end()) names.push_back(n);
}

std::vector<std::string> WithExtension(const fs::path& folder, const char* extension) {
  return FilesMatching(folder,
                       [extension](const std::string& n) { return EndsWith(n, extension); });
}

// Replaces `to` with a copy of `from`, through a work file.
bool CopyOver(Context& ctx, const fs::path& from, const fs::path& to) {
  ctx.settings.lastFileOpened = from.filename().string();
  auto content = ReadWholeFile(from);
  return content && WriteFileAtomically(to, *content);
}

// Copies the named files; on a failure shows the run-time box, or that the
// files were partly restored when some had been copied already.
bool CopyAll(Context& ctx, const std::vector<std::string>& names, const fs::path& from,
             const fs::path& to, bool restoring) {
  std::size_t done = 0;
  for (const auto& name : names) {
    if (!CopyOver(ctx, from / name, to / name)) {
      if (restoring && done > 0)
        ShowError(ctx, Err("Backed up files partially restored."));
      else
        ShowRunTimeError(ctx, kPathFileAccess);
      return false;
    }
    ++done;
  }
  return true;
}

}  // namespace

std::vector<std::string> BackupFileNames(Context& ctx) {
  const fs::path folder = ctx.ExeFolder();
  std::vector<std::string> names{"mercod.ini"};
  Append(names, Present(folder, {"mercod.dat", "person.dat", "purged.dat", "localhols.dat",
                                 "mynotes.txt"}));
  Append(names, FilesMatching(folder, [](const std::string& n) {
           return IsMyDat(n) && n != "myconvdata.dat";
         }));
  Append(names, Present(folder, {"pw.dat", "PEYR.dat"}));
  for (const char* ext : {".sff", ".shf", ".tsp", ".sta"})
    Append(names, WithExtension(folder, ext));
  return names;
}

std::vector<std::string> RestoreFileNames(Context& ctx, RestoreKind kind) {
  const fs::path folder = ctx.FilePath(kBackupFolder);
  switch (kind) {
    case RestoreKind::IniFile:
      return Present(folder, {"mercod.ini"});
    case RestoreKind::QuickNotes:
      return Present(folder, {"mynotes.txt"});
    case RestoreKind::Reminders:
      return Present(folder, {"mercod.dat", "person.dat", "purged.dat", "PEYR.dat"});
    case RestoreKind::All:
      break;
  }
  std::vector<std::string> names = Present(folder, {"mercod.ini", "mynotes.txt", "mercod.dat",
                                                    "person.dat", "purged.dat", "localhols.dat"});
  Append(names, FilesMatching(folder, IsMyDat));
  for (const char* ext : {".shf", ".tsp", ".sta"}) Append(names, WithExtension(folder, ext));
  return names;
}

std::string BackupDateText(const LocalDateTime& today) {
  return std::to_string(today.day) + " " + std::string(kMonthNames[today.month]) + " " +
         std::to_string(today.year);
}

bool Backup(Context& ctx) {
  ctx.Trace("Backup entered.");
  const fs::path target = ctx.FilePath(kBackupFolder);
  std::error_code ec;
  fs::create_directories(target, ec);
  if (!fs::is_directory(target)) {
    ctx.settings.lastFileOpened = std::string(kBackupFolder);
    ShowRunTimeError(ctx, kPathFileAccess);
    return false;
  }
  if (!CopyAll(ctx, BackupFileNames(ctx), ctx.ExeFolder(), target, false)) return false;
  UpdateIniFile(ctx, 0, "Last File Backup Date", BackupDateText(ctx.Now()));
  // The backup's settings file carries the date too.
  if (!CopyAll(ctx, {"mercod.ini"}, ctx.ExeFolder(), target, false)) return false;
  ctx.sink().Show(kSuccess, "Files successfully backed up to folder " + target.string() + ".");
  return true;
}

bool Restore(Context& ctx, RestoreKind kind) {
  ctx.Trace("Restore entered.");
  const fs::path source = ctx.FilePath(kBackupFolder);
  const std::vector<std::string> names = RestoreFileNames(ctx, kind);
  switch (kind) {
    case RestoreKind::All:
      if (!fs::is_directory(source)) {
        ShowError(ctx, Err("Backup folder not found."));
        return false;
      }
      break;
    case RestoreKind::IniFile:
      if (names.empty()) {
        ShowError(ctx, Err("Backup copy of file mercod.ini not found."));
        return false;
      }
      break;
    case RestoreKind::QuickNotes:
      if (names.empty()) {
        ShowError(ctx, Err("Backup copy of Quick Notes not found."));
        return false;
      }
      break;
    case RestoreKind::Reminders:
      if (names.empty()) {
        ShowError(ctx, Err("Backup copy of Reminders not found."));
        return false;
      }
      break;
  }
  if (!CopyAll(ctx, names, source, ctx.ExeFolder(), true)) return false;
  if (std::find(names.begin(), names.end(), "mercod.ini") != names.end()) ReloadSettings(ctx);
  switch (kind) {
    case RestoreKind::All:
      ctx.sink().Show(kSuccess, "All backed up files successfully restored.");
      break;
    case RestoreKind::IniFile:
      ctx.sink().Show(kSuccess, "Backup copy of file mercod.ini successfully restored.");
      break;
    case RestoreKind::QuickNotes:
      ctx.sink().Show(kSuccess, "Backup copy of Quick Notes successfully restored.");
      break;
    case RestoreKind::Reminders:
      ctx.sink().Show(kSuccess, "Backup copy of Reminders successfully restored.");
      break;
  }
  return true;
}

void ShowLastBackupDate(Context& ctx) {
  const std::string date = ReadIniFile(ctx, 0, "Last File Backup Date");
  if (date.empty())
    ctx.sink().Show(kInformation,
                    "Files have not been backed up since this feature was introduced.");
  else
    ctx.sink().Show(kInformation, "Files last backed up on " + date + ".");
}

void ReloadSettings(Context& ctx) {
  const SettingsBlock kept = ctx.settings;
  StartOptions options;
  options.detectLocale = false;
  SetBasicData(ctx, options);
  SettingsBlock& s = ctx.settings;
  s.usesDecimalPoint = kept.usesDecimalPoint;
  s.decimalSeparator = kept.decimalSeparator;
  s.dateOrder = kept.dateOrder;
  s.showTipPending = kept.showTipPending;
  s.currentForm = kept.currentForm;
  s.plainLetters = kept.plainLetters;
  s.fontsChanged = true;
}

}  // namespace mc
