// The evaluator behind every numeric input box, and the number texts both
// evaluators share.
#include <cmath>
#include <cstdio>

#include "core/errors.h"
#include "core/number_format.h"
#include "core/text_util.h"
#include "maths/expression.h"
#include "maths/expression_internal.h"

namespace mc {

using namespace expr;

std::string_view AngleMeasureName(AngleMeasure a) {
  return a == AngleMeasure::Degrees ? "Degrees" : "Radians";
}

std::string DefaultNumberText(double value, char decimalSeparator) {
  if (value == 0) return "0";
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.15G", value);
  std::string text(buf);
  for (auto& c : text)
    if (c == '.') c = decimalSeparator;
  return text;
}

std::string ToUserDecimal(std::string_view text, char decimalSeparator) {
  std::string out(text);
  for (auto& c : out)
    if (c == '.' || c == ',') c = decimalSeparator;
  return out;
}

std::optional<double> ParseDecimalNumber(std::string_view text, char decimalSeparator) {
  return ParseStrictNumber(ToUserDecimal(Trim(text), decimalSeparator), decimalSeparator);
}

bool CheckBrackets(Context& ctx, const std::vector<std::string>& tokens) {
  std::string b;
  for (const auto& t : tokens)
    if (IsOpener(t) || IsCloser(t)) b += t[0];
  if (b.empty()) return true;
  auto unmatched = [&] {
    ShowError(ctx, Err("Missing or unmatched parentheses."));
    return false;
  };
  if (b.size() % 2 != 0 || OpenerOf(b[0]) != '\0') return unmatched();
  while (!b.empty()) {
    auto pos = b.find_first_of(")]}");
    if (pos == std::string::npos || pos == 0 || b[pos - 1] != OpenerOf(b[pos])) return unmatched();
    b.erase(pos - 1, 2);
  }
  return true;
}

bool TokeniseNumeric(Context& ctx, std::string_view text, std::vector<std::string>& tokens) {
  const char sep = ctx.settings.decimalSeparator;
  tokens.clear();
  std::size_t i = 0;
  while (i < text.size()) {
    char c = text[i];
    bool legal =
        IsDigit(c) || c == sep || std::string_view("+-*/^E()").find(c) != std::string_view::npos;
    if (!legal) {
      ShowError(ctx, Err("Invalid character in input string."));
      return false;
    }
    if (c == '+' || c == '-') {
      bool unary = tokens.empty() || tokens.back() == "(";
      tokens.emplace_back(unary ? 1 : 2, c);
      ++i;
    } else if (c == '*' || c == '/' || c == '^' || c == '(' || c == ')') {
      tokens.emplace_back(1, c);
      ++i;
    } else {
      std::size_t end = ScanNumber(text, i, sep);
      if (end == i) end = i + 1;
      std::string number(text.substr(i, end - i));
      if (!IsStrictNumeric(number, sep)) {
        ShowError(ctx, Err("Invalid numeric value."));
        return false;
      }
      tokens.push_back(std::move(number));
      i = end;
    }
    if (static_cast<int>(tokens.size()) > kMaxSub) {
      ShowError(ctx, Err("Tokens array subscript exceeds MaxSub."));
      return false;
    }
  }
  return true;
}

int NumericPrecedence(std::string_view token) {
  if (token == "+" || token == "++" || token == "-" || token == "--") return 2;
  if (token == "*" || token == "/") return 3;
  if (token == "^") return 4;
  return 0;
}

namespace expr {

bool TokensToPostfix(Context& ctx, const std::vector<std::string>& tokens,
                     int (*precedence)(std::string_view), std::vector<std::string>& postfix) {
  const char sep = ctx.settings.decimalSeparator;
  auto fail = [&](int message) {
    ShowError(ctx, message);
    return false;
  };
  postfix.clear();
  std::vector<std::string> stack;
  auto toPostfix = [&](std::string t) {
    if (static_cast<int>(postfix.size()) >= kMaxSub)
      return fail(Err("Postfix array subscript exceeds MaxSub."));
    postfix.push_back(std::move(t));
    return true;
  };
  auto push = [&](const std::string& t) {
    if (static_cast<int>(stack.size()) >= kMaxSub)
      return fail(Err("Stack array subscript exceeds MaxSub."));
    stack.push_back(t);
    return true;
  };
  for (const auto& t : tokens) {
    if (MayBeNumber(t, sep) && IsStrictNumeric(t, sep)) {
      if (!toPostfix(t)) return false;
    } else if (IsOpener(t)) {
      if (!push(t)) return false;
    } else if (IsCloser(t)) {
      const char opener = OpenerOf(t[0]);
      while (true) {
        if (stack.empty()) return fail(Err("Missing or unmatched parentheses."));
        std::string top = std::move(stack.back());
        stack.pop_back();
        if (top.size() == 1 && top[0] == opener) break;
        if (!toPostfix(std::move(top))) return false;
      }
    } else if (t == ";") {
      continue;
    } else {
      const int p = precedence(t);
      while (!stack.empty()) {
        if (p > precedence(stack.back())) break;
        if (p == 0) return fail(Err("Unknown function name detected."));
        if (!toPostfix(std::move(stack.back()))) return false;
        stack.pop_back();
      }
      if (!push(t)) return false;
    }
  }
  while (!stack.empty()) {
    if (!toPostfix(std::move(stack.back()))) return false;
    stack.pop_back();
  }
  return true;
}

Arithmetic ApplyArithmetic(std::string_view op, double x, double y) {
  if (op == "++") return {x + y};
  if (op == "--") return {x - y};
  if (op == "*") return {x * y};
  if (op == "/") {
    if (y == 0) return {0, Err("Denominator = 0 error using /, \\ or mod.")};
    return {x / y};
  }
  if (x < 0 && !IsIntegral(y)) return {0, Err("With x^y, if x<0 then y must be an integer.")};
  if (x == 0 && y <= 0) return {0, Err("With x^y, if x=0 then y must be positive.")};
  return {std::pow(x, y)};
}

}  // namespace expr

bool NumericToPostfix(Context& ctx, const std::vector<std::string>& tokens,
                      std::vector<std::string>& postfix) {
  return TokensToPostfix(ctx, tokens, &NumericPrecedence, postfix);
}

std::optional<double> EvaluateNumericPostfix(Context& ctx,
                                             const std::vector<std::string>& postfix) {
  const char sep = ctx.settings.decimalSeparator;
  std::vector<double> stack;
  auto invalid = [&]() -> std::optional<double> {
    ShowError(ctx, Err("Invalid arithmetic expression."));
    return std::nullopt;
  };
  for (const auto& t : postfix) {
    if (auto v = MayBeNumber(t, sep) ? ParseStrictNumber(t, sep) : std::nullopt) {
      if (static_cast<int>(stack.size()) >= kMaxSub) {
        ShowError(ctx, Err("Stack array subscript exceeds MaxSub."));
        return std::nullopt;
      }
      stack.push_back(*v);
    } else if (t == "+") {
    } else if (t == "-") {
      if (stack.empty()) return invalid();
      stack.back() = -stack.back();
    } else if (t == "++" || t == "--" || t == "*" || t == "/" || t == "^") {
      if (stack.size() < 2) return invalid();
      const double y = stack.back();
      stack.pop_back();
      const Arithmetic r = ApplyArithmetic(t, stack.back(), y);
      if (r.error) {
        ShowError(ctx, r.error);
        return std::nullopt;
      }
      if (!std::isfinite(r.value)) {
        ShowRunTimeError(ctx, kOverflow, kProcEvalNumericInput);
        return std::nullopt;
      }
      stack.back() = r.value;
    }
    // Any other token is passed over.
  }
  if (stack.size() != 1) return invalid();
  return stack.back();
}

double EvalNumericInput(Context& ctx, std::string_view text) {
  std::string_view s = Trim(text);
  if (s.empty()) {
    ShowError(ctx, Err("Missing input data."));
    return -1;
  }
  if (s.find(OtherSeparator(ctx.settings.decimalSeparator)) != std::string_view::npos) {
    ShowError(
        ctx, Err("Incorrect decimal point symbol detected for current Windows regional settings."));
    return -1;
  }
  std::vector<std::string> tokens, postfix;
  if (!TokeniseNumeric(ctx, s, tokens)) return -1;
  if (!CheckBrackets(ctx, tokens)) return -1;
  if (!NumericToPostfix(ctx, tokens, postfix)) return -1;
  auto value = EvaluateNumericPostfix(ctx, postfix);
  if (!value) return -1;
  if (*value <= 0) {
    ShowError(ctx, Err("Number entered is not positive."));
    return -1;
  }
  return *value;
}

}  // namespace mc
