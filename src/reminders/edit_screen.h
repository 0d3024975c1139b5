// Edit Reminders (form 3): every stored reminder by its number (its slot),
// with commands to change one, delete one, or delete all with one message.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/context.h"

namespace mc {

class EditRemindersScreen {
 public:
  explicit EditRemindersScreen(Context& ctx);

  // Rebuilds the listing from the store (at activation and after a change).
  void Refresh();
  // "*** Reminder List ***", the head, a rule and one line per reminder.
  const std::string& Listing() const { return listing_; }

  // A left click on line `line` (0-based) of the listing: its reminder goes
  // into the fields. False when the line holds none.
  bool SelectLine(std::size_t line);

  // The fields: reminder number, date (d/m), year ("2026" or "Every"), message.
  std::string numberField, dateField, yearField, messageField;
  // The check box that makes the delete command act on every reminder with
  // the selected message.
  bool allWithMessage = false;
  std::string DeleteCaption() const;
  const std::string& Prompt() const { return prompt_; }

  // "&Update Reminder": the reminder takes its new values and its sorted
  // place (and possibly a new number).
  bool Update();
  // "&Delete Reminder" / "&Delete Reminders".
  bool Delete();
  // The result of the last command.
  const std::string& Status() const { return status_; }

 private:
  struct Row {
    int slot = 0;
    int day = 0, month = 0, year = 0;
    std::string message;
  };
  std::string DateText(const Row& r, bool userOrder) const;
  static std::string YearText(int year);
  void ClearSelection();

  Context& ctx_;
  std::string listing_;
  std::vector<std::optional<Row>> rows_;  // by line of the listing
  std::optional<Row> selected_;
  std::string prompt_;
  std::string status_;
};

}  // namespace mc
