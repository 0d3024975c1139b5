// Year Calendars (form 11): the calendar list and the year with its spin, the
// hint line, and the year's page in the output box, to be saved, printed or
// enlarged (F11).
#pragma once

#include "ui/screen_form.h"
#include "views/year_calendars.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace mc::ui {

class OutputBox;

class YearCalendarsForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit YearCalendarsForm(Desktop& desktop);

  YearCalendarsScreen& Model() { return model_; }
  // "&Print": the Pawukon asks first.
  void Print();

 private:
  template <class F>
  void Run(F&& command);
  void ShowModel();

  YearCalendarsScreen model_;
  QComboBox* calendar_;
  QLineEdit* year_;
  QToolButton *yearUp_, *yearDown_;
  QLabel* hint_;
  OutputBox* output_;
  bool waiting_ = false;
};

}  // namespace mc::ui
