// Reminder Utilities (form 21): export to and import from text, compaction,
// the diagnostic listing of the slots, and the two reminder switches.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"

namespace mc {

// Field order and separator of myrems.txt and newrems.txt: three date
// fields in the chosen order, each followed by the separator, then the
// message. The year is a number or "every".
struct FieldFormat {
  std::string order = "Choose field order";
  std::string separator;      // an entry of the separator list; "" not chosen
  std::string userSeparator;  // with "User Specified"
};

inline constexpr std::string_view kFieldOrders[] = {"Choose field order", "day month year message",
                                                    "month day year message",
                                                    "year month day message"};
inline constexpr std::string_view kSeparators[] = {
    "Comma ,", "Forward Slash /", "Hyphen -", "Semicolon ;", "Tab", "User Specified"};

// The field order and separator checked: "Field order not defined.",
// "Field separator not defined.", "User specified separator missing.".
bool CheckFieldFormat(Context& ctx, const FieldFormat& format);

// The files of the program folder that export and import use unless the user
// chooses others.
std::filesystem::path DefaultExportFile(Context& ctx);  // myrems.txt
std::filesystem::path DefaultImportFile(Context& ctx);  // newrems.txt

// Writes every reminder to `file` (myrems.txt unless given), moving an old
// newrems.txt aside to newrems.old. False after the message when nothing was
// written.
bool ExportReminders(Context& ctx, const FieldFormat& format,
                     const std::filesystem::path& file = {});

// Reads `file` (newrems.txt unless given) after asking; refused lines go to
// rejects.txt with their reason. False when the user declined or nothing
// could be read.
bool ImportReminders(Context& ctx, const FieldFormat& format,
                     const std::filesystem::path& file = {});

enum class UtilityAction { PrintStructures, Compact, Import, Export };

class ReminderUtilitiesScreen {
 public:
  explicit ReminderUtilitiesScreen(Context& ctx);

  // The check boxes, from the settings at activation.
  bool AudioSignal() const;
  bool ProcessFields() const;
  // A change is stored at once. SetProcessFields returns true when the main
  // screen shows the list, which must then be rebuilt: it marks the
  // reminders as changed, so that leaving the screen rebuilds it.
  void SetAudioSignal(bool on);
  bool SetProcessFields(bool on, std::string_view mainOutputText);

  FieldFormat format;
  UtilityAction action = UtilityAction::PrintStructures;
  // The file to import from or export to; empty for newrems.txt and
  // myrems.txt in the program folder.
  std::filesystem::path file;

  // The command: runs the chosen action.
  void Run();
  // The listing for the printer after PrintStructures ("Courier New", 9
  // points); empty when there is nothing to print.
  const std::string& PrintText() const { return printText_; }

 private:
  Context& ctx_;
  std::string printText_;
};

}  // namespace mc
