#include "ui/print_form.h"

#include "qstring_printer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "core/ini_file.h"
#include "support/test_program.h"
#include "ui/desktop.h"
#include "ui/screen_colours.h"

namespace mc::ui {
namespace {

TEST(PrintForm, SplitsTheOutputAndPrintsToPdf) {
  test::TestProgram p;
  p.Start();
  Desktop desktop(p.ctx);
  std::string report = "*** Date Conversions ***\r\n";
  for (int i = 0; i < 150; ++i) report += "Row " + std::to_string(i) + "\r\n";
  PrintForm form(desktop, report);
  EXPECT_EQ(form.findChild<QLineEdit*>("txtTitle")->text(), "*** Date Conversions ***");
  EXPECT_EQ(form.findChild<QLineEdit*>("txtFooter")->text(),
            "Results produced using Meridian Codex");
  EXPECT_TRUE(form.findChild<QPlainTextEdit*>("txtText")->toPlainText().startsWith("Row 0\nRow 1"));
  EXPECT_EQ(form.Settings().body.name, "Courier New");  // a table keeps its columns

  form.findChild<QLineEdit*>("txtHeader")->setText("My header");
  form.findChild<QComboBox*>("cboMarginUnit")->setCurrentText("inches");
  EXPECT_NEAR(form.findChild<QDoubleSpinBox*>("txtMarginLeft")->value(), 1.0, 1e-9);
  auto pdf = p.File("out.pdf");
  ASSERT_TRUE(form.Print(QString::fromStdString(pdf.string())));
  std::string content = p.Read("out.pdf");
  EXPECT_EQ(content.substr(0, 5), "%PDF-");
  EXPECT_NE(content.find("/Count 3"), std::string::npos);  // 150 rows take three pages
  EXPECT_EQ(ReadIniFile(p.ctx, 29, "Last Header"), "My header");
  EXPECT_EQ(ReadIniFile(p.ctx, 29, "Margin Unit"), "inches");
  EXPECT_EQ(ReadIniFile(p.ctx, 29, "Margin Left"), "1");
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST(ScreenColours, SettingsAreBlueGreenRed) {
  EXPECT_EQ(ColourOfSetting(16774593), QColor(0xC1, 0xF5, 0xFF));
  EXPECT_EQ(ColourOfSetting(255), QColor(255, 0, 0));
  EXPECT_EQ(ColourOfSetting(-2147483644), QApplication::palette().color(QPalette::Window));
}

}  // namespace
}  // namespace mc::ui
