// A started program with an Expression Calculator engine, and short ways to
// run a line and read what it gave.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "maths/expression.h"
#include "support/test_program.h"

namespace mc::test {

class ExpressionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    p.Start();
    engine = std::make_unique<ExpressionEngine>(p.ctx);
  }

  // The last output line of a line ("==> 5"), or "! " and the message it gave.
  std::string Run(std::string_view line) {
    p.sink.Clear();
    LineResult r = engine->ProcessLine(line);
    if (!r.ok()) return "! " + p.sink.Last();
    return r.output.empty() ? std::string() : r.output.back();
  }

  // The unformatted value of an expression line.
  std::optional<double> Value(std::string_view line) {
    ParsedLine parsed;
    std::vector<std::string> postfix;
    if (!engine->Parse(line, parsed) || !CheckBrackets(p.ctx, parsed.tokens) ||
        !engine->CheckInput(parsed.tokens) || !engine->InfixToPostfix(parsed.tokens, postfix))
      return std::nullopt;
    return engine->Evaluate(parsed, postfix);
  }

  TestProgram p;
  std::unique_ptr<ExpressionEngine> engine;
};

}  // namespace mc::test
