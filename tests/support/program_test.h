// A fixture for tests of the engine: a program folder of its own for each
// test, started (d/m/y and a decimal point), and its calendar engine.
#pragma once

#include <gtest/gtest.h>

#include "calendars/registry.h"
#include "support/test_program.h"

namespace mc::test {

class ProgramTest : public ::testing::Test {
 protected:
  void SetUp() override { p.Start(); }
  CalendarEngine& engine() { return Calendars(p.ctx); }
  TestProgram p;
};

}  // namespace mc::test
