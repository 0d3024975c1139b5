#include "reminders/store_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cinttypes>
#include <cstdio>

#include "core/errors.h"
#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr std::string_view kRecordTitle = "Meridian Codex reminder files";

// Work files that only a commit in progress leaves behind.
constexpr std::string_view kWorkFiles[] = {"person.dat.new", "mercod.dat.new", "purged.dat.new",
                                           "PEYR.dat.new",   "newfile.dat",    "newperson.dat"};

std::uint64_t Fnv1a(std::string_view bytes) {
  std::uint64_t h = 1469598103934665603ull;
  for (unsigned char c : bytes) {
    h ^= c;
    h *= 1099511628211ull;
  }
  return h;
}

std::string Hex(std::uint64_t v) {
  char buf[24];
  std::snprintf(buf, sizeof buf, "%016" PRIx64, v);
  return buf;
}

struct RecordEntry {
  bool remove = false;
  std::string staged, target;
  std::uint64_t size = 0;
  std::string hash;
};

std::string RecordText(const std::vector<RecordEntry>& entries) {
  std::string body = std::string(kRecordTitle) + "\r\n";
  for (const auto& e : entries) {
    if (e.remove)
      body += "remove " + e.target + "\r\n";
    else
      body += "rename " + e.staged + " " + e.target + " " + std::to_string(e.size) + " " + e.hash +
              "\r\n";
  }
  return body + "end " + Hex(Fnv1a(body)) + "\r\n";
}

// The entries of a complete record; nothing for a missing, partial or
// garbled one.
std::optional<std::vector<RecordEntry>> ParseRecord(std::string_view text) {
  auto endPos = text.rfind("end ");
  if (endPos == std::string_view::npos) return std::nullopt;
  std::string_view body = text.substr(0, endPos);
  std::string_view tail = text.substr(endPos + 4);
  std::string_view after = tail.substr(std::min<std::size_t>(16, tail.size()));
  if (tail.substr(0, 16) != Hex(Fnv1a(body)) || (after != "\r\n" && after != "\n"))
    return std::nullopt;
  auto lines = SplitLines(body);
  if (lines.empty() || lines[0] != kRecordTitle) return std::nullopt;
  std::vector<RecordEntry> entries;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    std::vector<std::string> words;
    std::string_view rest = lines[i];
    while (!rest.empty()) {
      auto sp = rest.find(' ');
      words.emplace_back(rest.substr(0, sp));
      if (sp == std::string_view::npos) break;
      rest = rest.substr(sp + 1);
    }
    RecordEntry e;
    if (words.size() == 2 && words[0] == "remove") {
      e.remove = true;
      e.target = words[1];
    } else if (words.size() == 5 && words[0] == "rename") {
      e.staged = words[1];
      e.target = words[2];
      long long size = 0;
      if (!ParseInt(words[3], size) || size < 0) return std::nullopt;
      e.size = static_cast<std::uint64_t>(size);
      e.hash = words[4];
    } else {
      return std::nullopt;
    }
    entries.push_back(std::move(e));
  }
  return entries;
}

bool Matches(const std::filesystem::path& file, const RecordEntry& e) {
  auto content = ReadWholeFile(file);
  return content && content->size() == e.size && Hex(Fnv1a(*content)) == e.hash;
}

void Fail(Context& ctx, std::string_view file) {
  ctx.settings.lastFileOpened = std::string(file);
  ShowRunTimeError(ctx, kPathFileAccess);
}

// Renames and removals of a complete record; safe to run again after any
// part of it has been done.
bool ApplyRecord(Context& ctx, const std::vector<RecordEntry>& entries) {
  ReminderFileWriter& w = Reminders(ctx).Writer();
  for (const auto& e : entries) {
    auto target = ctx.FilePath(e.target);
    if (e.remove) {
      if (!w.Remove(target)) return false;
      continue;
    }
    auto staged = ctx.FilePath(e.staged);
    if (std::filesystem::exists(staged)) {
      if (!Matches(staged, e) || !w.Rename(staged, target)) return false;
    } else if (!Matches(target, e)) {
      return false;  // neither the work file nor its renamed copy: not ours to guess
    }
  }
  return w.SyncFolder(ctx.ExeFolder());
}

void RemoveWorkFiles(Context& ctx) {
  ReminderFileWriter& w = Reminders(ctx).Writer();
  for (auto name : kWorkFiles) {
    auto p = ctx.FilePath(name);
    if (std::filesystem::exists(p)) w.Remove(p);
  }
}

}  // namespace

bool DiskWriter::WriteFile(const std::filesystem::path& file, std::string_view content) {
  return WriteDurably(file, content);
}

bool DiskWriter::Rename(const std::filesystem::path& from, const std::filesystem::path& to) {
  std::error_code ec;
  std::filesystem::rename(from, to, ec);
  return !ec;
}

bool DiskWriter::Remove(const std::filesystem::path& file) {
  return RemoveIfExists(file);
}

bool DiskWriter::SyncFolder(const std::filesystem::path& folder) {
  int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return false;
  bool ok = ::fsync(fd) == 0;
  ::close(fd);
  return ok;
}

ReminderFileWriter& ReminderSession::Writer() {
  if (!writer) writer = std::make_shared<DiskWriter>();
  return *writer;
}

bool CommitReminderFiles(Context& ctx, const std::vector<FileChange>& changes) {
  if (!RecoverReminderFiles(ctx)) return false;
  ReminderFileWriter& w = Reminders(ctx).Writer();
  std::vector<RecordEntry> entries;
  // The record goes first: while it stands, recovery would finish the commit.
  auto abandon = [&](std::string_view file) {
    if (w.Remove(ctx.FilePath(kCommitRecordName)))
      for (const auto& e : entries)
        if (!e.remove) w.Remove(ctx.FilePath(e.staged));
    Fail(ctx, file);
    return false;
  };
  // 1. The new versions beside the old ones.
  for (const auto& c : changes) {
    RecordEntry e;
    e.target = c.target;
    if (!c.content) {
      e.remove = true;
      entries.push_back(std::move(e));
      continue;
    }
    e.staged = c.staged.empty() ? c.target + ".new" : c.staged;
    e.size = c.content->size();
    e.hash = Hex(Fnv1a(*c.content));
    entries.push_back(e);
    if (!w.WriteFile(ctx.FilePath(e.staged), *c.content)) return abandon(c.target);
  }
  // 2. The record that makes them the new state.
  if (!w.WriteFile(ctx.FilePath(kCommitRecordName), RecordText(entries)) ||
      !w.SyncFolder(ctx.ExeFolder()))
    return abandon(kCommitRecordName);
  // 3. Into place. A failure here is finished by the next recovery.
  if (!ApplyRecord(ctx, entries)) {
    if (!RecoverReminderFiles(ctx)) return false;
    return true;
  }
  if (!w.Remove(ctx.FilePath(kCommitRecordName))) return true;  // harmless: replayed later
  w.SyncFolder(ctx.ExeFolder());
  return true;
}

bool RecoverReminderFiles(Context& ctx) {
  auto recordPath = ctx.FilePath(kCommitRecordName);
  ReminderFileWriter& w = Reminders(ctx).Writer();
  if (!std::filesystem::exists(recordPath)) {
    RemoveWorkFiles(ctx);
    return true;
  }
  auto text = ReadWholeFile(recordPath);
  std::optional<std::vector<RecordEntry>> entries;
  if (text) entries = ParseRecord(*text);
  if (!entries) {
    // The record was never finished: nothing was renamed yet.
    if (!w.Remove(recordPath)) {
      Fail(ctx, kCommitRecordName);
      return false;
    }
    RemoveWorkFiles(ctx);
    return true;
  }
  if (!ApplyRecord(ctx, *entries)) {
    Fail(ctx, kCommitRecordName);
    return false;
  }
  if (!w.Remove(recordPath)) {
    Fail(ctx, kCommitRecordName);
    return false;
  }
  w.SyncFolder(ctx.ExeFolder());
  return true;
}

}  // namespace mc
