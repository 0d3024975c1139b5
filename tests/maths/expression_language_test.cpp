// The Expression Calculator's language: tokens, precedence, functions,
// variables, user functions and root search.
#include <cmath>

#include "maths/expression_test_support.h"

namespace mc::test {
namespace {

using ExpressionLanguage = ExpressionTest;

TEST_F(ExpressionLanguage, PrecedenceAndAssociativity) {
  EXPECT_EQ(Run("2^3^2"), "==> 64");  // left to right: (2^3)^2
  EXPECT_EQ(Run("-2^2"), "==> -4");   // unary minus binds like binary minus
  EXPECT_EQ(Run("2^(-3)"), "==> 0.125");
  EXPECT_EQ(Run("2+3*4^2"), "==> 50");
  EXPECT_EQ(Run("10-4-3"), "==> 3");
  EXPECT_EQ(Run("2*3/4*2"), "==> 3");
  EXPECT_EQ(Run("-3*2"), "==> -6");
  EXPECT_EQ(Run("+5"), "==> 5");
  EXPECT_EQ(Run("[1+2]*{3-1}"), "==> 6");
  EXPECT_EQ(Run("7 MOD 3"), "==> 1");
  EXPECT_EQ(Run("7mod3"), "==> 1");  // the name stops at a digit once it spells mod
  EXPECT_EQ(Run("-7 mod 3"), "==> -1");
  EXPECT_EQ(Run("-7\\2"), "==> -3");  // integer division truncates
  EXPECT_EQ(Run("2*3 mod 4"), "==> 2");
  EXPECT_EQ(Run("sin(0)^2 + cos(0)^2"), "==> 1");
  EXPECT_EQ(Run("1.5E2 + 1E-1"), "==> 150.1");
  // No implicit multiplication and no operator after an operator.
  for (const char* line : {"2^-3", "2*-3", "2--3", "(2)(3)", "2 pi", "2(3)", "sin 30", "*2", "2*",
                           "()", "(*2)", "2 mod", "(mod 2)", "x ="})
    EXPECT_EQ(Run(line), "! Invalid arithmetic expression.") << line;
}

TEST_F(ExpressionLanguage, TidyRebuildsTheLine) {
  auto tidy = [&](std::string_view line) { return engine->ProcessLine(line).shown; };
  EXPECT_EQ(tidy("7 MOD 3"), "7 mod 3");
  EXPECT_EQ(tidy("x=-2+3*4"), "x = -2 + 3 * 4");
  EXPECT_EQ(tidy("SIN(PI/2)+e*Phi"), "sin(pi / 2) + e * phi");
  EXPECT_EQ(tidy("1.50  \\ 2 #"), "1.50 \\ 2 #");
  EXPECT_EQ(tidy("2*-3"), "2 *  - 3");  // tidied, then refused by the evaluator
  // A comment keeps its column when the tidied line is not longer.
  EXPECT_EQ(tidy("2+3      'five"), "2 + 3    'five");
  EXPECT_EQ(tidy("2+3'five"), "2 + 3'five");
  // A refused line stays as typed.
  EXPECT_EQ(tidy("2*/3   'bad"), "2*/3   'bad");
}

TEST_F(ExpressionLanguage, ConstantsAndNumberText) {
  EXPECT_DOUBLE_EQ(*Value("pi"), 3.14159265358979);  // cut to 15 digits when typed
  EXPECT_DOUBLE_EQ(*Value("e"), 2.71828182845905);
  EXPECT_DOUBLE_EQ(*Value("phi"), 1.61803398874989);
  EXPECT_EQ(Run("1e3"), "! Invalid arithmetic expression.");  // 1 followed by the name e3
  EXPECT_EQ(Run("1E3"), "==> 1000");
}

TEST_F(ExpressionLanguage, RoundingFunctionsAndTheirEdges) {
  EXPECT_EQ(Run("int(-1.5)"), "==> -2");
  EXPECT_EQ(Run("floor(-1.5)"), "==> -2");
  EXPECT_EQ(Run("frac(-1.5)"), "==> 0.5");
  EXPECT_EQ(Run("ceiling(-1.5)"), "==> -1");
  EXPECT_EQ(Run("ceiling(2)"), "==> 2");
  EXPECT_EQ(Run("ceiling(2.1)"), "==> 3");
  EXPECT_EQ(Run("round(2.5)"), "==> 3");
  EXPECT_EQ(Run("round(-2.5)"), "==> -2");
  EXPECT_EQ(Run("sign(-0.1)"), "==> -1");
  EXPECT_EQ(Run("sign(0)"), "==> 0");
  EXPECT_EQ(Run("invert(0)"), "==> 1");
  EXPECT_EQ(Run("invert(5)"), "==> 0");
  EXPECT_EQ(Run("abs(-4)"), "==> 4");
  EXPECT_EQ(Run("square(-3)"), "==> 9");
  EXPECT_EQ(Run("recip(4)"), "==> 0.25");
  EXPECT_EQ(Run("recip(0)"), "! Denominator = 0 error using recip(x).");
}

TEST_F(ExpressionLanguage, PowersLogsAndRootsOnTheirDomains) {
  EXPECT_EQ(Run("sqrt(0)"), "==> 0");
  EXPECT_EQ(Run("sqrt(-1)"), "! Argument < 0 error using sqrt(x).");
  EXPECT_EQ(Run("ln(1)"), "==> 0");
  EXPECT_EQ(Run("log10(1000)"), "==> 3");
  EXPECT_EQ(Run("ln(0)"), "! Argument <= 0 error using ln(x) or log10(x).");
  EXPECT_EQ(Run("log10(-1)"), "! Argument <= 0 error using ln(x) or log10(x).");
  EXPECT_EQ(Run("exp(0)"), "==> 1");
  EXPECT_EQ(Run("(-2)^3"), "==> -8");
  EXPECT_EQ(Run("(-8)^(1/3)"), "! With x^y, if x<0 then y must be an integer.");
  EXPECT_EQ(Run("0^0"), "! With x^y, if x=0 then y must be positive.");
  EXPECT_EQ(Run("0^(-1)"), "! With x^y, if x=0 then y must be positive.");
  EXPECT_EQ(Run("0^2"), "==> 0");
  EXPECT_EQ(Run("1/0"), "! Denominator = 0 error using /, \\ or mod.");
  EXPECT_EQ(Run("5 mod 0"), "! Denominator = 0 error using /, \\ or mod.");
  EXPECT_EQ(Run("5\\0"), "! Denominator = 0 error using /, \\ or mod.");
  EXPECT_EQ(Run("7.5 mod 2"), "! Non-integer argument error using \\ or mod.");
  EXPECT_EQ(Run("7 \\ 2.5"), "! Non-integer argument error using \\ or mod.");
  // Operands of \ and mod are 32-bit integers.
  EXPECT_EQ(Run("2147483647 mod 10"), "==> 7");
  EXPECT_EQ(Run("2147483648 mod 10"), "! Overflow error (ProcNum = 2703).");
  EXPECT_EQ(Run("(-2147483648) \\ (-1)"), "! Overflow error (ProcNum = 2703).");
}

TEST_F(ExpressionLanguage, OverflowIsReportedNeverShown) {
  for (const char* line :
       {"10^400", "1E308*10", "exp(710)", "sinh(1000)", "cosh(-1000)", "tanh(400)", "square(1E200)",
        "arcsinh(1E200)", "1E308+1E308", "1/1E-320"})
    EXPECT_EQ(Run(line), "! Overflow error (ProcNum = 2703).") << line;
  EXPECT_EQ(Run("tanh(-400)"), "==> -1");
  EXPECT_EQ(Run("exp(-1000)"), "==> 0");
  EXPECT_EQ(Run("1E400"), "! Invalid numeric value.");
  // The largest double is kept with 15 digits, which no longer reads back.
  EXPECT_EQ(Run("top = 1.7976931348623157E308"), "==> top = 1.797693E308");
  EXPECT_EQ(Run("top"), "! Overflow error (ProcNum = 2703).");
  Run("id(x) = x");
  EXPECT_EQ(Run("id(1.7976931348623157E308)"), "! Overflow error (ProcNum = 2703).");
  EXPECT_EQ(Run("id(1.79769313486231E308)"), "==> 1.797693E308");
  engine->sigFigs = 1;
  EXPECT_EQ(Run("1.7E308"), "! Overflow error (ProcNum = 2703).");
  EXPECT_EQ(Run("-1.7E308"), "! Overflow error (ProcNum = 2703).");
  EXPECT_EQ(Run("1.4E308"), "==> 1.0E308");
}

TEST_F(ExpressionLanguage, FactorialFibonacciLucas) {
  EXPECT_EQ(Run("fact(0)"), "==> 1");
  EXPECT_EQ(Run("fact(10)"), "==> 3628800");
  EXPECT_NEAR(*Value("fact(170)"), 7.257415615307994e306, 1e293);
  EXPECT_EQ(Run("fact(171)"), "! n < 0 or n > 170 error using fact(n).");
  EXPECT_EQ(Run("fact(-1)"), "! n < 0 or n > 170 error using fact(n).");
  EXPECT_EQ(Run("fact(2.5)"), "! Argument not integer error using fact(n).");
  EXPECT_EQ(Run("fib(0)"), "==> 0");
  EXPECT_EQ(Run("fib(1)"), "==> 1");
  EXPECT_EQ(Run("fib(10)"), "==> 55");
  EXPECT_EQ(Run("fib(70)"), "==> 190392490709135");
  EXPECT_TRUE(std::isfinite(*Value("fib(1474)")));
  EXPECT_EQ(Run("fib(1475)"), "! n < 0 or n > 1474 error using fib(n).");
  EXPECT_EQ(Run("fib(-1)"), "! n < 0 or n > 1474 error using fib(n).");
  EXPECT_EQ(Run("fib(2.5)"), "! Argument not integer error using fib(n).");
  EXPECT_EQ(Run("luc(1)"), "==> 1");
  EXPECT_EQ(Run("luc(2)"), "==> 3");
  EXPECT_EQ(Run("luc(10)"), "==> 123");
  EXPECT_TRUE(std::isfinite(*Value("luc(1474)")));
  EXPECT_EQ(Run("luc(0)"), "! n < 1 or n > 1474 error using luc(n).");
  EXPECT_EQ(Run("luc(1475)"), "! n < 1 or n > 1474 error using luc(n).");
  EXPECT_EQ(Run("luc(1.5)"), "! Argument not integer error using luc(n).");
}

TEST_F(ExpressionLanguage, HyperbolicFunctionsAndInverses) {
  EXPECT_DOUBLE_EQ(*Value("sinh(1)"), std::sinh(1.0));
  EXPECT_DOUBLE_EQ(*Value("cosh(1)"), std::cosh(1.0));
  EXPECT_NEAR(*Value("tanh(0.5)"), std::tanh(0.5), 1e-15);
  EXPECT_NEAR(*Value("arcsinh(-2)"), std::asinh(-2.0), 1e-15);
  EXPECT_EQ(*Value("arcsinh(-2)"), -*Value("arcsinh(2)"));
  EXPECT_EQ(Run("arccosh(1)"), "==> 0");
  EXPECT_NEAR(*Value("arccosh(2)"), std::acosh(2.0), 1e-15);
  EXPECT_EQ(Run("arccosh(0.5)"), "! Argument < 1 error using arccosh(x).");
  EXPECT_NEAR(*Value("arctanh(0.5)"), std::atanh(0.5), 1e-15);
  EXPECT_EQ(Run("arctanh(1)"), "! Abs(Argument) >= 1 error using arctanh(x).");
  EXPECT_EQ(Run("arctanh(-1)"), "! Abs(Argument) >= 1 error using arctanh(x).");
}

TEST_F(ExpressionLanguage, TrigonometryInRadians) {
  EXPECT_DOUBLE_EQ(*Value("sin(1)"), std::sin(1.0));
  EXPECT_DOUBLE_EQ(*Value("tan(1)"), std::tan(1.0));
  EXPECT_EQ(Run("sin(30)"), "==> -0.9880316");
  EXPECT_DOUBLE_EQ(*Value("arcsin(1)"), 3.141592653589793 / 2);
  EXPECT_DOUBLE_EQ(*Value("arccos(-1)"), 3.141592653589793);
  EXPECT_DOUBLE_EQ(*Value("arccos(0)"), 3.141592653589793 / 2);
  EXPECT_NEAR(*Value("arccos(-0.5)"), std::acos(-0.5), 1e-15);
  EXPECT_DOUBLE_EQ(*Value("arctan(1)"), std::atan(1.0));
  EXPECT_EQ(Run("arcsin(1.5)"), "! Abs(Argument) > 1 error using arcsin(x).");
  EXPECT_EQ(Run("arccos(-1.01)"), "! Abs(Argument) > 1 error using arccos(x).");
}

TEST_F(ExpressionLanguage, TrigonometryInDegrees) {
  engine->angle = AngleMeasure::Degrees;
  // Whole degrees reduced into (-180, 180] give exact values.
  EXPECT_EQ(*Value("sin(30)"), 0.5);
  EXPECT_EQ(*Value("sin(390)"), 0.5);
  EXPECT_EQ(*Value("sin(-330)"), 0.5);
  EXPECT_EQ(*Value("sin(150)"), 0.5);
  EXPECT_EQ(*Value("sin(-150)"), -0.5);
  EXPECT_EQ(*Value("sin(270)"), -1);
  EXPECT_EQ(*Value("sin(180)"), 0);
  EXPECT_EQ(*Value("cos(60)"), 0.5);
  EXPECT_EQ(*Value("cos(-120)"), -0.5);
  EXPECT_EQ(*Value("cos(90)"), 0);
  EXPECT_EQ(*Value("cos(540)"), -1);
  EXPECT_EQ(*Value("tan(45)"), 1);
  EXPECT_EQ(*Value("tan(-45)"), -1);
  EXPECT_EQ(*Value("tan(180)"), 0);
  for (const char* line : {"tan(90)", "tan(450)", "tan(-90)", "tan(270)"})
    EXPECT_EQ(Run(line), "! Overflow error using tan(x).") << line;
  // Other angles go through the runtime with the program's degree constant.
  const double degree = 0.017453292519943278;
  EXPECT_EQ(*Value("sin(30.5)"), std::sin(30.5 * degree));
  EXPECT_EQ(*Value("sin(10)"), std::sin(10 * degree));
  EXPECT_EQ(*Value("cos(400)"), std::cos(40 * degree));
  EXPECT_EQ(Run("arcsin(0.5)"), "==> 30");
  EXPECT_EQ(Run("arccos(-1)"), "==> 180");
  EXPECT_EQ(Run("arctan(1)"), "==> 45");
  EXPECT_EQ(Run("arcsin(-1)"), "==> -90");
}

TEST_F(ExpressionLanguage, VariablesKeepFifteenDigits) {
  EXPECT_EQ(Run("x = 1/3"), "==> x = 0.3333333");
  ASSERT_EQ(engine->Variables().size(), 1u);
  EXPECT_EQ(engine->Variables()[0].value, "0.333333333333333");
  EXPECT_NE(*Value("x*3"), 1.0);
  EXPECT_DOUBLE_EQ(*Value("x*3"), 0.333333333333333 * 3);
  EXPECT_EQ(Run("X + 1"), "==> 1.333333");  // names compare without case
  EXPECT_EQ(Run("x = x + 1"), "==> x = 1.333333");
  EXPECT_EQ(Run("big = 2^60"), "==> big = 1.152922E18");
  EXPECT_EQ(engine->Variables()[1].value, "1.15292150460685E+18");
  EXPECT_EQ(Run("y"), "! Variable or function name not recognised.");
  EXPECT_EQ(Run("y = q + 1"), "! Variable or function name not recognised.");
  // The target was made before the failure and stays.
  EXPECT_TRUE(engine->IsUserVarName("Y"));
  EXPECT_EQ(Run("y"), "==> 0");
  EXPECT_EQ(Run("rate2 = 5 #"), "==> rate2 = 5");
}

TEST_F(ExpressionLanguage, AssignmentErrors) {
  EXPECT_EQ(Run("x = y = 1"), "! More than one equals sign detected.");
  EXPECT_EQ(Run("x + 1 = 2"), "! Invalid variable assignment or function definition statement.");
  EXPECT_EQ(Run("2 = x"), "! First token is not a variable name.");
  EXPECT_EQ(Run("pi = 3"), "! First token is not a variable name.");
  EXPECT_EQ(Run("sin = 3"), "! First token is a reserved name.");
  EXPECT_EQ(Run("MOD = 3"), "! First token is a reserved name.");
  EXPECT_EQ(Run("f(2) = 3"), "! Invalid parameter name in function definition.");
}

TEST_F(ExpressionLanguage, TablesHoldFiftyNames) {
  for (int i = 1; i <= 50; ++i)
    ASSERT_EQ(Run("v" + std::to_string(i) + " = " + std::to_string(i)),
              "==> v" + std::to_string(i) + " = " + std::to_string(i));
  EXPECT_EQ(Run("v51 = 1"), "! More than 50 user defined variables.");
  EXPECT_EQ(Run("V7 = 70"), "==> V7 = 70");  // a new value for an old name is not counted
  EXPECT_EQ(engine->Variables().size(), 50u);
  for (int i = 1; i <= 50; ++i)
    ASSERT_EQ(Run("f" + std::to_string(i) + "(x) = x + " + std::to_string(i)),
              "==> Function f" + std::to_string(i) + "(x) accepted");
  EXPECT_EQ(Run("f51(x) = x"), "! More than 50 user defined functions.");
  EXPECT_EQ(Run("f3(x) = x * 100"), "==> Function f3(x) accepted");
  EXPECT_EQ(engine->Functions().size(), 50u);
  EXPECT_EQ(Run("f3(2)"), "==> 200");
}

TEST_F(ExpressionLanguage, UserFunctions) {
  EXPECT_EQ(Run("f(x) = x^2 - 2"), "==> Function f(x) accepted");
  EXPECT_EQ(engine->Functions()[0].definition, "x:x:2:^:2:--");
  EXPECT_EQ(Run("f(3)"), "==> 7");
  EXPECT_EQ(Run("2*f(3)+1"), "==> 15");
  EXPECT_EQ(Run("f(f(2))"), "==> 2");
  EXPECT_EQ(Run("-f(0)"), "==> 2");
  // Variables in a body are read at call time; functions may call functions.
  EXPECT_EQ(Run("k = 10"), "==> k = 10");
  EXPECT_EQ(Run("g(t) = f(t) * k"), "==> Function g(t) accepted");
  EXPECT_EQ(Run("g(2)"), "==> 20");
  EXPECT_EQ(Run("k = 1"), "==> k = 1");
  EXPECT_EQ(Run("G(T)"), "! Variable or function name not recognised.");
  EXPECT_EQ(Run("G(2)"), "==> 2");
  EXPECT_EQ(Run("h(x) = x + q"), "! Variable in function definition has not been defined.");
  EXPECT_FALSE(engine->IsUserFuncName("h"));
  // The argument passes through its 15-digit text.
  EXPECT_EQ(Run("id(x) = x"), "==> Function id(x) accepted");
  EXPECT_EQ(*Value("id(1/3)"), 0.333333333333333);
  // A function with nothing to work on, and one that never ends.
  EXPECT_EQ(Run("f"), "! Subscript out of range error (ProcNum = 2703).");
  EXPECT_EQ(Run("r(x) = r(x) + 1"), "==> Function r(x) accepted");
  EXPECT_EQ(Run("r(1)"), "! Out of stack space error (ProcNum = 2703).");
  EXPECT_EQ(Run("x = userfuncs"),
            "! The functions userfuncs and uservars must be used in \"stand-alone\" mode.");
  for (int i = 0; i < 100; ++i) {
    double r = *Value("rand");
    ASSERT_GE(r, 0);
    ASSERT_LT(r, 1);
  }
  EXPECT_NE(*Value("rand"), *Value("rand"));
}

TEST_F(ExpressionLanguage, ListingCommands) {
  EXPECT_EQ(Run("userfuncs"), "==> No user functions have been defined yet.");
  EXPECT_EQ(Run(" uservars "), "==> No user variables have been defined yet.");
  Run("zeta = 1");
  Run("Alpha = 2");
  Run("beta = 3");
  EXPECT_EQ(Run("uservars"), "==> Alpha beta zeta");
  Run("sq(x) = x*x");
  EXPECT_EQ(Run("userfuncs 'what is there"), "==> sq");
  // Long listings break before a name would reach column 90.
  engine->ClearTables();
  const std::string long83(83, 'n');
  Run(long83 + " = 1");
  Run("p = 2");
  EXPECT_EQ(engine->ProcessLine("uservars").output,
            (std::vector<std::string>{"==> " + long83 + " p"}));  // ends at column 89
  Run(long83 + "x = 3");
  EXPECT_EQ(engine->ProcessLine("uservars").output,
            (std::vector<std::string>{"==> " + long83, "==> " + long83 + "x", "==> p"}));
}

TEST_F(ExpressionLanguage, RootSearch) {
  Run("f(x) = x^2 - 2");
  EXPECT_EQ(Run("solve(f;1)"), "==> 1.414214");
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_NEAR(*Value("solve(f;1)"), std::sqrt(2.0), 1e-7);
  EXPECT_EQ(Run("root = solve(f;0-2)"), "==> root = -1.414214");
  // A negative start written with a sign: the function is applied to the
  // target's value first, so the assignment form works...
  EXPECT_EQ(Run("r2 = solve(f;-2)"), "==> r2 = -1.414214");
  // ...but alone the function finds nothing on the stack.
  EXPECT_EQ(Run("solve(f;-2)"), "! Subscript out of range error (ProcNum = 2703).");
  // The tolerance follows the significant figures.
  engine->sigFigs = 12;
  EXPECT_NEAR(*Value("solve(f;1)"), std::sqrt(2.0), 1e-12);
  EXPECT_EQ(Run("c(x) = cos(x) - x"), "==> Function c(x) accepted");
  EXPECT_EQ(Run("solve(c;0)"), "==> 0.739085133215");

  // A root at a whole step from the start is a sign of its own: x^2 from 3
  // walks onto 0 and bisects towards it.
  engine->sigFigs = 7;
  Run("g(x) = x^2");
  EXPECT_EQ(Run("solve(g;3)"), "==> 7.450581E-09");
  EXPECT_TRUE(p.sink.messages.empty());
  // A double root off the grid: no change of sign, the grid search closes in.
  Run("h(x) = (x - 0.3)^2");
  EXPECT_NEAR(*Value("solve(h;2)"), 0.3, 1e-4);
  EXPECT_EQ(p.sink.messages.back().caption, "Information!");
  EXPECT_EQ(p.sink.Last(), "Multiple equal roots suspected. Treat result with caution.");
  Run("q(x) = x^2 + 1");
  p.sink.Clear();
  EXPECT_NEAR(*Value("solve(q;3)"), 0, 1e-6);
  EXPECT_EQ(p.sink.Last(),
            "No real roots identified around guesstimate. Treat result with caution.");
  // A root whose neighbouring doubles are further apart than the tolerance.
  engine->sigFigs = 14;
  Run("w(x) = x - 10.3");
  p.sink.Clear();
  EXPECT_NEAR(*Value("solve(w;10)"), 10.3, 1e-12);
  EXPECT_EQ(p.sink.messages.back(),
            (Message{"Information!", "Max iterations exceeded. Treat result with caution."}));
  // Faults inside the search end the line.
  Run("s(x) = sqrt(x)");
  EXPECT_EQ(Run("solve(s;0.5)"), "! Argument < 0 error using sqrt(x).");
  EXPECT_EQ(Run("solve(nosuch;2)"), "! Variable or function name not recognised.");
  EXPECT_EQ(Run("1 + solve(f;2)"), "! Invalid arithmetic expression.");
  EXPECT_EQ(Run("solve(3;2)"), "! Invalid arithmetic expression.");
  EXPECT_EQ(Run("solve(f)"),
            "! Reserved word \"solve\" detected but no semi-colon found in input line.");
  EXPECT_EQ(Run("x = solve"),
            "! Reserved word \"solve\" detected but no semi-colon found in input line.");
}

TEST_F(ExpressionLanguage, MalformedInputMessages) {
  EXPECT_EQ(Run("1,5 + 1"),
            "! Incorrect decimal point symbol detected for current Windows regional settings.");
  EXPECT_EQ(Run("#5"), "! Invalid use of # symbol.");
  EXPECT_EQ(Run("5 # + 1"), "! Invalid use of # symbol.");
  EXPECT_EQ(Run("2 $ 3"), "! Invalid character in input string.");
  EXPECT_EQ(Run("2;3"), "! Invalid character in input string.");
  EXPECT_EQ(Run("2 \xC3\xA9"), "! Invalid character in input string.");
  EXPECT_EQ(Run("1.2.3"), "! Invalid numeric value.");
  EXPECT_EQ(Run("2E+"), "! Invalid numeric value.");
  EXPECT_EQ(Run("."), "! Invalid numeric value.");
  for (const char* line : {"(2+3", "2+3)", ")(", "(2]", "{[2)]}", "((2)"})
    EXPECT_EQ(Run(line), "! Missing or unmatched parentheses.") << line;
  EXPECT_EQ(Run("{[(2)]}"), "==> 2");
  std::string many = "1";
  for (int i = 0; i < 149; ++i) many += "+1";  // 299 tokens
  EXPECT_EQ(Run(many), "==> 150");
  EXPECT_EQ(Run(many + "+1"), "! Tokens array subscript exceeds MaxSub.");
  EXPECT_EQ(Run("+"), "! Invalid arithmetic expression.");
}

TEST_F(ExpressionLanguage, DecimalCommaThroughout) {
  p.ctx.settings.decimalSeparator = ',';
  p.ctx.settings.usesDecimalPoint = false;
  EXPECT_EQ(Run("1,5 * 2,5"), "==> 3,75");
  EXPECT_EQ(Run("1.5"),
            "! Incorrect decimal point symbol detected for current Windows regional settings.");
  EXPECT_EQ(Run("x = 1/4"), "==> x = 0,25");
  EXPECT_EQ(engine->Variables()[0].value, "0,25");
  EXPECT_EQ(Run("x*2"), "==> 0,5");
  EXPECT_EQ(engine->ProcessLine("pi*2").shown, "pi * 2");
  Run("f(t) = t/2");
  EXPECT_EQ(Run("f(0,5)"), "==> 0,25");
}

}  // namespace
}  // namespace mc::test
