// The Month and Year Calendars screens driven as a user drives them, each
// checked against a screen model given the same inputs.
#include "qstring_printer.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "core/safe_file.h"
#include "desktop_fixture.h"
#include "ui/main_window.h"
#include "ui/month_calendars_form.h"
#include "ui/output_box.h"
#include "ui/year_calendars_form.h"

namespace mc::ui {
namespace {

QString Lines(const std::string& text) {
  QString q = QString::fromStdString(text);
  q.replace("\r\n", "\n");
  return q;
}

class CalendarFormsTest : public DesktopFixture {
 protected:
  CalendarFormsTest() { qputenv("CODEX_SILENT", "1"); }
  void Open() {
    DesktopFixture::Open();
    window->show();
    p.sink.Clear();
  }
  // A choice from a list, as a click on its entry makes it.
  static void Choose(QComboBox* list, const QString& entry) {
    const int i = list->findText(entry);
    ASSERT_GE(i, 0) << entry.toStdString();
    list->setCurrentIndex(i);
    emit list->activated(i);
  }
};

TEST_F(CalendarFormsTest, MonthCalendarsFollowsItsModel) {
  Open();
  auto* form = Menu<MonthCalendarsForm>("muMonthCal");
  ASSERT_TRUE(form);
  auto* calendar = Child<QComboBox>(form, "cboCalendar");
  auto* month = Child<QComboBox>(form, "cboMonth");
  auto* year = Child<QLineEdit>(form, "txtYear");
  auto* grid = Child<QPlainTextEdit>(form, "txtGrid");
  auto* information = Child<QPlainTextEdit>(form, "txtInformation");
  auto* cycle = Child<QPlainTextEdit>(form, "txtCycle");
  auto* status = Child<QLabel>(form, "lblStatus");

  MonthCalendarsScreen model(p.ctx);
  auto same = [&](const char* step) {
    SCOPED_TRACE(step);
    EXPECT_EQ(grid->toPlainText(), Lines(model.GridText()));
    EXPECT_EQ(information->toPlainText(), QString::fromStdString(model.Information()));
    EXPECT_EQ(cycle->toPlainText(), Lines(model.CycleText()));
    EXPECT_EQ(cycle->isVisibleTo(form), !model.CycleText().empty());
    EXPECT_EQ(status->text(), QString::fromStdString(model.Status()));
    EXPECT_EQ(year->text(), QString::fromStdString(model.YearText()));
    ASSERT_EQ(month->count(), static_cast<int>(model.MonthList().size()));
    EXPECT_EQ(month->currentIndex(), model.MonthIndex());
  };
  model.Load();
  EXPECT_EQ(calendar->currentText(), "Gregorian");
  same("load");
  EXPECT_EQ(month->toolTip(), "");
  EXPECT_EQ(Child<QToolButton>(form, "cmdMonthUp")->toolTip(),
            "Down = previous month; up = next month.");
  EXPECT_EQ(year->toolTip(), "Leave blank for current year.");

  Choose(calendar, "Chinese");
  model.SelectCalendar(*MonthCalendarsScreen::EntryIndex("Chinese"));
  same("Chinese");
  QTest::mouseClick(Child<QToolButton>(form, "cmdYearDown"), Qt::LeftButton);
  model.StepYear(-1);
  same("year down");
  QTest::mouseClick(Child<QToolButton>(form, "cmdMonthUp"), Qt::LeftButton);
  model.StepMonth(1);
  same("month up");

  Choose(calendar, "Hebrew");
  model.SelectCalendar(*MonthCalendarsScreen::EntryIndex("Hebrew"));
  year->setText("5784");
  QTest::keyClick(year, Qt::Key_Return);
  model.EnterYear("5784");
  same("5784");
  Choose(month, "Adar II");
  model.SelectMonth(6);
  same("Adar II");
  // Ctrl++ on the year box and Ctrl+- on the month list work their spins.
  QTest::keyClick(year, Qt::Key_Plus, Qt::ControlModifier);
  model.CtrlKey(true, MonthCalendarsScreen::Focus::Year);
  same("Ctrl++ on the year");
  EXPECT_TRUE(model.GridText().starts_with("        Adar 5785\r\n"));
  QTest::keyClick(month, Qt::Key_Minus, Qt::ControlModifier);
  model.CtrlKey(false, MonthCalendarsScreen::Focus::Month);
  same("Ctrl+- on the month");
  p.sink.Clear();
  QTest::keyClick(grid, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(p.sink.Last(),
            "To use Ctrl++ you must first left-click the control containing the value you wish "
            "to change.");

  // A refused month puts the list back on the month shown.
  Choose(calendar, "Gregorian");
  model.SelectCalendar(*MonthCalendarsScreen::EntryIndex("Gregorian"));
  year->setText("1582");
  QTest::keyClick(year, Qt::Key_Enter);
  model.EnterYear("1582");
  same("November 1582");
  Choose(month, "October");
  EXPECT_EQ(p.sink.Last(), "Months earlier than November in 1582 cannot be displayed.");
  EXPECT_EQ(month->currentText(), "November");
  same("October refused");

  // The year box shows its hint when it takes the focus.
  QFocusEvent focus(QEvent::FocusIn);
  QApplication::sendEvent(year, &focus);
  EXPECT_EQ(status->text(),
            "Enter a year value in the range 1583 to 9999 and press the Enter key.");
  QTest::mouseClick(Child<QPushButton>(form, "cmdMainScreen"), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(window->isVisible());
}

TEST_F(CalendarFormsTest, YearCalendarsFollowsItsModel) {
  Open();
  auto* form = Menu<YearCalendarsForm>("muYearCal");
  ASSERT_TRUE(form);
  auto* calendar = Child<QComboBox>(form, "cboCalendar");
  auto* year = Child<QLineEdit>(form, "txtYear");
  auto* hint = Child<QLabel>(form, "lblHint");
  auto* output = Child<OutputBox>(form, "txtOutput");
  EXPECT_EQ(output->toolTip(), "Press F11 for an enlarged view of the output.");
  EXPECT_EQ(Child<QPushButton>(form, "cmdSave")->toolTip(), "Save calendar to a text file.");

  YearCalendarsScreen model(p.ctx);
  auto same = [&](const char* step) {
    SCOPED_TRACE(step);
    EXPECT_EQ(output->Report(), model.Output());
    EXPECT_EQ(output->toPlainText(), Lines(model.Output()));
    EXPECT_EQ(year->text(), QString::fromStdString(model.YearText()));
    EXPECT_EQ(hint->text(), QString::fromStdString(model.Hint()));
  };
  model.Load();
  EXPECT_EQ(calendar->currentText(), "Gregorian");
  same("load");

  Choose(calendar, "Hebrew");
  model.SelectCalendar(*YearCalendarsScreen::EntryIndex("Hebrew"));
  same("Hebrew");
  year->setText("5784");
  QTest::keyClick(year, Qt::Key_Return);
  model.SetYearText("5784");
  model.Enter();
  same("5784");
  QTest::mouseClick(Child<QToolButton>(form, "cmdYearDown"), Qt::LeftButton);
  model.Spin(-1);
  same("spin down");
  EXPECT_TRUE(output->Report().starts_with("*** Hebrew Calendar for 5783 A.M. ***"));

  // A refused year leaves the page.
  year->setText("abc");
  QTest::keyClick(year, Qt::Key_Return);
  EXPECT_EQ(p.sink.Last(), "Year value must be numeric.");
  EXPECT_TRUE(output->Report().starts_with("*** Hebrew Calendar for 5783 A.M. ***"));

  // Saving writes the page with the date line.
  const auto file = p.File("hebrew.txt");
  desktop->saveFileChooser = [&] { return QString::fromStdString(file.string()); };
  QTest::mouseClick(Child<QPushButton>(form, "cmdSave"), Qt::LeftButton);
  EXPECT_EQ(p.sink.messages.back().caption, "Success!");
  EXPECT_TRUE(p.Read("hebrew.txt").starts_with("*** Hebrew Calendar for 5783 A.M. ***"));

  // The Pawukon asks before printing; No prints nothing.
  Choose(calendar, "Balinese Pawukon");
  EXPECT_TRUE(
      output->Report().starts_with("*** Balinese Pawukon Calendar for Gregorian Year 2026 ***"));
  p.sink.answers = {false};
  QTest::mouseClick(Child<QPushButton>(form, "cmdPrint"), Qt::LeftButton);
  EXPECT_EQ(p.sink.messages.back().text,
            "Landscape mode should be selected. Also, over 800 lines will be printed. Do you "
            "wish to continue?");
}

}  // namespace
}  // namespace mc::ui
