#include "core/user_settings.h"

#include <cstdlib>
#include <vector>

#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

namespace {

std::string SectionHead(std::string_view section) {
  return "[" + std::string(section) + "]";
}

// The key of a "Key=value" line, or nothing for other lines.
bool LineHasKey(std::string_view line, std::string_view key) {
  auto eq = line.find('=');
  return eq != std::string_view::npos && Trim(line.substr(0, eq)) == key;
}

// The section's first line and one past its last, or npos when absent.
std::pair<std::size_t, std::size_t> FindSection(const std::vector<std::string>& lines,
                                                std::string_view section) {
  const std::string head = SectionHead(section);
  std::size_t begin = 0;
  while (begin < lines.size() && Trim(lines[begin]) != head) ++begin;
  if (begin == lines.size()) return {std::string::npos, std::string::npos};
  std::size_t end = begin + 1;
  while (end < lines.size() && !StartsWith(Trim(lines[end]), "[")) ++end;
  return {begin, end};
}

}  // namespace

std::filesystem::path UserSettingsStore::ConfigFolder() {
  if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg == '/') return xdg;
  const char* home = std::getenv("HOME");
  return std::filesystem::path(home && *home ? home : "/tmp") / ".config";
}

UserSettingsStore UserSettingsStore::ForApplication(std::string_view application) {
  std::string folder;
  for (char c : application)
    if (c != ' ') folder += c;
  return UserSettingsStore(ConfigFolder() / folder / "settings.ini");
}

std::string UserSettingsStore::Get(std::string_view section, std::string_view key) const {
  auto content = ReadWholeFile(file_);
  if (!content) return {};
  auto lines = SplitLines(*content);
  auto [begin, end] = FindSection(lines, section);
  if (begin == std::string::npos) return {};
  for (std::size_t i = begin + 1; i < end; ++i)
    if (LineHasKey(lines[i], key))
      return TrimCopy(std::string_view(lines[i]).substr(lines[i].find('=') + 1));
  return {};
}

bool UserSettingsStore::Save(std::string_view section, std::string_view key,
                             std::string_view value) {
  std::vector<std::string> lines;
  if (auto content = ReadWholeFile(file_)) lines = SplitLines(*content);
  const std::string entry = std::string(key) + "=" + std::string(value);
  auto [begin, end] = FindSection(lines, section);
  if (begin == std::string::npos) {
    if (!lines.empty() && !lines.back().empty()) lines.emplace_back();
    lines.push_back(SectionHead(section));
    lines.push_back(entry);
  } else {
    std::size_t i = begin + 1;
    while (i < end && !LineHasKey(lines[i], key)) ++i;
    if (i < end) {
      lines[i] = entry;
    } else {
      // After the section's last non-empty line.
      std::size_t at = end;
      while (at > begin + 1 && Trim(lines[at - 1]).empty()) --at;
      lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), entry);
    }
  }
  std::error_code ec;
  std::filesystem::create_directories(file_.parent_path(), ec);
  std::string text;
  for (const auto& l : lines) text += l + "\n";
  return WriteFileAtomically(file_, text);
}

bool UserSettingsStore::Delete(std::string_view section, std::string_view key) {
  auto content = ReadWholeFile(file_);
  if (!content) return true;
  auto lines = SplitLines(*content);
  auto [begin, end] = FindSection(lines, section);
  if (begin == std::string::npos) return true;
  bool found = false;
  for (std::size_t i = end; i-- > begin + 1;) {
    if (LineHasKey(lines[i], key)) {
      lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i));
      found = true;
    }
  }
  if (!found) return true;
  std::string text;
  for (const auto& l : lines) text += l + "\n";
  return WriteFileAtomically(file_, text);
}

}  // namespace mc
