// Reminders by Month (form 4): one Gregorian month as a grid with the dates
// that carry reminders coloured; a click lists a date's reminders, a double
// click opens Add Reminders for that date.
#pragma once

#include "reminders/month_screen.h"
#include "ui/reminder_form.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QRadioButton;
class QTableWidget;
class QToolButton;

namespace mc::ui {

class RemindersByMonthForm : public ReminderForm {
  Q_OBJECT
 public:
  explicit RemindersByMonthForm(Desktop& desktop);

  QTableWidget* Grid() const { return grid_; }
  // The grid cell of a day of the shown month.
  QPoint CellOf(int day) const;
  void ClickDate(int day);
  void DoubleClickDate(int day);

 protected:
  void Activated() override;

 private:
  void ShowModel();
  int DayAt(int row, int column) const;

  RemindersByMonthScreen model_;
  QComboBox* month_;
  QToolButton *up_, *down_;
  QRadioButton *thisYear_, *lastYear_, *nextYear_;
  QTableWidget* grid_;
  QLabel* today_;
  QPlainTextEdit* information_;
};

}  // namespace mc::ui
