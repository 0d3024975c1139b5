// Quick Notes (form 25): fifteen sheets of free text kept in mynotes.txt.
//
// The file holds, for each sheet that is not blank, a delimiter line
// "{*[*(<Sheet N>)*]*}", an empty line, the sheet's lines and an empty line.
// Only an exact delimiter line selects a sheet: a line of the user's text that
// merely looks like one stays text.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/context.h"

namespace mc {

inline constexpr int kSheetCount = 15;
inline constexpr std::size_t kSheetCharacterLimit = 65535;
inline constexpr std::size_t kTabNameLimit = 15;

// Sheet texts with LF line ends, index 0 for sheet 1.
using Sheets = std::array<std::string, kSheetCount>;

std::string DelimiterLine(int sheet);
// The sheet a line selects: "{*[*(<Sheet " + one number 1..15 + ">)*]*}" exactly.
std::optional<int> DelimiterSheet(std::string_view line);

// The file's content as sheets. Lines ahead of the first delimiter belong to
// sheet 1, so that nothing in a hand-edited file is lost.
Sheets ParseNotesFile(std::string_view content);
// The sheets as the file holds them, with CR LF line ends.
std::string NotesFileContent(const Sheets& sheets);

// Characters of a UTF-8 text, and the text cut to at most n of them.
std::size_t CharacterCount(std::string_view text);
std::string CutToCharacters(std::string_view text, std::size_t n);

class QuickNotesScreen {
 public:
  explicit QuickNotesScreen(Context& ctx) : ctx_(ctx) {}

  // Reads the tab names, mynotes.txt and the sheet last used.
  void Load();

  const Sheets& Texts() const { return sheets_; }
  const std::array<std::string, kSheetCount>& TabNames() const { return tabNames_; }
  // 1 .. 15.
  int CurrentSheet() const { return current_; }
  bool Changed() const { return changed_; }

  // An edit of a sheet. True while the sheet is within the limit; the first
  // time it grows past it, "Sheet N now contains more than 65535 characters"
  // is shown.
  bool SetText(int sheet, std::string text);
  // Choosing a tab stores Last Sheet Used.
  void ChooseSheet(int sheet);

  // "Save" and leaving with changes: cuts sheets over the limit (with the
  // warning), writes mynotes.txt, confirms. Without changes only says so.
  // True when the file was written.
  bool Save();

  // Double click on a tab: the new name through the Data Input box. True
  // when the tab was renamed.
  bool RenameTab(int sheet);

 private:
  Context& ctx_;
  Sheets sheets_;
  std::array<std::string, kSheetCount> tabNames_;
  std::array<bool, kSheetCount> overLimit_{};
  int current_ = 1;
  bool changed_ = false;
};

}  // namespace mc
