#include "ui/expression_form.h"

#include "qstring_printer.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "core/ini_file.h"
#include "desktop_fixture.h"
#include "ui/main_window.h"
#include "ui/output_box.h"

namespace mc::ui {
namespace {

class ExpressionFormTest : public DesktopFixture {
 protected:
  void Open() {
    DesktopFixture::Open();
    p.ctx.settings.showTipPending = false;
    ASSERT_TRUE(window->ActionNamed("muExpression")->isEnabled());
    window->ActionNamed("muExpression")->trigger();
    form = qobject_cast<ExpressionForm*>(desktop->Loaded(27));
    ASSERT_NE(form, nullptr);
    box = form->SessionBox();
  }
  // Types at the caret, then presses Enter.
  void Enter(const QString& typed) {
    QTest::keyClicks(box, typed);
    QTest::keyClick(box, Qt::Key_Return);
  }
  QString Shown() const { return box->toPlainText(); }
  int Caret() const { return box->textCursor().position(); }
  void PutCaret(int position) {
    QTextCursor c = box->textCursor();
    c.setPosition(position);
    box->setTextCursor(c);
  }
  template <class T = QPushButton>
  T* Child(const char* name) {
    T* w = form->findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
  void Click(const char* name) { Child<QPushButton>(name)->click(); }
  std::string Ini(const char* key) { return ReadIniFile(p.ctx, 27, key); }

  ExpressionForm* form = nullptr;
  OutputBox* box = nullptr;
};

TEST_F(ExpressionFormTest, LinesTypedAndEnteredAreWorkedOut) {
  Open();
  EXPECT_TRUE(form->isVisible());
  Enter("x = 2+3");
  Enter("f(t) = t^2 - x");
  Enter("solve(f;2)   'root of 5");
  EXPECT_EQ(Shown(),
            "x = 2 + 3\n==> x = 5\n"
            "f(t) = t ^ 2 - x\n==> Function f(t) accepted\n"
            "solve(f;2)   'root of 5\n==> 2.236068\n");
  EXPECT_EQ(Caret(), Shown().size());
  EXPECT_EQ(QApplication::clipboard()->text(), "2.236068");
  EXPECT_TRUE(p.sink.messages.empty());

  // A line the calculator refuses stays as typed, with no result, and the
  // caret stays at its end; the user puts it right where it stands.
  Enter("(x+1)*/2");
  EXPECT_EQ(p.sink.Last(), "Invalid arithmetic expression.");
  EXPECT_TRUE(Shown().endsWith("==> 2.236068\n(x+1)*/2"));
  EXPECT_EQ(Caret(), Shown().size());
  QTest::keyClick(box, Qt::Key_Left);
  QTest::keyClick(box, Qt::Key_Backspace);
  Enter("");
  EXPECT_TRUE(Shown().endsWith("==> 2.236068\n(x + 1) * 2\n==> 12\n"));
  EXPECT_EQ(QApplication::clipboard()->text(), "12");

  // Enter on an earlier line works it out where it stands: the first line
  // becomes x = 2 + 4, its result follows, the lines below stay.
  PutCaret(static_cast<int>(QString("x = 2 + 3").size()));
  QTest::keyClick(box, Qt::Key_Backspace);
  Enter("4");
  EXPECT_TRUE(Shown().startsWith("x = 2 + 4\n==> x = 6\nf(t) = t ^ 2 - x\n==> Function"));
  EXPECT_TRUE(Shown().endsWith("(x + 1) * 2\n==> 12\n"));
  EXPECT_EQ(Caret(), Shown().indexOf("f(t)"));
  // On a result line, Enter works out the line it belongs to: f(2) now uses x = 6.
  PutCaret(Shown().indexOf("==> 2.236068") + 5);
  Enter("");
  EXPECT_NE(Shown().indexOf("'root of 5\n==> 2.44949\n"), -1);

  // Shift+Enter opens a line without working anything out.
  PutCaret(Shown().size());
  QTest::keyClicks(box, "1+");
  QTest::keyClick(box, Qt::Key_Return, Qt::ShiftModifier);
  Enter("1");
  EXPECT_TRUE(Shown().endsWith("==> 12\n1+\n1\n==> 1\n"));
  // The button works out the last line, wherever the caret stands.
  QTest::keyClicks(box, "5*5");
  PutCaret(0);
  Click("cmdCalculate");
  EXPECT_TRUE(Shown().endsWith("==> 1\n5 * 5\n==> 25\n"));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);  // no busy pointer left behind

  Click("cmdMainScreen");
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(window->isVisible());
}

// Records the pointer's shape at each message: it is busy while the calculator works.
class CursorSink final : public MessageSink {
 public:
  void Show(std::string_view, std::string_view text) override {
    shown.emplace_back(text);
    busy.push_back(QApplication::overrideCursor() &&
                   QApplication::overrideCursor()->shape() == Qt::WaitCursor);
  }
  bool Ask(std::string_view, std::string_view) override { return false; }
  std::optional<std::string> Input(std::string_view, std::string_view, bool,
                                   std::string_view) override {
    return std::nullopt;
  }
  std::vector<std::string> shown;
  std::vector<bool> busy;
};

TEST_F(ExpressionFormTest, KeypadFiguresAndAngleMeasure) {
  Open();
  // Each key inserts its word at the caret and leaves the caret in the box.
  for (std::string_view caption : ExpressionCalculatorScreen::KeypadCaptions()) {
    auto* key = form->findChild<QPushButton*>(
        QString::fromStdString("key_" + ExpressionCalculatorScreen::KeypadText(caption))
            .remove('('));
    ASSERT_NE(key, nullptr) << caption;
    EXPECT_EQ(key->text().toStdString(), caption);
    EXPECT_FALSE(key->toolTip().isEmpty()) << caption;
    EXPECT_EQ(key->focusPolicy(), Qt::NoFocus);
  }
  QTest::keyClicks(box, "2*");
  Click("key_sqrt");
  Click("key_pi");
  EXPECT_EQ(Shown(), "2*sqrt(pi");
  Enter(")");
  EXPECT_EQ(Shown(), "2 * sqrt(pi)\n==> 3.544908\n");
  // Over a selection the key's text takes its place.
  QTest::keyClicks(box, "7 + 3");
  QTextCursor c = box->textCursor();
  c.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, 3);
  box->setTextCursor(c);
  Click("key_mod");
  Enter(" 3");
  EXPECT_TRUE(Shown().endsWith("7 mod 3\n==> 1\n"));

  // Significant figures and angle measure go to the settings file at once.
  auto* figures = Child<QComboBox>("cboSigFigs");
  EXPECT_EQ(figures->count(), 14);
  EXPECT_EQ(figures->currentText(), "7");
  figures->setCurrentText("3");
  EXPECT_EQ(Ini("Significant Figures"), "3");
  Enter("2/3");
  EXPECT_TRUE(Shown().endsWith("==> 0.667\n"));
  EXPECT_TRUE(Child<QRadioButton>("optRadians")->isChecked());
  Child<QRadioButton>("optDegrees")->setChecked(true);
  EXPECT_EQ(Ini("Angle Measure"), "Degrees");
  Enter("sin(30) + arccos(0)");
  EXPECT_TRUE(Shown().endsWith("==> 90.5\n"));
  Child<QRadioButton>("optRadians")->setChecked(true);
  EXPECT_EQ(Ini("Angle Measure"), "Radians");
  Enter("sin(pi/6)");
  EXPECT_TRUE(Shown().endsWith("==> 0.5\n"));

  // The pointer is busy while a search for a root runs.
  CursorSink cursorSink;
  p.ctx.SetSink(cursorSink);
  Enter("g(x) = x^2");
  Enter("solve(g;0.3)");
  p.ctx.SetSink(p.sink);
  ASSERT_EQ(cursorSink.shown.size(), 1u);
  EXPECT_TRUE(cursorSink.shown[0].ends_with("Treat result with caution."));
  EXPECT_TRUE(cursorSink.busy[0]);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);

  // A new screen starts with the settings it left.
  ExpressionForm again(*desktop);
  EXPECT_EQ(again.findChild<QComboBox*>("cboSigFigs")->currentText(), "3");
  EXPECT_TRUE(again.findChild<QRadioButton*>("optRadians")->isChecked());
}

TEST_F(ExpressionFormTest, SessionsSavedLoadedRecalculatedAndPrinted) {
  Open();
  Child<QRadioButton>("optDegrees")->setChecked(true);
  Enter("f(x) = sin(x) + 1");
  Enter("y = f(30)   'a half and one");
  Enter("y*2 #");
  const QString session = Shown();

  // Save: the dialog's file, the angle line first because of sin.
  QStringList asked;
  QString answer = QString::fromStdString(p.File("trig.shf").string());
  form->sessionFileChooser = [&](const QString& title) {
    asked << title;
    return answer;
  };
  Click("cmdSave");
  EXPECT_EQ(asked, QStringList{"Save Session"});
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Success!", "Current session successfully saved as file " +
                                           p.File("trig.shf").string() + "."}));
  EXPECT_EQ(p.Read("trig.shf"),
            "Degrees\r\n" + QString(session).replace("\n", "\r\n").toStdString());

  // Cancelling the dialog does nothing.
  answer.clear();
  p.sink.Clear();
  Click("cmdLoad");
  EXPECT_EQ(asked.back(), "Load Session");
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_EQ(Shown(), session);

  // Clear All empties the box and forgets the names.
  Click("cmdClearAll");
  EXPECT_EQ(Shown(), "");
  EXPECT_TRUE(form->Model().session().engine().Functions().empty());

  // Loaded in radians: the file turns degrees on again, and the option shows it.
  Child<QRadioButton>("optRadians")->setChecked(true);
  answer = QString::fromStdString(p.File("trig.shf").string());
  p.sink.Clear();
  Click("cmdLoad");
  ASSERT_EQ(p.sink.messages.size(), 2u);
  EXPECT_EQ(p.sink.messages[0],
            (test::Message{"Warning!", "Angle measure has been changed to degrees."}));
  EXPECT_EQ(p.sink.messages[1].text, "Session successfully loaded from file " +
                                         p.File("trig.shf").string() + " and recalculated.");
  EXPECT_TRUE(Child<QRadioButton>("optDegrees")->isChecked());
  EXPECT_EQ(Ini("Angle Measure"), "Degrees");
  EXPECT_EQ(Shown(), session);
  EXPECT_EQ(QApplication::clipboard()->text(), "3");

  // Recalc All after an edit, passing over the marked line when asked to.
  PutCaret(Shown().indexOf("30"));
  QTest::keyClick(box, Qt::Key_Delete);
  QTest::keyClick(box, Qt::Key_Delete);
  QTest::keyClicks(box, "90");
  Child<QCheckBox>("chkIgnoreMarked")->setChecked(true);
  p.sink.Clear();
  Click("cmdRecalcAll");
  EXPECT_EQ(
      p.sink.messages.back(),
      (test::Message{"Success!", "All expressions and statements successfully recalculated."}));
  EXPECT_EQ(Shown(),
            "f(x) = sin(x) + 1\n==> Function f(x) accepted\n"
            "y = f(90)   'a half and one\n==> y = 2\n"
            "y * 2 #\n");
  Child<QCheckBox>("chkIgnoreMarked")->setChecked(false);
  Click("cmdRecalcAll");
  EXPECT_TRUE(Shown().endsWith("y * 2 #\n==> 4\n"));
  EXPECT_EQ(Caret(), Shown().size());

  // Print hands the session to Print Settings under its own title.
  QString title, text;
  QTimer::singleShot(0, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog) return;
    title = dialog->findChild<QLineEdit*>("txtTitle")->text();
    text = dialog->findChild<QPlainTextEdit*>("txtText")->toPlainText();
    dialog->close();
  });
  Click("cmdPrint");
  EXPECT_EQ(title, "Expression Calculator Session");
  EXPECT_EQ(text, Shown());
}

}  // namespace
}  // namespace mc::ui
