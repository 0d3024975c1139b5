#include "ui/password_form.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace mc::ui {

namespace {

QLineEdit* PasswordBox(QWidget* parent, const char* name) {
  auto* b = new QLineEdit(parent);
  b->setObjectName(name);
  b->setEchoMode(QLineEdit::Password);
  b->setMaxLength(64);
  return b;
}

}  // namespace

PasswordForm::PasswordForm(Desktop& desktop)
    : ScreenForm(desktop, 63, "Password Manager"), model_(desktop.ctx(), ProgramUserSettings()) {
  auto* layout = new QVBoxLayout(this);
  state_ = new QLabel(this);
  state_->setObjectName("lblState");
  state_->setWordWrap(true);
  layout->addWidget(state_);

  auto* mode = new QGroupBox("Mode", this);
  auto* modeLayout = new QHBoxLayout(mode);
  save_ = new QRadioButton("Save", mode);
  save_->setObjectName("optSave");
  remove_ = new QRadioButton("Remove", mode);
  remove_->setObjectName("optRemove");
  save_->setChecked(true);
  modeLayout->addWidget(save_);
  modeLayout->addWidget(remove_);
  modeLayout->addStretch();
  layout->addWidget(mode);

  auto* grid = new QGridLayout;
  current_ = PasswordBox(this, "txtCurrent");
  next_ = PasswordBox(this, "txtNew");
  confirm_ = PasswordBox(this, "txtConfirm");
  nextLabel_ = new QLabel("New password (min 8 chars.)", this);
  confirmLabel_ = new QLabel("Confirm new password", this);
  grid->addWidget(new QLabel("Current password", this), 0, 0);
  grid->addWidget(current_, 0, 1);
  grid->addWidget(nextLabel_, 1, 0);
  grid->addWidget(next_, 1, 1);
  grid->addWidget(confirmLabel_, 2, 0);
  grid->addWidget(confirm_, 2, 1);
  grid->setColumnStretch(1, 1);
  layout->addLayout(grid);
  auto* rules = new QLabel(
      "A password has at least 8 characters, each a digit or a letter A to Z or a to z; upper "
      "and lower case count. It is asked for each time the program starts. There is no way to "
      "recover a forgotten password.",
      this);
  rules->setWordWrap(true);
  layout->addWidget(rules);
  layout->addStretch();

  auto* row = new QHBoxLayout;
  saveButton_ = new QPushButton("&Save", this);
  saveButton_->setObjectName("cmdSave");
  saveButton_->setToolTip("Save password.");
  removeButton_ = new QPushButton("&Remove", this);
  removeButton_->setObjectName("cmdRemove");
  removeButton_->setToolTip("Remove password.");
  row->addWidget(saveButton_);
  row->addWidget(removeButton_);
  row->addStretch();
  row->addWidget(MakeMainScreenButton());
  layout->addLayout(row);

  connect(save_, &QRadioButton::toggled, this, &PasswordForm::ShowMode);
  connect(saveButton_, &QPushButton::clicked, this, [this] {
    TakeInputs();
    model_.Save();
    ShowState();
  });
  connect(removeButton_, &QPushButton::clicked, this, [this] {
    TakeInputs();
    model_.Remove();
    ShowState();
  });
  ShowMode();
  ShowState();
  resize(480, 330);
}

void PasswordForm::TakeInputs() {
  model_.mode =
      save_->isChecked() ? PasswordManagerScreen::Mode::Save : PasswordManagerScreen::Mode::Remove;
  model_.currentPassword = current_->text().toStdString();
  model_.newPassword = next_->text().toStdString();
  model_.confirmPassword = confirm_->text().toStdString();
}

void PasswordForm::ShowMode() {
  const bool saving = save_->isChecked();
  for (QWidget* w : {static_cast<QWidget*>(next_), static_cast<QWidget*>(confirm_),
                     static_cast<QWidget*>(nextLabel_), static_cast<QWidget*>(confirmLabel_),
                     static_cast<QWidget*>(saveButton_)})
    w->setVisible(saving);
  removeButton_->setVisible(!saving);
}

void PasswordForm::ShowState() {
  // The inputs show what the model kept: cleared after a success.
  current_->setText(QString::fromStdString(model_.currentPassword));
  next_->setText(QString::fromStdString(model_.newPassword));
  confirm_->setText(QString::fromStdString(model_.confirmPassword));
  state_->setText(model_.Lock().IsSet()
                      ? "A start-up password is set. To change it, type the current password "
                        "and the new one twice."
                      : "No start-up password is set. To define one, type it twice below.");
}

}  // namespace mc::ui
