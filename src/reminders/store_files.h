// How the reminder files change on disk. Every change of person.dat,
// mercod.dat, purged.dat and PEYR.dat goes through one commit: the new
// versions are written beside the old ones and flushed, a commit record
// naming them is written and flushed, and only then are they renamed into
// place. A crash before the record is complete leaves the old files; a crash
// after it is finished by the next opening of the store (RecoverReminderFiles),
// which renames what is left. So the files always move together from one
// consistent state to the next.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"

namespace mc {

// The file operations a commit needs. Tests put in one that fails on
// purpose; the program uses DiskWriter.
class ReminderFileWriter {
 public:
  virtual ~ReminderFileWriter() = default;
  // Creates or replaces `file` with `content` and flushes it to the disk.
  virtual bool WriteFile(const std::filesystem::path& file, std::string_view content) = 0;
  virtual bool Rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
  // True when the file is gone afterwards (also when it never existed).
  virtual bool Remove(const std::filesystem::path& file) = 0;
  // Makes the folder's names (renames, new files, removals) durable.
  virtual bool SyncFolder(const std::filesystem::path& folder) = 0;
};

class DiskWriter final : public ReminderFileWriter {
 public:
  bool WriteFile(const std::filesystem::path& file, std::string_view content) override;
  bool Rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
  bool Remove(const std::filesystem::path& file) override;
  bool SyncFolder(const std::filesystem::path& folder) override;
};

// What the reminder screens keep for the run: the flag that tells the main
// screen to rebuild its list, and the file writer in use.
struct ReminderSession {
  explicit ReminderSession(Context&) {}
  // Set when reminders were added or edited; screens test it when they close.
  bool remindersChanged = false;
  // The day on which the timer last handled the reminders without a report
  // being stamped (an empty store or a failed check), so that it does not
  // retry on every tick of that day.
  std::int32_t dayHandled = 0;
  std::shared_ptr<ReminderFileWriter> writer;

  ReminderFileWriter& Writer();
};

inline ReminderSession& Reminders(Context& ctx) {
  return ctx.Module<ReminderSession>();
}

// One file of a commit: its new content, or nothing to remove it. `staged`
// names the work file (default: the target's name + ".new").
struct FileChange {
  std::string target;
  std::optional<std::string> content;
  std::string staged;
};

// Applies all changes or none. Removals happen in the order given. False
// after the run-time error box when the change could not be made; the files
// then hold the previous state, or the new one once the next opening has
// finished the commit.
bool CommitReminderFiles(Context& ctx, const std::vector<FileChange>& changes);

// Finishes a commit that a crash interrupted, or throws away one whose record
// was never completed. False after the run-time error box when the files
// can't be brought to a consistent state; the store must then not be used.
bool RecoverReminderFiles(Context& ctx);

// The name of the commit record in the program folder.
inline constexpr std::string_view kCommitRecordName = "remcommit.dat";

}  // namespace mc
