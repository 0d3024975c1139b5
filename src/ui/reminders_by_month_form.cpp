#include "ui/reminders_by_month_form.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "calendars/names.h"
#include "core/ini_file.h"
#include "core/text_util.h"
#include "shell/save_output.h"
#include "ui/add_reminders_form.h"
#include "ui/screen_colours.h"

namespace mc::ui {

namespace {

constexpr int kCellWidth = 40, kCellHeight = 30;
constexpr int kTodayRole = Qt::UserRole + 1;

// Today's cell is framed in the screen's text colour, as the "Today's date"
// label beside the grid is.
class TodayFrame : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QColor colour = Qt::black;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    if (!index.data(kTodayRole).toBool()) return;
    painter->save();
    painter->setPen(QPen(colour, 2));
    painter->drawRect(QRectF(option.rect).adjusted(2, 2, -2, -2));
    painter->restore();
  }
};

QColor SettingColour(Context& ctx, const char* key) {
  long long value = 0;
  if (!ParseInt(ReadIniFile(ctx, 4, key), value)) value = -1;
  return ColourOfSetting(value);
}

}  // namespace

RemindersByMonthForm::RemindersByMonthForm(Desktop& desktop)
    : ReminderForm(desktop, 4, "Reminders by Month"), model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(MakeDateAndClock());

  // The month with its spin, and the year.
  auto* choice = new QHBoxLayout;
  month_ = new QComboBox(this);
  month_->setObjectName("cboMonth");
  for (int m = 1; m <= 12; ++m) month_->addItem(ToQ(kMonthNames[static_cast<std::size_t>(m)]));
  month_->setMaxVisibleItems(12);
  auto spin = [this](const char* name, Qt::ArrowType arrow) {
    auto* b = new QToolButton(this);
    b->setObjectName(name);
    b->setArrowType(arrow);
    b->setToolTip(ToQ(RemindersByMonthScreen::kSpinTip));
    b->setFixedSize(22, 13);
    b->setAutoRepeat(true);
    return b;
  };
  up_ = spin("cmdSpinUp", Qt::UpArrow);
  down_ = spin("cmdSpinDown", Qt::DownArrow);
  auto* spinBox = new QVBoxLayout;
  spinBox->setSpacing(0);
  spinBox->addWidget(up_);
  spinBox->addWidget(down_);
  thisYear_ = new QRadioButton("This Year", this);
  thisYear_->setObjectName("optThisYear");
  lastYear_ = new QRadioButton("Last Year", this);
  lastYear_->setObjectName("optLastYear");
  nextYear_ = new QRadioButton("Next Year", this);
  nextYear_->setObjectName("optNextYear");
  choice->addWidget(month_);
  choice->addLayout(spinBox);
  choice->addSpacing(20);
  choice->addWidget(thisYear_);
  choice->addWidget(lastYear_);
  choice->addWidget(nextYear_);
  choice->addStretch();
  layout->addLayout(choice);

  auto* guide = new QLabel(ToQ(RemindersByMonthScreen::kGuide), this);
  guide->setObjectName("lblGuide");
  guide->setWordWrap(true);
  layout->addWidget(guide);

  // The grid, and beside it the reminders of the date clicked.
  grid_ = new QTableWidget(6, 7, this);
  grid_->setObjectName("grdMonth");
  grid_->verticalHeader()->hide();
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid_->horizontalHeader()->setDefaultSectionSize(kCellWidth);
  grid_->verticalHeader()->setDefaultSectionSize(kCellHeight);
  grid_->horizontalHeader()->setHighlightSections(false);
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->setSelectionMode(QAbstractItemView::NoSelection);
  grid_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid_->setFixedSize(
      7 * kCellWidth + 2 * grid_->frameWidth(),
      6 * kCellHeight + grid_->horizontalHeader()->sizeHint().height() + 2 * grid_->frameWidth());
  grid_->setItemDelegate(new TodayFrame(grid_));
  today_ = new QLabel("Today's date", this);
  today_->setObjectName("lblToday");
  information_ = new QPlainTextEdit(this);
  information_->setObjectName("txtInformation");
  information_->setReadOnly(true);
  auto* body = new QGridLayout;
  body->addWidget(grid_, 0, 0);
  body->addWidget(today_, 1, 0, Qt::AlignLeft | Qt::AlignTop);
  body->addWidget(information_, 0, 1, 2, 1);
  body->setColumnStretch(1, 1);
  layout->addLayout(body, 1);

  auto* buttons = new QHBoxLayout;
  auto* save = new QPushButton("Save", this);
  save->setObjectName("cmdSave");
  auto* print = new QPushButton("&Print", this);
  print->setObjectName("cmdPrint");
  buttons->addWidget(save);
  buttons->addWidget(print);
  buttons->addStretch();
  buttons->addWidget(MakeMainScreenButton());
  layout->addLayout(buttons);

  connect(month_, &QComboBox::currentIndexChanged, this, [this](int i) {
    model_.ChooseMonth(i + 1);
    ShowModel();
  });
  connect(up_, &QToolButton::clicked, this, [this] {
    model_.SpinUp();
    ShowModel();
  });
  connect(down_, &QToolButton::clicked, this, [this] {
    model_.SpinDown();
    ShowModel();
  });
  for (auto [button, shown] : {std::pair{thisYear_, ShownYear::ThisYear},
                               {lastYear_, ShownYear::LastYear},
                               {nextYear_, ShownYear::NextYear}}) {
    connect(button, &QRadioButton::toggled, this, [this, shown](bool on) {
      if (!on) return;
      model_.ChooseYear(shown);
      ShowModel();
    });
  }
  connect(grid_, &QTableWidget::cellClicked, this,
          [this](int row, int column) { ClickDate(DayAt(row, column)); });
  connect(grid_, &QTableWidget::cellDoubleClicked, this,
          [this](int row, int column) { DoubleClickDate(DayAt(row, column)); });
  connect(save, &QPushButton::clicked, this,
          [this] { this->desktop().SaveOutput(this, model_.ReportText(), SaveStyle::Screen); });
  connect(print, &QPushButton::clicked, this,
          [this] { this->desktop().PrintOutput(this, model_.ReportText()); });

  ShowModel();
  resize(700, 480);
}

void RemindersByMonthForm::Activated() {
  model_.Fill();
  ShowModel();
}

void RemindersByMonthForm::ShowModel() {
  {
    QSignalBlocker b(month_);
    month_->setCurrentIndex(model_.Month() - 1);
  }
  for (auto [button, shown] : {std::pair{thisYear_, ShownYear::ThisYear},
                               {lastYear_, ShownYear::LastYear},
                               {nextYear_, ShownYear::NextYear}}) {
    QSignalBlocker b(button);
    button->setChecked(model_.Shown() == shown);
  }
  QStringList heads;
  for (const std::string& h : model_.ColumnHeads()) heads << ToQ(h);
  grid_->setHorizontalHeaderLabels(heads);

  // Marked dates take the screen's button colour, today a frame of its text colour.
  const QColor marked = SettingColour(ctx(), "Button Colour");
  const QColor text = SettingColour(ctx(), "Non-Button Text Colour");
  static_cast<TodayFrame*>(grid_->itemDelegate())->colour = text;
  today_->setStyleSheet(QString("QLabel { border: 2px solid %1; padding: 3px; }").arg(text.name()));
  QFont bold = grid_->font();
  bold.setBold(true);
  grid_->clearContents();
  for (const auto& cell : model_.Cells()) {
    auto* item = new QTableWidgetItem(QString::number(cell.day));
    item->setTextAlignment(Qt::AlignCenter);
    item->setData(Qt::UserRole, cell.day);
    item->setFlags(Qt::ItemIsEnabled);
    if (cell.marked) {
      item->setBackground(marked);
      item->setForeground(marked.lightness() < 110 ? Qt::white : Qt::black);
      item->setFont(bold);
    }
    item->setData(kTodayRole, cell.today);
    grid_->setItem(cell.row, cell.column - 1, item);
  }
  information_->clear();
}

int RemindersByMonthForm::DayAt(int row, int column) const {
  const QTableWidgetItem* item = grid_->item(row, column);
  return item ? item->data(Qt::UserRole).toInt() : 0;
}

QPoint RemindersByMonthForm::CellOf(int day) const {
  for (const auto& cell : model_.Cells())
    if (cell.day == day) return {cell.column - 1, cell.row};
  return {-1, -1};
}

void RemindersByMonthForm::ClickDate(int day) {
  if (day < 1) return;
  information_->setPlainText(ToQ(model_.ClickDate(day)).replace("\r\n", "\n"));
}

void RemindersByMonthForm::DoubleClickDate(int day) {
  if (day < 1) return;
  const auto request = model_.DoubleClickDate(day);
  OpeningChild();
  if (auto* add = qobject_cast<AddRemindersForm*>(desktop().Open(2, "Form4")))
    add->PresetDate(request.day, request.month, request.option);
}

}  // namespace mc::ui
