// The reminder screens driven as a user drives them: typing, clicking, and
// going back to the main screen to see the list.
#include "qstring_printer.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>

#include "core/ini_file.h"
#include "desktop_fixture.h"
#include "reminders/store.h"
#include "reminders/store_files.h"
#include "ui/add_reminders_form.h"
#include "ui/edit_reminders_form.h"
#include "ui/main_window.h"
#include "ui/output_box.h"
#include "ui/print_form.h"
#include "ui/reminder_utilities_form.h"
#include "ui/reminders_by_month_form.h"

namespace mc::ui {
namespace {

// The program's clock: Monday 23 November 2026, 10:30.
class ReminderFormsTest : public DesktopFixture {
 protected:
  ReminderFormsTest() { qputenv("CODEX_SILENT", "1"); }
  void Open() {
    DesktopFixture::Open();
    window->show();
  }
  // Near the left edge: check boxes and option buttons take clicks on their
  // indicator and caption only, and a layout may have made them wide.
  void Click(QWidget* form, const char* button) {
    auto* b = Child<QAbstractButton>(form, button);
    QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(6, b->height() / 2));
  }
  void Type(QWidget* form, const char* box, const QString& text) {
    auto* e = Child<QLineEdit>(form, box);
    e->clear();
    QTest::keyClicks(e, text);
  }
  std::string MainList() { return window->Output()->Report(); }
};

TEST_F(ReminderFormsTest, AddAReminderAndSeeItOnTheMainList) {
  Open();
  EXPECT_EQ(MainList(), "No personal reminders currently defined.");
  auto* add = Menu<AddRemindersForm>("muAddRem");
  ASSERT_NE(add, nullptr);
  EXPECT_TRUE(add->isVisible());
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Child<QLineEdit>(add, "txtDate")->text(), "Mon Nov 23");
  EXPECT_EQ(Child<QLineEdit>(add, "txtClock")->text(), "10:30:00");
  p.clock.Advance(1000);
  window->Tick();  // the one timer keeps the screen's clock
  EXPECT_EQ(Child<QLineEdit>(add, "txtClock")->text(), "10:30:01");

  Type(add, "txtMessage", "Dentist");
  EXPECT_EQ(Child<QLineEdit>(add, "txtCount")->text(), "7");
  Click(add, "cmdSave");
  EXPECT_EQ(p.sink.Last(), "No values specified for d and m.");
  EXPECT_EQ(Child<QLineEdit>(add, "txtMessage")->text(), "Dentist");  // left for correction
  Type(add, "txtDayMonth", "25/11");
  Click(add, "cmdSave");
  EXPECT_EQ(Child<QLineEdit>(add, "txtInformation")->text(),
            "Reminder(s) have been successfully processed.");
  EXPECT_EQ(Child<QLineEdit>(add, "txtMessage")->text(), "");
  EXPECT_EQ(Child<QLineEdit>(add, "txtCount")->text(), "0");

  // A dated reminder with "<" and ">" asks first; No keeps the entry.
  Type(add, "txtMessage", "Ann <1990!>");
  Type(add, "txtDayMonth", "1/12");
  p.sink.answers = {false};
  Click(add, "cmdSave");
  EXPECT_EQ(p.sink.messages.back().caption, "Information!");
  EXPECT_EQ(Child<QLineEdit>(add, "txtMessage")->text(), "Ann <1990!>");
  Click(add, "optEveryYear");
  Click(add, "cmdSave");
  EXPECT_EQ(Child<QLineEdit>(add, "txtInformation")->text(),
            "Reminder(s) have been successfully processed.");
  EXPECT_TRUE(Child<QRadioButton>(add, "optThisYear")->isChecked());  // back to the defaults

  Click(add, "cmdPreviousScreen");
  EXPECT_FALSE(add->isVisible());
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(MainList().starts_with("*** List of Reminders ***"));
  EXPECT_NE(MainList().find("Dentist"), std::string::npos);
  EXPECT_NE(MainList().find("Ann 36th"), std::string::npos);
  EXPECT_FALSE(Reminders(p.ctx).remindersChanged);
}

TEST_F(ReminderFormsTest, ANewDayIsSeenBehindAReminderScreen) {
  InsertReminder(p.ctx, 1123, 2026, "Call Anna");
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  p.clock.Set({2026, 11, 23, 23, 59, 58, 0});
  Open();
  auto* month = Menu<RemindersByMonthForm>("muRemByMonth");
  p.clock.Advance(3000);
  window->Tick();
  EXPECT_EQ(Child<QLineEdit>(month, "txtDate")->text(), "Tue Nov 24");
  EXPECT_EQ(MainList().find("Call Anna"), std::string::npos);  // gone to purged.dat
  EXPECT_EQ(p.sink.Last(), "One of your set reminders is imminent.");
}

TEST_F(ReminderFormsTest, TypesEnableTheirOwnInputsAndSaveTheirSeries) {
  Open();
  auto* add = Menu<AddRemindersForm>("muAddRem");
  auto* type1 = Child<QGroupBox>(add, "fraType1");
  auto* type2 = Child<QGroupBox>(add, "fraType2");
  auto* span = Child<QGroupBox>(add, "fraSpan");
  auto* days = Child<QLineEdit>(add, "txtSeriesDays");
  EXPECT_TRUE(type1->isEnabled());
  EXPECT_FALSE(type2->isEnabled());
  EXPECT_FALSE(span->isEnabled());
  EXPECT_FALSE(days->isEnabled());
  Click(add, "chkSeries");
  EXPECT_TRUE(days->isEnabled());
  EXPECT_EQ(Child<QComboBox>(add, "cboSeriesEndMonth")->currentText(), "December");
  EXPECT_EQ(Child<QComboBox>(add, "cboSeriesEndYear")->currentText(), "2027");
  Click(add, "optType2");
  EXPECT_FALSE(type1->isEnabled());
  EXPECT_TRUE(type2->isEnabled());
  EXPECT_TRUE(span->isEnabled());
  EXPECT_EQ(Child<QComboBox>(add, "cboFromMonth")->currentText(), "November");

  // Type 3, the last day of December and January.
  Click(add, "optType3");
  Type(add, "txtMessage", "Rent");
  Child<QComboBox>(add, "cboType3Day")->setCurrentText("Last");
  Child<QComboBox>(add, "cboFromMonth")->setCurrentText("December");
  Child<QComboBox>(add, "cboToMonth")->setCurrentText("January");
  Child<QComboBox>(add, "cboToYear")->setCurrentText("2027");
  Click(add, "cmdSave");
  EXPECT_EQ(add->Model().InsertedCount(), 2);
  EXPECT_TRUE(Child<QRadioButton>(add, "optType1")->isChecked());
  EXPECT_FALSE(span->isEnabled());

  // A series every 7 days from 1 December to the end of December.
  Type(add, "txtMessage", "Bins");
  Type(add, "txtDayMonth", "1/12");
  Click(add, "chkSeries");
  Type(add, "txtSeriesDays", "7");
  Child<QComboBox>(add, "cboSeriesEndYear")->setCurrentText("2026");
  Click(add, "cmdSave");
  EXPECT_EQ(add->Model().InsertedCount(), 5);  // 1, 8, 15, 22, 29 December
  EXPECT_FALSE(Child<QCheckBox>(add, "chkSeries")->isChecked());
}

TEST_F(ReminderFormsTest, PasteIsCutToSixtyCharacters) {
  Open();
  auto* add = Menu<AddRemindersForm>("muAddRem");
  auto* message = Child<QLineEdit>(add, "txtMessage");
  Type(add, "txtMessage", "Call ");
  QApplication::clipboard()->setText(QString(70, 'x'));
  p.sink.answers = {true};
  QTest::keySequence(message, QKeySequence::Paste);
  EXPECT_EQ(p.sink.Last(),
            "Text to be pasted will be truncated to 55 characters. Do you wish to continue?");
  EXPECT_EQ(message->text(), "Call " + QString(55, 'x'));
  EXPECT_EQ(Child<QLineEdit>(add, "txtCount")->text(), "60");

  // Into a selection, with the clipboard's line breaks made blanks.
  QApplication::clipboard()->setText("Anna\nand Bob");
  message->setSelection(5, 55);
  QTest::keySequence(message, QKeySequence::Paste);
  EXPECT_EQ(message->text(), "Call Anna and Bob");
  EXPECT_EQ(message->cursorPosition(), 17);
  EXPECT_EQ(add->Model().message, "Call Anna and Bob");

  // The context menu's Paste is cut the same way.
  QApplication::clipboard()->setText(QString(50, 'y'));
  message->setCursorPosition(17);
  QContextMenuEvent menuEvent(QContextMenuEvent::Mouse, QPoint(5, 5),
                              message->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(message, &menuEvent);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QAction* paste = nullptr;
  for (QAction* a : menu->actions())
    if (a->text().startsWith("&Paste")) paste = a;
  ASSERT_NE(paste, nullptr);
  p.sink.answers = {true};
  paste->trigger();
  menu->close();
  EXPECT_EQ(p.sink.Last(),
            "Text to be pasted will be truncated to 43 characters. Do you wish to continue?");
  EXPECT_EQ(message->text(), "Call Anna and Bob" + QString(43, 'y'));
}

TEST_F(ReminderFormsTest, EditAndDeleteFromTheListing) {
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  InsertReminder(p.ctx, 1201, kEveryYear, "Party");
  InsertReminder(p.ctx, 1203, 2026, "Party");
  Open();
  auto* edit = Menu<EditRemindersForm>("muEditRem");
  ASSERT_NE(edit, nullptr);
  OutputBox* listing = edit->Listing();
  EXPECT_TRUE(listing->toPlainText().startsWith("*** Reminder List ***"));
  auto clickLine = [&](int line) {
    QTextCursor c(listing->document()->findBlockByNumber(line));
    listing->setTextCursor(c);
    QTest::mouseClick(listing->viewport(), Qt::LeftButton, {},
                      listing->cursorRect(c).center() + QPoint(2, 0));
  };
  clickLine(4);
  EXPECT_EQ(Child<QLineEdit>(edit, "txtNumber")->text(), "1");
  EXPECT_EQ(Child<QLineEdit>(edit, "txtReminderDate")->text(), "25/11");
  EXPECT_EQ(Child<QLineEdit>(edit, "txtYear")->text(), "2026");
  EXPECT_EQ(Child<QLineEdit>(edit, "txtMessage")->text(), "Dentist");
  EXPECT_TRUE(Child<QLabel>(edit, "lblPrompt")->text().startsWith("To update, make required"));

  Type(edit, "txtReminderDate", "15/12");
  Click(edit, "cmdUpdate");
  EXPECT_EQ(Child<QLineEdit>(edit, "txtInformation")->text(),
            "Updated reminder has been successfully processed.");
  EXPECT_EQ(listing->document()->findBlockByNumber(6).text().toStdString(),
            "1      15/12   2026    Dentist");  // moved to its place
  EXPECT_EQ(Child<QLineEdit>(edit, "txtNumber")->text(), "");

  // Ctrl+F searches the listing, and F3 finds on.
  QTimer::singleShot(0, [] {
    QWidget* find = QApplication::activeModalWidget();
    ASSERT_NE(find, nullptr);
    EXPECT_EQ(find->objectName(), "Form74");
    find->findChild<QLineEdit*>("txtFind")->setText("party");
    QTest::mouseClick(find->findChild<QPushButton*>("cmdFind"), Qt::LeftButton);
  });
  QTest::keyClick(listing, Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(listing->textCursor().selectedText(), "Party");
  const int first = listing->textCursor().selectionStart();
  QTest::keyClick(listing, Qt::Key_F3);
  EXPECT_GT(listing->textCursor().selectionStart(), first);

  // Every reminder with the message goes at once.
  clickLine(4);
  Click(edit, "chkAllWithMessage");
  EXPECT_EQ(Child<QPushButton>(edit, "cmdDelete")->text(), "&Delete Reminders");
  p.sink.answers = {true};
  Click(edit, "cmdDelete");
  EXPECT_EQ(p.sink.messages.back().text,
            "Are you sure that you wish to delete ALL reminders containing selected message?");
  EXPECT_EQ(Child<QLineEdit>(edit, "txtInformation")->text(),
            "All reminders containing selected message have been successfully deleted.");
  EXPECT_FALSE(listing->toPlainText().contains("Party"));

  Click(edit, "cmdMainScreen");
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(MainList().find("Party"), std::string::npos);
  EXPECT_NE(MainList().find("Dentist"), std::string::npos);
}

TEST_F(ReminderFormsTest, MonthGridClicksAndDoubleClicks) {
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  InsertReminder(p.ctx, 1123, 2026, "Call Anna");
  Open();
  auto* month = Menu<RemindersByMonthForm>("muRemByMonth");
  ASSERT_NE(month, nullptr);
  QTableWidget* grid = month->Grid();
  auto item = [&](int day) {
    QPoint c = month->CellOf(day);
    return grid->item(c.y(), c.x());
  };
  auto cellCentre = [&](int day) { return grid->visualItemRect(item(day)).center(); };
  EXPECT_EQ(Child<QComboBox>(month, "cboMonth")->currentText(), "November");
  EXPECT_TRUE(Child<QRadioButton>(month, "optThisYear")->isChecked());
  EXPECT_EQ(grid->horizontalHeaderItem(0)->text(), "S");
  EXPECT_EQ(month->CellOf(1), QPoint(0, 0));  // 1 November 2026 was a Sunday
  const QColor marked = item(25)->background().color();
  EXPECT_EQ(marked, QColor(255, 255, 200));  // the screen's button colour
  EXPECT_EQ(item(24)->background().style(), Qt::NoBrush);
  EXPECT_TRUE(item(23)->data(Qt::UserRole + 1).toBool());  // today, framed
  EXPECT_FALSE(item(24)->data(Qt::UserRole + 1).toBool());
  EXPECT_EQ(item(23)->background().color(), marked);  // and it has a reminder
  EXPECT_TRUE(item(25)->font().bold());
  EXPECT_FALSE(item(24)->font().bold());

  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellCentre(25));
  auto* info = Child<QPlainTextEdit>(month, "txtInformation");
  EXPECT_EQ(info->toPlainText(), "1 Reminder for Wednesday 25 November 2026\nDentist");
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellCentre(24));
  EXPECT_EQ(info->toPlainText(), "");

  // A double click opens Add Reminders with the date, and comes back here.
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cellCentre(30));
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, cellCentre(30));
  auto* add = qobject_cast<AddRemindersForm*>(desktop->ActiveScreen());
  ASSERT_NE(add, nullptr);
  EXPECT_FALSE(month->isVisible());
  EXPECT_EQ(Child<QLineEdit>(add, "txtDayMonth")->text(), "30/11");
  EXPECT_TRUE(Child<QRadioButton>(add, "optThisYear")->isChecked());
  Type(add, "txtMessage", "Car service");
  Click(add, "cmdSave");
  Click(add, "cmdPreviousScreen");
  EXPECT_TRUE(month->isVisible());
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(item(30)->background().color(), marked);
  EXPECT_NE(MainList().find("Car service"), std::string::npos);  // rebuilt behind

  // The spin moves through the months and on into the next year.
  Click(month, "cmdSpinUp");
  EXPECT_EQ(Child<QComboBox>(month, "cboMonth")->currentText(), "December");
  Click(month, "cmdSpinUp");
  EXPECT_EQ(Child<QComboBox>(month, "cboMonth")->currentText(), "January");
  EXPECT_TRUE(Child<QRadioButton>(month, "optNextYear")->isChecked());
  Click(month, "cmdSpinDown");
  Click(month, "cmdSpinDown");
  EXPECT_EQ(Child<QComboBox>(month, "cboMonth")->currentText(), "November");
  EXPECT_TRUE(Child<QRadioButton>(month, "optThisYear")->isChecked());

  // Save: the title, the grid and the month's reminders.
  desktop->saveFileChooser = [&] { return QString::fromStdString(p.File("month.txt").string()); };
  Click(month, "cmdSave");
  const std::string saved = p.Read("month.txt");
  EXPECT_TRUE(saved.starts_with("*** Reminder List for Month ***\r\n"));
  EXPECT_NE(saved.find("Mon  30 Nov 2026   Car service"), std::string::npos);

  // Printed, the grid keeps its columns in the fixed-width body font.
  UpdateIniFile(p.ctx, 29, "Body Fixed Width Font Name", "Liberation Mono");
  PrintSettings seen;
  QTimer::singleShot(0, [&] {
    auto* form = qobject_cast<PrintForm*>(QApplication::activeModalWidget());
    ASSERT_NE(form, nullptr);
    seen = form->Settings();
    EXPECT_EQ(form->Document().title, "*** Reminder List for Month ***");
    form->reject();
  });
  Click(month, "cmdPrint");
  EXPECT_EQ(seen.body.name, "Liberation Mono");
}

TEST_F(ReminderFormsTest, MonthGridFollowsTheWeekStartDay) {
  UpdateIniFile(p.ctx, 0, "Start Day", "2");
  Open();
  auto* month = Menu<RemindersByMonthForm>("muRemByMonth");
  EXPECT_EQ(month->Grid()->horizontalHeaderItem(0)->text(), "M");
  EXPECT_EQ(month->Grid()->horizontalHeaderItem(6)->text(), "S");
  EXPECT_EQ(month->CellOf(1), QPoint(6, 0));  // a Sunday stands last
  EXPECT_EQ(month->CellOf(2), QPoint(0, 1));
}

class UtilitiesTest : public ReminderFormsTest {
 protected:
  ReminderUtilitiesForm* OpenUtilities() {
    Open();
    auto* u = Menu<ReminderUtilitiesForm>("muRemUtils");
    u->fileChooser = [this](bool import, const QString& offered) {
      offers.push_back({import, offered});
      return chosen;
    };
    return u;
  }
  void Format(QWidget* u, const char* order, const char* separator) {
    Child<QComboBox>(u, "cboFieldOrder")->setCurrentText(order);
    Child<QComboBox>(u, "cboSeparator")->setCurrentText(separator);
  }
  std::vector<std::pair<bool, QString>> offers;
  QString chosen;
};

TEST_F(UtilitiesTest, ImportAndExportThroughTheFileChooser) {
  auto* u = OpenUtilities();
  Click(u, "optImport");
  Click(u, "cmdExecute");
  EXPECT_EQ(p.sink.Last(), "Field order not defined.");
  EXPECT_TRUE(offers.empty());  // the format is checked before the file is asked for
  Format(u, "day month year message", "Forward Slash /");

  std::filesystem::create_directory(p.File("mine"));
  p.Write("mine/list.txt", "1/1/every/New Year\r\n25/12/2026/Christmas dinner\r\n5/5/2020/Old\r\n");
  chosen = QString::fromStdString(p.File("mine/list.txt").string());
  p.sink.answers = {true};
  Click(u, "cmdExecute");
  ASSERT_EQ(offers.size(), 1u);
  EXPECT_TRUE(offers[0].first);
  EXPECT_EQ(offers[0].second.toStdString(), p.File("newrems.txt").string());
  EXPECT_EQ(p.sink.messages[p.sink.messages.size() - 3].text,
            "Data will be imported from the file " + p.File("mine/list.txt").string() +
                ". Please confirm that you wish to continue.");
  EXPECT_EQ(p.sink.Last(),
            "2 reminders have been successfully imported. 1 reject is in the file rejects.txt.");
  EXPECT_TRUE(std::filesystem::exists(p.File("rejects.txt")));

  Click(u, "optExport");
  Format(u, "year month day message", "User Specified");
  EXPECT_TRUE(Child<QLineEdit>(u, "txtUserSeparator")->isEnabled());
  Type(u, "txtUserSeparator", "|");
  chosen = QString::fromStdString(p.File("myrems.txt").string());
  Click(u, "cmdExecute");
  EXPECT_FALSE(offers.back().first);
  EXPECT_EQ(p.sink.Last(), "2 reminders have been successfully exported to file myrems.txt.");
  EXPECT_EQ(p.Read("myrems.txt"), "every|1|1|New Year\r\n2026|12|25|Christmas dinner\r\n");
  chosen.clear();  // cancelled: nothing happens
  p.sink.Clear();
  Click(u, "cmdExecute");
  EXPECT_TRUE(p.sink.messages.empty());

  Click(u, "cmdMainScreen");
  EXPECT_NE(MainList().find("Christmas dinner"), std::string::npos);
}

TEST_F(UtilitiesTest, CompactPrintAndSwitches) {
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  InsertReminder(p.ctx, 1201, kEveryYear, "Ann <1990!>");
  InsertReminder(p.ctx, 1202, 2026, "Gone");
  auto* u = OpenUtilities();
  EXPECT_NE(MainList().find("Ann 36th"), std::string::npos);

  // The slot listing goes to Print Settings in Courier New 9, untitled.
  Click(u, "optPrintStructures");
  PrintSettings seen;
  PrintDocument doc;
  QTimer::singleShot(0, [&] {
    auto* form = qobject_cast<PrintForm*>(QApplication::activeModalWidget());
    ASSERT_NE(form, nullptr);
    seen = form->Settings();
    doc = form->Document();
    EXPECT_TRUE(form->Print(QString::fromStdString(p.File("slots.pdf").string())));
    form->accept();
  });
  Click(u, "cmdExecute");
  EXPECT_EQ(seen.body.name, "Courier New");
  EXPECT_EQ(seen.body.size, 9);
  EXPECT_EQ(doc.title, "");
  EXPECT_TRUE(doc.text.starts_with("Head = 1\n"));
  EXPECT_EQ(p.Read("slots.pdf").substr(0, 5), "%PDF-");
  EXPECT_EQ(LoadPrintSettings(p.ctx).body.size, 10);  // the stored body font stays

  Click(u, "optCompact");
  Click(u, "cmdExecute");
  EXPECT_EQ(p.sink.Last(), "Reminders file successfully compacted.");

  Click(u, "chkAudio");
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Reminder Audio Signal"), "Off");
  Click(u, "chkProcessFields");
  EXPECT_EQ(ReadIniFile(p.ctx, 0, "Process Reminder Fields"), "No");
  Click(u, "cmdMainScreen");
  EXPECT_NE(MainList().find("Ann <1990!>"), std::string::npos);  // the list was rebuilt
}

TEST_F(ReminderFormsTest, ListMenusShowTheListsAndTheLampKeepsItsColour) {
  InsertReminder(p.ctx, 1123, 2026, "Dentist");
  Open();
  auto* lamp = window->findChild<QLabel*>("Text7");
  EXPECT_TRUE(lamp->isVisible());
  EXPECT_EQ(lamp->palette().color(QPalette::WindowText), QColor(255, 0, 0));  // after the colours
  Menu<EditRemindersForm>("muEditRem");
  desktop->ShowMain(desktop->ActiveScreen());
  EXPECT_EQ(lamp->palette().color(QPalette::WindowText), QColor(255, 0, 0));
  window->Output()->SetReport("something else");
  window->ActionNamed("muListRem")->trigger();
  EXPECT_TRUE(MainList().starts_with("*** List of Reminders ***"));
  p.Write("purged.dat", "Nov  2  2026  Gone\r\n");
  window->ActionNamed("muOutOfDate")->trigger();
  EXPECT_NE(MainList().find("*** List of Out-of-Date Reminders ***"), std::string::npos);
}

}  // namespace
}  // namespace mc::ui
