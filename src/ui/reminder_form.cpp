#include "ui/reminder_form.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QShowEvent>

#include "reminders/report.h"
#include "shell/main_screen.h"
#include "ui/main_window.h"

namespace mc::ui {

QString ToQ(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

ReminderForm::ReminderForm(Desktop& desktop, int formNumber, const QString& title)
    : ScreenForm(desktop, formNumber, title) {}

QHBoxLayout* ReminderForm::MakeDateAndClock() {
  auto box = [this](const char* name, int width) {
    auto* b = new QLineEdit(this);
    b->setObjectName(name);
    b->setReadOnly(true);
    b->setFocusPolicy(Qt::NoFocus);
    b->setFixedWidth(width);
    b->setAlignment(Qt::AlignCenter);
    return b;
  };
  date_ = box("txtDate", 130);
  clock_ = box("txtClock", 100);
  auto* row = new QHBoxLayout;
  row->addWidget(date_);
  row->addWidget(clock_);
  row->addStretch();
  return row;
}

void ReminderForm::Tick(const LocalDateTime& now) {
  if (!date_) return;
  const SettingsBlock& s = ctx().settings;
  const QString date = ToQ(DateBoxText(now, s.showYear == "Yes"));
  if (date_->text() != date) date_->setText(date);  // no flicker
  clock_->setText(ToQ(CurrentTimeText(s, now)));
}

void ReminderForm::showEvent(QShowEvent* event) {
  ScreenForm::showEvent(event);
  if (event->spontaneous()) return;  // back from minimised: nothing new
  if (!childOpen_) EnterReminderScreen(ctx());
  childOpen_ = false;
  Tick(ctx().Now());
  Activated();
}

void ReminderForm::hideEvent(QHideEvent* event) {
  ScreenForm::hideEvent(event);
  if (event->spontaneous()) return;
  if (auto* main = qobject_cast<MainWindow*>(desktop().MainWindow())) main->ReminderScreenLeft();
}

}  // namespace mc::ui
