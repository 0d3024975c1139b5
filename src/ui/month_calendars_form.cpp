#include "ui/month_calendars_form.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/print_settings.h"
#include "ui/fonts.h"

namespace mc::ui {

namespace {

QString ToQ(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

// A text with CR LF line ends as a text box shows it.
QString Lines(const std::string& text) {
  QString q = ToQ(text);
  q.replace("\r\n", "\n");
  return q;
}

// The fixed-pitch font the print settings name for tables, at the display size.
QFont GridFont(Context& ctx) {
  QFont f = DisplayFixedFont(ctx.settings, 0);
  f.setFamily(ToQ(LoadPrintSettings(ctx).bodyFixedFontName));
  f.setStyleHint(QFont::Monospace);
  f.setFixedPitch(true);
  return f;
}

QToolButton* SpinButton(QWidget* parent, const char* name, Qt::ArrowType arrow,
                        std::string_view tip) {
  auto* b = new QToolButton(parent);
  b->setObjectName(name);
  b->setArrowType(arrow);
  b->setToolTip(ToQ(tip));
  b->setFixedSize(22, 13);
  b->setAutoRepeat(true);
  return b;
}

QVBoxLayout* SpinPair(QToolButton* up, QToolButton* down) {
  auto* box = new QVBoxLayout;
  box->setSpacing(0);
  box->addWidget(up);
  box->addWidget(down);
  return box;
}

QPlainTextEdit* TextBox(QWidget* parent, const char* name, const QFont& font, int columns,
                        int lines) {
  auto* box = new QPlainTextEdit(parent);
  box->setObjectName(name);
  box->setReadOnly(true);
  box->setLineWrapMode(QPlainTextEdit::NoWrap);
  box->setFont(font);
  box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const QFontMetrics fm(font);
  box->setFixedSize(fm.horizontalAdvance(QString(columns, '0')) + 16,
                    fm.lineSpacing() * lines + 12);
  return box;
}

}  // namespace

MonthCalendarsForm::MonthCalendarsForm(Desktop& desktop)
    : ScreenForm(desktop, 13, ToQ(MonthCalendarsScreen::kTitle)), model_(desktop.ctx()) {
  const QFont gridFont = GridFont(ctx());

  calendar_ = new QComboBox(this);
  calendar_->setObjectName("cboCalendar");
  for (const auto& e : MonthCalendarsScreen::Entries()) calendar_->addItem(ToQ(e.caption));
  calendar_->setCurrentIndex(-1);
  calendar_->setMaxVisibleItems(15);
  month_ = new QComboBox(this);
  month_->setObjectName("cboMonth");
  month_->setMinimumContentsLength(16);
  month_->setMaxVisibleItems(13);
  year_ = new QLineEdit(this);
  year_->setObjectName("txtYear");
  year_->setToolTip(ToQ(MonthCalendarsScreen::kYearTip));
  year_->setMaxLength(6);
  year_->setFixedWidth(QFontMetrics(year_->font()).horizontalAdvance("0000000") + 12);
  monthUp_ = SpinButton(this, "cmdMonthUp", Qt::UpArrow, MonthCalendarsScreen::kMonthSpinTip);
  monthDown_ = SpinButton(this, "cmdMonthDown", Qt::DownArrow, MonthCalendarsScreen::kMonthSpinTip);
  yearUp_ = SpinButton(this, "cmdYearUp", Qt::UpArrow, MonthCalendarsScreen::kYearSpinTip);
  yearDown_ = SpinButton(this, "cmdYearDown", Qt::DownArrow, MonthCalendarsScreen::kYearSpinTip);

  grid_ = TextBox(this, "txtGrid", gridFont, 24, 10);
  information_ = TextBox(this, "txtInformation", font(), 44, 2);
  information_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  cycle_ = TextBox(this, "txtCycle", font(), 44, 2);
  status_ = new QLabel(this);
  status_->setObjectName("lblStatus");
  status_->setFrameShape(QFrame::StyledPanel);
  status_->setMinimumWidth(400);

  auto* print = new QPushButton("&Print", this);
  print->setObjectName("cmdPrint");
  print->setToolTip(ToQ(MonthCalendarsScreen::kPrintTip));
  main_ = MakeMainScreenButton();

  auto* inputs = new QGridLayout;
  auto label = [this](const char* text, const char* name) {
    auto* l = new QLabel(text, this);
    l->setObjectName(name);
    return l;
  };
  inputs->addWidget(label("Calendar", "lblCalendar"), 0, 0);
  inputs->addWidget(calendar_, 0, 1, 1, 2);
  inputs->addWidget(label("Month", "lblMonth"), 1, 0);
  inputs->addWidget(month_, 1, 1);
  inputs->addLayout(SpinPair(monthUp_, monthDown_), 1, 2, Qt::AlignLeft);
  inputs->addWidget(label("Year", "lblYear"), 2, 0);
  inputs->addWidget(year_, 2, 1, Qt::AlignLeft);
  inputs->addLayout(SpinPair(yearUp_, yearDown_), 2, 2, Qt::AlignLeft);
  inputs->addWidget(label("Information", "lblInformation"), 3, 0, 1, 3);
  inputs->addWidget(information_, 4, 0, 1, 3);
  inputs->addWidget(cycle_, 5, 0, 1, 3);
  inputs->setRowStretch(6, 1);

  auto* body = new QHBoxLayout;
  body->addLayout(inputs);
  body->addSpacing(12);
  body->addWidget(grid_, 0, Qt::AlignTop);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(print);
  buttons->addStretch();
  buttons->addWidget(main_);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(body);
  layout->addWidget(status_);
  layout->addLayout(buttons);

  connect(calendar_, &QComboBox::activated, this,
          [this](int i) { Run([this, i] { model_.SelectCalendar(i); }); });
  connect(month_, &QComboBox::activated, this,
          [this](int i) { Run([this, i] { model_.SelectMonth(i); }); });
  connect(year_, &QLineEdit::returnPressed, this,
          [this] { Run([this] { model_.EnterYear(year_->text().toStdString()); }); });
  connect(monthUp_, &QToolButton::clicked, this, [this] { Run([this] { model_.StepMonth(1); }); });
  connect(monthDown_, &QToolButton::clicked, this,
          [this] { Run([this] { model_.StepMonth(-1); }); });
  connect(yearUp_, &QToolButton::clicked, this, [this] { Run([this] { model_.StepYear(1); }); });
  connect(yearDown_, &QToolButton::clicked, this, [this] { Run([this] { model_.StepYear(-1); }); });
  connect(print, &QPushButton::clicked, this,
          [this] { this->desktop().PrintOutput(this, model_.GridText()); });

  // Ctrl++ and Ctrl+- reach the form from whichever box has the focus.
  for (QWidget* w :
       std::initializer_list<QWidget*>{calendar_, month_, year_, monthUp_, monthDown_, yearUp_,
                                       yearDown_, grid_, information_, cycle_, print, main_})
    w->installEventFilter(this);
  installEventFilter(this);

  model_.onPleaseWait = [this] {
    status_->setText(ToQ(model_.Status()));
    if (!waiting_) QApplication::setOverrideCursor(Qt::WaitCursor);
    waiting_ = true;
    status_->repaint();
  };
  Run([this] { model_.Load(); });
  adjustSize();
}

template <class F>
void MonthCalendarsForm::Run(F&& command) {
  command();
  if (waiting_) {
    QApplication::restoreOverrideCursor();
    waiting_ = false;
  }
  ShowModel();
}

void MonthCalendarsForm::ShowModel() {
  {
    QSignalBlocker b(calendar_);
    calendar_->setCurrentIndex(model_.CalendarIndex());
  }
  QStringList months;
  for (const std::string& m : model_.MonthList()) months << ToQ(m);
  QStringList shown;
  for (int i = 0; i < month_->count(); ++i) shown << month_->itemText(i);
  {
    QSignalBlocker b(month_);
    if (months != shown) {
      month_->clear();
      month_->addItems(months);
    }
    month_->setCurrentIndex(model_.MonthIndex());
  }
  year_->setText(ToQ(model_.YearText()));
  grid_->setPlainText(Lines(model_.GridText()));
  information_->setPlainText(ToQ(model_.Information()));
  cycle_->setPlainText(Lines(model_.CycleText()));
  cycle_->setVisible(!model_.CycleText().empty());
  status_->setText(ToQ(model_.Status()));
  if (model_.FocusMainScreen()) main_->setFocus();
}

bool MonthCalendarsForm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn && watched == year_ && model_.HasCalendar()) {
    status_->setText(ToQ(model_.YearHint()));
  } else if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    const bool plus = key->key() == Qt::Key_Plus;
    if ((key->modifiers() & Qt::ControlModifier) && (plus || key->key() == Qt::Key_Minus)) {
      using Focus = MonthCalendarsScreen::Focus;
      const Focus focus = watched == year_    ? Focus::Year
                          : watched == month_ ? Focus::Month
                                              : Focus::Other;
      Run([this, plus, focus] { model_.CtrlKey(plus, focus); });
      return true;
    }
  }
  return ScreenForm::eventFilter(watched, event);
}

}  // namespace mc::ui
