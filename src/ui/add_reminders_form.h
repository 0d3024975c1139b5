// Add Reminders (form 2): the message, the three types of entry with their
// inputs, "&Save Reminder(s)" and the information box, over the screen model.
#pragma once

#include <QClipboard>

#include "reminders/add_screen.h"
#include "ui/reminder_form.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QPushButton;
class QRadioButton;

namespace mc::ui {

class MessageEdit;

class AddRemindersForm : public ReminderForm {
  Q_OBJECT
 public:
  explicit AddRemindersForm(Desktop& desktop);

  // A date chosen on Reminders by Month: Type 1 with "d/m" and the year option.
  void PresetDate(int day, int month, YearOption option);
  // "&Save Reminder(s)".
  void Save();

  AddRemindersScreen& Model() { return model_; }

 protected:
  void Activated() override;

 private:
  void ShowModel();
  void ShowEnabled();
  void Paste(QClipboard::Mode mode);

  AddRemindersScreen model_;
  MessageEdit* message_;
  QLineEdit* count_;
  QRadioButton* types_[3];
  QGroupBox *type1_, *type2_, *type3_, *span_;
  QLineEdit* dayMonth_;
  QRadioButton *thisYear_, *nextYear_, *everyYear_;
  QCheckBox* series_;
  QLineEdit* seriesDays_;
  QComboBox *seriesEndMonth_, *seriesEndYear_;
  QComboBox *ordinal_, *weekday_, *type3Day_;
  QComboBox *fromMonth_, *fromYear_, *toMonth_, *toYear_;
  QLineEdit* information_;
};

}  // namespace mc::ui
