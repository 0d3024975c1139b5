#include "ui/options_forms.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/fonts.h"
#include "ui/main_window.h"
#include "ui/menus.h"
#include "ui/screen_colours.h"

namespace mc::ui {

namespace {

QString Q(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

QCheckBox* Check(QWidget* parent, const char* name, const char* caption, bool on) {
  auto* c = new QCheckBox(caption, parent);
  c->setObjectName(name);
  c->setChecked(on);
  return c;
}

QRadioButton* Radio(QWidget* parent, const char* name, const char* caption) {
  auto* r = new QRadioButton(caption, parent);
  r->setObjectName(name);
  return r;
}

// The row of commands at the foot of an options screen.
QHBoxLayout* FootRow(QPushButton* mainScreen) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(mainScreen);
  return row;
}

// Settings keep colours as blue-green-red integers.
long long SettingOfColour(const QColor& c) {
  return c.red() + 256LL * c.green() + 65536LL * c.blue();
}

constexpr const char* kLeapSchemes[] = {
    "1: years 2, 5, 7, 10, 13, 15, 18, 21, 24, 26, 29",
    "2: years 2, 5, 7, 10, 13, 16, 18, 21, 24, 26, 29",
    "3: years 2, 5, 8, 10, 13, 16, 19, 21, 24, 27, 29",
    "4: years 2, 5, 8, 11, 13, 16, 19, 21, 24, 27, 30",
};

}  // namespace

// ---------------------------------------------------------------------------
// General Options (form 40)

GeneralOptionsForm::GeneralOptionsForm(Desktop& desktop)
    : ScreenForm(desktop, 40, "General Options"), model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);

  auto* display = new QGroupBox("Display", this);
  auto* displayLayout = new QVBoxLayout(display);
  julianDay_ = Check(display, "chkJulianDay", "Show Julian Day value on main screen", false);
  seconds_ = Check(display, "chkSeconds", "Show seconds in the display of the current time", false);
  year_ = Check(display, "chkYear", "Show year in the display of the current date", false);
  clock24_ = Check(display, "chk24Hour", "Show 24-hour clock", false);
  tray_ = Check(display, "chkTray", "Minimise to the System Tray", false);
  for (QWidget* w : {julianDay_, seconds_, year_, clock24_, tray_}) displayLayout->addWidget(w);
  layout->addWidget(display);

  auto* lists = new QGridLayout;
  calendar_ = new QComboBox(this);
  calendar_->setObjectName("cboCalendar");
  for (const auto& name : GeneralOptionsScreen::CalendarNames()) calendar_->addItem(Q(name));
  opening_ = new QComboBox(this);
  opening_->setObjectName("cboOpeningScreen");
  opening_->setMaxVisibleItems(20);
  for (const auto& entry : GeneralOptionsScreen::OpeningScreens()) {
    const int form = GeneralOptionsScreen::ScreenOfEntry(entry);
    // Only screens that exist can open at start.
    if (form == 0 || form == 1 || Desktop::IsBuilt(form)) opening_->addItem(Q(entry));
  }
  lists->addWidget(new QLabel("Favourite Calendar System", this), 0, 0);
  lists->addWidget(calendar_, 0, 1);
  lists->addWidget(new QLabel("Opening Screen", this), 1, 0);
  lists->addWidget(opening_, 1, 1);
  lists->setColumnStretch(1, 1);
  layout->addLayout(lists);

  auto* week = new QGroupBox("Week Start Day", this);
  auto* weekLayout = new QHBoxLayout(week);
  saturday_ = Radio(week, "optSaturday", "Saturday");
  sunday_ = Radio(week, "optSunday", "Sunday");
  monday_ = Radio(week, "optMonday", "Monday");
  for (QWidget* w : {saturday_, sunday_, monday_}) weekLayout->addWidget(w);
  weekLayout->addStretch();
  layout->addWidget(week);

  auto* islamic = new QGroupBox("Islamic Arithmetical Calendar Variations", this);
  auto* islamicGrid = new QGridLayout(islamic);
  leapScheme_ = new QComboBox(islamic);
  leapScheme_->setObjectName("cboLeapYears");
  for (const char* s : kLeapSchemes) leapScheme_->addItem(s);
  thursday_ = Radio(islamic, "optThursday", "Thursday");
  friday_ = Radio(islamic, "optFriday", "Friday");
  auto* epochs = new QHBoxLayout;
  epochs->addWidget(thursday_);
  epochs->addWidget(friday_);
  epochs->addStretch();
  islamicGrid->addWidget(new QLabel("Leap years", islamic), 0, 0);
  islamicGrid->addWidget(leapScheme_, 0, 1);
  islamicGrid->addWidget(new QLabel("Epoch", islamic), 1, 0);
  islamicGrid->addLayout(epochs, 1, 1);
  islamicGrid->setColumnStretch(1, 1);
  layout->addWidget(islamic);

  auto* mayanBox = new QGroupBox("Mayan and Aztec Constant", this);
  auto* mayanLayout = new QHBoxLayout(mayanBox);
  mayan_ = new QLabel(mayanBox);
  mayan_->setObjectName("lblMayanConstant");
  auto* setMayan = new QPushButton("Set constant", mayanBox);
  setMayan->setObjectName("cmdSetConstant");
  mayanLayout->addWidget(mayan_, 1);
  mayanLayout->addWidget(setMayan);
  layout->addWidget(mayanBox);

  layout->addStretch();
  layout->addLayout(FootRow(MakeMainScreenButton()));
  setMinimumWidth(540);

  ShowValues();

  connect(julianDay_, &QCheckBox::toggled, this, [this](bool on) { model_.SetShowJulianDay(on); });
  connect(seconds_, &QCheckBox::toggled, this, [this](bool on) { model_.SetShowSeconds(on); });
  connect(year_, &QCheckBox::toggled, this, [this](bool on) { model_.SetShowYear(on); });
  connect(clock24_, &QCheckBox::toggled, this, [this](bool on) { model_.SetShow24Hour(on); });
  connect(tray_, &QCheckBox::toggled, this, [this](bool on) { model_.SetMinimiseToTray(on); });
  connect(calendar_, &QComboBox::currentTextChanged, this, [this](const QString& name) {
    if (!loading_) model_.SetFavouriteCalendar(name.toStdString());
  });
  connect(opening_, &QComboBox::currentTextChanged, this, [this](const QString& entry) {
    if (loading_) return;
    if (model_.SetOpeningScreen(entry.toStdString())) {
      openingShown_ = entry;
    } else {  // the separator: back to the screen chosen before
      loading_ = true;
      opening_->setCurrentText(openingShown_);
      loading_ = false;
    }
  });
  connect(saturday_, &QRadioButton::toggled, this, [this](bool on) {
    if (on && !loading_) model_.SetStartDay(7);
  });
  connect(sunday_, &QRadioButton::toggled, this, [this](bool on) {
    if (on && !loading_) model_.SetStartDay(1);
  });
  connect(monday_, &QRadioButton::toggled, this, [this](bool on) {
    if (on && !loading_) model_.SetStartDay(2);
  });
  connect(leapScheme_, &QComboBox::currentIndexChanged, this, [this](int i) {
    if (!loading_ && i >= 0) model_.SetIslamicLeapScheme(i + 1);
  });
  connect(thursday_, &QRadioButton::toggled, this, [this](bool on) {
    if (on && !loading_) model_.SetIslamicEpochDay("Thursday");
  });
  connect(friday_, &QRadioButton::toggled, this, [this](bool on) {
    if (on && !loading_) model_.SetIslamicEpochDay("Friday");
  });
  connect(setMayan, &QPushButton::clicked, this, [this] {
    model_.SetMayanConstant();
    ShowMayanConstant();
  });
}

void GeneralOptionsForm::ShowValues() {
  loading_ = true;
  const QSignalBlocker b1(julianDay_), b2(seconds_), b3(year_), b4(clock24_), b5(tray_);
  julianDay_->setChecked(model_.ShowJulianDay());
  seconds_->setChecked(model_.ShowSeconds());
  year_->setChecked(model_.ShowYear());
  clock24_->setChecked(model_.Show24Hour());
  tray_->setChecked(model_.MinimiseToTray());
  const QString favourite = Q(model_.FavouriteCalendar());
  if (calendar_->findText(favourite) < 0) calendar_->addItem(favourite);
  calendar_->setCurrentText(favourite);
  openingShown_ = Q(model_.OpeningScreen());
  if (opening_->findText(openingShown_) < 0) opening_->addItem(openingShown_);
  opening_->setCurrentText(openingShown_);
  switch (model_.StartDay()) {
    case 7:
      saturday_->setChecked(true);
      break;
    case 2:
      monday_->setChecked(true);
      break;
    default:
      sunday_->setChecked(true);
      break;
  }
  const int scheme = model_.IslamicLeapScheme();
  leapScheme_->setCurrentIndex(scheme >= 1 && scheme <= 4 ? scheme - 1 : 1);
  (model_.IslamicEpochDay() == "Thursday" ? thursday_ : friday_)->setChecked(true);
  ShowMayanConstant();
  loading_ = false;
}

void GeneralOptionsForm::ShowMayanConstant() {
  mayan_->setText(QString("Current value: %1").arg(model_.MayanConstant()));
}

// ---------------------------------------------------------------------------
// Colour Options (form 41)

ColourOptionsForm::ColourOptionsForm(Desktop& desktop)
    : ScreenForm(desktop, 41, "Colour Options"), model_(desktop.ctx()) {
  auto* layout = new QHBoxLayout(this);
  screens_ = new QListWidget(this);
  screens_->setObjectName("lstScreens");
  for (const auto& t : ColourOptionsScreen::Targets()) {
    auto* item = new QListWidgetItem(Q(t.name), screens_);
    if (t.section == 0) item->setFlags(Qt::NoItemFlags);  // the separator
  }
  screens_->setCurrentRow(0);
  screens_->setMinimumWidth(260);
  layout->addWidget(screens_, 1);

  auto* side = new QVBoxLayout;
  auto* which = new QGroupBox("Colour to change", this);
  auto* whichLayout = new QVBoxLayout(which);
  background_ = Radio(which, "optBackground", "Screen background");
  text_ = Radio(which, "optText", "Non-button text");
  button_ = Radio(which, "optButton", "Button background");
  background_->setChecked(true);
  for (QWidget* w : {background_, text_, button_}) whichLayout->addWidget(w);
  side->addWidget(which);

  auto* swatchRow = new QHBoxLayout;
  swatch_ = new QLabel(this);
  swatch_->setObjectName("lblSwatch");
  swatch_->setFixedSize(48, 28);
  swatch_->setFrameShape(QFrame::Box);
  swatch_->setAutoFillBackground(true);
  auto* choose = new QPushButton("Choose &Colour...", this);
  choose->setObjectName("cmdChooseColour");
  swatchRow->addWidget(swatch_);
  swatchRow->addWidget(choose, 1);
  side->addLayout(swatchRow);
  auto* hint = new QLabel("Choose a screen, the colour to change, then the new colour.", this);
  hint->setWordWrap(true);
  side->addWidget(hint);
  side->addSpacing(12);
  auto* defaults = new QPushButton("Restore All Screens to &Default Colours", this);
  defaults->setObjectName("cmdDefaultColours");
  auto* grey = new QPushButton("Restore All Screens to Classic &Grey", this);
  grey->setObjectName("cmdClassicGrey");
  side->addWidget(defaults);
  side->addWidget(grey);
  side->addStretch();
  side->addLayout(FootRow(MakeMainScreenButton()));
  layout->addLayout(side);

  colourChooser = [this](const QColor& start) -> std::optional<QColor> {
    QColor c = QColorDialog::getColor(start, this, "Colour");
    if (!c.isValid()) return std::nullopt;
    return c;
  };
  connect(choose, &QPushButton::clicked, this, &ColourOptionsForm::ChooseColour);
  connect(screens_, &QListWidget::itemDoubleClicked, this, &ColourOptionsForm::ChooseColour);
  connect(screens_, &QListWidget::currentRowChanged, this, &ColourOptionsForm::ShowSwatch);
  for (QRadioButton* r : {background_, text_, button_})
    connect(r, &QRadioButton::toggled, this, &ColourOptionsForm::ShowSwatch);
  connect(defaults, &QPushButton::clicked, this, [this] {
    model_.RestoreDefaultColours();
    ColoursChanged();
  });
  connect(grey, &QPushButton::clicked, this, [this] {
    model_.RestoreClassicGrey();
    ColoursChanged();
  });
  ShowSwatch();
  resize(620, 460);
}

ColourOptionsScreen::Kind ColourOptionsForm::ChosenKind() const {
  if (text_->isChecked()) return ColourOptionsScreen::Kind::Text;
  if (button_->isChecked()) return ColourOptionsScreen::Kind::Button;
  return ColourOptionsScreen::Kind::Background;
}

void ColourOptionsForm::ShowSwatch() {
  const int row = screens_->currentRow();
  const auto& targets = ColourOptionsScreen::Targets();
  QPalette p = swatch_->palette();
  QColor colour = palette().color(QPalette::Window);
  if (row >= 0 && row < static_cast<int>(targets.size())) {
    if (auto v = model_.Colour(targets[static_cast<std::size_t>(row)], ChosenKind()))
      colour = ColourOfSetting(*v);
  }
  p.setColor(QPalette::Window, colour);
  swatch_->setPalette(p);
}

void ColourOptionsForm::ChooseColour() {
  const int row = screens_->currentRow();
  const auto& targets = ColourOptionsScreen::Targets();
  if (row < 0 || row >= static_cast<int>(targets.size())) return;
  const auto& target = targets[static_cast<std::size_t>(row)];
  if (target.section == 0) return;
  const auto kind = ChosenKind();
  QColor start = Qt::white;
  if (auto v = model_.Colour(target, kind)) start = ColourOfSetting(*v);
  auto chosen = colourChooser(start);
  if (!chosen) return;
  model_.SetColour(target, kind, SettingOfColour(*chosen));
  ColoursChanged();
}

void ColourOptionsForm::ColoursChanged() {
  // This screen shows its own colours at once; the others at their next activation.
  ApplyScreenColours(ctx(), this, FormNumber());
  ShowSwatch();
}

// ---------------------------------------------------------------------------
// Favourites Options (form 43)

FavouritesOptionsForm::FavouritesOptionsForm(Desktop& desktop)
    : ScreenForm(desktop, 43, "Favourites Options"), model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);
  auto* intro = new QLabel("Tick the screens to show in the Favourites menu.", this);
  layout->addWidget(intro);
  auto* box = new QGroupBox("Favourites", this);
  auto* grid = new QGridLayout(box);
  const auto shown = model_.Shown();
  constexpr int kRows = 23;
  for (int i = 0; i < FavouritesOptionsScreen::kCount; ++i) {
    auto* c = new QCheckBox(Q(kFavourites[i]), box);
    c->setObjectName(QString("chkFav%1").arg(i));
    c->setChecked(shown[static_cast<std::size_t>(i)]);
    grid->addWidget(c, i % kRows, i / kRows);
    connect(c, &QCheckBox::toggled, this, [this, i](bool on) {
      model_.SetShown(i, on);
      ApplyToMainScreen();
    });
  }
  layout->addWidget(box);
  auto* menu = Check(this, "chkShowMenu", "Show the Favourites menu", model_.MenuShown());
  connect(menu, &QCheckBox::toggled, this, [this](bool on) {
    model_.SetMenuShown(on);
    ApplyToMainScreen();
  });
  auto* foot = FootRow(MakeMainScreenButton());
  foot->insertWidget(0, menu);
  layout->addLayout(foot);
}

void FavouritesOptionsForm::ApplyToMainScreen() {
  if (auto* main = qobject_cast<MainWindow*>(desktop().MainWindow())) main->ApplyFavourites();
}

// ---------------------------------------------------------------------------
// Display and User Font Options (forms 46 and 47)

FontOptionsForm::FontOptionsForm(Desktop& desktop, int form)
    : ScreenForm(desktop, form, form == 47 ? "User Font Options" : "Display Font Options"),
      model_(desktop.ctx(), form) {
  auto* layout = new QVBoxLayout(this);
  auto* intro = new QLabel(form == 47 ? "User fonts are used for the lists of reminders."
                                      : "Display fonts are used for the program's output.",
                           this);
  layout->addWidget(intro);
  auto* grid = new QGridLayout;
  grid->addWidget(new QLabel("Font", this), 0, 1);
  grid->addWidget(new QLabel("Size", this), 0, 2);
  AddRow(grid, 1, FontOptionsScreen::Which::Fixed);
  AddRow(grid, 3, FontOptionsScreen::Which::Proportional);
  grid->setColumnStretch(1, 1);
  layout->addLayout(grid);
  auto* note = new QLabel("A change shows the next time a screen comes to the front.", this);
  note->setWordWrap(true);
  layout->addWidget(note);
  layout->addStretch();
  layout->addLayout(FootRow(MakeMainScreenButton()));
  resize(560, 300);
}

FontOptionsForm::Row FontOptionsForm::AddRow(QGridLayout* grid, int row,
                                             FontOptionsScreen::Which which) {
  const bool fixed = which == FontOptionsScreen::Which::Fixed;
  const char* prefix = fixed ? "Fixed" : "Prop";
  const FontChoice& font = model_.Font(which);
  Row r;
  r.name = new QComboBox(this);
  r.name->setObjectName(QString("cbo%1Name").arg(prefix));
  QStringList families;
  for (const QString& f : QFontDatabase::families())
    if (!fixed || QFontDatabase::isFixedPitch(f)) families << f;
  const QString current = Q(font.name);
  if (!families.contains(current)) families << current;
  families.sort(Qt::CaseInsensitive);
  r.name->addItems(families);
  r.name->setCurrentText(current);
  r.size = new QComboBox(this);
  r.size->setObjectName(QString("cbo%1Size").arg(prefix));
  for (int s : FontOptionsScreen::Sizes()) r.size->addItem(QString::number(s));
  if (r.size->findText(QString::number(font.size)) < 0) r.size->addItem(QString::number(font.size));
  r.size->setCurrentText(QString::number(font.size));
  r.bold = Check(this, fixed ? "chkFixedBold" : "chkPropBold", "Bold", font.bold == "True");
  r.sample = new QLabel("The quick brown fox jumps over the lazy dog 0123456789", this);
  r.sample->setObjectName(QString("lbl%1Sample").arg(prefix));
  r.sample->setMinimumHeight(36);
  grid->addWidget(new QLabel(fixed ? "Fixed width font" : "Proportional width font", this), row, 0);
  grid->addWidget(r.name, row, 1);
  grid->addWidget(r.size, row, 2);
  grid->addWidget(r.bold, row, 3);
  grid->addWidget(r.sample, row + 1, 1, 1, 3);
  ShowSample(r, which);
  connect(r.name, &QComboBox::currentTextChanged, this, [this, r, which](const QString& name) {
    model_.SetName(which, name.toStdString());
    ShowSample(r, which);
  });
  connect(r.size, &QComboBox::currentTextChanged, this, [this, r, which](const QString& size) {
    model_.SetSize(which, size.toInt());
    ShowSample(r, which);
  });
  connect(r.bold, &QCheckBox::toggled, this, [this, r, which](bool on) {
    model_.SetBold(which, on);
    ShowSample(r, which);
  });
  return r;
}

void FontOptionsForm::ShowSample(const Row& row, FontOptionsScreen::Which which) {
  row.sample->setFont(FontOf(model_.Font(which), 0, which == FontOptionsScreen::Which::Fixed));
}

}  // namespace mc::ui
