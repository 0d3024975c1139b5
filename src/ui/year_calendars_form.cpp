#include "ui/year_calendars_form.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/print_settings.h"
#include "shell/save_output.h"
#include "ui/fonts.h"
#include "ui/output_box.h"

namespace mc::ui {

namespace {

QString ToQ(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

QToolButton* SpinButton(QWidget* parent, const char* name, Qt::ArrowType arrow) {
  auto* b = new QToolButton(parent);
  b->setObjectName(name);
  b->setArrowType(arrow);
  b->setToolTip(ToQ(YearCalendarsScreen::kYearSpinTip));
  b->setFixedSize(22, 13);
  b->setAutoRepeat(true);
  return b;
}

}  // namespace

YearCalendarsForm::YearCalendarsForm(Desktop& desktop)
    : ScreenForm(desktop, 11, ToQ(YearCalendarsScreen::kTitle)), model_(desktop.ctx()) {
  calendar_ = new QComboBox(this);
  calendar_->setObjectName("cboCalendar");
  for (const auto& e : YearCalendarsScreen::Entries()) calendar_->addItem(ToQ(e.caption));
  calendar_->setCurrentIndex(-1);
  calendar_->setMaxVisibleItems(16);
  year_ = new QLineEdit(this);
  year_->setObjectName("txtYear");
  year_->setMaxLength(8);
  year_->setFixedWidth(QFontMetrics(year_->font()).horizontalAdvance("000000000") + 12);
  yearUp_ = SpinButton(this, "cmdYearUp", Qt::UpArrow);
  yearDown_ = SpinButton(this, "cmdYearDown", Qt::DownArrow);
  hint_ = new QLabel(this);
  hint_->setObjectName("lblHint");
  hint_->setWordWrap(true);

  output_ = MakeOutputBox();
  output_->setToolTip(ToQ(YearCalendarsScreen::kOutputTip));
  // The page keeps its columns in the fixed-pitch font of the print settings.
  QFont font = output_->font();
  font.setFamily(ToQ(LoadPrintSettings(ctx()).bodyFixedFontName));
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  output_->setFont(font);

  auto* save = new QPushButton("&Save", this);
  save->setObjectName("cmdSave");
  save->setToolTip(ToQ(YearCalendarsScreen::kSaveTip));
  auto* print = new QPushButton("&Print", this);
  print->setObjectName("cmdPrint");
  print->setToolTip(ToQ(YearCalendarsScreen::kPrintTip));

  auto* inputs = new QHBoxLayout;
  auto* calendarLabel = new QLabel("Calendar", this);
  calendarLabel->setObjectName("lblCalendar");
  auto* yearLabel = new QLabel("Year", this);
  yearLabel->setObjectName("lblYear");
  auto* spin = new QVBoxLayout;
  spin->setSpacing(0);
  spin->addWidget(yearUp_);
  spin->addWidget(yearDown_);
  inputs->addWidget(calendarLabel);
  inputs->addWidget(calendar_);
  inputs->addSpacing(16);
  inputs->addWidget(yearLabel);
  inputs->addWidget(year_);
  inputs->addLayout(spin);
  inputs->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(save);
  buttons->addWidget(print);
  buttons->addStretch();
  buttons->addWidget(MakeMainScreenButton());

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(inputs);
  layout->addWidget(hint_);
  layout->addWidget(output_, 1);
  layout->addLayout(buttons);

  connect(calendar_, &QComboBox::activated, this,
          [this](int i) { Run([this, i] { model_.SelectCalendar(i); }); });
  connect(year_, &QLineEdit::returnPressed, this, [this] {
    Run([this] {
      model_.SetYearText(year_->text().toStdString());
      model_.Enter();
    });
  });
  connect(yearUp_, &QToolButton::clicked, this, [this] { Run([this] { model_.Spin(1); }); });
  connect(yearDown_, &QToolButton::clicked, this, [this] { Run([this] { model_.Spin(-1); }); });
  connect(save, &QPushButton::clicked, this,
          [this] { this->desktop().SaveOutput(this, model_.Output(), SaveStyle::Screen); });
  connect(print, &QPushButton::clicked, this, &YearCalendarsForm::Print);

  model_.onPleaseWait = [this] {
    output_->SetReport(model_.Output());
    if (!waiting_) QApplication::setOverrideCursor(Qt::WaitCursor);
    waiting_ = true;
    output_->repaint();
  };
  Run([this] { model_.Load(); });
  resize(760, 640);
}

void YearCalendarsForm::Print() {
  if (model_.Output().empty() || !model_.ConfirmPrint()) return;
  desktop().PrintOutput(this, model_.Output());
}

template <class F>
void YearCalendarsForm::Run(F&& command) {
  command();
  if (waiting_) {
    QApplication::restoreOverrideCursor();
    waiting_ = false;
  }
  ShowModel();
}

void YearCalendarsForm::ShowModel() {
  {
    QSignalBlocker b(calendar_);
    calendar_->setCurrentIndex(model_.CalendarIndex());
  }
  year_->setText(ToQ(model_.YearText()));
  hint_->setText(ToQ(model_.Hint()));
  if (output_->Report() != model_.Output()) output_->SetReport(model_.Output());
}

}  // namespace mc::ui
