#include "maths/expression_screen.h"

#include <algorithm>

#include "core/ini_file.h"
#include "core/text_util.h"
#include "maths/random.h"

namespace mc {

namespace {

constexpr int kDefaultSigFigs = 7;

constexpr std::string_view kKeypad[] = {
    "abs(x)",     "arccos(x)",  "arccosh(x)", "arcsin(x)", "arcsinh(x)", "arctan(x)", "arctanh(x)",
    "ceiling(x)", "cos(x)",     "cosh(x)",    "exp(x)",    "fact(n)",    "fib(n)",    "floor(x)",
    "frac(x)",    "int(x)",     "invert(x)",  "ln(x)",     "log10(x)",   "luc(n)",    "recip(x)",
    "round(x)",   "sign(x)",    "sin(x)",     "sinh(x)",   "sqrt(x)",    "square(x)", "tan(x)",
    "tanh(x)",    "solve(f;x)", "mod",        "rand",      "e",          "pi",        "phi",
    "userfuncs",  "uservars"};

}  // namespace

ExpressionCalculatorScreen::ExpressionCalculatorScreen(Context& ctx) : ctx_(ctx), session_(ctx) {
  NextRandom(ctx_, -1);
  ExpressionEngine& engine = session_.engine();
  long long sigFigs = 0;
  if (ParseInt(ReadIniFile(ctx_, kFormNumber, "Significant Figures"), sigFigs) && sigFigs >= 1 &&
      sigFigs <= 14)
    engine.sigFigs = static_cast<int>(sigFigs);
  else
    engine.sigFigs = kDefaultSigFigs;
  engine.angle = ReadIniFile(ctx_, kFormNumber, "Angle Measure") == "Degrees"
                     ? AngleMeasure::Degrees
                     : AngleMeasure::Radians;
}

std::vector<std::string> ExpressionCalculatorScreen::SignificantFigureChoices() {
  std::vector<std::string> choices;
  for (int i = 1; i <= 14; ++i) choices.push_back(std::to_string(i));
  return choices;
}

void ExpressionCalculatorScreen::SetSignificantFigures(int sigFigs) {
  sigFigs = std::clamp(sigFigs, 1, 14);
  if (sigFigs == session_.engine().sigFigs) return;
  session_.engine().sigFigs = sigFigs;
  UpdateIniFile(ctx_, kFormNumber, "Significant Figures", std::to_string(sigFigs));
}

void ExpressionCalculatorScreen::SetAngle(AngleMeasure angle) {
  if (angle == session_.engine().angle) return;
  session_.engine().angle = angle;
  UpdateIniFile(ctx_, kFormNumber, "Angle Measure", AngleMeasureName(angle));
}

LineResult ExpressionCalculatorScreen::Calculate() {
  LineResult r = session_.Calculate();
  lastLineOk_ = r.ok();
  CaretToEnd();
  return r;
}

LineResult ExpressionCalculatorScreen::PressEnter() {
  std::size_t caret = caret_;
  LineResult r = session_.CalculateAt(caret_, caret);
  lastLineOk_ = r.ok();
  caret_ = caret;
  return r;
}

bool ExpressionCalculatorScreen::RecalcAll() {
  lastLineOk_ = session_.RecalcAll(ignoreMarkedLines);
  CaretToEnd();
  return lastLineOk_;
}

bool ExpressionCalculatorScreen::Save(const std::filesystem::path& file) {
  return session_.Save(file);
}

bool ExpressionCalculatorScreen::Load(const std::filesystem::path& file) {
  const AngleMeasure before = session_.engine().angle;
  lastLineOk_ = session_.Load(file);
  if (session_.engine().angle != before)
    UpdateIniFile(ctx_, kFormNumber, "Angle Measure", AngleMeasureName(session_.engine().angle));
  CaretToEnd();
  return lastLineOk_;
}

void ExpressionCalculatorScreen::ClearAll() {
  session_.ClearAll();
  lastLineOk_ = true;
  caret_ = 0;
}

ExpressionCalculatorScreen::PrintRequest ExpressionCalculatorScreen::Print() const {
  return {std::string(kPrintTitle), session_.Text()};
}

bool ExpressionCalculatorScreen::Run(std::string_view caption) {
  if (caption == kCalculate) {
    Calculate();
  } else if (caption == kRecalcAll) {
    RecalcAll();
  } else if (caption == kClearAll) {
    ClearAll();
  } else {
    return false;
  }
  return true;
}

std::span<const std::string_view> ExpressionCalculatorScreen::KeypadCaptions() {
  return kKeypad;
}

std::string ExpressionCalculatorScreen::KeypadText(std::string_view caption) {
  if (caption == "userfuncs" || caption == "uservars" || caption == "rand")
    return std::string(caption);
  auto open = caption.find('(');
  return std::string(open == std::string_view::npos ? caption : caption.substr(0, open + 1));
}

void ExpressionCalculatorScreen::PressKey(std::string_view caption) {
  std::string text = session_.Text();
  std::size_t at = std::min(caret_, text.size());
  std::string insert = KeypadText(caption);
  text.insert(at, insert);
  session_.SetText(text);
  caret_ = at + insert.size();
}

}  // namespace mc
