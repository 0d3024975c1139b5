// The main screen (form 1): date, clock, Julian Day, place, sun and reminder
// boxes over one large output box, the menu bar with the favourites, the one
// timer that drives every live display, and the tray icon.
#pragma once

#include <QMainWindow>
#include <map>

#include "reminders/report.h"
#include "shell/backup.h"
#include "shell/main_screen.h"
#include "ui/desktop.h"
#include "ui/menus.h"

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QSystemTrayIcon;
class QTimer;

namespace mc::ui {

class OutputBox;

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindow(Desktop& desktop);

  // The load's later steps: output font, place box, favourites, opening screen.
  void Load();
  // One tick of the timer, with the context's clock.
  void Tick();

  OutputBox* Output() const { return output_; }
  QAction* ActionNamed(const QString& name) const;
  QMenu* FavouritesMenu() const { return favourites_; }
  QTimer* Timer() const { return timer_; }
  class Sound* Sounds() const {
    return sound_;
  }
  // The font the output box is to have: "FW", "PW", "UFW" or "UPW".
  void SetFontMode(std::string_view mode);
  // After a reminder screen: rebuilds the list when it changed.
  void ReminderScreenLeft();
  // Shows the favourites the settings file asks for; the Favourites Options
  // screen calls it at each change.
  void ApplyFavourites();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void BuildMenus();
  void Run(const MenuEntry& entry);
  // The output box's font for the present font mode ("FW", "PW", "UFW", "UPW").
  void ApplyOutputFont();
  void Restore(RestoreKind kind);
  void CheckForUpdates();
  bool Implemented(const MenuEntry& entry) const;
  void ToggleEnlarged();
  void ToTray();
  void ShowReminderReport(const ReminderReport& report);
  void ShowLamp();
  void Signal(const ReminderSignal& signal);
  void ListReminders();
  void ListOutOfDate();
  void MoveReminder(bool up);
  void FromTray();

  Desktop& desktop_;
  Context& ctx_;
  MainScreenModel model_;
  OutputBox* output_;
  QLineEdit *date_, *clock_, *julianDay_, *place_, *sun_;
  QLabel *lamp_, *note_;
  QMenu* favourites_ = nullptr;
  std::map<QString, QAction*> actions_;
  QTimer* timer_;
  QSystemTrayIcon* tray_ = nullptr;
  class Sound* sound_;
  LampColour lamp_colour_ = LampColour::Hidden;
  std::string fontMode_ = "FW";
  QRect normalGeometry_;
  bool enlarged_ = false;
  bool checkingUpdates_ = false;
};

}  // namespace mc::ui
