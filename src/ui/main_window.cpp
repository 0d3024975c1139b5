#include "ui/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTextCursor>
#include <QTimer>

#include "core/safe_file.h"
#include "shell/updates.h"
#include "ui/fonts.h"
#include "ui/output_box.h"
#include "ui/quick_notes_form.h"
#include "ui/screen_colours.h"
#include "ui/screen_form.h"
#include "ui/sound.h"

namespace mc::ui {

namespace {

QLineEdit* Box(QWidget* parent, const char* name, int width) {
  auto* b = new QLineEdit(parent);
  b->setObjectName(name);
  b->setReadOnly(true);
  b->setFocusPolicy(Qt::NoFocus);
  if (width) b->setFixedWidth(width);
  return b;
}

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

}  // namespace

MainWindow::MainWindow(Desktop& desktop)
    : desktop_(desktop), ctx_(desktop.ctx()), model_(desktop.ctx()) {
  setObjectName("Form1");
  setWindowTitle("Meridian Codex");
  setWindowIcon(QIcon(Q(ctx_.FilePath("sun.ico").string())));
  desktop_.SetMainWindow(this);

  auto* central = new QWidget(this);
  auto* grid = new QGridLayout(central);
  date_ = Box(central, "Text2", 150);
  clock_ = Box(central, "Text3", 110);
  julianDay_ = Box(central, "Text4", 190);
  place_ = Box(central, "Text5", 0);
  sun_ = Box(central, "Text6", 0);
  lamp_ = new QLabel(QString(QChar(0x25CF)), central);  // the reminder lamp
  lamp_->setObjectName("Text7");
  lamp_->setAlignment(Qt::AlignCenter);
  lamp_->setFixedWidth(28);
  output_ = new OutputBox(ctx_, central);
  output_->setObjectName("Text1");
  note_ = new QLabel("Press F11 for an enlarged view of the output.", central);
  note_->setObjectName("Label8");
  auto* top = new QHBoxLayout;
  top->addWidget(date_);
  top->addWidget(clock_);
  top->addWidget(julianDay_);
  top->addStretch();
  top->addWidget(lamp_);
  grid->addLayout(top, 0, 0, 1, 2);
  grid->addWidget(place_, 1, 0);
  grid->addWidget(sun_, 1, 1);
  grid->addWidget(output_, 2, 0, 1, 2);
  grid->addWidget(note_, 3, 0, 1, 2);
  grid->setRowStretch(2, 1);
  setCentralWidget(central);
  connect(output_, &OutputBox::enlargeToggled, this, &MainWindow::ToggleEnlarged);
  connect(output_, &OutputBox::findRequested, this, [this] { desktop_.OpenFind(this, output_); });
  connect(output_, &OutputBox::helpRequested, this,
          [this] { desktop_.OpenHelpFile("readme.pdf"); });

  connect(output_, &OutputBox::moveRequested, this, &MainWindow::MoveReminder);
  sound_ = new Sound(this);

  BuildMenus();
  timer_ = new QTimer(this);
  timer_->setInterval(1000);
  connect(timer_, &QTimer::timeout, this, &MainWindow::Tick);
  resize(900, 620);
}

void MainWindow::Load() {
  SetFontMode("FW");
  place_->setText(Q(model_.PlaceText()));
  lamp_->setVisible(false);
  ReminderLoadResult start = ReminderLoadReport(ctx_);
  if (start.leaveLoad) return;
  ShowReminderReport(start.report);
  Signal(start.signal);
  ctx_.settings.fontsChanged = false;
  ctx_.Trace("Main form load. Favourite items about to be handled.");
  ApplyFavourites();
  ctx_.Trace("Main form load. Favourite items have been handled.");
  if (QScreen* s = screen()) {
    const QRect avail = s->availableGeometry();
    move(avail.left() + (avail.width() - width()) / 2,
         avail.top() + (avail.height() - height()) / 2);
  }
  normalGeometry_ = geometry();
  Tick();
  timer_->start();
  int opening = model_.OpeningScreen();
  if (opening != 1 && desktop_.Open(opening)) {
    ctx_.Trace("Main form load. Opening screen has been displayed.");
  }
}

void MainWindow::BuildMenus() {
  for (const Menu& menu : MenuBar()) {
    QMenu* m = menuBar()->addMenu(Q(std::string(menu.caption)));
    m->setObjectName(Q(std::string(menu.name)));
    if (menu.name == "muFavourites") {
      favourites_ = m;
      for (int i = 0; i < MainScreenModel::kFavouriteCount; ++i) {
        QAction* a = m->addAction(Q(std::string(kFavourites[i])));
        a->setObjectName(QString("muFav%1").arg(i));
        const MenuEntry* entry = EntryOfFavourite(i);
        a->setEnabled(entry && Implemented(*entry));
        if (entry) connect(a, &QAction::triggered, this, [this, entry] { Run(*entry); });
        actions_[a->objectName()] = a;
      }
      continue;
    }
    for (const MenuEntry& e : menu.entries) {
      if (e.caption == "---") {
        m->addSeparator();
        continue;
      }
      QAction* a = m->addAction(Q(std::string(e.caption)));
      a->setObjectName(Q(std::string(e.name)));
      a->setEnabled(Implemented(e));
      connect(a, &QAction::triggered, this, [this, &e] { Run(e); });
      actions_[a->objectName()] = a;
    }
  }
}

void MainWindow::ApplyFavourites() {
  auto shown = model_.FavouritesShown();
  for (int i = 0; i < MainScreenModel::kFavouriteCount; ++i)
    actions_[QString("muFav%1").arg(i)]->setVisible(shown[static_cast<std::size_t>(i)]);
  favourites_->menuAction()->setVisible(model_.FavouritesMenuShown());
}

QAction* MainWindow::ActionNamed(const QString& name) const {
  auto it = actions_.find(name);
  return it == actions_.end() ? nullptr : it->second;
}

bool MainWindow::Implemented(const MenuEntry& e) const {
  if (e.form) return Desktop::IsBuilt(e.form);
  switch (e.command) {
    case Command::Save:
    case Command::Print:
    case Command::Exit:
    case Command::GeneralHelp:
    case Command::MenuBarSummary:
    case Command::SpecialKeysSummary:
    case Command::VersionHistory:
    case Command::ListReminders:
    case Command::ListOutOfDate:
    case Command::Backup:
    case Command::RestoreAll:
    case Command::RestoreIni:
    case Command::RestoreNotes:
    case Command::RestoreReminders:
    case Command::LastBackupDate:
    case Command::CheckForUpdates:
      return true;
    default:
      return false;
  }
}

void MainWindow::Run(const MenuEntry& e) {
  if (e.form) {
    desktop_.Open(e.form);
    return;
  }
  switch (e.command) {
    case Command::Save:
      desktop_.SaveOutput(this, output_->Report(), SaveStyle::MainScreen);
      break;
    case Command::Print:
      desktop_.PrintOutput(this, output_->Report());
      break;
    case Command::Exit:
      close();
      break;
    case Command::GeneralHelp:
      desktop_.OpenHelpFile("readme.pdf");
      break;
    case Command::MenuBarSummary:
      desktop_.OpenHelpFile("MenuBar.pdf");
      break;
    case Command::SpecialKeysSummary:
      desktop_.OpenHelpFile("SpecKeys.pdf");
      break;
    case Command::VersionHistory:
      desktop_.OpenHelpFile("history.pdf");
      break;
    case Command::ListReminders:
      ListReminders();
      output_->setFocus();
      break;
    case Command::ListOutOfDate:
      ListOutOfDate();
      break;
    case Command::Backup:
      mc::Backup(ctx_);
      break;
    case Command::RestoreAll:
      Restore(RestoreKind::All);
      break;
    case Command::RestoreIni:
      Restore(RestoreKind::IniFile);
      break;
    case Command::RestoreNotes:
      Restore(RestoreKind::QuickNotes);
      break;
    case Command::RestoreReminders:
      Restore(RestoreKind::Reminders);
      break;
    case Command::LastBackupDate:
      ShowLastBackupDate(ctx_);
      break;
    case Command::CheckForUpdates:
      CheckForUpdates();
      break;
    default:
      break;
  }
}

void MainWindow::Restore(RestoreKind kind) {
  if (!mc::Restore(ctx_, kind)) return;
  if (kind == RestoreKind::All || kind == RestoreKind::IniFile) {
    // The settings file was read again: its colours, fonts and favourites show now.
    ApplyScreenColours(ctx_, this, 1);
    ShowLamp();
    ApplyFavourites();
    place_->setText(Q(model_.PlaceText()));
    ctx_.settings.fontsChanged = false;
    ApplyOutputFont();
  }
  // Restored reminders show in the list of reminders when it is next built.
  if (kind == RestoreKind::All || kind == RestoreKind::QuickNotes) {
    if (auto* notes = qobject_cast<QuickNotesForm*>(desktop_.Loaded(25))) notes->Reload();
  }
}

void MainWindow::CheckForUpdates() {
  if (checkingUpdates_) return;  // the menu can be reached again while the transfer runs
  checkingUpdates_ = true;
  QApplication::setOverrideCursor(Qt::BusyCursor);
  mc::CheckForUpdates(ctx_);
  while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
  checkingUpdates_ = false;
}

void MainWindow::ApplyOutputFont() {
  const SettingsBlock& s = ctx_.settings;
  if (fontMode_ == "PW")
    output_->setFont(DisplayPropFont(s));
  else if (fontMode_ == "UFW")
    output_->setFont(FontOf(s.userFixedFont, 1, true));
  else if (fontMode_ == "UPW")
    output_->setFont(FontOf(s.userPropFont));
  else
    output_->setFont(DisplayFixedFont(s, 1));
}

void MainWindow::Tick() {
  const LocalDateTime now = ctx_.Now();
  // A new day is seen whichever screen is on top.
  ReminderTickResult reminders = ReminderDayCheck(ctx_, output_->Report(), ctx_.settings.alarm.set);
  if (reminders.rebuilt) {
    if (reminders.replaceOutput) ShowReminderReport(reminders.report);
    if (reminders.report.text != kReportError) {
      lamp_colour_ = reminders.report.lamp;
      ShowLamp();
    }
    Signal(reminders.signal);
  }
  if (ScreenForm* active = desktop_.ActiveScreen()) {
    active->Tick(now);
    return;
  }
  MainScreenModel::Tick t = model_.OnTick(now);
  clock_->setText(Q(t.clockText));
  if (t.dateText) date_->setText(Q(*t.dateText));
  julianDay_->setVisible(t.julianDayText.has_value());
  if (t.julianDayText) julianDay_->setText(Q(*t.julianDayText));
  if (sun_->text() != Q(t.sunText)) sun_->setText(Q(t.sunText));
}

void MainWindow::SetFontMode(std::string_view mode) {
  fontMode_ = std::string(mode);
  ApplyOutputFont();
}

void MainWindow::ShowReminderReport(const ReminderReport& report) {
  if (report.text == kReportError) return;
  SetFontMode(ReportFontMode(report));
  output_->SetReport(report.text);
  lamp_colour_ = report.lamp;
  ShowLamp();
}

void MainWindow::ShowLamp() {
  lamp_->setVisible(lamp_colour_ != LampColour::Hidden);
  QPalette p = lamp_->palette();
  p.setColor(QPalette::WindowText,
             lamp_colour_ == LampColour::Red ? QColor(255, 0, 0) : QColor(255, 197, 138));
  lamp_->setPalette(p);
}

void MainWindow::Signal(const ReminderSignal& signal) {
  sound_->Play(Q(ctx_.FilePath("reminder.wav").string()), signal.soundPlays);
  if (!signal.notice.empty()) ctx_.sink().Show(kInformation, signal.notice);
}

void MainWindow::ListReminders() {
  ShowReminderReport(BuildReminderReport(ctx_));
}

void MainWindow::ListOutOfDate() {
  if (auto listing = OutOfDateListing(ctx_)) {
    SetFontMode("UFW");
    output_->SetReport(*listing);
  }
}

void MainWindow::MoveReminder(bool up) {
  const std::size_t caret = output_->textCursor().position();
  auto moved = MoveReminderInList(ctx_, output_->Report(), caret, up);
  if (!moved) return;
  ShowReminderReport(moved->report);
  QTextCursor c = output_->textCursor();
  c.setPosition(static_cast<int>(moved->caret));
  output_->setTextCursor(c);
}

void MainWindow::ReminderScreenLeft() {
  if (LeaveReminderScreen(ctx_, output_->Report())) ListReminders();
}

void MainWindow::showEvent(QShowEvent* event) {
  ctx_.Trace("Main form activate entered.");
  ApplyScreenColours(ctx_, this, 1);
  ShowLamp();  // the screen's text colour is not the lamp's
  ctx_.settings.currentForm.clear();
  if (ctx_.settings.fontsChanged) {
    ctx_.settings.fontsChanged = false;
    ApplyOutputFont();
    output_->setFocus();
  }
  QMainWindow::showEvent(event);
  if (ctx_.settings.showTipPending) {
    ctx_.settings.showTipPending = false;
    if (ctx_.settings.showTip == "Yes") {
      ctx_.Trace("Main form activate. Tip of the Day about to be shown.");
      QTimer::singleShot(0, this, [this] { desktop_.Open(42); });
    }
  }
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  // Ctrl+T stops long work that yields to events (Check for Updates and the like).
  if (event->key() == Qt::Key_T && (event->modifiers() & Qt::ControlModifier)) {
    ctx_.RequestCancel();
    return;
  }
  QMainWindow::keyPressEvent(event);
}

void MainWindow::ToggleEnlarged() {
  QScreen* s = screen();
  if (!s) return;
  const QRect avail = s->availableGeometry();
  if (!enlarged_) {
    normalGeometry_ = geometry();
    const int width = avail.width() - 27;
    setGeometry(avail.left() + (avail.width() - width) / 2, geometry().top(), width, height());
    note_->setText("Press F11 to return to the normal view of the output.");
  } else {
    setGeometry(avail.left() + (avail.width() - normalGeometry_.width()) / 2, normalGeometry_.top(),
                normalGeometry_.width(), normalGeometry_.height());
    note_->setText("Press F11 for an enlarged view of the output.");
  }
  enlarged_ = !enlarged_;
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) {
    // Minimised, the icon shows the lamp: red for a reminder today, light
    // orange for one near; back to the plain sun at normal size.
    const char* icon = !isMinimized()                            ? "sun.ico"
                       : lamp_colour_ == LampColour::Red         ? "sun1.ico"
                       : lamp_colour_ == LampColour::LightOrange ? "sun2.ico"
                                                                 : "sun.ico";
    setWindowIcon(QIcon(Q(ctx_.FilePath(icon).string())));
    if (isMinimized() && ctx_.settings.minimiseToTray == "Yes" &&
        QSystemTrayIcon::isSystemTrayAvailable())
      QTimer::singleShot(0, this, &MainWindow::ToTray);
  }
  QMainWindow::changeEvent(event);
}

void MainWindow::ToTray() {
  if (!tray_) {
    tray_ = new QSystemTrayIcon(this);
    tray_->setToolTip("Meridian Codex");
    auto* menu = new QMenu(this);
    menu->setObjectName("mnuPopup");
    menu->addAction("Restore", this, &MainWindow::FromTray)->setObjectName("mnuRestore");
    QAction* exit = menu->addAction("Exit");
    exit->setObjectName("mnuExit");
    connect(exit, &QAction::triggered, this, [this] {
      // No clean-up on this way out, but changed notes are kept.
      if (auto* notes = qobject_cast<QuickNotesForm*>(desktop_.Loaded(25))) notes->SaveIfChanged();
      qApp->quit();
    });
    tray_->setContextMenu(menu);
    connect(tray_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason r) {
      if (r == QSystemTrayIcon::DoubleClick || r == QSystemTrayIcon::Trigger) FromTray();
    });
  }
  tray_->setIcon(windowIcon());
  tray_->show();
  hide();
}

void MainWindow::FromTray() {
  if (tray_) tray_->hide();
  setWindowIcon(QIcon(Q(ctx_.FilePath("sun.ico").string())));
  showNormal();
  raise();
  activateWindow();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // The same clean-up for every way out.
  if (auto* notes = qobject_cast<QuickNotesForm*>(desktop_.Loaded(25))) notes->SaveIfChanged();
  RemoveIfExists(ctx_.FilePath("mainsol.dat"));
  RemoveIfExists(ctx_.FilePath("secsol.dat"));
  if (tray_) tray_->hide();
  event->accept();
  qApp->quit();
}

}  // namespace mc::ui
