// The Expression Calculator's back half: the postfix evaluator with its
// functions, user variables and functions, root search, and the line as a
// whole.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <numbers>

#include "core/errors.h"
#include "core/number_format.h"
#include "core/text_util.h"
#include "maths/expression.h"
#include "maths/expression_internal.h"
#include "maths/random.h"

namespace mc {

using namespace expr;

namespace {

// The degree constant the program has always used: the stored double
// 0x3F91DF46A2529D34, a few units below the nearest double to pi / 180.
constexpr double kDegree = 0.017453292519943278;

// Nested calls of user functions allowed before "Out of stack space".
constexpr int kMaxCallDepth = 200;

// Column that a listing line must not reach.
constexpr std::size_t kListingColumn = 90;

constexpr double kPi = std::numbers::pi;

// FormatSigFigs rounds the mantissa to the figures asked for and reads the
// number back: next to the largest double that goes past it (1.7E308 to one
// figure is 2E308), which the program has always treated as an overflow.
bool RoundsPastLargest(int sigFigs, double value) {
  if (sigFigs >= 14 || std::fabs(value) < 1e308) return false;
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.13e", std::fabs(value));
  *std::strchr(buf, 'e') = '\0';  // the mantissa alone
  const double scale = std::pow(10.0, sigFigs - 1);
  const double rounded = std::floor(scale * std::strtod(buf, nullptr) + 0.4999999999999) / scale;
  std::snprintf(buf, sizeof buf, "%.15gE308", rounded);
  return !std::isfinite(std::strtod(buf, nullptr));
}

}  // namespace

std::optional<double> ExpressionEngine::Evaluate(const ParsedLine& line,
                                                 const std::vector<std::string>& postfix) {
  if (line.definition) {
    if (!Define(postfix)) return std::nullopt;
    return 0.0;
  }
  double result = 0;
  if (!EvalPostfix(postfix, line.targetName, 0, result)) return std::nullopt;
  return result;
}

bool ExpressionEngine::Define(const std::vector<std::string>& postfix) {
  // "f(x) = body" arrives as "x f <body> =".
  const std::size_t n = postfix.size();
  if (n < 3 || postfix.back() != "=" || !IsNameToken(postfix[0]) || !IsNameToken(postfix[1]) ||
      IsReservedName(postfix[1]))
    return Fail(Err("Invalid variable assignment or function definition statement."));
  const std::string& name = postfix[1];
  const std::string& param = postfix[0];
  const UserFunction* existing = FindFunction(name);
  if (!existing && static_cast<int>(functions_.size()) >= kMaxUserNames)
    return Fail(Err("More than 50 user defined functions."));
  std::string definition;
  for (std::size_t i = 0; i + 1 < n; ++i) {
    if (i == 1) continue;
    const std::string& t = postfix[i];
    if (IsNameToken(t)) {
      // The function may name itself: it is in the table from here on.
      bool known = ToLower(t) == ToLower(param) || IsReservedName(t) || IsUserFuncName(t) ||
                   IsUserVarName(t) || ToLower(t) == ToLower(name);
      if (!known) return Fail(Err("Variable in function definition has not been defined."));
    }
    definition += t;
    definition += ':';
  }
  definition.pop_back();
  if (existing) {
    for (auto& f : functions_)
      if (&f == existing) f.definition = std::move(definition);
  } else {
    functions_.push_back({name, std::move(definition)});
  }
  return true;
}

bool ExpressionEngine::EvalPostfix(const std::vector<std::string>& postfix,
                                   const std::string& target, int depth, double& result) {
  const char sep = Sep();
  const bool assigns = !postfix.empty() && postfix.back() == "=";
  std::vector<double> st;
  st.reserve(postfix.size());
  auto invalid = [&] { return Fail(Err("Invalid arithmetic expression.")); };
  auto push = [&](double v) {
    if (static_cast<int>(st.size()) >= kMaxSub)
      return Fail(Err("Stack array subscript exceeds MaxSub."));
    st.push_back(v);
    return true;
  };
  auto finite = [&](double v) {
    return std::isfinite(v) ? true : RunTimeFail(kOverflow, kProcEvaluate);
  };

  for (std::size_t k = 0; k < postfix.size(); ++k) {
    const std::string& t = postfix[k];
    if (MayBeNumber(t, sep)) {
      // Typed numbers were checked by Parse; a number that no longer reads
      // is a 15-digit text rounded up past the largest double.
      auto v = ParseStrictNumber(t, sep);
      if (!v) return RunTimeFail(kOverflow, kProcEvaluate);
      if (!push(*v)) return false;
      continue;
    }
    if (t == "+") continue;
    if (t == "-") {
      if (st.empty()) return invalid();
      st.back() = -st.back();
      continue;
    }
    const bool binary = t == "++" || t == "--" || t == "*" || t == "/" || t == "\\" || t == "mod" ||
                        t == "^" || t == "=";
    if (binary) {
      if (st.size() < 2) return invalid();
      const double y = st.back();
      st.pop_back();
      double& x = st.back();
      if (t == "=") {
        x = y;
        if (UserVariable* v = FindVariable(target)) {
          v->value = DefaultNumberText(y, sep);
        } else if (!target.empty()) {
          if (static_cast<int>(variables_.size()) >= kMaxUserNames)
            return Fail(Err("More than 50 user defined variables."));
          variables_.push_back({target, DefaultNumberText(y, sep)});
        }
        continue;
      }
      double r = 0;
      if (t == "\\" || t == "mod") {
        if (y == 0) return Fail(Err("Denominator = 0 error using /, \\ or mod."));
        if (!IsIntegral(x) || !IsIntegral(y))
          return Fail(Err("Non-integer argument error using \\ or mod."));
        // Both are converted to 32-bit integers first.
        constexpr double lo = std::numeric_limits<std::int32_t>::min();
        constexpr double hi = std::numeric_limits<std::int32_t>::max();
        if (x < lo || x > hi || y < lo || y > hi) return RunTimeFail(kOverflow, kProcEvaluate);
        const auto a = static_cast<std::int64_t>(x), b = static_cast<std::int64_t>(y);
        const std::int64_t q = a / b;
        if (q > hi) return RunTimeFail(kOverflow, kProcEvaluate);
        r = static_cast<double>(t == "\\" ? q : a - q * b);
      } else {
        const Arithmetic step = ApplyArithmetic(t, x, y);
        if (step.error) return Fail(step.error);
        r = step.value;
      }
      if (!finite(r)) return false;
      x = r;
      continue;
    }
    if (t == "rand") {
      if (!push(NextRandom(ctx_))) return false;
      continue;
    }
    if (t == "solve") {
      double root = 0;
      if (!Solve(postfix, k, depth, root)) return false;
      if (st.empty()) return invalid();
      st.back() = root;
      continue;
    }
    if (t == "userfuncs" || t == "uservars")
      return Fail(
          Err("The functions userfuncs and uservars must be used in \"stand-alone\" mode."));
    if (IsNameToken(t) && IsReservedName(t)) {
      if (st.empty()) return invalid();
      if (!ApplyFunction(t, st.back())) return false;
      continue;
    }
    if (const UserFunction* f = FindFunction(t)) {
      // The argument is read from the stack without a check, as it always
      // was: a call with nothing below it is a run-time fault.
      if (st.empty()) return RunTimeFail(kSubscriptOutOfRange, kProcEvaluate);
      double r = 0;
      if (!CallUserFunction(*f, st.back(), depth, r)) return false;
      st.back() = r;
      continue;
    }
    if (UserVariable* v = FindVariable(t)) {
      auto value = ParseStrictNumber(v->value, sep);
      if (!value) return RunTimeFail(kOverflow, kProcEvaluate);
      if (!push(*value)) return false;
      continue;
    }
    if (IsNameToken(t)) {
      if (!(assigns && k == 0)) return Fail(Err("Variable or function name not recognised."));
      if (static_cast<int>(variables_.size()) >= kMaxUserNames)
        return Fail(Err("More than 50 user defined variables."));
      variables_.push_back({t, "0"});
      if (!push(0)) return false;
      continue;
    }
    return invalid();
  }
  if (st.size() != 1) return invalid();
  result = st.back();
  return true;
}

bool ExpressionEngine::CallUserFunction(const UserFunction& f, double x, int depth,
                                        double& result) {
  if (depth >= kMaxCallDepth) return RunTimeFail(28, kProcEvaluate);  // out of stack space
  std::vector<std::string> body;
  std::string_view def = f.definition;
  std::string param;
  const std::string argument = DefaultNumberText(x, Sep());
  for (bool first = true;; first = false) {
    auto colon = def.find(':');
    std::string_view part = def.substr(0, colon);
    if (first) {
      param = ToLower(part);
    } else {
      body.push_back(ToLower(part) == param ? argument : std::string(part));
    }
    if (colon == std::string_view::npos) break;
    def.remove_prefix(colon + 1);
  }
  return EvalPostfix(body, std::string(), depth + 1, result);
}

bool ExpressionEngine::ApplyFunction(std::string_view name, double& x) {
  auto finite = [&](double v) {
    if (!std::isfinite(v)) return RunTimeFail(kOverflow, kProcEvaluate);
    x = v;
    return true;
  };
  const double toAngle = angle == AngleMeasure::Degrees ? kDegree : 1.0;
  if (name == "abs") return finite(std::fabs(x));
  if (name == "exp") return finite(std::exp(x));
  if (name == "square") return finite(x * x);
  if (name == "ceiling") return finite(IsIntegral(x) ? x : std::floor(x) + 1);
  if (name == "int" || name == "floor") return finite(std::floor(x));
  if (name == "frac") return finite(x - std::floor(x));
  if (name == "round") return finite(std::floor(x + 0.5));
  if (name == "sign") return finite(Sgn(x));
  if (name == "invert") return finite(x == 0 ? 1 : 0);
  if (name == "recip") {
    if (x == 0) return Fail(Err("Denominator = 0 error using recip(x)."));
    return finite(1 / x);
  }
  if (name == "sqrt") {
    if (x < 0) return Fail(Err("Argument < 0 error using sqrt(x)."));
    return finite(std::sqrt(x));
  }
  if (name == "ln" || name == "log10") {
    if (x <= 0) return Fail(Err("Argument <= 0 error using ln(x) or log10(x)."));
    return finite(name == "ln" ? std::log(x) : std::log(x) / std::log(10.0));
  }
  if (name == "fact") {
    if (x < 0 || x > 170) return Fail(Err("n < 0 or n > 170 error using fact(n)."));
    if (!IsIntegral(x)) return Fail(Err("Argument not integer error using fact(n)."));
    double p = 1;
    for (int i = 2; i <= static_cast<int>(x); ++i) p *= i;
    return finite(p);
  }
  const double phi = (std::sqrt(5.0) + 1) / 2;
  if (name == "fib") {
    if (x < 0 || x > 1474) return Fail(Err("n < 0 or n > 1474 error using fib(n)."));
    if (!IsIntegral(x)) return Fail(Err("Argument not integer error using fib(n)."));
    if (x == 0) return finite(0);
    return finite(std::floor(std::pow(phi, x) / std::sqrt(5.0) + 0.5));
  }
  if (name == "luc") {
    if (x < 1 || x > 1474) return Fail(Err("n < 1 or n > 1474 error using luc(n)."));
    if (!IsIntegral(x)) return Fail(Err("Argument not integer error using luc(n)."));
    if (x == 1) return finite(1);
    if (x == 2) return finite(3);
    return finite(std::floor(std::pow(phi, x) + 0.5));
  }
  if (name == "sinh") return finite((std::exp(x) - std::exp(-x)) * 0.5);
  if (name == "cosh") return finite((std::exp(x) + std::exp(-x)) * 0.5);
  if (name == "tanh") {
    const double e2 = std::exp(2 * x);
    if (!std::isfinite(e2)) return RunTimeFail(kOverflow, kProcEvaluate);
    return finite((e2 - 1) / (e2 + 1));
  }
  if (name == "arcsinh") {
    const double a = std::fabs(x);
    const double r = std::log(a + std::sqrt(a * a + 1));
    return finite(x < 0 ? -r : r);
  }
  if (name == "arccosh") {
    if (x < 1) return Fail(Err("Argument < 1 error using arccosh(x)."));
    return finite(std::log(x + std::sqrt(x * x - 1)));
  }
  if (name == "arctanh") {
    if (std::fabs(x) >= 1) return Fail(Err("Abs(Argument) >= 1 error using arctanh(x)."));
    return finite(0.5 * std::log((1 + x) / (1 - x)));
  }
  if (name == "sin" || name == "cos" || name == "tan") return Trig(name, x);
  if (name == "arcsin") {
    if (std::fabs(x) > 1) return Fail(Err("Abs(Argument) > 1 error using arcsin(x)."));
    const double r = std::fabs(x) == 1 ? x * kPi / 2 : std::atan(x / std::sqrt(1 - x * x));
    return finite(r / toAngle);
  }
  if (name == "arccos") {
    if (std::fabs(x) > 1) return Fail(Err("Abs(Argument) > 1 error using arccos(x)."));
    double r = kPi / 2;
    if (x != 0) {
      r = std::atan(std::sqrt(1 - x * x) / x);
      if (x < 0) r += kPi;
    }
    return finite(r / toAngle);
  }
  if (name == "arctan") return finite(std::atan(x) / toAngle);
  return Fail(Err("Invalid arithmetic expression."));
}

bool ExpressionEngine::Trig(std::string_view name, double& x) {
  auto finite = [&](double v) {
    if (!std::isfinite(v)) return RunTimeFail(kOverflow, kProcEvaluate);
    x = v;
    return true;
  };
  double arg = x;
  if (angle == AngleMeasure::Degrees) {
    if (IsIntegral(x)) {
      // Whole degrees are brought into (-180, 180]; the familiar angles are exact.
      double d = x - std::floor(x / 360) * 360;
      if (d > 180)
        d -= 360;
      else if (d <= -180)
        d += 360;
      if (name == "sin") {
        if (d == 0 || d == 180) return finite(0);
        if (d == 30 || d == 150) return finite(0.5);
        if (d == 90) return finite(1);
        if (d == -30 || d == -150) return finite(-0.5);
        if (d == -90) return finite(-1);
      } else if (name == "cos") {
        if (d == 0) return finite(1);
        if (d == 60 || d == -60) return finite(0.5);
        if (d == 90 || d == -90) return finite(0);
        if (d == 120 || d == -120) return finite(-0.5);
        if (d == 180) return finite(-1);
      } else {
        if (d == 0 || d == 180) return finite(0);
        if (d == 45) return finite(1);
        if (d == -45) return finite(-1);
        if (d == 90 || d == -90) return Fail(Err("Overflow error using tan(x)."));
      }
      arg = d;
    }
    arg *= kDegree;
  }
  if (name == "sin") return finite(std::sin(arg));
  if (name == "cos") return finite(std::cos(arg));
  return finite(std::tan(arg));
}

bool ExpressionEngine::Solve(const std::vector<std::string>& postfix, std::size_t at, int depth,
                             double& root) {
  // The four shapes: "g f solve", "f g - solve", "v g f solve =", "v f g - solve =".
  const bool assigns = postfix.back() == "=";
  const bool negative = at >= 1 && postfix[at - 1] == "-";
  std::size_t fPos = negative ? 0 : 1, gPos = negative ? 1 : 0;
  if (assigns) ++fPos, ++gPos;
  const UserFunction* f = fPos < at ? FindFunction(postfix[fPos]) : nullptr;
  std::optional<double> start;
  if (gPos < at && MayBeNumber(postfix[gPos], Sep()))
    start = ParseStrictNumber(postfix[gPos], Sep());
  if (!f || !start) return Fail(Err("Invalid arithmetic expression."));
  double g = negative ? -*start : *start;
  const std::string name = f->name;

  // f at x, through the same postfix a typed call would give.
  auto F = [&](double x, double& fx) {
    std::vector<std::string> call{DefaultNumberText(std::fabs(x), Sep())};
    if (x < 0) call.push_back("-");
    call.push_back(name);
    return EvalPostfix(call, std::string(), depth + 1, fx);
  };
  const double tolerance = std::pow(10.0, -sigFigs - 1);

  double a = g - 1, b = g + 1, fa = 0, fb = 0;
  if (!F(a, fa) || !F(b, fb)) return false;
  const double fa0 = fa, fb0 = fb;
  bool bracket = false, aMoved = false, bMoved = false;
  for (int i = 1; i <= 101; ++i) {
    if (Sgn(fa) != Sgn(fb)) {
      bracket = true;
      break;
    }
    if (i % 2 == 1) {
      a -= 1;
      aMoved = true;
      if (!F(a, fa)) return false;
    } else {
      b += 1;
      bMoved = true;
      if (!F(b, fb)) return false;
    }
  }

  if (bracket) {
    if (aMoved && Sgn(fa) == Sgn(fa0)) {
      a = g - 1;
      fa = fa0;
    } else if (bMoved && Sgn(fb) == Sgn(fb0)) {
      b = g + 1;
      fb = fb0;
    }
    double m = (a + b) / 2;
    bool converged = false;
    for (int round = 0; round < 61; ++round) {
      if (tolerance >= std::fabs(a - b)) {
        converged = true;
        break;
      }
      m = (a + b) / 2;
      double fm = 0;
      if (!F(m, fm)) return false;
      if (Sgn(fm) == Sgn(fa)) {
        a = m;
        fa = fm;
      } else {
        b = m;
      }
    }
    if (!converged)
      ctx_.sink().Show(kInformation, "Max iterations exceeded. Treat result with caution.");
    root = m;
    return true;
  }

  // No change of sign: look for the least |f| on ever finer grids.
  double step = 0.5, best = 1000, bestX = g, lastValue = 0;
  for (int pass = 0; pass < 31; ++pass) {
    if (tolerance >= std::fabs(best)) break;
    for (int k = -4; k <= 4; ++k) {
      const double x = g + k * step;
      double fx = 0;
      if (!F(x, fx)) return false;
      lastValue = fx;
      if (std::fabs(fx) < std::fabs(best)) {
        best = fx;
        bestX = x;
      }
    }
    g = bestX;
    step /= 2;
  }
  ctx_.sink().Show(kInformation,
                   std::fabs(lastValue) >= 0.5
                       ? "No real roots identified around guesstimate. Treat result with caution."
                       : "Multiple equal roots suspected. Treat result with caution.");
  root = bestX;
  return true;
}

std::vector<std::string> ExpressionEngine::Listing(bool functions) const {
  std::vector<std::string> names;
  if (functions)
    for (const auto& f : functions_) names.push_back(f.name);
  else
    for (const auto& v : variables_) names.push_back(v.name);
  if (names.empty())
    return {functions ? "==> No user functions have been defined yet."
                      : "==> No user variables have been defined yet."};
  StringSort(names);
  std::vector<std::string> lines;
  std::string line = "==>";
  for (const auto& n : names) {
    if (line != "==>" && line.size() + 1 + n.size() >= kListingColumn) {
      lines.push_back(line);
      line = "==>";
    }
    line += " " + n;
  }
  lines.push_back(line);
  return lines;
}

LineResult ExpressionEngine::ProcessLine(std::string_view line) {
  LineResult r;
  r.shown = std::string(line);
  const auto quote = line.find('\'');
  const std::string_view code = line.substr(0, quote);
  const std::string_view comment =
      quote == std::string_view::npos ? std::string_view() : line.substr(quote);
  const std::string_view trimmed = Trim(code);
  if (trimmed.empty()) {
    r.kind = LineResult::Kind::Blank;
    return r;
  }
  if (ignoreMarked && trimmed.back() == '#') {
    r.kind = LineResult::Kind::Skipped;
    return r;
  }
  const std::string lower = ToLower(trimmed);
  if (lower == "userfuncs" || lower == "uservars") {
    r.kind = LineResult::Kind::Listing;
    r.output = Listing(lower == "userfuncs");
    return r;
  }

  r.kind = LineResult::Kind::Refused;
  ParsedLine parsed;
  if (!Parse(code, parsed) || !CheckBrackets(ctx_, parsed.tokens) || !CheckInput(parsed.tokens))
    return r;

  // The tidied line replaces the typed one; a comment keeps its column.
  r.shown = Tidy(parsed.tokens);
  if (!comment.empty()) {
    if (r.shown.size() < code.size()) r.shown.append(code.size() - r.shown.size(), ' ');
    r.shown += comment;
  }

  r.kind = LineResult::Kind::Failed;
  if (!parsed.tokens.empty() && parsed.tokens.back() == "#") parsed.tokens.pop_back();
  std::vector<std::string> postfix;
  if (!InfixToPostfix(parsed.tokens, postfix)) return r;
  auto value = Evaluate(parsed, postfix);
  if (!value) return r;

  if (parsed.definition) {
    r.kind = LineResult::Kind::Definition;
    r.output.push_back("==> Function " + parsed.targetName + "(" + parsed.paramName + ") accepted");
    return r;
  }
  if (RoundsPastLargest(sigFigs, *value)) {
    RunTimeFail(kOverflow, kProcEvaluate);
    return r;
  }
  r.value = FormatSigFigs(sigFigs, *value, Sep());
  if (parsed.targetName.empty()) {
    r.kind = LineResult::Kind::Value;
    r.output.push_back("==> " + r.value);
  } else {
    r.kind = LineResult::Kind::Assignment;
    r.output.push_back("==> " + parsed.targetName + " = " + r.value);
  }
  return r;
}

}  // namespace mc
