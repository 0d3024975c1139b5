#include "ui/options_forms.h"

#include "qstring_printer.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "core/ini_file.h"
#include "desktop_fixture.h"
#include "ui/main_window.h"
#include "ui/output_box.h"
#include "ui/password_form.h"
#include "ui/screen_colours.h"
#include "ui/tip_form.h"

namespace mc::ui {
namespace {

// A started program with its main window, as the desktop has it.
class DesktopTest : public DesktopFixture {
 protected:
  std::string Ini(int form, const char* key) { return ReadIniFile(p.ctx, form, key); }
};

TEST_F(DesktopTest, OptionsMenuOpensTheBuiltScreens) {
  Open();
  for (const char* name :
       {"muGeneral", "muColour", "muFavOptions", "muPassword", "muDisplayFonts", "muUserFonts",
        "muTip", "muQuickNotes", "muBackup", "muRestoreAll", "muRestoreIni", "muRestoreNotes",
        "muRestoreRems", "muLastBackup", "muUpdates"})
    EXPECT_TRUE(window->ActionNamed(name)->isEnabled()) << name;
  EXPECT_FALSE(window->ActionNamed("muLocation")->isEnabled());  // waits for the locations
  window->ActionNamed("muGeneral")->trigger();
  ScreenForm* general = desktop->Loaded(40);
  ASSERT_NE(general, nullptr);
  EXPECT_TRUE(general->isVisible());
  EXPECT_FALSE(window->isVisible());
  Child<QPushButton>(general, "cmdMainScreen")->click();
  EXPECT_FALSE(general->isVisible());
}

TEST_F(DesktopTest, GeneralOptionsTakeEffectAtOnce) {
  Open();
  auto* form = desktop->Open(40);
  Child<QCheckBox>(form, "chkSeconds")->setChecked(false);
  Child<QCheckBox>(form, "chk24Hour")->setChecked(false);
  Child<QCheckBox>(form, "chkJulianDay")->setChecked(false);
  EXPECT_EQ(Ini(0, "Show Seconds"), "No");
  EXPECT_EQ(Ini(0, "Show 24-Hour Clock"), "No");
  desktop->ShowMain(form);
  window->Tick();
  EXPECT_EQ(window->findChild<QLineEdit*>("Text3")->text(), "10:30 AM");
  EXPECT_TRUE(window->findChild<QLineEdit*>("Text4")->isHidden());

  form = desktop->Open(40);
  Child<QRadioButton>(form, "optMonday")->setChecked(true);
  EXPECT_EQ(Ini(0, "Start Day"), "2");
  Child<QComboBox>(form, "cboLeapYears")->setCurrentIndex(3);
  EXPECT_EQ(Ini(0, "Islamic Leap Year Scheme"), "4");
  Child<QRadioButton>(form, "optThursday")->setChecked(true);
  EXPECT_EQ(p.ctx.settings.islamicEpochDay, "Thursday");
  Child<QComboBox>(form, "cboCalendar")->setCurrentText("Hebrew");
  EXPECT_EQ(Ini(0, "Favourite Calendar System"), "Hebrew");

  // The opening screens are those that exist; the separator is refused.
  auto* opening = Child<QComboBox>(form, "cboOpeningScreen");
  EXPECT_EQ(opening->itemText(0), "Main screen (1)");
  EXPECT_GE(opening->findText("Quick Notes (25)"), 0);
  EXPECT_LT(opening->findText("Unit Converter (8)"), 0);
  opening->setCurrentText("Quick Notes (25)");
  EXPECT_EQ(Ini(0, "Opening Screen"), "Quick Notes (25)");
  opening->setCurrentIndex(1);
  EXPECT_EQ(opening->currentText(), "Quick Notes (25)");
  EXPECT_EQ(Ini(0, "Opening Screen"), "Quick Notes (25)");

  p.sink.replies = {"584285"};
  Child<QPushButton>(form, "cmdSetConstant")->click();
  EXPECT_EQ(Ini(0, "Mayan Constant"), "584285");
  EXPECT_EQ(Child<QLabel>(form, "lblMayanConstant")->text(), "Current value: 584285");

  // The next start opens Quick Notes.
  window = std::make_unique<MainWindow>(*desktop);
  window->Load();
  window->Timer()->stop();
  ASSERT_NE(desktop->Loaded(25), nullptr);
  EXPECT_TRUE(desktop->Loaded(25)->isVisible());
}

TEST_F(DesktopTest, ColourOptionsWriteAndShow) {
  Open();
  auto* form = static_cast<ColourOptionsForm*>(desktop->Open(41));
  QColor offered;
  form->colourChooser = [&](const QColor& start) -> std::optional<QColor> {
    offered = start;
    return QColor(255, 0, 0);
  };
  auto* list = Child<QListWidget>(form, "lstScreens");
  EXPECT_EQ(list->item(0)->text(), "All screens");
  EXPECT_EQ(list->item(2)->flags(), Qt::NoItemFlags);
  list->setCurrentRow(list->row(list->findItems("Quick Notes", Qt::MatchExactly)[0]));
  Child<QRadioButton>(form, "optButton")->setChecked(true);
  form->ChooseColour();
  EXPECT_EQ(offered, ColourOfSetting(13172735));
  EXPECT_EQ(Ini(25, "Button Colour"), "255");

  list->setCurrentRow(list->row(list->findItems("Colour Options", Qt::MatchExactly)[0]));
  Child<QRadioButton>(form, "optBackground")->setChecked(true);
  form->ChooseColour();
  EXPECT_EQ(form->palette().color(QPalette::Window), QColor(255, 0, 0));  // shown at once

  list->setCurrentRow(0);
  form->colourChooser = [](const QColor&) { return std::nullopt; };  // cancelled
  form->ChooseColour();
  EXPECT_EQ(Ini(1, "Screen Background Colour"), "16774593");

  Child<QPushButton>(form, "cmdClassicGrey")->click();
  EXPECT_EQ(p.sink.Last(), "Classic grey colours have been applied to all screens.");
  desktop->ShowMain(form);
  EXPECT_EQ(window->palette().color(QPalette::Window),
            QApplication::palette().color(QPalette::Window));
  form = static_cast<ColourOptionsForm*>(desktop->Open(41));
  EXPECT_EQ(form->palette().color(QPalette::Window), ColourOfSetting(12632256));
  Child<QPushButton>(form, "cmdDefaultColours")->click();
  EXPECT_EQ(form->palette().color(QPalette::Window), ColourOfSetting(16774593));
}

TEST_F(DesktopTest, FavouritesApplyToTheMenuAtOnce) {
  Open();
  auto* form = desktop->Open(43);
  EXPECT_EQ(Child<QCheckBox>(form, "chkFav27")->text(), "Quick Notes");
  EXPECT_TRUE(Child<QCheckBox>(form, "chkFav7")->isChecked());
  Child<QCheckBox>(form, "chkFav7")->setChecked(false);
  Child<QCheckBox>(form, "chkFav27")->setChecked(true);
  EXPECT_FALSE(window->ActionNamed("muFav7")->isVisible());
  EXPECT_TRUE(window->ActionNamed("muFav27")->isVisible());
  EXPECT_TRUE(window->ActionNamed("muFav27")->isEnabled());  // Quick Notes is built
  EXPECT_EQ(Ini(1, "Show Menu Item 27"), "Yes");
  Child<QCheckBox>(form, "chkShowMenu")->setChecked(false);
  EXPECT_FALSE(window->FavouritesMenu()->menuAction()->isVisible());
  EXPECT_EQ(Ini(1, "Show Favourites Menu"), "No");
}

TEST_F(DesktopTest, FontsChangeAtTheNextActivation) {
  Open();
  p.ctx.settings.showTipPending = false;
  window->show();
  const int before = window->Output()->font().pointSize();
  auto* form = desktop->Open(46);
  Child<QComboBox>(form, "cboPropSize")->setCurrentText("14");
  Child<QCheckBox>(form, "chkPropBold")->setChecked(true);
  EXPECT_EQ(Ini(46, "Proportional Width Font Size"), "14");
  EXPECT_EQ(Ini(46, "Proportional Width Font Bold"), "True");
  EXPECT_TRUE(p.ctx.settings.fontsChanged);
  EXPECT_EQ(window->Output()->font().pointSize(), before);  // not yet
  desktop->ShowMain(form);
  EXPECT_FALSE(p.ctx.settings.fontsChanged);
  EXPECT_EQ(window->Output()->font().pointSize(), 14);  // "No personal reminders": proportional
  EXPECT_TRUE(window->Output()->font().bold());

  auto* user = desktop->Open(47);
  EXPECT_EQ(user->windowTitle(), "User Font Options");
  Child<QComboBox>(user, "cboFixedSize")->setCurrentText("11");
  EXPECT_EQ(Ini(47, "Fixed Width Font Size"), "11");
  EXPECT_EQ(Ini(46, "Fixed Width Font Size"), "9");
  desktop->ShowMain(user);
  window->hide();
}

TEST_F(DesktopTest, TipOfTheDayAtFirstActivationAndFromTheMenu) {
  p.Start();
  p.Write("DayTips.dat", "One. Two.\nThree\n");
  desktop = std::make_unique<Desktop>(p.ctx);
  window = std::make_unique<MainWindow>(*desktop);
  window->Load();
  window->Timer()->stop();
  window->show();
  QApplication::processEvents();
  auto* tip = qobject_cast<TipForm*>(desktop->Loaded(42));
  ASSERT_NE(tip, nullptr);
  EXPECT_TRUE(tip->isVisible());
  EXPECT_EQ(Child<QLabel>(tip, "lblTip")->text(), "One.\nTwo.");
  EXPECT_EQ(Child<QLabel>(tip, "lblTipNumber")->text(), "Tip 1 of 2");
  Child<QPushButton>(tip, "cmdNextTip")->click();
  EXPECT_EQ(Child<QLabel>(tip, "lblTip")->text(), "Three");
  Child<QCheckBox>(tip, "chkShowTip")->setChecked(false);
  EXPECT_EQ(Ini(0, "Show Tip of the Day"), "No");
  Child<QPushButton>(tip, "cmdMainScreen")->click();
  QApplication::processEvents();
  EXPECT_FALSE(tip->isVisible());  // once per run
  window->ActionNamed("muTip")->trigger();
  EXPECT_EQ(Child<QLabel>(tip, "lblTip")->text(), "One.\nTwo.");
  EXPECT_EQ(Ini(0, "Last Tip Shown Number"), "1");
  desktop->ShowMain(tip);
  window->hide();
}

TEST_F(DesktopTest, PasswordManagerForm) {
  test::TempFolder config;
  const char* old = std::getenv("XDG_CONFIG_HOME");
  const std::string saved = old ? old : "";
  ::setenv("XDG_CONFIG_HOME", config.path().c_str(), 1);
  Open();
  auto* form = desktop->Open(63);
  EXPECT_TRUE(Child<QLabel>(form, "lblState")->text().startsWith("No start-up password"));
  EXPECT_EQ(Child<QPushButton>(form, "cmdSave")->toolTip(), "Save password.");
  Child<QLineEdit>(form, "txtNew")->setText("Codex2026");
  Child<QLineEdit>(form, "txtConfirm")->setText("Codex2026");
  Child<QPushButton>(form, "cmdSave")->click();
  EXPECT_EQ(p.sink.Last(), "Password successfully saved.");
  EXPECT_TRUE(Child<QLineEdit>(form, "txtNew")->text().isEmpty());
  EXPECT_TRUE(std::filesystem::exists(p.File("pw.dat")));
  EXPECT_TRUE(std::filesystem::exists(config.path() / "MeridianCodex" / "settings.ini"));
  EXPECT_TRUE(Child<QLabel>(form, "lblState")->text().startsWith("A start-up password is set"));

  Child<QRadioButton>(form, "optRemove")->setChecked(true);
  EXPECT_TRUE(Child<QLineEdit>(form, "txtNew")->isHidden());
  EXPECT_TRUE(Child<QPushButton>(form, "cmdSave")->isHidden());
  Child<QLineEdit>(form, "txtCurrent")->setText("codex2026");
  Child<QPushButton>(form, "cmdRemove")->click();
  EXPECT_EQ(p.sink.Last(), "Current password is invalid - please try again.");
  EXPECT_EQ(Child<QLineEdit>(form, "txtCurrent")->text(), "codex2026");  // kept for a retry
  Child<QLineEdit>(form, "txtCurrent")->setText("Codex2026");
  Child<QPushButton>(form, "cmdRemove")->click();
  EXPECT_EQ(p.sink.Last(), "Password successfully removed.");
  EXPECT_FALSE(std::filesystem::exists(p.File("pw.dat")));
  if (old)
    ::setenv("XDG_CONFIG_HOME", saved.c_str(), 1);
  else
    ::unsetenv("XDG_CONFIG_HOME");
}

TEST_F(DesktopTest, BackupAndRestoreFromTheFileMenu) {
  Open();
  window->ActionNamed("muRestoreAll")->trigger();
  EXPECT_EQ(p.sink.Last(), "Backup folder not found.");
  window->ActionNamed("muLastBackup")->trigger();
  EXPECT_EQ(p.sink.Last(), "Files have not been backed up since this feature was introduced.");
  window->ActionNamed("muBackup")->trigger();
  EXPECT_EQ(p.sink.messages.back().caption, "Success!");
  window->ActionNamed("muLastBackup")->trigger();
  EXPECT_EQ(p.sink.Last(), "Files last backed up on 23 November 2026.");

  // Settings changed after the backup come back with the settings file.
  UpdateIniFile(p.ctx, 1, "Show Menu Item 7", "No");
  UpdateIniFile(p.ctx, 1, "Screen Background Colour", "255");
  window->ApplyFavourites();
  EXPECT_FALSE(window->ActionNamed("muFav7")->isVisible());
  window->ActionNamed("muRestoreIni")->trigger();
  EXPECT_EQ(p.sink.Last(), "Backup copy of file mercod.ini successfully restored.");
  EXPECT_TRUE(window->ActionNamed("muFav7")->isVisible());
  EXPECT_EQ(window->palette().color(QPalette::Window), ColourOfSetting(16774593));
}

}  // namespace
}  // namespace mc::ui
