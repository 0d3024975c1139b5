#include "ui/date_conversions_form.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/output_box.h"

namespace mc::ui {

namespace {
QString Q(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}
}  // namespace

DateConversionsForm::DateConversionsForm(Desktop& desktop)
    : ScreenForm(desktop, 12, "Date Conversions"), model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);
  auto* inputs = new QGridLayout;
  inputs->addWidget(new QLabel("Calendar", this), 0, 0);
  calendar_ = new QComboBox(this);
  calendar_->setObjectName("cboCalendar");
  for (const auto& c : ConversionCalendars()) calendar_->addItem(Q(c.name));
  inputs->addWidget(calendar_, 0, 1);
  inputs->addWidget(new QLabel("Date", this), 1, 0);
  auto* dateRow = new QHBoxLayout;
  date_ = new QLineEdit(this);
  date_->setObjectName("txtDate");
  dateRow->addWidget(date_, 1);
  auto* down = new QToolButton(this);
  down->setObjectName("spnDown");
  down->setArrowType(Qt::DownArrow);
  down->setToolTip("Down = previous day; up = next day.");
  auto* up = new QToolButton(this);
  up->setObjectName("spnUp");
  up->setArrowType(Qt::UpArrow);
  up->setToolTip("Down = previous day; up = next day.");
  dateRow->addWidget(down);
  dateRow->addWidget(up);
  inputs->addLayout(dateRow, 1, 1);
  inputs->setColumnStretch(1, 1);
  layout->addLayout(inputs);
  prompt_ = new QLabel(this);
  prompt_->setObjectName("lblPrompt");
  prompt_->setWordWrap(true);
  layout->addWidget(prompt_);
  output_ = MakeOutputBox();
  layout->addWidget(output_, 1);
  auto* note = new QLabel("Press F11 for an enlarged view of the output.", this);
  layout->addWidget(note);
  connect(output_, &OutputBox::enlargeToggled, this, [note] {
    note->setText(note->text().contains("enlarged")
                      ? "Press F11 to return to the normal view of the output."
                      : "Press F11 for an enlarged view of the output.");
  });
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(MakeSaveButton(output_));
  buttons->addWidget(MakePrintButton(output_));
  buttons->addStretch();
  buttons->addWidget(MakeMainScreenButton());
  layout->addLayout(buttons);

  connect(date_, &QLineEdit::returnPressed, this, &DateConversionsForm::Convert);
  connect(down, &QToolButton::clicked, this, [this] { Step(-1); });
  connect(up, &QToolButton::clicked, this, [this] { Step(+1); });
  connect(calendar_, &QComboBox::currentTextChanged, this, &DateConversionsForm::CalendarChosen);
  calendar_->setCurrentText("Gregorian");
  CalendarChosen("Gregorian");
  resize(860, 720);
}

void DateConversionsForm::showEvent(QShowEvent* event) {
  ScreenForm::showEvent(event);
  if (model_.Output().empty() && date_->text().isEmpty()) Convert();
}

void DateConversionsForm::CalendarChosen(const QString& name) {
  model_.SetCalendar(name.toStdString());
  prompt_->setText(Q(model_.Prompt()).replace("\r\n", "\n"));
}

void DateConversionsForm::ShowModel() {
  date_->setText(Q(model_.dateText));
  output_->SetReport(model_.Output());
}

void DateConversionsForm::Convert() {
  model_.dateText = date_->text().toStdString();
  output_->SetReport("Please wait ...");
  output_->repaint();
  model_.ConvertDate();
  ShowModel();
}

void DateConversionsForm::Step(int delta) {
  model_.dateText = date_->text().toStdString();
  model_.StepDate(delta);
  ShowModel();
}

}  // namespace mc::ui
