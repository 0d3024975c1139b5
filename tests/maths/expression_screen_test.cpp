// The Expression Calculator screen: the session text, Recalc All, session
// files, settings and keypad.
#include <gtest/gtest.h>

#include "core/ini_file.h"
#include "maths/expression_screen.h"
#include "support/test_program.h"

namespace mc::test {
namespace {

class ExpressionScreen : public ::testing::Test {
 protected:
  void SetUp() override {
    p.Start();
    screen = std::make_unique<ExpressionCalculatorScreen>(p.ctx);
  }
  // Types lines and presses Enter after each.
  void Type(std::initializer_list<std::string_view> lines) {
    for (auto line : lines) {
      screen->TypeLine(line);
      screen->Calculate();
    }
  }
  const std::string& Text() { return screen->SessionText(); }

  TestProgram p;
  std::unique_ptr<ExpressionCalculatorScreen> screen;
};

TEST_F(ExpressionScreen, CalculateWritesResultsUnderTheLines) {
  Type({"x=2+3", "x*2   'double it", "", "'a note", "f(t)=t^2", "f(x)"});
  EXPECT_EQ(Text(),
            "x = 2 + 3\r\n==> x = 5\r\n"
            "x * 2 'double it\r\n==> 10\r\n"
            "\r\n"
            "'a note\r\n"
            "f(t) = t ^ 2\r\n==> Function f(t) accepted\r\n"
            "f(x)\r\n==> 25\r\n");
  EXPECT_EQ(screen->Clipboard(), "25");
  EXPECT_EQ(screen->Caret(), Text().size());
  EXPECT_TRUE(screen->LastLineOk());
  EXPECT_TRUE(p.sink.messages.empty());

  // Calculate on a result line works the line above it once more.
  const std::string before = Text();
  screen->Calculate();
  EXPECT_EQ(Text(), before);

  // A refused line stays as typed, a failed one stands tidied; neither gets a result.
  Type({"2*/3"});
  EXPECT_FALSE(screen->LastLineOk());
  EXPECT_EQ(p.sink.Last(), "Invalid arithmetic expression.");
  EXPECT_TRUE(Text().ends_with("==> 25\r\n2*/3"));
  screen->SetSessionText(Text().substr(0, Text().size() - 4) + "2*-3");
  screen->Calculate();
  EXPECT_TRUE(Text().ends_with("==> 25\r\n2 *  - 3"));
  // The user corrects the line in place.
  screen->SetSessionText(Text().substr(0, Text().size() - 8) + "2*(-3)\n");
  screen->Calculate();
  EXPECT_TRUE(Text().ends_with("==> 25\r\n2 * (-3)\r\n==> -6\r\n"));
  EXPECT_TRUE(screen->LastLineOk());
}

TEST_F(ExpressionScreen, EnterWorksOutTheLineAtTheCaret) {
  Type({"a = 2", "b = a * 10", "b + 1"});
  // The user changes the first line and presses Enter on it: its result is
  // replaced, the lines below stay as they are, and the caret goes below it.
  std::string text = Text();
  text.replace(4, 1, "3");
  screen->SetSessionText(text);
  screen->SetCaret(2);
  EXPECT_EQ(screen->PressEnter().kind, LineResult::Kind::Assignment);
  EXPECT_EQ(Text(), "a = 3\r\n==> a = 3\r\nb = a * 10\r\n==> b = 20\r\nb + 1\r\n==> 21\r\n");
  EXPECT_EQ(screen->Caret(), Text().find("b = a"));
  EXPECT_EQ(screen->Clipboard(), "3");
  // Enter again works out the next line; on a result line, the line it belongs to.
  screen->PressEnter();
  EXPECT_EQ(screen->Caret(), Text().find("b + 1"));
  screen->SetCaret(Text().size() - 3);
  screen->PressEnter();
  EXPECT_EQ(Text(), "a = 3\r\n==> a = 3\r\nb = a * 10\r\n==> b = 30\r\nb + 1\r\n==> 31\r\n");
  EXPECT_EQ(screen->Caret(), Text().size());

  // Anywhere in a line typed at the end the whole line counts.
  screen->SetSessionText(Text() + "b*2   'twice");
  screen->SetCaret(Text().size() - 8);
  screen->PressEnter();
  EXPECT_TRUE(Text().ends_with("==> 31\r\nb * 2 'twice\r\n==> 60\r\n"));
  EXPECT_EQ(screen->Caret(), Text().size());

  // On the empty last line and on a comment line Enter opens a new line.
  const std::string before = Text();
  screen->PressEnter();
  EXPECT_EQ(Text(), before + "\r\n");
  EXPECT_EQ(screen->Caret(), Text().size());
  screen->SetSessionText("'note\r\n1+1\r\n");
  screen->SetCaret(3);
  screen->PressEnter();
  EXPECT_EQ(Text(), "'note\r\n\r\n1+1\r\n");
  EXPECT_EQ(screen->Caret(), 7u);
  EXPECT_TRUE(p.sink.messages.empty());

  // A failing line loses its old result and keeps the lines below; the caret
  // stays at its end so that it can be put right. A refused line stays as typed.
  screen->SetSessionText("");
  Type({"x = 1"});
  screen->SetSessionText(Text() + "x/0\r\n==> 5\r\nx + 1\r\n==> 2\r\n");
  screen->SetCaret(19);
  EXPECT_EQ(screen->PressEnter().kind, LineResult::Kind::Failed);
  EXPECT_FALSE(screen->LastLineOk());
  EXPECT_EQ(p.sink.Last(), "Denominator = 0 error using /, \\ or mod.");
  EXPECT_EQ(Text(), "x = 1\r\n==> x = 1\r\nx / 0\r\nx + 1\r\n==> 2\r\n");
  EXPECT_EQ(screen->Caret(), Text().find("\r\nx + 1"));
  screen->SetSessionText("x = 1\r\n==> x = 1\r\n2*/3\r\n==> 5\r\n");
  screen->SetCaret(19);
  EXPECT_EQ(screen->PressEnter().kind, LineResult::Kind::Refused);
  EXPECT_EQ(Text(), "x = 1\r\n==> x = 1\r\n2*/3");
  EXPECT_EQ(screen->Caret(), Text().size());

  // Results with no line above them are left alone.
  screen->SetSessionText("==> 4\r\n5\r\n");
  screen->SetCaret(1);
  screen->PressEnter();
  EXPECT_EQ(Text(), "==> 4\r\n5\r\n");
  EXPECT_EQ(screen->Caret(), 5u);
}

TEST_F(ExpressionScreen, SignificantFiguresAndListings) {
  screen->SetSignificantFigures(3);
  Type({"2/3", "uservars"});
  EXPECT_EQ(Text(),
            "2 / 3\r\n==> 0.667\r\nuservars\r\n==> No user variables have been defined yet.\r\n");
  EXPECT_EQ(screen->Clipboard(), "0.667");
}

TEST_F(ExpressionScreen, RecalcAllFromTheTop) {
  Type({"a = 2", "b = a * 10", "b + 1 #"});
  // The user edits the first line and recalculates everything.
  std::string text = Text();
  text.replace(0, 5, "a = 3");
  screen->SetSessionText(text);
  EXPECT_TRUE(screen->RecalcAll());
  EXPECT_EQ(Text(), "a = 3\r\n==> a = 3\r\nb = a * 10\r\n==> b = 30\r\nb + 1 #\r\n==> 31\r\n");
  EXPECT_EQ(p.sink.messages.back(),
            (Message{"Success!", "All expressions and statements successfully recalculated."}));

  // Marked lines are passed over when the box is ticked.
  screen->ignoreMarkedLines = true;
  EXPECT_TRUE(screen->RecalcAll());
  EXPECT_EQ(Text(), "a = 3\r\n==> a = 3\r\nb = a * 10\r\n==> b = 30\r\nb + 1 #\r\n");
  screen->ignoreMarkedLines = false;

  // The first fault stops it and leaves the rest in place.
  screen->SetSessionText("a = 1\r\n==> a = 1\r\n1/0\r\n==> 7\r\nb = 2\r\n");
  p.sink.Clear();
  EXPECT_FALSE(screen->RecalcAll());
  EXPECT_EQ(p.sink.Last(), "Denominator = 0 error using /, \\ or mod.");
  EXPECT_EQ(Text(), "a = 1\r\n==> a = 1\r\n1 / 0\r\n==> 7\r\nb = 2\r\n");
}

TEST_F(ExpressionScreen, SessionFilesRoundTrip) {
  screen->SetAngle(AngleMeasure::Degrees);
  Type({"f(x) = sin(x) + 1", "y = f(30)   'half and one", "y*2"});
  const auto file = p.File("trig.shf");
  p.sink.Clear();
  ASSERT_TRUE(screen->Save(file));
  EXPECT_EQ(
      p.sink.messages.back(),
      (Message{"Success!", "Current session successfully saved as file " + file.string() + "."}));
  const std::string saved = p.Read("trig.shf");
  EXPECT_EQ(saved, "Degrees\r\n" + Text());

  // Loaded in radians, the file turns degrees on again and recalculates.
  ExpressionCalculatorScreen other(p.ctx);
  other.SetAngle(AngleMeasure::Radians);
  p.sink.Clear();
  ASSERT_TRUE(other.Load(file));
  EXPECT_EQ(other.Angle(), AngleMeasure::Degrees);
  ASSERT_EQ(p.sink.messages.size(), 2u);
  EXPECT_EQ(p.sink.messages[0],
            (Message{"Warning!", "Angle measure has been changed to degrees."}));
  EXPECT_EQ(p.sink.messages[1], (Message{"Success!", "Session successfully loaded from file " +
                                                         file.string() + " and recalculated."}));
  EXPECT_EQ(other.SessionText(), Text());
  EXPECT_EQ(ReadIniFile(p.ctx, 27, "Angle Measure"), "Degrees");

  // Without trigonometry there is no angle line.
  screen->ClearAll();
  EXPECT_EQ(Text(), "");
  EXPECT_TRUE(screen->session().engine().Variables().empty());
  EXPECT_TRUE(screen->session().engine().Functions().empty());
  Type({"2+2"});
  ASSERT_TRUE(screen->Save(p.File("plain.shf")));
  EXPECT_EQ(p.Read("plain.shf"), "2 + 2\r\n==> 4\r\n");
}

TEST_F(ExpressionScreen, LoadTakesEitherSeparatorAndAddsToTheSession) {
  p.Write("comma.shf", "Radians\nx = 1,5 'keeps 1,5 here\n==> stale\ny = x * 2\n");
  Type({"z = 1"});
  p.sink.Clear();
  ASSERT_TRUE(screen->Load(p.File("comma.shf")));
  EXPECT_EQ(p.sink.messages.size(), 1u);  // no warning: already radians
  EXPECT_EQ(Text(),
            "z = 1\r\n==> z = 1\r\n"
            "x = 1.5 'keeps 1,5 here\r\n==> x = 1.5\r\n"
            "y = x * 2\r\n==> y = 3\r\n");
  EXPECT_TRUE(screen->session().engine().IsUserVarName("z"));

  // A faulty line stops the load; the rest of the file stands after it.
  p.Write("bad.shf", "q = 1\r\nq / 0\r\nq + 1\r\n");
  p.sink.Clear();
  EXPECT_FALSE(screen->Load(p.File("bad.shf")));
  EXPECT_EQ(p.sink.Last(), "Denominator = 0 error using /, \\ or mod.");
  EXPECT_TRUE(Text().ends_with("q = 1\r\n==> q = 1\r\nq / 0\r\nq + 1\r\n"));

  p.sink.Clear();
  EXPECT_FALSE(screen->Load(p.File("missing.shf")));
  EXPECT_EQ(p.sink.Last(),
            "File " + p.File("missing.shf").string() + " not found error (ProcNum = 2706).");
}

TEST_F(ExpressionScreen, SettingsComeFromAndGoToTheSettingsFile) {
  EXPECT_EQ(screen->SignificantFigures(), 7);
  EXPECT_EQ(screen->Angle(), AngleMeasure::Radians);
  screen->SetSignificantFigures(12);
  screen->SetAngle(AngleMeasure::Degrees);
  EXPECT_EQ(ReadIniFile(p.ctx, 27, "Significant Figures"), "12");
  EXPECT_EQ(ReadIniFile(p.ctx, 27, "Angle Measure"), "Degrees");
  ExpressionCalculatorScreen again(p.ctx);
  EXPECT_EQ(again.SignificantFigures(), 12);
  EXPECT_EQ(again.Angle(), AngleMeasure::Degrees);
  // A value the list can't hold falls back to the default.
  UpdateIniFile(p.ctx, 27, "Significant Figures", "40");
  EXPECT_EQ(ExpressionCalculatorScreen(p.ctx).SignificantFigures(), 7);
  EXPECT_EQ(ExpressionCalculatorScreen::SignificantFigureChoices().size(), 14u);
}

TEST_F(ExpressionScreen, KeypadAndCommandsByCaption) {
  EXPECT_EQ(ExpressionCalculatorScreen::KeypadText("sin(x)"), "sin(");
  EXPECT_EQ(ExpressionCalculatorScreen::KeypadText("solve(f;x)"), "solve(");
  EXPECT_EQ(ExpressionCalculatorScreen::KeypadText("pi"), "pi");
  EXPECT_EQ(ExpressionCalculatorScreen::KeypadText("rand"), "rand");
  EXPECT_EQ(ExpressionCalculatorScreen::KeypadText("userfuncs"), "userfuncs");
  screen->SetSessionText("2*)");
  screen->SetCaret(2);
  screen->PressKey("sqrt(x)");
  screen->SetCaret(7);
  screen->PressKey("pi");
  EXPECT_EQ(Text(), "2*sqrt(pi)");
  EXPECT_TRUE(screen->Run(ExpressionCalculatorScreen::kCalculate));
  EXPECT_EQ(Text(), "2 * sqrt(pi)\r\n==> 3.544908\r\n");
  EXPECT_EQ(screen->Print().title, "Expression Calculator Session");
  EXPECT_EQ(screen->Print().text, Text());
  EXPECT_TRUE(screen->Run(ExpressionCalculatorScreen::kClearAll));
  EXPECT_EQ(Text(), "");
  EXPECT_FALSE(screen->Run(ExpressionCalculatorScreen::kSave));
  // Every function button names a reserved word.
  for (auto caption : ExpressionCalculatorScreen::KeypadCaptions()) {
    std::string word = ExpressionCalculatorScreen::KeypadText(caption);
    if (word.back() == '(') word.pop_back();
    EXPECT_TRUE(ExpressionEngine::IsReservedName(word)) << caption;
  }
}

}  // namespace
}  // namespace mc::test
