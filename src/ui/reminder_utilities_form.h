// Reminder Utilities (form 21): the two reminder switches, the field order
// and separator of the text files, and one command for the chosen action:
// print the slot listing, compact, import, export.
#pragma once

#include <QString>
#include <functional>

#include "reminders/utilities_screen.h"
#include "ui/reminder_form.h"

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace mc::ui {

class ReminderUtilitiesForm : public ReminderForm {
  Q_OBJECT
 public:
  explicit ReminderUtilitiesForm(Desktop& desktop);

  // The command: runs the chosen action.
  void Execute();

  // For tests: answers the import and export file dialogs instead of asking.
  // Given whether it's an import and the file offered; empty for a cancel.
  std::function<QString(bool import, const QString& offered)> fileChooser;

 protected:
  void Activated() override;

 private:
  QString ChooseFile(bool import);
  void ShowModel();

  ReminderUtilitiesScreen model_;
  QCheckBox *audio_, *fields_;
  QComboBox *order_, *separator_;
  QLineEdit* userSeparator_;
  QRadioButton* actions_[4];
};

}  // namespace mc::ui
