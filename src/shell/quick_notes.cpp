#include "shell/quick_notes.h"

#include <vector>

#include "core/errors.h"
#include "core/ini_file.h"
#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr std::string_view kOpen = "{*[*(<Sheet ";
constexpr std::string_view kClose = ">)*]*}";
constexpr std::string_view kFileName = "mynotes.txt";

// Lines split at LF (a CR before it dropped), each LF a separator: "a\n" is
// two lines, "a" and "".
std::vector<std::string> SplitKeepingLast(std::string_view text) {
  std::vector<std::string> lines;
  std::size_t pos = 0;
  for (;;) {
    auto nl = text.find('\n', pos);
    std::string_view line = text.substr(pos, nl == std::string_view::npos ? nl : nl - pos);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.emplace_back(line);
    if (nl == std::string_view::npos) break;
    pos = nl + 1;
  }
  return lines;
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::string JoinLf(const std::vector<std::string>& lines, std::size_t from, std::size_t to) {
  std::string out;
  for (std::size_t i = from; i < to; ++i) {
    if (i > from) out += '\n';
    out += lines[i];
  }
  return out;
}

}  // namespace

std::string DelimiterLine(int sheet) {
  return std::string(kOpen) + std::to_string(sheet) + std::string(kClose);
}

std::optional<int> DelimiterSheet(std::string_view line) {
  if (line.size() <= kOpen.size() + kClose.size() || !StartsWith(line, kOpen) ||
      line.substr(line.size() - kClose.size()) != kClose)
    return std::nullopt;
  std::string_view number = line.substr(kOpen.size(), line.size() - kOpen.size() - kClose.size());
  if (number.size() > 2 || number.find_first_not_of("0123456789") != std::string_view::npos)
    return std::nullopt;
  long long n = 0;
  if (!ParseInt(number, n) || n < 1 || n > kSheetCount) return std::nullopt;
  return static_cast<int>(n);
}

Sheets ParseNotesFile(std::string_view content) {
  std::array<std::vector<std::string>, kSheetCount> blocks;
  std::vector<std::string> lines = SplitKeepingLast(content);
  // A final line end does not open another line.
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  std::vector<std::string> leading;
  std::vector<std::string>* into = &leading;
  for (auto& line : lines) {
    if (auto sheet = DelimiterSheet(line)) {
      into = &blocks[static_cast<std::size_t>(*sheet - 1)];
      into->clear();  // a sheet named twice keeps its last block
      continue;
    }
    into->push_back(std::move(line));
  }
  Sheets sheets;
  for (int i = 0; i < kSheetCount; ++i) {
    auto& block = blocks[static_cast<std::size_t>(i)];
    std::size_t from = 0, to = block.size();
    if (to > from && block[from].empty()) ++from;
    if (to > from && block[to - 1].empty()) --to;
    sheets[static_cast<std::size_t>(i)] = JoinLf(block, from, to);
  }
  if (!IsBlank(JoinLf(leading, 0, leading.size()))) {
    std::string& first = sheets[0];
    std::string head = JoinLf(leading, 0, leading.size());
    first = first.empty() ? head : head + "\n" + first;
  }
  return sheets;
}

std::string NotesFileContent(const Sheets& sheets) {
  std::string out;
  for (int i = 0; i < kSheetCount; ++i) {
    const std::string& text = sheets[static_cast<std::size_t>(i)];
    if (IsBlank(text)) continue;
    out += DelimiterLine(i + 1) + "\r\n\r\n";
    for (const auto& line : SplitKeepingLast(text)) {
      // A line of text that reads exactly as a delimiter is kept as text by
      // a trailing blank, which no delimiter has.
      out += line + (DelimiterSheet(line) ? " \r\n" : "\r\n");
    }
    out += "\r\n";
  }
  return out;
}

std::size_t CharacterCount(std::string_view text) {
  return DisplayWidth(text);
}

std::string CutToCharacters(std::string_view text, std::size_t n) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) {
      if (count == n) return std::string(text.substr(0, i));
      ++count;
    }
  }
  return std::string(text);
}

void QuickNotesScreen::Load() {
  for (int i = 0; i < kSheetCount; ++i)
    tabNames_[static_cast<std::size_t>(i)] =
        ReadIniFile(ctx_, 25, "Tab " + std::to_string(i + 1) + " Name");
  sheets_ = {};
  ctx_.settings.lastFileOpened = std::string(kFileName);
  if (auto content = ReadWholeFile(ctx_.FilePath(kFileName))) sheets_ = ParseNotesFile(*content);
  for (int i = 0; i < kSheetCount; ++i)
    overLimit_[static_cast<std::size_t>(i)] =
        CharacterCount(sheets_[static_cast<std::size_t>(i)]) > kSheetCharacterLimit;
  long long last = 1;
  if (!ParseInt(ReadIniFile(ctx_, 25, "Last Sheet Used"), last) || last < 1 || last > kSheetCount)
    last = 1;
  current_ = static_cast<int>(last);
  changed_ = false;
}

bool QuickNotesScreen::SetText(int sheet, std::string text) {
  if (sheet < 1 || sheet > kSheetCount) return false;
  const auto i = static_cast<std::size_t>(sheet - 1);
  if (sheets_[i] != text) changed_ = true;
  sheets_[i] = std::move(text);
  const bool over = CharacterCount(sheets_[i]) > kSheetCharacterLimit;
  if (over && !overLimit_[i])
    ctx_.sink().Show(kWarning, "Sheet " + std::to_string(sheet) + " now contains more than " +
                                   std::to_string(kSheetCharacterLimit) +
                                   " characters. Text beyond that point will not be saved.");
  overLimit_[i] = over;
  return !over;
}

void QuickNotesScreen::ChooseSheet(int sheet) {
  if (sheet < 1 || sheet > kSheetCount || sheet == current_) return;
  current_ = sheet;
  UpdateIniFile(ctx_, 25, "Last Sheet Used", std::to_string(sheet));
}

bool QuickNotesScreen::Save() {
  if (!changed_) {
    ctx_.sink().Show(kInformation, "No Quick Notes changes to save.");
    return false;
  }
  for (int i = 0; i < kSheetCount; ++i) {
    std::string& text = sheets_[static_cast<std::size_t>(i)];
    if (CharacterCount(text) <= kSheetCharacterLimit) continue;
    text = CutToCharacters(text, kSheetCharacterLimit);
    overLimit_[static_cast<std::size_t>(i)] = false;
    ctx_.sink().Show(kWarning, "Sheet " + std::to_string(i + 1) + " contained more than " +
                                   std::to_string(kSheetCharacterLimit) +
                                   " characters. Only the first " +
                                   std::to_string(kSheetCharacterLimit) + " have been saved.");
  }
  ctx_.settings.lastFileOpened = std::string(kFileName);
  if (!WriteFileAtomically(ctx_.FilePath(kFileName), NotesFileContent(sheets_))) {
    ShowRunTimeError(ctx_, kPathFileAccess);
    return false;
  }
  changed_ = false;
  ctx_.sink().Show(kSuccess, "Quick Notes contents successfully saved.");
  return true;
}

bool QuickNotesScreen::RenameTab(int sheet) {
  if (sheet < 1 || sheet > kSheetCount) return false;
  ctx_.settings.inputReply = "-1";
  auto reply =
      ctx_.sink().Input("Tab Renaming", "Enter the new tab name (max. 15 characters).", false, "");
  if (!reply) return false;
  const std::string name = TrimCopy(*reply);
  ctx_.settings.inputReply = name;
  if (name.empty()) return false;
  if (CharacterCount(name) > kTabNameLimit) {
    ShowError(ctx_, Err("Tab name too long."));
    return false;
  }
  for (int i = 0; i < kSheetCount; ++i) {
    if (i != sheet - 1 && tabNames_[static_cast<std::size_t>(i)] == name) {
      ctx_.sink().Show(kWarning,
                       "New name already exists as a tab name. Please choose another name.");
      return false;
    }
  }
  tabNames_[static_cast<std::size_t>(sheet - 1)] = name;
  UpdateIniFile(ctx_, 25, "Tab " + std::to_string(sheet) + " Name", name);
  return true;
}

}  // namespace mc
