// Tip of the Day (form 42): the next tip each time it comes up, and whether
// tips show at start.
#pragma once

#include "shell/tips.h"
#include "ui/screen_form.h"

class QCheckBox;
class QLabel;

namespace mc::ui {

class TipForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit TipForm(Desktop& desktop);
  // "&Next Tip".
  void ShowNextTip();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  TipOfTheDay model_;
  QLabel* tip_;
  QLabel* number_;
  QCheckBox* showAtStart_;
  bool loaded_ = false;
};

}  // namespace mc::ui
