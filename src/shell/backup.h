// Backup and restore of the user's files through the folder "backup" beneath
// the program folder, and the date of the last backup.
#pragma once

#include <string>
#include <vector>

#include "core/context.h"

namespace mc {

// The files a backup takes, of those present in the program folder, in order:
// mercod.ini, mercod.dat, person.dat, purged.dat, localhols.dat, mynotes.txt,
// my*.dat but myconvdata.dat, pw.dat, PEYR.dat, then *.sff, *.shf, *.tsp, *.sta.
std::vector<std::string> BackupFileNames(Context& ctx);

// "&Backup": copies the files into backup/, stores Last File Backup Date and
// confirms. False after a message when a copy failed.
bool Backup(Context& ctx);

enum class RestoreKind {
  All,         // "Restore &All"
  IniFile,     // "Restore &Initialisation File"
  QuickNotes,  // "Restore &Quick Notes"
  Reminders,   // "Restore &Reminders"
};

// The files a restore of that kind brings back, of those present in backup/.
std::vector<std::string> RestoreFileNames(Context& ctx, RestoreKind kind);

// Copies the backed-up files back and confirms. A restored mercod.ini is
// brought up to the current layout and read into the settings block again.
// False after a message when nothing (or not everything) was restored.
bool Restore(Context& ctx, RestoreKind kind);

// "23 November 2026".
std::string BackupDateText(const LocalDateTime& today);

// "Last &File Backup Date": the date, or that there has been none.
void ShowLastBackupDate(Context& ctx);

// Reads mercod.ini into the settings block again (after it was replaced),
// keeping what start-up took from the system and the run's own flags.
void ReloadSettings(Context& ctx);

}  // namespace mc
