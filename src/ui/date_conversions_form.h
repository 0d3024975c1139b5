// The Date Conversions screen (form 12): a date in any calendar of the list,
// converted into all the others.
#pragma once

#include "calendars/date_conversions.h"
#include "ui/screen_form.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace mc::ui {

class DateConversionsForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit DateConversionsForm(Desktop& desktop);

  DateConversionsScreen& Model() { return model_; }
  OutputBox* Output() const { return output_; }

  // Enter in the date box, and the spin control.
  void Convert();
  void Step(int delta);

 protected:
  // The first time the screen opens it shows today's conversions.
  void showEvent(QShowEvent* event) override;

 private:
  void CalendarChosen(const QString& name);
  void ShowModel();

  DateConversionsScreen model_;
  QLineEdit* date_;
  QComboBox* calendar_;
  QLabel* prompt_;
  OutputBox* output_;
};

}  // namespace mc::ui
