// The Password Manager (form 63): define, change or remove the start-up
// password.
#pragma once

#include "shell/password.h"
#include "ui/screen_form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace mc::ui {

class PasswordForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit PasswordForm(Desktop& desktop);

 private:
  void ShowMode();
  void ShowState();
  void TakeInputs();

  PasswordManagerScreen model_;
  QRadioButton *save_, *remove_;
  QLineEdit *current_, *next_, *confirm_;
  QLabel *nextLabel_, *confirmLabel_, *state_;
  QPushButton *saveButton_, *removeButton_;
};

}  // namespace mc::ui
