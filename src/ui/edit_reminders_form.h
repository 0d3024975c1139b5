// Edit Reminders (form 3): the listing of every reminder by its number, the
// fields of the one clicked, and the update and delete commands.
#pragma once

#include "reminders/edit_screen.h"
#include "ui/reminder_form.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace mc::ui {

class EditRemindersForm : public ReminderForm {
  Q_OBJECT
 public:
  explicit EditRemindersForm(Desktop& desktop);

  OutputBox* Listing() const { return listing_; }
  // A left click on line `line` (0-based) of the listing.
  void SelectLine(int line);
  // "&Update Reminder" and "&Delete Reminder(s)".
  void Update();
  void Delete();

 protected:
  void Activated() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowListing();
  void ShowFields();

  EditRemindersScreen model_;
  OutputBox* listing_;
  QLabel* prompt_;
  QLineEdit *numberBox_, *dateBox_, *yearBox_, *messageBox_;
  QCheckBox* all_;
  QPushButton* delete_;
  QLineEdit* status_;
};

}  // namespace mc::ui
