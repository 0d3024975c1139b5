// What the reminder screens share: the date and clock boxes that the timer
// keeps while the screen is on top, and the reminder duties of opening and
// leaving a screen (when the store changed, the main screen's list is rebuilt
// as the screen is left).
#pragma once

#include <QString>

#include "ui/screen_form.h"

class QHBoxLayout;
class QLineEdit;

namespace mc::ui {

class ReminderForm : public ScreenForm {
  Q_OBJECT
 public:
  ReminderForm(Desktop& desktop, int formNumber, const QString& title);

  // The date and clock boxes, when the screen has them.
  void Tick(const LocalDateTime& now) override;

 protected:
  // The date and clock boxes in a row of their own.
  QHBoxLayout* MakeDateAndClock();
  // Each time the screen comes to the front: refill from the store.
  virtual void Activated() {}
  // A screen that opens another reminder screen over itself says so, so that
  // coming back isn't taken for a new opening.
  void OpeningChild() { childOpen_ = true; }

  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QLineEdit* date_ = nullptr;
  QLineEdit* clock_ = nullptr;
  bool childOpen_ = false;
};

// Program text (UTF-8) for a widget.
QString ToQ(std::string_view s);

}  // namespace mc::ui
