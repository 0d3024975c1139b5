#include "ui/main_window.h"

#include "qstring_printer.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include "core/ini_file.h"
#include "desktop_fixture.h"
#include "reminders/store.h"
#include "ui/output_box.h"
#include "ui/sound.h"

namespace mc::ui {
namespace {

// Ten seconds before midnight, so that a few ticks bring a new day.
class MainWindowTest : public DesktopFixture {
 protected:
  MainWindowTest() : DesktopFixture({2026, 11, 23, 23, 59, 50, 0}) {}
  QString Box(const char* name) { return window->findChild<QLineEdit*>(name)->text(); }
};

TEST_F(MainWindowTest, TicksAcrossMidnight) {
  Open();
  EXPECT_EQ(Box("Text5"), "London, England UK");
  EXPECT_EQ(Box("Text2"), "Mon Nov 23");
  EXPECT_EQ(Box("Text3"), "23:59:50");
  EXPECT_EQ(Box("Text4"), "Julian Day 2461368.4999");
  EXPECT_EQ(Box("Text6"), "Sunrise 07:31; sunset 16:01");
  p.clock.Advance(10000);
  window->Tick();
  EXPECT_EQ(Box("Text2"), "Tue Nov 24");
  EXPECT_EQ(Box("Text3"), "00:00:00");
  EXPECT_EQ(Box("Text4"), "Julian Day 2461368.5000");
}

TEST_F(MainWindowTest, RemindersAtLoadAndAtTheFirstTickOfANewDay) {
  qputenv("CODEX_SILENT", "1");
  InsertReminder(p.ctx, 1123, 2026, "Call Anna");
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  Open();
  QLabel* lamp = window->findChild<QLabel*>("Text7");
  EXPECT_TRUE(window->Output()->Report().starts_with("*** List of Reminders ***"));
  EXPECT_NE(window->Output()->Report().find("Call Anna"), std::string::npos);
  EXPECT_FALSE(lamp->isHidden());
  EXPECT_EQ(window->Sounds()->Requested(), 2);  // a reminder today: twice
  p.sink.Clear();
  p.clock.Advance(11000);  // just past midnight: today's reminder is gone, the next is two days off
  window->Tick();
  EXPECT_EQ(window->Output()->Report().find("Call Anna"), std::string::npos);
  EXPECT_NE(window->Output()->Report().find("Dentist"), std::string::npos);
  EXPECT_EQ(window->Sounds()->Requested(), 3);
  EXPECT_EQ(p.sink.Last(), "One of your set reminders is imminent.");
  p.sink.Clear();
  window->Tick();  // the same day: nothing more
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(MainWindowTest, FollowsTheDisplayOptions) {
  UpdateIniFile(p.ctx, 0, "Show 24-Hour Clock", "No");
  UpdateIniFile(p.ctx, 0, "Show Seconds", "No");
  UpdateIniFile(p.ctx, 0, "Show Year", "Yes");
  UpdateIniFile(p.ctx, 0, "Show Julian Day", "No");
  p.clock.Set({2026, 11, 15, 13, 5, 9, 0});
  Open();
  EXPECT_EQ(Box("Text3"), "01:05 PM");
  EXPECT_EQ(Box("Text2"), "Sun Nov 15 2026");
  EXPECT_TRUE(window->findChild<QLineEdit*>("Text4")->isHidden());
}

TEST_F(MainWindowTest, MenusAndFavourites) {
  UpdateIniFile(p.ctx, 1, "Show Menu Item 7", "No");
  UpdateIniFile(p.ctx, 1, "Show Menu Item 27", "Yes");
  Open();
  const QList<QAction*> bar = window->menuBar()->actions();
  QStringList captions;
  for (QAction* a : bar) captions << a->text();
  EXPECT_EQ(captions,
            (QStringList{"&File", "Fa&vourites", "&Calendars", "&Dates", "&Time", "&Reminders",
                         "&Maths Utilities", "Other &Utilities", "&Options", "&Help"}));
  EXPECT_FALSE(window->ActionNamed("muFav7")->isVisible());
  EXPECT_TRUE(window->ActionNamed("muFav27")->isVisible());
  EXPECT_TRUE(window->ActionNamed("muFav0")->isVisible());
  EXPECT_EQ(window->ActionNamed("muFav27")->text(), "Quick Notes");
  EXPECT_TRUE(window->ActionNamed("muSave")->isEnabled());
  UpdateIniFile(p.ctx, 1, "Show Favourites Menu", "No");
  Open();
  EXPECT_FALSE(window->FavouritesMenu()->menuAction()->isVisible());
}

TEST_F(MainWindowTest, SavesTheOutputLineByLine) {
  Open();
  window->Output()->SetReport("*** List of Reminders ***\r\nline two\r\n");
  desktop->saveFileChooser = [&] { return QString::fromStdString(p.File("out.txt").string()); };
  window->ActionNamed("muSave")->trigger();
  EXPECT_EQ(p.Read("out.txt"), "*** List of Reminders ***\r\nline two\r\n");
  EXPECT_EQ(p.sink.Last(), "Output successfully saved as file " + p.File("out.txt").string() + ".");
  desktop->saveFileChooser = [] { return QString(); };  // cancelled: nothing at all
  p.sink.Clear();
  window->ActionNamed("muSave")->trigger();
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(MainWindowTest, OutputBoxKeysFindAndEnlarge) {
  Open();
  OutputBox* box = window->Output();
  box->SetReport("alpha beta\r\nAlpha gamma\r\n");
  EXPECT_TRUE(box->Find("alpha", false, true));
  EXPECT_EQ(box->textCursor().selectionStart(), 0);
  QTest::keyClick(box, Qt::Key_F3);
  EXPECT_EQ(box->textCursor().selectionStart(), 11);
  QTest::keyClick(box, Qt::Key_F3);
  EXPECT_EQ(p.sink.Last(), "No more occurrences of text.");
  EXPECT_FALSE(box->Find("ALPHA", true, true));
  EXPECT_EQ(p.sink.Last(), "Text not found.");
  EXPECT_EQ(p.sink.messages.back().caption, "Sorry!");
  p.sink.Clear();
  EXPECT_FALSE(box->Find("   ", false, true));  // blanks only: no search at all
  EXPECT_TRUE(p.sink.messages.empty());

  QLabel* note = window->findChild<QLabel*>("Label8");
  QTest::keyClick(box, Qt::Key_F11);
  EXPECT_EQ(note->text(), "Press F11 to return to the normal view of the output.");
  QTest::keyClick(box, Qt::Key_F11);
  EXPECT_EQ(note->text(), "Press F11 for an enlarged view of the output.");
}

}  // namespace
}  // namespace mc::ui
