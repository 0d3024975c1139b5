// The Expression Calculator's front half: text to tokens, the checks on the
// tokens, the tidied display line, and the conversion to postfix.
#include <algorithm>
#include <array>
#include <cmath>

#include "core/errors.h"
#include "core/number_format.h"
#include "core/text_util.h"
#include "maths/expression.h"
#include "maths/expression_internal.h"

namespace mc {

using namespace expr;

namespace {

// The thirty function names and the seven other reserved words.
constexpr std::array<std::string_view, 37> kReservedNames = {
    "abs",    "arccos", "arccosh", "arcsin",    "arcsinh", "arctan", "arctanh", "ceiling",
    "cos",    "cosh",   "exp",     "fact",      "fib",     "floor",  "frac",    "int",
    "invert", "ln",     "log10",   "luc",       "rand",    "recip",  "round",   "sign",
    "sin",    "sinh",   "sqrt",    "square",    "tan",     "tanh",   "e",       "mod",
    "phi",    "pi",     "solve",   "userfuncs", "uservars"};

constexpr std::string_view kPhiText = "1.61803398874989";

bool EqualsNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    char x = a[i], y = b[i];
    if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
    if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
    if (x != y) return false;
  }
  return true;
}

// Operators as CheckInput sees them: the doubled binary forms don't count.
bool IsCheckOperator(std::string_view t) {
  return t == "+" || t == "-" || t == "*" || t == "/" || t == "\\" || t == "^" || t == "mod";
}

}  // namespace

ExpressionEngine::ExpressionEngine(Context& ctx) : ctx_(ctx) {}

char ExpressionEngine::Sep() const {
  return ctx_.settings.decimalSeparator;
}

bool ExpressionEngine::Fail(int errorNumber) {
  ShowError(ctx_, errorNumber);
  return false;
}

bool ExpressionEngine::RunTimeFail(int runTimeError, int procNum) {
  ShowRunTimeError(ctx_, runTimeError, procNum);
  return false;
}

bool ExpressionEngine::IsReservedName(std::string_view name) {
  return std::any_of(kReservedNames.begin(), kReservedNames.end(),
                     [&](std::string_view r) { return EqualsNoCase(r, name); });
}

const UserFunction* ExpressionEngine::FindFunction(std::string_view name) const {
  for (const auto& f : functions_)
    if (EqualsNoCase(f.name, name)) return &f;
  return nullptr;
}

UserVariable* ExpressionEngine::FindVariable(std::string_view name) {
  for (auto& v : variables_)
    if (EqualsNoCase(v.name, name)) return &v;
  return nullptr;
}

bool ExpressionEngine::IsUserFuncName(std::string_view name) const {
  return FindFunction(name) != nullptr;
}

bool ExpressionEngine::IsUserVarName(std::string_view name) const {
  return std::any_of(variables_.begin(), variables_.end(),
                     [&](const UserVariable& v) { return EqualsNoCase(v.name, name); });
}

void ExpressionEngine::StringSort(std::vector<std::string>& names) {
  std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    std::string la = ToLower(a), lb = ToLower(b);
    return la != lb ? la < lb : a < b;
  });
}

void ExpressionEngine::ClearTables() {
  variables_.clear();
  functions_.clear();
}

int ExpressionEngine::Precedence(std::string_view token) {
  if (token == "=") return 1;
  if (token == "+" || token == "++" || token == "-" || token == "--") return 2;
  if (token == "*" || token == "/" || token == "\\" || token == "mod") return 3;
  if (token == "^") return 4;
  if (IsNameToken(token)) return 5;
  return 0;
}

bool ExpressionEngine::Parse(std::string_view text, ParsedLine& out) {
  out = ParsedLine{};
  std::string_view s = Trim(text);
  if (s.empty()) return true;
  const char sep = Sep();
  const bool hasSolve = ToLower(s).find("solve") != std::string::npos;
  if (hasSolve && s.find(';') == std::string_view::npos)
    return Fail(Err("Reserved word \"solve\" detected but no semi-colon found in input line."));
  if (s.find(OtherSeparator(sep)) != std::string_view::npos)
    return Fail(
        Err("Incorrect decimal point symbol detected for current Windows regional settings."));
  for (std::size_t i = s.find('#'); i != std::string_view::npos; i = s.find('#', i + 1))
    if (i + 1 != s.size() || i == 0) return Fail(Err("Invalid use of # symbol."));

  auto& tokens = out.tokens;
  std::size_t i = 0;
  while (i < s.size()) {
    const char c = s[i];
    if (c == ' ' || c == '\t') {
      ++i;
      continue;
    }
    const bool legal = IsLetter(c) || IsDigit(c) || c == sep ||
                       std::string_view("=+-*/^\\()[]{}#").find(c) != std::string_view::npos;
    if (!legal && !(c == ';' && s.size() >= 5 && hasSolve))
      return Fail(Err("Invalid character in input string."));

    if (c == '+' || c == '-') {
      bool unary = tokens.empty();
      if (!unary) {
        const std::string& p = tokens.back();
        unary = IsOpener(p) || p == "=" || p == ";";
      }
      tokens.emplace_back(unary ? 1 : 2, c);
      ++i;
    } else if (std::string_view("*/\\^()[]{}=#;").find(c) != std::string_view::npos) {
      tokens.emplace_back(1, c);
      ++i;
    } else if (IsLetter(c)) {
      std::size_t j = i;
      while (j < s.size() && (IsLetter(s[j]) || IsDigit(s[j]))) {
        if (IsDigit(s[j]) && EqualsNoCase(s.substr(i, j - i), "mod")) break;
        ++j;
      }
      std::string name(s.substr(i, j - i));
      if (IsReservedName(name)) name = ToLower(name);
      if (name == "e")
        name = DefaultNumberText(std::exp(1.0), sep);
      else if (name == "pi")
        name = DefaultNumberText(4 * std::atan(1.0), sep);
      else if (name == "phi")
        name = ToUserDecimal(kPhiText, sep);
      tokens.push_back(std::move(name));
      i = j;
    } else {
      std::size_t j = ScanNumber(s, i, sep);
      if (j == i) j = i + 1;
      std::string number(s.substr(i, j - i));
      if (!IsStrictNumeric(number, sep)) return Fail(Err("Invalid numeric value."));
      tokens.push_back(std::move(number));
      i = j;
    }
    if (static_cast<int>(tokens.size()) > kMaxSub)
      return Fail(Err("Tokens array subscript exceeds MaxSub."));
  }

  const auto equals = std::count(tokens.begin(), tokens.end(), "=");
  if (equals >= 2) return Fail(Err("More than one equals sign detected."));
  if (equals == 0) return true;
  const auto at = std::find(tokens.begin(), tokens.end(), "=") - tokens.begin() + 1;
  if (at != 2 && at != 5)
    return Fail(Err("Invalid variable assignment or function definition statement."));
  if (!IsNameToken(tokens[0])) return Fail(Err("First token is not a variable name."));
  if (IsReservedName(tokens[0])) return Fail(Err("First token is a reserved name."));
  if (at == 5) {
    if (!IsNameToken(tokens[2])) return Fail(Err("Invalid parameter name in function definition."));
    out.definition = true;
    out.paramName = tokens[2];
  }
  out.targetName = tokens[0];
  return true;
}

bool ExpressionEngine::CheckInput(const std::vector<std::string>& tokens) {
  const int invalid = Err("Invalid arithmetic expression.");
  const std::size_t n = tokens.size();
  const char sep = Sep();
  auto isNumber = [&](const std::string& t) {
    return MayBeNumber(t, sep) && IsStrictNumeric(t, sep);
  };
  auto isName = [](const std::string& t) { return IsNameToken(t) && t != "mod"; };
  if (n == 0) return true;
  if (n == 1) return isNumber(tokens[0]) || isName(tokens[0]) ? true : Fail(invalid);

  std::size_t first = 0;
  if (tokens[1] == "=")
    first = 2;
  else if (n >= 5 && tokens[4] == "=")
    first = 5;
  std::size_t last = n - 1;
  if (tokens[last] == "#") --last;
  if (first > last) return Fail(invalid);

  const std::string& head = tokens[first];
  if (head == "/" || head == "*" || head == "\\" || head == "^" || head == "mod")
    return Fail(invalid);
  if (IsCheckOperator(tokens[last])) return Fail(invalid);

  for (std::size_t k = first + 1; k <= last; ++k) {
    const std::string& p = tokens[k - 1];
    const std::string& c = tokens[k];
    const bool pOp = IsCheckOperator(p), cOp = IsCheckOperator(c);
    const bool pValue = isName(p) || isNumber(p), cValue = isName(c) || isNumber(c);
    const bool refused = (pOp && IsCloser(c)) || (IsCloser(p) && IsOpener(c)) ||
                         (IsOpener(p) && IsCloser(c)) || (IsOpener(p) && c == "mod") ||
                         (pOp && cOp) ||
                         (IsOpener(p) && (c == "/" || c == "*" || c == "\\" || c == "^")) ||
                         (IsCloser(p) && cValue) || (pValue && cValue);
    if (refused) return Fail(invalid);
  }
  return true;
}

std::string ExpressionEngine::Tidy(const std::vector<std::string>& tokens) const {
  const char sep = Sep();
  const std::string piText = DefaultNumberText(4 * std::atan(1.0), sep);
  const std::string eText = DefaultNumberText(std::exp(1.0), sep);
  const std::string phiText = ToUserDecimal(kPhiText, sep);
  std::string out;
  for (const auto& t : tokens) {
    if (t == "++")
      out += " + ";
    else if (t == "--")
      out += " - ";
    else if (t == "*" || t == "/" || t == "\\" || t == "^" || t == "=" || EqualsNoCase(t, "mod"))
      out += " " + ToLower(t) + " ";
    else if (t == piText)
      out += "pi";
    else if (t == eText)
      out += "e";
    else if (t == phiText)
      out += "phi";
    else if (t == "#")
      out += " #";
    else
      out += t;
  }
  return out;
}

bool ExpressionEngine::InfixToPostfix(const std::vector<std::string>& tokens,
                                      std::vector<std::string>& postfix) {
  return TokensToPostfix(ctx_, tokens, &Precedence, postfix);
}

}  // namespace mc
