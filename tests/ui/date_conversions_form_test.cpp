#include "ui/date_conversions_form.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include "qstring_printer.h"
#include "support/test_program.h"
#include "ui/output_box.h"

namespace mc::ui {
namespace {

class DateConversionsFormTest : public ::testing::Test {
 protected:
  DateConversionsFormTest() {
    p.Start();
    desktop = std::make_unique<Desktop>(p.ctx);
    form = std::make_unique<DateConversionsForm>(*desktop);
  }
  template <class T>
  T* Child(const char* name) {
    return form->findChild<T*>(name);
  }

  test::TestProgram p;
  std::unique_ptr<Desktop> desktop;
  std::unique_ptr<DateConversionsForm> form;
};

TEST_F(DateConversionsFormTest, TypeADateAndPressEnter) {
  auto* date = Child<QLineEdit>("txtDate");
  QTest::keyClicks(date, "25/12/2026");
  QTest::keyClick(date, Qt::Key_Return);
  // The box shows what the model wrote, and the model what it was given.
  EXPECT_EQ(form->Output()->Report(), form->Model().Output());
  EXPECT_NE(form->Output()->Report().find("December 25, 2026 (Gregorian Calendar)"),
            std::string::npos);
  EXPECT_NE(form->Output()->Report().find("Today is Christmas Day."), std::string::npos);

  QTest::mouseClick(Child<QToolButton>("spnUp"), Qt::LeftButton);
  EXPECT_EQ(date->text(), "26/12/2026");
  QTest::mouseClick(Child<QToolButton>("spnDown"), Qt::LeftButton);
  QTest::mouseClick(Child<QToolButton>("spnDown"), Qt::LeftButton);
  EXPECT_EQ(date->text(), "24/12/2026");
  EXPECT_NE(form->Output()->Report().find("Tonight is Christmas Eve."), std::string::npos);
}

TEST_F(DateConversionsFormTest, EmptyBoxIsTodayAndRefusalsLeaveTheOutputEmpty) {
  auto* date = Child<QLineEdit>("txtDate");
  QTest::keyClick(date, Qt::Key_Return);
  EXPECT_EQ(date->text(), "23/11/2026");
  date->setText("30/2/2026");
  QTest::keyClick(date, Qt::Key_Return);
  EXPECT_EQ(p.sink.Last(), "Invalid day value.");
  EXPECT_EQ(form->Output()->Report(), "");
}

TEST_F(DateConversionsFormTest, ChoosingACalendarChangesThePrompt) {
  auto* calendar = Child<QComboBox>("cboCalendar");
  EXPECT_EQ(calendar->currentText(), "Gregorian");
  EXPECT_EQ(calendar->count(), 32);
  calendar->setCurrentText("Hebrew");
  EXPECT_TRUE(Child<QLabel>("lblPrompt")->text().startsWith("Input a Hebrew calendar date"));
  auto* date = Child<QLineEdit>("txtDate");
  date->setText("1/6L/5784");
  QTest::keyClick(date, Qt::Key_Return);
  EXPECT_NE(form->Output()->Report().find("Adar II 1, 5784 A.M. (Hebrew Calendar)"),
            std::string::npos);
}

}  // namespace
}  // namespace mc::ui
