#include "ui/add_reminders_form.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <functional>

#include "calendars/names.h"

namespace mc::ui {

// The message box: every way of pasting (keys, menu, middle button) goes
// through the screen, which cuts the text to the field.
class MessageEdit : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;
  std::function<void(QClipboard::Mode)> onPaste;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Paste) && !isReadOnly()) {
      onPaste(QClipboard::Clipboard);
      return;
    }
    QLineEdit::keyPressEvent(event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
      deselect();
      setCursorPosition(cursorPositionAt(event->position().toPoint()));
      onPaste(QClipboard::Selection);
      return;
    }
    QLineEdit::mouseReleaseEvent(event);
  }
  void contextMenuEvent(QContextMenuEvent* event) override {
    QMenu* menu = createStandardContextMenu();
    for (QAction* a : menu->actions()) {
      // Named in newer Qt; known by its caption in older.
      if (a->objectName() == "edit-paste" ||
          a->text().section('\t', 0, 0) == QLineEdit::tr("&Paste")) {
        a->disconnect();
        connect(a, &QAction::triggered, this, [this] { onPaste(QClipboard::Clipboard); });
      }
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
  }
};

namespace {

QComboBox* Combo(QWidget* parent, const char* name) {
  auto* c = new QComboBox(parent);
  c->setObjectName(name);
  return c;
}

QComboBox* MonthCombo(QWidget* parent, const char* name) {
  QComboBox* c = Combo(parent, name);
  for (int m = 1; m <= 12; ++m) c->addItem(ToQ(kMonthNames[static_cast<std::size_t>(m)]));
  return c;
}

QComboBox* ListCombo(QWidget* parent, const char* name, const std::vector<std::string>& items) {
  QComboBox* c = Combo(parent, name);
  for (const auto& i : items) c->addItem(ToQ(i));
  c->setMaxVisibleItems(12);
  return c;
}

QLabel* Label(QWidget* parent, const char* text) {
  return new QLabel(text, parent);
}

void ShowYears(QComboBox* c, const std::vector<int>& years, int current) {
  QSignalBlocker block(c);
  c->clear();
  for (int y : years) c->addItem(QString::number(y));
  int i = c->findText(QString::number(current));
  if (i < 0) {
    c->addItem(QString::number(current));
    i = c->count() - 1;
  }
  c->setCurrentIndex(i);
}

void ShowText(QComboBox* c, const std::string& text) {
  QSignalBlocker block(c);
  c->setCurrentIndex(std::max(0, c->findText(ToQ(text))));
}

void ShowMonth(QComboBox* c, int month) {
  QSignalBlocker block(c);
  c->setCurrentIndex(month - 1);
}

}  // namespace

AddRemindersForm::AddRemindersForm(Desktop& desktop)
    : ReminderForm(desktop, 2, "Add Reminders"), model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(MakeDateAndClock());

  // The message and its live count.
  auto* messageRow = new QGridLayout;
  message_ = new MessageEdit(this);
  message_->setObjectName("txtMessage");
  message_->onPaste = [this](QClipboard::Mode mode) { Paste(mode); };
  count_ = new QLineEdit(this);
  count_->setObjectName("txtCount");
  count_->setReadOnly(true);
  count_->setFocusPolicy(Qt::NoFocus);
  count_->setFixedWidth(44);
  count_->setAlignment(Qt::AlignCenter);
  messageRow->addWidget(Label(this, "Message (max 60 chars.)"), 0, 0);
  messageRow->addWidget(message_, 0, 1);
  auto* countRow = new QHBoxLayout;
  countRow->addStretch();
  countRow->addWidget(Label(this, "Message character count"));
  countRow->addWidget(count_);
  messageRow->addLayout(countRow, 1, 1);
  layout->addLayout(messageRow);

  // The three types, each with its own inputs.
  auto* types = new QGridLayout;
  for (int t = 0; t < 3; ++t) {
    types_[t] = new QRadioButton(QString("Type %1").arg(t + 1), this);
    types_[t]->setObjectName(QString("optType%1").arg(t + 1));
    types_[t]->setToolTip(QString("Select for a Type %1 reminder.").arg(t + 1));
    connect(types_[t], &QRadioButton::toggled, this, [this, t](bool on) {
      if (!on) return;
      model_.ChooseType(t + 1);
      ShowEnabled();
    });
  }

  type1_ = new QGroupBox(this);
  type1_->setObjectName("fraType1");
  auto* g1 = new QGridLayout(type1_);
  dayMonth_ = new QLineEdit(type1_);
  dayMonth_->setObjectName("txtDayMonth");
  dayMonth_->setToolTip("For March 21, for example, enter 21/3 here.");
  dayMonth_->setFixedWidth(70);
  thisYear_ = new QRadioButton("This year", type1_);
  thisYear_->setObjectName("optThisYear");
  nextYear_ = new QRadioButton("Next year", type1_);
  nextYear_->setObjectName("optNextYear");
  everyYear_ = new QRadioButton("Every year", type1_);
  everyYear_->setObjectName("optEveryYear");
  auto* dateRow = new QHBoxLayout;
  dateRow->addWidget(Label(type1_, "Day and month (d/m)"));
  dateRow->addWidget(dayMonth_);
  dateRow->addSpacing(16);
  dateRow->addWidget(thisYear_);
  dateRow->addWidget(nextYear_);
  dateRow->addWidget(everyYear_);
  dateRow->addStretch();
  g1->addLayout(dateRow, 0, 0);
  series_ = new QCheckBox("Check to define a series of Type 1 reminders.", type1_);
  series_->setObjectName("chkSeries");
  g1->addWidget(series_, 1, 0);
  seriesDays_ = new QLineEdit(type1_);
  seriesDays_->setObjectName("txtSeriesDays");
  seriesDays_->setFixedWidth(50);
  seriesEndMonth_ = MonthCombo(type1_, "cboSeriesEndMonth");
  seriesEndYear_ = Combo(type1_, "cboSeriesEndYear");
  auto* seriesRow = new QHBoxLayout;
  seriesRow->addSpacing(24);
  seriesRow->addWidget(Label(type1_, "and every"));
  seriesRow->addWidget(seriesDays_);
  seriesRow->addWidget(Label(type1_, "days"));
  seriesRow->addSpacing(16);
  seriesRow->addWidget(Label(type1_, "to the end of:"));
  seriesRow->addWidget(seriesEndMonth_);
  seriesRow->addWidget(seriesEndYear_);
  seriesRow->addStretch();
  g1->addLayout(seriesRow, 2, 0);

  type2_ = new QGroupBox(this);
  type2_->setObjectName("fraType2");
  auto* g2 = new QHBoxLayout(type2_);
  ordinal_ = ListCombo(type2_, "cboOrdinal", AddRemindersScreen::OrdinalList());
  weekday_ = ListCombo(type2_, "cboWeekday", AddRemindersScreen::WeekdayList());
  g2->addWidget(ordinal_);
  g2->addWidget(weekday_);
  g2->addWidget(Label(type2_, "of each month"));
  g2->addStretch();

  type3_ = new QGroupBox(this);
  type3_->setObjectName("fraType3");
  auto* g3 = new QHBoxLayout(type3_);
  type3Day_ = ListCombo(type3_, "cboType3Day", AddRemindersScreen::Type3DayList());
  g3->addWidget(Label(type3_, "Day"));
  g3->addWidget(type3Day_);
  g3->addWidget(Label(type3_, "of each month"));
  g3->addStretch();

  span_ = new QGroupBox("Specify for both Type 2 and Type3", this);
  span_->setObjectName("fraSpan");
  auto* gs = new QHBoxLayout(span_);
  fromMonth_ = MonthCombo(span_, "cboFromMonth");
  fromYear_ = Combo(span_, "cboFromYear");
  toMonth_ = MonthCombo(span_, "cboToMonth");
  toYear_ = Combo(span_, "cboToYear");
  gs->addWidget(Label(span_, "From:"));
  gs->addWidget(fromMonth_);
  gs->addWidget(fromYear_);
  gs->addSpacing(16);
  gs->addWidget(Label(span_, "to the end of:"));
  gs->addWidget(toMonth_);
  gs->addWidget(toYear_);
  gs->addStretch();

  types->addWidget(types_[0], 0, 0, Qt::AlignTop);
  types->addWidget(type1_, 0, 1);
  types->addWidget(types_[1], 1, 0, Qt::AlignTop);
  types->addWidget(type2_, 1, 1);
  types->addWidget(types_[2], 2, 0, Qt::AlignTop);
  types->addWidget(type3_, 2, 1);
  types->addWidget(span_, 3, 1);
  types->setColumnStretch(1, 1);
  layout->addLayout(types);

  information_ = new QLineEdit(this);
  information_->setObjectName("txtInformation");
  information_->setReadOnly(true);
  information_->setFocusPolicy(Qt::NoFocus);
  layout->addWidget(information_);

  auto* buttons = new QHBoxLayout;
  auto* save = new QPushButton("&Save Reminder(s)", this);
  save->setObjectName("cmdSave");
  buttons->addWidget(save);
  buttons->addStretch();
  buttons->addWidget(MakePreviousScreenButton());
  layout->addLayout(buttons);
  layout->addStretch();

  // Every input writes straight into the model.
  connect(message_, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_.message = text.toStdString();
    count_->setText(ToQ(model_.MessageCount()));
  });
  connect(dayMonth_, &QLineEdit::textChanged, this,
          [this](const QString& text) { model_.dayMonth = text.toStdString(); });
  auto year = [this](QRadioButton* b, YearOption option) {
    connect(b, &QRadioButton::toggled, this, [this, option](bool on) {
      if (on) model_.yearOption = option;
    });
  };
  year(thisYear_, YearOption::ThisYear);
  year(nextYear_, YearOption::NextYear);
  year(everyYear_, YearOption::EveryYear);
  connect(series_, &QCheckBox::toggled, this, [this](bool on) {
    model_.SetSeries(on);
    ShowModel();
  });
  connect(seriesDays_, &QLineEdit::textChanged, this,
          [this](const QString& text) { model_.seriesDays = text.toStdString(); });
  auto month = [this](QComboBox* c, int& field) {
    connect(c, &QComboBox::currentIndexChanged, this, [&field](int i) { field = i + 1; });
  };
  auto yearOf = [this](QComboBox* c, int& field) {
    connect(c, &QComboBox::currentTextChanged, this,
            [&field](const QString& text) { field = text.toInt(); });
  };
  auto text = [this](QComboBox* c, std::string& field) {
    connect(c, &QComboBox::currentTextChanged, this,
            [&field](const QString& t) { field = t.toStdString(); });
  };
  month(seriesEndMonth_, model_.seriesEndMonth);
  yearOf(seriesEndYear_, model_.seriesEndYear);
  month(fromMonth_, model_.fromMonth);
  yearOf(fromYear_, model_.fromYear);
  month(toMonth_, model_.toMonth);
  yearOf(toYear_, model_.toYear);
  text(ordinal_, model_.ordinal);
  text(weekday_, model_.weekday);
  text(type3Day_, model_.type3Day);
  connect(save, &QPushButton::clicked, this, &AddRemindersForm::Save);

  ShowModel();
  resize(720, 0);
}

void AddRemindersForm::Activated() {
  ShowModel();  // the year lists follow the present year
}

void AddRemindersForm::ShowModel() {
  {
    QSignalBlocker b(message_);
    message_->setText(ToQ(model_.message));
  }
  count_->setText(ToQ(model_.MessageCount()));
  for (int t = 0; t < 3; ++t) {
    QSignalBlocker b(types_[t]);
    types_[t]->setChecked(model_.type == t + 1);
  }
  {
    QSignalBlocker b(dayMonth_);
    dayMonth_->setText(ToQ(model_.dayMonth));
  }
  for (auto [button, option] : {std::pair{thisYear_, YearOption::ThisYear},
                                {nextYear_, YearOption::NextYear},
                                {everyYear_, YearOption::EveryYear}}) {
    QSignalBlocker b(button);
    button->setChecked(model_.yearOption == option);
  }
  {
    QSignalBlocker b(series_);
    series_->setChecked(model_.series);
  }
  {
    QSignalBlocker b(seriesDays_);
    seriesDays_->setText(ToQ(model_.seriesDays));
  }
  const std::vector<int> years = model_.YearList();
  ShowMonth(seriesEndMonth_, model_.seriesEndMonth);
  ShowYears(seriesEndYear_, years, model_.seriesEndYear);
  ShowText(ordinal_, model_.ordinal);
  ShowText(weekday_, model_.weekday);
  ShowText(type3Day_, model_.type3Day);
  ShowMonth(fromMonth_, model_.fromMonth);
  ShowYears(fromYear_, years, model_.fromYear);
  ShowMonth(toMonth_, model_.toMonth);
  ShowYears(toYear_, years, model_.toYear);
  ShowEnabled();
}

void AddRemindersForm::ShowEnabled() {
  type1_->setEnabled(model_.Type1Enabled());
  type2_->setEnabled(model_.Type2Enabled());
  type3_->setEnabled(model_.Type3Enabled());
  span_->setEnabled(model_.SpanEnabled());
  const bool series = model_.SeriesInputsEnabled();
  seriesDays_->setEnabled(series);
  seriesEndMonth_->setEnabled(series);
  seriesEndYear_->setEnabled(series);
}

void AddRemindersForm::PresetDate(int day, int month, YearOption option) {
  model_.PresetDate(day, month, option);
  ShowModel();
  information_->clear();
  message_->setFocus();
}

void AddRemindersForm::Save() {
  const bool saved = model_.Save();
  information_->setText(ToQ(model_.Information()));
  if (!saved) return;
  ShowModel();
  dayMonth_->setFocus();
}

void AddRemindersForm::Paste(QClipboard::Mode mode) {
  // The model counts the message in bytes; the box in characters.
  const QString text = message_->text();
  const int start =
      message_->hasSelectedText() ? message_->selectionStart() : message_->cursorPosition();
  const int length = message_->hasSelectedText() ? message_->selectedText().size() : 0;
  const QString after = text.mid(start + length);
  auto bytes = [&](int chars) {
    return static_cast<std::size_t>(text.left(chars).toUtf8().size());
  };
  model_.message = text.toStdString();
  const bool pasted = model_.PasteIntoMessage(
      [mode]() -> std::optional<std::string> {
        return QGuiApplication::clipboard()->text(mode).toStdString();
      },
      bytes(start), bytes(start + length) - bytes(start));
  if (!pasted) return;
  const QString now = ToQ(model_.message);
  {
    QSignalBlocker b(message_);
    message_->setText(now);
  }
  message_->setCursorPosition(static_cast<int>(now.size() - after.size()));
  count_->setText(ToQ(model_.MessageCount()));
}

}  // namespace mc::ui
