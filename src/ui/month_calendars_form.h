// Month Calendars (form 13): the calendar, month and year inputs with their
// spins, the month grid in the fixed-pitch font of the print settings, the
// month's start, the Chinese/Vietnamese cycle box and the status line.
#pragma once

#include "ui/screen_form.h"
#include "views/month_calendars.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace mc::ui {

class MonthCalendarsForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit MonthCalendarsForm(Desktop& desktop);

  MonthCalendarsScreen& Model() { return model_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Runs a command of the model with the wait cursor ready for a long build,
  // then shows the model.
  template <class F>
  void Run(F&& command);
  void ShowModel();

  MonthCalendarsScreen model_;
  QComboBox* calendar_;
  QComboBox* month_;
  QLineEdit* year_;
  QToolButton *monthUp_, *monthDown_, *yearUp_, *yearDown_;
  QPlainTextEdit* grid_;
  QPlainTextEdit* information_;
  QPlainTextEdit* cycle_;
  QLabel* status_;
  QPushButton* main_;
  bool waiting_ = false;
};

}  // namespace mc::ui
