#include "ui/quick_notes_form.h"

#include "qstring_printer.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "core/ini_file.h"
#include "desktop_fixture.h"
#include "ui/main_window.h"

namespace mc::ui {
namespace {

class QuickNotesFormTest : public DesktopFixture {
 protected:
  void Open() {
    DesktopFixture::Open();
    p.ctx.settings.showTipPending = false;
    window->ActionNamed("muQuickNotes")->trigger();
    notes = qobject_cast<QuickNotesForm*>(desktop->Loaded(25));
    ASSERT_NE(notes, nullptr);
  }
  QPlainTextEdit* Sheet(int n) {
    return notes->findChild<QPlainTextEdit*>(QString("txtSheet%1").arg(n));
  }

  QuickNotesForm* notes = nullptr;
};

TEST_F(QuickNotesFormTest, EditsAreSavedOnLeavingAndOnExit) {
  p.Write("mynotes.txt", "{*[*(<Sheet 4>)*]*}\r\n\r\nold\r\n\r\n");
  UpdateIniFile(p.ctx, 25, "Last Sheet Used", "4");
  UpdateIniFile(p.ctx, 25, "Tab 4 Name", "Ideas");
  Open();
  EXPECT_EQ(notes->Tabs()->currentIndex(), 3);
  EXPECT_EQ(notes->Tabs()->tabText(3), "Ideas");
  EXPECT_EQ(Sheet(4)->toPlainText(), "old");

  notes->Tick({2026, 11, 23, 10, 30, 5, 0});
  EXPECT_EQ(notes->findChild<QLineEdit*>("txtDate")->text(), "Mon Nov 23");
  EXPECT_EQ(notes->findChild<QLineEdit*>("txtClock")->text(), "10:30:05");

  notes->Tabs()->setCurrentIndex(1);
  EXPECT_EQ(ReadIniFile(p.ctx, 25, "Last Sheet Used"), "2");
  QTest::keyClicks(Sheet(2), "typed");
  notes->findChild<QPushButton*>("cmdMainScreen")->click();
  EXPECT_EQ(p.sink.Last(), "Quick Notes contents successfully saved.");
  EXPECT_EQ(p.Read("mynotes.txt"),
            "{*[*(<Sheet 2>)*]*}\r\n\r\ntyped\r\n\r\n{*[*(<Sheet 4>)*]*}\r\n\r\nold\r\n\r\n");

  // Unchanged: leaving says nothing; "&Save" says there is nothing to save.
  p.sink.Clear();
  window->ActionNamed("muQuickNotes")->trigger();
  desktop->ShowMain(notes);
  EXPECT_TRUE(p.sink.messages.empty());
  notes->findChild<QPushButton*>("cmdSave")->click();
  EXPECT_EQ(p.sink.Last(), "No Quick Notes changes to save.");

  Sheet(9)->setPlainText("written just before the end");
  window->close();
  EXPECT_NE(p.Read("mynotes.txt").find("{*[*(<Sheet 9>)*]*}\r\n\r\nwritten just before the end"),
            std::string::npos);
}

TEST_F(QuickNotesFormTest, RenameByDoubleClickAndRestore) {
  Open();
  p.sink.replies = {"Recipes"};
  notes->RenameTab(2);
  EXPECT_EQ(notes->Tabs()->tabText(2), "Recipes");
  EXPECT_EQ(ReadIniFile(p.ctx, 25, "Tab 3 Name"), "Recipes");

  Sheet(1)->setPlainText("backed up");
  notes->Save();
  window->ActionNamed("muBackup")->trigger();
  Sheet(1)->setPlainText("edited later");
  notes->Save();
  window->ActionNamed("muRestoreNotes")->trigger();
  EXPECT_EQ(p.sink.Last(), "Backup copy of Quick Notes successfully restored.");
  EXPECT_EQ(Sheet(1)->toPlainText(), "backed up");
  EXPECT_FALSE(notes->Model().Changed());
}

TEST_F(QuickNotesFormTest, FindAndReplaceOnTheSheetInFront) {
  Open();
  notes->Tabs()->setCurrentIndex(5);
  Sheet(6)->setPlainText("Cat cat CAT dog\ncatalogue");
  FindReplaceForm* f = notes->OpenFindReplace();
  EXPECT_EQ(f->objectName(), "Form28");
  f->FindText()->setText("cat");
  EXPECT_TRUE(f->FindNext());
  EXPECT_EQ(Sheet(6)->textCursor().selectionStart(), 0);  // the first search starts at the top
  f->MatchCase()->setChecked(true);
  EXPECT_TRUE(f->FindNext());
  EXPECT_EQ(Sheet(6)->textCursor().selectionStart(), 4);
  f->ReplaceText()->setText("mouse");
  f->Replace();  // replaces the hit and moves on to "catalogue"
  EXPECT_EQ(Sheet(6)->toPlainText(), "Cat mouse CAT dog\ncatalogue");
  EXPECT_EQ(Sheet(6)->textCursor().selectedText(), "cat");
  QTest::keyClick(f, Qt::Key_F3);
  EXPECT_EQ(p.sink.Last(), "No more occurrences of text.");
  EXPECT_EQ(p.sink.messages.back().caption, "Sorry!");

  f->MatchCase()->setChecked(false);
  f->ReplaceText()->setText("bird");
  EXPECT_EQ(f->ReplaceAll(), 3);
  EXPECT_EQ(Sheet(6)->toPlainText(), "bird mouse bird dog\nbirdalogue");
  EXPECT_EQ(p.sink.Last(), "3 occurrences of the text replaced.");
  EXPECT_TRUE(notes->Model().Changed());
  f->FindText()->setText("zebra");
  EXPECT_FALSE(f->FindNext());
  EXPECT_EQ(p.sink.Last(), "Text not found.");
  p.sink.Clear();
  f->FindText()->setText("   ");
  EXPECT_FALSE(f->FindNext());  // blanks only: no search at all
  EXPECT_TRUE(p.sink.messages.empty());

  // Ctrl+F in a sheet brings the same box back.
  f->hide();
  QTest::keyClick(Sheet(6), Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(f->isVisible());
  notes->SaveIfChanged();
}

}  // namespace
}  // namespace mc::ui
