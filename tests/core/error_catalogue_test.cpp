#include "core/error_catalogue.h"

#include <gtest/gtest.h>

#include "core/errors.h"
#include "support/test_program.h"

namespace mc {
namespace {

TEST(ErrorCatalogue, KeepsItsNumbersAndComposesTheYearEntries) {
  EXPECT_EQ(ErrorText(1, 2026), "Year value must be numeric.");
  EXPECT_EQ(ErrorText(33, 2026), "Missing / in a date.");
  EXPECT_EQ(ErrorText(586, 2026), "Year specified is too far in the future.");
  EXPECT_EQ(ErrorText(249, 2026), "Year values must not be greater than 2027.");
  EXPECT_EQ(ErrorText(250, 2031), "Year values must not be less than 2031.");
  EXPECT_EQ(ErrorText(497, 2026), "Number of locations must be at least 10.");
  EXPECT_EQ(ErrorText(287, 2026), "Non-integer argument error using \\ or mod.");
  EXPECT_EQ(ErrorText(0, 2026), "Unknown internal error");
  EXPECT_EQ(ErrorText(587, 2026), "Unknown internal error");
  static_assert(Err("Missing / in a date.") == 33);
  static_assert(Err("Persian year must be greater than 0.") == 31);  // the first of two
}

TEST(ShowError, UsesTheErrorCaptionAndTheClocksYear) {
  test::TestProgram p(false, {2030, 1, 1, 0, 0, 0, 0});
  ShowError(p.ctx, 249);
  ShowError(p.ctx, 587);
  ASSERT_EQ(p.sink.messages.size(), 2u);
  EXPECT_EQ(p.sink.messages[0],
            (test::Message{"Error Detected!", "Year values must not be greater than 2031."}));
  EXPECT_EQ(p.sink.messages[1].text, "Unknown internal error");
}

TEST(RunTimeErrors, NameTheFileAndTheProcedure) {
  EXPECT_EQ(RunTimeErrorText(53, "cities.dat", 12),
            "File cities.dat not found error (ProcNum = 12).");
  EXPECT_EQ(RunTimeErrorText(70, "person.dat", 3),
            "File person.dat already in use error (ProcNum = 3).");
  EXPECT_EQ(RunTimeErrorText(11, "", 0), "Division by zero error (ProcNum = 0).");
  EXPECT_EQ(RunTimeErrorText(999, "", 7), "Error  999 (ProcNum = 7).");
}

}  // namespace
}  // namespace mc
