// The Expression Calculator on a long line: 200 tokens through every step,
// the evaluation of the postfix alone, and the numeric input evaluator.
#include <benchmark/benchmark.h>

#include "bench_program.h"
#include "maths/expression.h"

namespace {

// "x*(1.5+sin(2))/3^2-" (15 tokens, with a variable and a function) 13
// times, then "1+1+1": 200 tokens.
std::string LongLine() {
  std::string line;
  for (int i = 0; i < 13; ++i) line += "x*(1.5+sin(2))/3^2-";
  return line + "1+1+1";
}

// "+1" and 99 pairs of "*1.5" and "/1.25": 200 tokens.
std::string NumericLine() {
  std::string line = "+1";
  for (int i = 0; i < 99; ++i) line += i % 2 == 0 ? "*1.5" : "/1.25";
  return line;
}

void BM_ExpressionLine200(benchmark::State& state) {
  mc::bench::StartedProgram p;
  mc::ExpressionEngine engine(p.ctx);
  engine.ProcessLine("x = 0.75");
  const std::string line = LongLine();
  mc::ParsedLine parsed;
  engine.Parse(line, parsed);
  if (parsed.tokens.size() != 200) state.SkipWithError("not 200 tokens");
  for (auto _ : state) {
    mc::LineResult r = engine.ProcessLine(line);
    benchmark::DoNotOptimize(r);
    if (!r.ok()) state.SkipWithError("line refused");
  }
  state.counters["tokens"] = static_cast<double>(parsed.tokens.size());
}
BENCHMARK(BM_ExpressionLine200);

void BM_EvaluatePostfix200(benchmark::State& state) {
  mc::bench::StartedProgram p;
  mc::ExpressionEngine engine(p.ctx);
  engine.ProcessLine("x = 0.75");
  mc::ParsedLine parsed;
  std::vector<std::string> postfix;
  engine.Parse(LongLine(), parsed);
  engine.InfixToPostfix(parsed.tokens, postfix);
  for (auto _ : state) benchmark::DoNotOptimize(engine.Evaluate(parsed, postfix));
}
BENCHMARK(BM_EvaluatePostfix200);

void BM_EvalNumericInput200(benchmark::State& state) {
  mc::bench::StartedProgram p;
  const std::string line = NumericLine();
  std::vector<std::string> tokens;
  mc::TokeniseNumeric(p.ctx, line, tokens);
  if (tokens.size() != 200) state.SkipWithError("not 200 tokens");
  for (auto _ : state) benchmark::DoNotOptimize(mc::EvalNumericInput(p.ctx, line));
}
BENCHMARK(BM_EvalNumericInput200);

void BM_SolveSquareRoot(benchmark::State& state) {
  mc::bench::StartedProgram p;
  mc::ExpressionEngine engine(p.ctx);
  engine.sigFigs = 14;
  engine.ProcessLine("f(x) = x^2 - 2");
  for (auto _ : state) benchmark::DoNotOptimize(engine.ProcessLine("solve(f;1)"));
}
BENCHMARK(BM_SolveSquareRoot);

}  // namespace

BENCHMARK_MAIN();
