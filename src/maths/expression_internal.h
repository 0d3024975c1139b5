// Token helpers shared by the two evaluators.
#pragma once

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"

namespace mc::expr {

inline bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
inline bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

inline bool IsOpener(std::string_view t) {
  return t == "(" || t == "[" || t == "{";
}
inline bool IsCloser(std::string_view t) {
  return t == ")" || t == "]" || t == "}";
}
inline char OpenerOf(char closer) {
  return closer == ')' ? '(' : closer == ']' ? '[' : closer == '}' ? '{' : '\0';
}

// A name starts with a letter; it may be reserved, a user name or unknown.
inline bool IsNameToken(std::string_view t) {
  return !t.empty() && IsLetter(t[0]);
}

inline bool IsIntegral(double x) {
  return std::isfinite(x) && std::floor(x) == x;
}

inline int Sgn(double x) {
  return x > 0 ? 1 : x < 0 ? -1 : 0;
}

// The end of a number starting at i: digits and the decimal separator, then
// an upper-case E with an optional sign and digits. A lower-case e ends it.
inline std::size_t ScanNumber(std::string_view s, std::size_t i, char sep) {
  while (i < s.size() && (IsDigit(s[i]) || s[i] == sep)) ++i;
  if (i < s.size() && s[i] == 'E') {
    ++i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    while (i < s.size() && IsDigit(s[i])) ++i;
  }
  return i;
}

// A quick test before the full numeric one: a digit or the separator,
// after an optional sign, starts every number token.
inline bool MayBeNumber(std::string_view t, char sep) {
  std::size_t i = !t.empty() && (t[0] == '+' || t[0] == '-') ? 1 : 0;
  return i < t.size() && (IsDigit(t[i]) || t[i] == sep);
}

// The separator that is not the user's.
inline char OtherSeparator(char sep) {
  return sep == ',' ? '.' : ',';
}

// Infix tokens to postfix by the shunting-yard rule, with the evaluator's
// precedence of a token (0 for a name it does not know). Numbers go straight
// through, a closing bracket of any kind pops back to its own opener, ";" is
// passed over. False after a message when a stack is full, a bracket has no
// partner or a name is unknown.
bool TokensToPostfix(Context& ctx, const std::vector<std::string>& tokens,
                     int (*precedence)(std::string_view), std::vector<std::string>& postfix);

// x op y for the operators both evaluators share (++ -- * / ^): the value,
// or the number of the message that refuses it (0 when none does).
struct Arithmetic {
  double value = 0;
  int error = 0;
};
Arithmetic ApplyArithmetic(std::string_view op, double x, double y);

}  // namespace mc::expr
