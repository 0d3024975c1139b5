#include "ui/expression_form.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <map>

#include "ui/output_box.h"

namespace mc::ui {

namespace {

QString Q(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

constexpr int kKeypadColumns = 8;

// What each keypad button does, shown when the pointer rests on it.
const std::map<std::string_view, const char*>& KeyTips() {
  static const std::map<std::string_view, const char*> tips = {
      {"abs(x)", "Absolute value of x."},
      {"arccos(x)", "Inverse cosine of x, for -1 <= x <= 1."},
      {"arccosh(x)", "Inverse hyperbolic cosine of x, for x >= 1."},
      {"arcsin(x)", "Inverse sine of x, for -1 <= x <= 1."},
      {"arcsinh(x)", "Inverse hyperbolic sine of x."},
      {"arctan(x)", "Inverse tangent of x."},
      {"arctanh(x)", "Inverse hyperbolic tangent of x, for -1 < x < 1."},
      {"ceiling(x)", "Smallest integer not less than x."},
      {"cos(x)", "Cosine of x."},
      {"cosh(x)", "Hyperbolic cosine of x."},
      {"exp(x)", "e raised to the power x."},
      {"fact(n)", "Factorial of n, for n = 0 to 170."},
      {"fib(n)", "Fibonacci number n, for n = 0 to 1474."},
      {"floor(x)", "Largest integer not greater than x."},
      {"frac(x)", "Fractional part of x: x - floor(x), so frac(-1.5) = 0.5."},
      {"int(x)", "Largest integer not greater than x, so int(-1.5) = -2."},
      {"invert(x)", "1 when x = 0, otherwise 0."},
      {"ln(x)", "Natural logarithm of x, for x > 0."},
      {"log10(x)", "Common logarithm of x, for x > 0."},
      {"luc(n)", "Lucas number n, for n = 1 to 1474."},
      {"recip(x)", "Reciprocal of x: 1/x."},
      {"round(x)", "x rounded to the nearest integer, halves upwards."},
      {"sign(x)", "Sign of x: -1, 0 or 1."},
      {"sin(x)", "Sine of x."},
      {"sinh(x)", "Hyperbolic sine of x."},
      {"sqrt(x)", "Square root of x, for x >= 0."},
      {"square(x)", "x squared."},
      {"tan(x)", "Tangent of x."},
      {"tanh(x)", "Hyperbolic tangent of x."},
      {"solve(f;x)",
       "A root of the user function f near the starting value x, for example solve(f;1)."},
      {"mod", "Remainder of a whole-number division, for example 7 mod 3 = 1."},
      {"rand", "A random number from 0 up to 1."},
      {"e", "e = 2.71828182845905"},
      {"pi", "pi = 3.14159265358979"},
      {"phi", "The golden ratio, phi = 1.61803398874989"},
      {"userfuncs", "Lists the user functions defined so far."},
      {"uservars", "Lists the user variables defined so far."},
  };
  return tips;
}

// "Session files (*.shf)|*.shf" as a Qt file dialog filter.
QString DialogFilter(std::string_view filter) {
  QStringList parts = Q(filter).split('|');
  QStringList names;
  for (int i = 0; i < parts.size(); i += 2) names << parts[i];
  return names.join(";;");
}

// The box counts a line break as one character, the session text as CR LF.
std::size_t ModelOffset(const QString& shown, int position) {
  const QString before = shown.left(position);
  return static_cast<std::size_t>(before.toUtf8().size() + before.count('\n'));
}

int BoxPosition(const std::string& text, std::size_t offset) {
  QString before = Q(std::string_view(text).substr(0, offset));
  before.remove('\r');
  return static_cast<int>(before.size());
}

// The pointer as an hourglass while a command works.
class BusyCursor {
 public:
  BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyCursor() {
    // A message box on the way has already put the pointer back.
    if (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
  }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
};

QPushButton* Command(QWidget* parent, const char* name, std::string_view caption, const char* tip) {
  auto* b = new QPushButton(Q(caption), parent);
  b->setObjectName(name);
  b->setToolTip(tip);
  return b;
}

}  // namespace

ExpressionForm::ExpressionForm(Desktop& desktop)
    : ScreenForm(desktop, ExpressionCalculatorScreen::kFormNumber,
                 Q(ExpressionCalculatorScreen::kTitle)),
      model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);

  auto* hint = new QLabel(
      "Type an expression, a variable (x = 2^10), a function (f(t) = t^2 - 2) or "
      "solve(f;1), and press Enter: the line at the caret is worked out and its result "
      "written below it. Text after ' is a comment; a line ending in # is marked for "
      "Recalc All. Shift+Enter starts a new line without working it out.",
      this);
  hint->setObjectName("lblHint");
  hint->setWordWrap(true);
  layout->addWidget(hint);

  session_ = MakeOutputBox();
  session_->setObjectName("txtSession");
  session_->setReadOnly(false);
  session_->setTextInteractionFlags(Qt::TextEditorInteraction);
  session_->installEventFilter(this);
  layout->addWidget(session_, 1);

  auto* keypad = new QGroupBox("Functions, constants and listings", this);
  keypad->setObjectName("fraKeypad");
  auto* keys = new QGridLayout(keypad);
  keys->setHorizontalSpacing(4);
  keys->setVerticalSpacing(4);
  int i = 0;
  for (std::string_view caption : ExpressionCalculatorScreen::KeypadCaptions()) {
    auto* key = new QPushButton(Q(caption), keypad);
    std::string word = ExpressionCalculatorScreen::KeypadText(caption);
    if (word.back() == '(') word.pop_back();
    key->setObjectName(Q("key_" + word));
    auto tip = KeyTips().find(caption);
    if (tip != KeyTips().end()) key->setToolTip(tip->second);
    // The caret stays in the session box.
    key->setFocusPolicy(Qt::NoFocus);
    connect(key, &QPushButton::clicked, this, [this, caption] { PressKey(Q(caption)); });
    keys->addWidget(key, i / kKeypadColumns, i % kKeypadColumns);
    ++i;
  }
  layout->addWidget(keypad);

  auto* settings = new QHBoxLayout;
  auto* sigFigsLabel = new QLabel("Significant &figures", this);
  sigFigs_ = new QComboBox(this);
  sigFigs_->setObjectName("cboSigFigs");
  for (const auto& choice : ExpressionCalculatorScreen::SignificantFigureChoices())
    sigFigs_->addItem(Q(choice));
  sigFigs_->setToolTip(
      "Significant figures of the results; solve works to one figure more than this.");
  sigFigsLabel->setBuddy(sigFigs_);
  settings->addWidget(sigFigsLabel);
  settings->addWidget(sigFigs_);
  settings->addSpacing(24);
  settings->addWidget(new QLabel("Angle measure:", this));
  degrees_ = new QRadioButton("&Degrees", this);
  degrees_->setObjectName("optDegrees");
  degrees_->setToolTip("sin, cos and tan take degrees; the inverse functions give degrees.");
  radians_ = new QRadioButton("Radia&ns", this);
  radians_->setObjectName("optRadians");
  radians_->setToolTip("sin, cos and tan take radians; the inverse functions give radians.");
  auto* angleGroup = new QButtonGroup(this);
  angleGroup->addButton(degrees_);
  angleGroup->addButton(radians_);
  settings->addWidget(degrees_);
  settings->addWidget(radians_);
  settings->addSpacing(24);
  ignoreMarked_ = new QCheckBox("&Ignore # lines", this);
  ignoreMarked_->setObjectName("chkIgnoreMarked");
  ignoreMarked_->setToolTip("Recalc All passes over the lines that end in #.");
  settings->addWidget(ignoreMarked_);
  settings->addStretch();
  layout->addLayout(settings);

  using S = ExpressionCalculatorScreen;
  auto* commands = new QHBoxLayout;
  auto* calculate = Command(this, "cmdCalculate", S::kCalculate,
                            "Work out the last line of the session (Enter works out the line "
                            "at the caret).");
  auto* recalc = Command(this, "cmdRecalcAll", S::kRecalcAll,
                         "Work out every line of the session again, from the top.");
  auto* save = Command(this, "cmdSave", S::kSave, "Save the session to a session file (*.shf).");
  auto* load = Command(this, "cmdLoad", S::kLoad,
                       "Load a session file (*.shf) after this session and work out its lines.");
  auto* print = Command(this, "cmdPrint", S::kPrint, "Print the session.");
  auto* clear = Command(this, "cmdClearAll", S::kClearAll,
                        "Clear the session and forget every user variable and function.");
  for (QPushButton* b : {calculate, recalc, save, load, print, clear}) commands->addWidget(b);
  commands->addStretch();
  commands->addWidget(MakeMainScreenButton());
  layout->addLayout(commands);

  connect(calculate, &QPushButton::clicked, this, &ExpressionForm::Calculate);
  connect(recalc, &QPushButton::clicked, this, &ExpressionForm::RecalcAll);
  connect(save, &QPushButton::clicked, this, &ExpressionForm::SaveSession);
  connect(load, &QPushButton::clicked, this, &ExpressionForm::LoadSession);
  connect(print, &QPushButton::clicked, this, &ExpressionForm::PrintSession);
  connect(clear, &QPushButton::clicked, this, &ExpressionForm::ClearAll);

  ShowSettings();
  connect(sigFigs_, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (index >= 0) model_.SetSignificantFigures(index + 1);
  });
  connect(degrees_, &QRadioButton::toggled, this, [this](bool on) {
    if (on) model_.SetAngle(AngleMeasure::Degrees);
  });
  connect(radians_, &QRadioButton::toggled, this, [this](bool on) {
    if (on) model_.SetAngle(AngleMeasure::Radians);
  });
  connect(ignoreMarked_, &QCheckBox::toggled, this,
          [this](bool on) { model_.ignoreMarkedLines = on; });

  sessionFileChooser = [this](const QString& title) { return ChooseSessionFile(title); };
  setTabOrder(session_, sigFigs_);
  session_->setFocus();
  resize(960, 720);
}

void ExpressionForm::ShowSettings() {
  const QSignalBlocker b1(sigFigs_), b2(degrees_), b3(radians_);
  sigFigs_->setCurrentIndex(model_.SignificantFigures() - 1);
  (model_.Angle() == AngleMeasure::Degrees ? degrees_ : radians_)->setChecked(true);
}

void ExpressionForm::TakeSession() {
  const QString shown = session_->toPlainText();
  model_.SetSessionText(shown.toStdString());
  model_.SetCaret(ModelOffset(shown, session_->textCursor().position()));
}

void ExpressionForm::ShowSession() {
  const std::string& text = model_.SessionText();
  session_->SetReport(text);
  QTextCursor cursor = session_->textCursor();
  cursor.setPosition(BoxPosition(text, model_.Caret()));
  session_->setTextCursor(cursor);
  session_->ensureCursorVisible();
  session_->setFocus();
}

void ExpressionForm::CopyToClipboard(const std::string& value) {
  if (!value.empty()) QApplication::clipboard()->setText(Q(value));
}

QString ExpressionForm::ChooseSessionFile(const QString& title) {
  const bool saving = title == Q(ExpressionCalculatorScreen::kSaveDialogTitle);
  QFileDialog dialog(this, title, Q(ctx().ExeFolder().string()),
                     DialogFilter(ExpressionCalculatorScreen::kSessionFilter));
  dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setDefaultSuffix("shf");
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

void ExpressionForm::PressEnter() {
  TakeSession();
  LineResult r;
  {
    BusyCursor busy;
    r = model_.PressEnter();
  }
  ShowSession();
  CopyToClipboard(r.value);
}

void ExpressionForm::Calculate() {
  TakeSession();
  LineResult r;
  {
    BusyCursor busy;
    r = model_.Calculate();
  }
  ShowSession();
  CopyToClipboard(r.value);
}

void ExpressionForm::RecalcAll() {
  TakeSession();
  {
    BusyCursor busy;
    model_.RecalcAll();
  }
  ShowSession();
  CopyToClipboard(model_.Clipboard());
}

void ExpressionForm::SaveSession() {
  TakeSession();
  const QString file = sessionFileChooser(Q(ExpressionCalculatorScreen::kSaveDialogTitle));
  if (file.isEmpty()) return;  // cancelled
  model_.Save(std::filesystem::path(file.toStdString()));
  session_->setFocus();
}

void ExpressionForm::LoadSession() {
  TakeSession();
  const QString file = sessionFileChooser(Q(ExpressionCalculatorScreen::kLoadDialogTitle));
  if (file.isEmpty()) return;  // cancelled
  {
    BusyCursor busy;
    model_.Load(std::filesystem::path(file.toStdString()));
  }
  ShowSettings();
  ShowSession();
  CopyToClipboard(model_.Clipboard());
}

void ExpressionForm::PrintSession() {
  TakeSession();
  const auto request = model_.Print();
  if (request.text.find_first_not_of(" \t\r\n") == std::string::npos) return;
  desktop().PrintOutput(this, request.title + "\r\n" + request.text);
}

void ExpressionForm::ClearAll() {
  model_.ClearAll();
  ShowSession();
}

void ExpressionForm::PressKey(const QString& caption) {
  // A selection gives way to the key's text, as it would to typing.
  QTextCursor cursor = session_->textCursor();
  if (cursor.hasSelection()) {
    cursor.removeSelectedText();
    session_->setTextCursor(cursor);
  }
  TakeSession();
  model_.PressKey(caption.toStdString());
  ShowSession();
}

bool ExpressionForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched == session_ && event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      if (key->modifiers() & Qt::ShiftModifier)
        session_->insertPlainText("\n");
      else
        PressEnter();
      return true;
    }
  }
  return ScreenForm::eventFilter(watched, event);
}

}  // namespace mc::ui
