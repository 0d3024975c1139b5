#include "reminders/edit_screen.h"

#include <algorithm>

#include "calendars/gregorian.h"
#include "core/errors.h"
#include "core/text_util.h"
#include "reminders/add_screen.h"
#include "reminders/store.h"
#include "reminders/store_files.h"

namespace mc {

namespace {

constexpr std::string_view kPromptSelect =
    "Left-click any reminder to select it for updating or deletion.";
constexpr std::string_view kPromptChange =
    "To update, make required changes, then press \"Update Reminder\"; to delete, press "
    "\"Delete Reminder\".";

}  // namespace

EditRemindersScreen::EditRemindersScreen(Context& ctx) : ctx_(ctx) {
  Refresh();
}

std::string EditRemindersScreen::YearText(int year) {
  return year == kEveryYear ? "Every" : std::to_string(year);
}

std::string EditRemindersScreen::DateText(const Row& r, bool userOrder) const {
  const std::string& order = ctx_.settings.dateOrder;
  const bool monthFirst =
      userOrder && order.find('m') != std::string::npos && order.find('m') < order.find('d');
  return monthFirst ? std::to_string(r.month) + "/" + std::to_string(r.day)
                    : std::to_string(r.day) + "/" + std::to_string(r.month);
}

void EditRemindersScreen::ClearSelection() {
  selected_.reset();
  numberField.clear();
  dateField.clear();
  yearField.clear();
  messageField.clear();
  prompt_ = kPromptSelect;
}

void EditRemindersScreen::Refresh() {
  rows_.clear();
  std::vector<std::string> lines = {"*** Reminder List ***", "", "Rem#   Date    Year    Message",
                                    ""};
  rows_.resize(lines.size());
  ReminderStore store(ctx_);
  if (store.Open() && !store.NoRecord() && store.Check()) {
    for (int s : store.ActiveSlots()) {
      const ReminderSlot& slot = store.Slot(s);
      Row r{s, slot.Day(), slot.Month(), slot.year, slot.Text()};
      lines.push_back(PadRight(std::to_string(s), 7) + PadRight(DateText(r, true), 8) +
                      PadRight(YearText(r.year), 8) + r.message);
      rows_.push_back(r);
    }
  }
  std::size_t width = 0;
  for (const auto& l : lines) width = std::max(width, DisplayWidth(l));
  lines[3] = std::string(width, '-');
  listing_ = JoinCrLf(lines);
  if (!selected_) prompt_ = kPromptSelect;
}

bool EditRemindersScreen::SelectLine(std::size_t line) {
  if (line >= rows_.size() || !rows_[line]) return false;
  selected_ = rows_[line];
  numberField = std::to_string(selected_->slot);
  dateField = DateText(*selected_, false);
  yearField = YearText(selected_->year);
  messageField = selected_->message;
  prompt_ = kPromptChange;
  return true;
}

std::string EditRemindersScreen::DeleteCaption() const {
  return allWithMessage ? "&Delete Reminders" : "&Delete Reminder";
}

bool EditRemindersScreen::Update() {
  status_.clear();
  if (!selected_) {
    ShowError(ctx_, Err("No reminder has been selected."));
    return false;
  }
  if (Trim(numberField) == std::to_string(selected_->slot) &&
      Trim(dateField) == DateText(*selected_, false) &&
      Trim(yearField) == YearText(selected_->year) && Trim(messageField) == selected_->message) {
    ctx_.sink().Show(kInformation, "Reminder has not been updated -- no need to save.");
    return false;
  }
  auto dm = ParseDayMonth(ctx_, dateField);
  if (!dm) return false;
  long long slot = 0;
  if (Trim(numberField).empty() || !ParseInt(numberField, slot)) {
    ShowError(ctx_, Err("You must select a reminder to edit."));
    return false;
  }
  const LocalDateTime now = ctx_.Now();
  int year = 0;
  long long y = 0;
  if (ToLower(Trim(yearField)) == "every") {
    year = kEveryYear;
  } else if (!ParseInt(yearField, y)) {
    ShowError(ctx_, Err("Invalid year value."));
    return false;
  } else if (y < now.year) {
    ShowError(ctx_, Err("Date specified must not be in the past."));
    return false;
  } else if (y > now.year + 1) {
    ShowError(ctx_, Err("Year value is greater than current year value + 1."));
    return false;
  } else {
    year = static_cast<int>(y);
  }
  auto day = CheckReminderDay(ctx_, dm->day, dm->month, year);
  if (!day) return false;
  auto text = CheckReminderMessage(ctx_, messageField);
  if (!text) return false;
  if (!ConfirmFieldsInDatedReminder(ctx_, *text, year)) return false;
  if (year != kEveryYear &&
      GregorianToJD(*day, dm->month, year) < GregorianToJD(now.day, now.month, now.year)) {
    ShowError(ctx_, Err("Date specified must not be in the past."));
    return false;
  }

  ReminderStore store(ctx_);
  if (!store.Open()) return false;
  if (!store.NoRecord() && !store.Check()) return false;
  if (!store.IsActive(static_cast<int>(slot))) {
    ShowError(ctx_, Err("Reminder has already been deleted."));
    return false;
  }
  // One commit: the old reminder never goes without the new one.
  store.Unlink(static_cast<int>(slot));
  store.Insert(dm->month * 100 + *day, year, *text);
  if (!store.Commit()) return false;
  Reminders(ctx_).remindersChanged = true;
  ClearSelection();
  Refresh();
  status_ = "Updated reminder has been successfully processed.";
  return true;
}

bool EditRemindersScreen::Delete() {
  status_.clear();
  if (!selected_) return false;
  if (!ctx_.sink().Ask(kWarning,
                       allWithMessage
                           ? "Are you sure that you wish to delete ALL reminders containing "
                             "selected message?"
                           : "Are you sure that you wish to delete selected reminder?"))
    return false;
  ReminderStore store(ctx_);
  if (!store.Open()) return false;
  if (store.NoRecord()) {
    ShowError(ctx_, Err("All personal reminders have already been deleted."));
    store.DropEmptyPersonFile();
    return false;
  }
  if (!store.Check()) return false;
  if (allWithMessage) {
    for (int s : store.ActiveSlots())
      if (store.Slot(s).Text() == selected_->message) store.Unlink(s);
  } else {
    long long slot = 0;
    if (!ParseInt(numberField, slot) || !store.IsActive(static_cast<int>(slot))) {
      ShowError(ctx_, Err("Reminder has already been deleted."));
      return false;
    }
    store.Unlink(static_cast<int>(slot));
  }
  if (!store.Commit()) return false;
  Reminders(ctx_).remindersChanged = true;
  ClearSelection();
  Refresh();
  status_ = allWithMessage
                ? "All reminders containing selected message have been successfully deleted."
                : "Reminder has been successfully deleted.";
  CheckReminderStore(ctx_);
  return true;
}

}  // namespace mc
