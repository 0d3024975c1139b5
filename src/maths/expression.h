// The expression language of the Expression Calculator and the small
// evaluator behind every numeric input box.
//
// Both go the same way: text to tokens, tokens to postfix (shunting yard),
// postfix to a value on a stack of doubles, with every array bounded by
// kMaxSub. Tokens are text: a binary + or - is stored doubled ("++", "--"),
// a unary one single; numbers keep their typed text; reserved names are
// folded to lower case and the constants e, pi and phi are replaced by their
// numeric text at once.
//
// Every step reports its own fault through the context's message sink and
// returns false (or nullopt); callers only stop.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"

namespace mc {

// Limit of the token array, the postfix array and the value stack.
inline constexpr int kMaxSub = 300;
// Limit of each user table (variables, functions).
inline constexpr int kMaxUserNames = 50;

// Procedure numbers shown with run-time faults ("Overflow error (ProcNum = N).").
inline constexpr int kProcParse = 2701;
inline constexpr int kProcInfixToPostfix = 2702;
inline constexpr int kProcEvaluate = 2703;
inline constexpr int kProcSolve = 2704;
inline constexpr int kProcSaveSession = 2705;
inline constexpr int kProcLoadSession = 2706;
inline constexpr int kProcEvalNumericInput = 2790;

enum class AngleMeasure { Radians, Degrees };

// "Degrees" / "Radians", as the settings file and session files hold them.
std::string_view AngleMeasureName(AngleMeasure a);

// A double as the default number-to-text conversion writes it: 15
// significant digits, trailing zeros dropped, exponent form ("1E+15",
// "1E-05") outside 1E-4 .. 1E15, with the user's decimal separator. Variables
// and the arguments of user functions pass through this text and so keep
// only 15 digits.
std::string DefaultNumberText(double value, char decimalSeparator);

// Any '.' or ',' in the text swapped for the user's separator.
std::string ToUserDecimal(std::string_view text, char decimalSeparator);

// A number written with either separator ("51.5" or "51,5"), signed, with an
// optional exponent; nothing when the text is not such a number. Start-up
// reads the home latitude, longitude and time zone through it.
std::optional<double> ParseDecimalNumber(std::string_view text, char decimalSeparator);

// Brackets of all three kinds must pair and nest; otherwise "Missing or
// unmatched parentheses.".
bool CheckBrackets(Context& ctx, const std::vector<std::string>& tokens);

// The value of a numeric input box: a number or a simple expression of
// digits, + - * / ^ ( ) and E. A strictly positive value, or -1 after a
// message.
double EvalNumericInput(Context& ctx, std::string_view text);

// The parts of EvalNumericInput, each false after its message.
bool TokeniseNumeric(Context& ctx, std::string_view text, std::vector<std::string>& tokens);
int NumericPrecedence(std::string_view token);
bool NumericToPostfix(Context& ctx, const std::vector<std::string>& tokens,
                      std::vector<std::string>& postfix);
std::optional<double> EvaluateNumericPostfix(Context& ctx, const std::vector<std::string>& postfix);

struct UserVariable {
  std::string name;   // as first typed
  std::string value;  // DefaultNumberText of the value
};

struct UserFunction {
  std::string name;        // as first typed
  std::string definition;  // the postfix of the body joined by ':', the parameter first
};

// A line split into tokens, with what its equals sign makes of it.
struct ParsedLine {
  std::vector<std::string> tokens;
  std::string targetName;  // the name left of '=', empty when there is none
  std::string paramName;   // the parameter of a function definition
  bool definition = false;
};

// What one line of a session gave.
struct LineResult {
  enum class Kind {
    Blank,       // nothing but blanks or a comment
    Skipped,     // a line marked with '#' while marked lines are ignored
    Listing,     // userfuncs or uservars
    Refused,     // Parse, CheckBrackets or CheckInput failed: the line stays as typed
    Failed,      // evaluation failed: the line stands tidied, no result
    Value,       // "==> value"
    Assignment,  // "==> name = value"
    Definition,  // "==> Function f(x) accepted"
  };
  Kind kind = Kind::Blank;
  std::string shown;                // the line as the session shows it afterwards
  std::vector<std::string> output;  // the "==>" lines written below it
  std::string value;                // the value text put on the clipboard
  bool ok() const { return kind != Kind::Refused && kind != Kind::Failed; }
};

// The Expression Calculator's language and tables: user variables and
// functions, angle measure and significant figures. Lives as long as the
// screen that owns it.
class ExpressionEngine {
 public:
  explicit ExpressionEngine(Context& ctx);

  Context& ctx() { return ctx_; }

  int sigFigs = 7;  // 1 .. 14, used for results and the tolerance of solve
  AngleMeasure angle = AngleMeasure::Radians;
  // During Recalc All with "Ignore # lines" ticked: lines ending in '#' are passed over.
  bool ignoreMarked = false;

  // One line through every step: comment, listing commands, Parse,
  // CheckBrackets, CheckInput, Tidy, InfixToPostfix, Evaluate, output text.
  LineResult ProcessLine(std::string_view line);

  // The steps, each false (or nullopt) after showing its message.
  bool Parse(std::string_view line, ParsedLine& out);
  bool CheckInput(const std::vector<std::string>& tokens);
  std::string Tidy(const std::vector<std::string>& tokens) const;
  bool InfixToPostfix(const std::vector<std::string>& tokens, std::vector<std::string>& postfix);
  // Expression mode gives the value; definition mode stores the function and gives 0.
  std::optional<double> Evaluate(const ParsedLine& line, const std::vector<std::string>& postfix);

  static int Precedence(std::string_view token);
  static bool IsReservedName(std::string_view name);
  bool IsUserFuncName(std::string_view name) const;
  bool IsUserVarName(std::string_view name) const;
  // Names in alphabetical order, case ignored.
  static void StringSort(std::vector<std::string>& names);

  const std::vector<UserVariable>& Variables() const { return variables_; }
  const std::vector<UserFunction>& Functions() const { return functions_; }
  void ClearTables();

 private:
  struct Stack;
  char Sep() const;
  bool Fail(int errorNumber);
  bool RunTimeFail(int runTimeError, int procNum);
  const UserFunction* FindFunction(std::string_view name) const;
  UserVariable* FindVariable(std::string_view name);
  bool Define(const std::vector<std::string>& postfix);
  bool EvalPostfix(const std::vector<std::string>& postfix, const std::string& target, int depth,
                   double& result);
  bool ApplyFunction(std::string_view name, double& x);
  bool Trig(std::string_view name, double& x);
  bool CallUserFunction(const UserFunction& f, double x, int depth, double& result);
  bool Solve(const std::vector<std::string>& postfix, std::size_t at, int depth, double& result);
  std::vector<std::string> Listing(bool functions) const;

  Context& ctx_;
  std::vector<UserVariable> variables_;
  std::vector<UserFunction> functions_;
};

}  // namespace mc
