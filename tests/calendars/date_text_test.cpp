#include "calendars/date_text.h"

#include <gtest/gtest.h>

#include "core/error_catalogue.h"
#include "support/test_program.h"

namespace mc {
namespace {

class DateTextTest : public ::testing::Test {
 protected:
  DateTextTest() : p(false) {}

  // The date, or the message that refused it.
  std::string Parse(CalType type, std::string_view text) {
    p.sink.Clear();
    auto d = ParseDateText(p.ctx, type, text);
    if (!d) return p.sink.Last();
    return std::to_string(d->day) + "," + std::to_string(d->month) + "," + std::to_string(d->year);
  }

  test::TestProgram p;
};

TEST_F(DateTextTest, GregorianFollowsTheDateOrderAndOthersDoNot) {
  p.ctx.settings.dateOrder = "d/m/y";
  EXPECT_EQ(Parse(CalType::Greg, "5/6/2026"), "5,6,2026");
  EXPECT_EQ(Parse(CalType::Greg, "5/5/21"), "5,5,2021");
  EXPECT_EQ(Parse(CalType::Greg, " 7 / 8 / 2026 "), "7,8,2026");
  p.ctx.settings.dateOrder = "m/d/y";
  EXPECT_EQ(Parse(CalType::Greg, "5/6/2026"), "6,5,2026");
  EXPECT_EQ(Parse(CalType::Jul, "5/6/2026"), "5,6,2026");
  p.ctx.settings.dateOrder = "y/m/d";
  EXPECT_EQ(Parse(CalType::Greg, "2026/11/23"), "23,11,2026");
  p.ctx.settings.dateOrder = "y/d/m";
  EXPECT_EQ(Parse(CalType::Greg, "2026/23/11"), "23,11,2026");
  p.ctx.settings.dateOrder = "m/y/d";
  EXPECT_EQ(Parse(CalType::Greg, "11/2026/23"), "23,11,2026");
  EXPECT_EQ(FormatDateText(p.ctx, CalType::Greg, 23, 11, 2026), "11/2026/23");
  p.ctx.settings.dateOrder = "Unidentified";
  EXPECT_EQ(Parse(CalType::Greg, "1/2/2026"), "Unrecognised Windows short date format.");
}

TEST_F(DateTextTest, RefusesMalformedTextInOrder) {
  EXPECT_EQ(Parse(CalType::Greg, "2/3"), "Missing / in a date.");
  EXPECT_EQ(Parse(CalType::Cop, "2/3"), "Missing / in a date.");
  EXPECT_EQ(Parse(CalType::Greg, "2026"), "Missing / in a date.");
  EXPECT_EQ(Parse(CalType::Greg, "x/3/2026"), "Non-numeric date part detected.");
  EXPECT_EQ(Parse(CalType::Greg, "1.5/3/2026"), "Non-integer date part detected.");
  EXPECT_EQ(Parse(CalType::Greg, "1/3/2026/4"), "Non-numeric date part detected.");
  EXPECT_EQ(Parse(CalType::Greg, "1,5/3/2026"), "Non-numeric date part detected.");
  EXPECT_EQ(Parse(CalType::Greg, "5/5/0"), "Invalid year value.");
  EXPECT_EQ(Parse(CalType::Greg, "29/2/1900"), "Invalid day value.");
  EXPECT_EQ(Parse(CalType::Greg, "29/2/2000"), "29,2,2000");
  EXPECT_EQ(Parse(CalType::Greg, "1/13/2000"), "Invalid month value.");
  EXPECT_EQ(Parse(CalType::Greg, "10/10/1582"),
            "The Gregorian calendar did not commence until October 15, 1582.");
  EXPECT_EQ(Parse(CalType::Greg, "15/10/1582"), "15,10,1582");
  EXPECT_EQ(Parse(CalType::Greg, "1/1/1581"), "Gregorian year must be greater than 1581.");
  EXPECT_EQ(Parse(CalType::Jul, "1/1/10000"), "Julian year must not exceed 9999.");
  EXPECT_EQ(Parse(CalType::Jul, "1/1/99999999999"), "Julian year must not exceed 9999.");
}

TEST_F(DateTextTest, ChineseCyclesAreCheckedBeforeTheCalendar) {
  EXPECT_EQ(Parse(CalType::Chi, "1/1/22"),
            "Missing / between y and c in a Chinese or Vietnamese date.");
  EXPECT_EQ(Parse(CalType::Chi, "1/1/x/78"),
            "Non-numeric Chinese or Vietnamese year-within-cycle y.");
  EXPECT_EQ(Parse(CalType::Chi, "1/1/2.5/78"), "Month must be an integer value.");
  EXPECT_EQ(
      Parse(CalType::Vie, "1/1/61/78"),
      "Chinese or Vietnamese year-within-cycle y must be a value between 1 and 60, inclusive.");
  EXPECT_EQ(Parse(CalType::Chi, "1/1/5/x"),
            "Non-numeric Chinese or Vietnamese sexagesimal cycle c.");
  EXPECT_EQ(Parse(CalType::Chi, "1/1/5/78.5"),
            "Chinese or Vietnamese sexagesimal cycle c must be an integer value.");
  EXPECT_EQ(
      Parse(CalType::Chi, "1/1/5/95"),
      "Chinese or Vietnamese sexagesimal cycle c must be a value between 72 and 94, inclusive.");
  EXPECT_EQ(Parse(CalType::Chi, "1/1/21/72"),
            "When Chinese or Vietnamese sexagesimal cycle c = 72, y must be greater than 21.");
  EXPECT_EQ(Parse(CalType::Chi, "1/1/58/94"),
            "When Chinese or Vietnamese sexagesimal cycle c = 94, y must be less than 58.");
  EXPECT_EQ(FormatDateText(p.ctx, CalType::Chi, 3, 0, 4680), "3/0/60/78");
  EXPECT_EQ(FormatDateText(p.ctx, CalType::Vie, 3, 12, 4723), "3/12/43/79");
}

TEST_F(DateTextTest, LeapMarksAreWrittenAsTheUserTypesThem) {
  EXPECT_EQ(FormatDateText(p.ctx, CalType::HinLun, 105, 101, 2080), "5L/1L/2080");
  EXPECT_EQ(FormatDateText(p.ctx, CalType::HinLun2, 5, 12, 2080), "5/12/2080");
  EXPECT_EQ(FormatDateText(p.ctx, CalType::Heb, 1, 7, 5784), "1/6L/5784");
  EXPECT_EQ(FormatDateText(p.ctx, CalType::Heb, 1, 8, 5784), "1/7/5784");
  EXPECT_EQ(FormatDateText(p.ctx, CalType::Heb, 1, 6, 5784), "1/6/5784");
  EXPECT_EQ(Parse(CalType::Greg, "5/6L/2026"), "Non-numeric date part detected.");
}

// Every calendar's year-range messages are catalogue entries, word for word.
TEST_F(DateTextTest, YearRangeMessagesAreTheCataloguesOwn) {
  auto inCatalogue = [](const std::string& text) {
    for (int i = 1; i <= kErrorCatalogueSize; ++i)
      if (kErrorCatalogue[i] == text) return true;
    return false;
  };
  for (int i = 0; i < kCalTypeCount; ++i) {
    const CalendarInfo& info = InfoOf(static_cast<CalType>(i));
    if (info.firstYear == 0 && info.lastYear == 0) continue;
    for (long long year :
         {static_cast<long long>(info.firstYear) - 1, static_cast<long long>(info.lastYear) + 1}) {
      p.sink.Clear();
      EXPECT_EQ(ValidateYearText(p.ctx, info.type, std::to_string(year)), 0) << info.code;
      ASSERT_EQ(p.sink.messages.size(), 1u) << info.code;
      EXPECT_TRUE(inCatalogue(p.sink.Last())) << info.code << ": " << p.sink.Last();
    }
    p.sink.Clear();
    EXPECT_EQ(ValidateYearText(p.ctx, info.type, std::to_string(info.firstYear)), info.firstYear);
    EXPECT_TRUE(p.sink.messages.empty()) << info.code;
  }
}

TEST_F(DateTextTest, YearTextMessages) {
  auto validate = [&](CalType t, const char* text) {
    p.sink.Clear();
    ValidateYearText(p.ctx, t, text);
    return p.sink.Last();
  };
  EXPECT_EQ(validate(CalType::Heb, "  "), "Missing year value.");
  EXPECT_EQ(validate(CalType::Heb, "abc"), "Year value must be numeric.");
  EXPECT_EQ(validate(CalType::Heb, "5784.5"), "Year value must be an integer.");
  EXPECT_EQ(validate(CalType::HinLun1, "10055"), "Lunisolar year must not exceed 10054.");
  EXPECT_EQ(validate(CalType::HinLun3, "64"),
            "Hindu Rajasthan lunisolar year must be greater then 64.");
  EXPECT_EQ(validate(CalType::Oly1, "-777"), "Calendar year must not be earlier than 776 BC.");
  EXPECT_EQ(validate(CalType::Oly1, "393"), "Calendar Year must not be later than 392 AD.");
  EXPECT_EQ(validate(CalType::Oly2, ""), "Missing Olympiad value.");
  EXPECT_EQ(validate(CalType::Oly2, "x"), "Olympiad value must be numeric.");
  EXPECT_EQ(validate(CalType::Oly2, "1.5"), "Olympiad value must be an integer.");
  EXPECT_EQ(validate(CalType::Oly2, "0"), "Olympiad value must be positive.");
  EXPECT_EQ(validate(CalType::Paw, "1582"), "Gregorian year must be greater than 1582.");
  p.ctx.settings.decimalSeparator = ',';
  EXPECT_EQ(validate(CalType::Heb, "5784.0"), "Year value must be numeric.");
  EXPECT_EQ(ValidateYearText(p.ctx, CalType::Heb, "5784,0"), 5784);
}

TEST_F(DateTextTest, JulianDayAndLongCountText) {
  EXPECT_EQ(CheckJDText(p.ctx, ""), 0);
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_EQ(CheckJDText(p.ctx, "2451545"), 2451545);
  EXPECT_EQ(CheckJDText(p.ctx, "1723613"), 0);
  EXPECT_EQ(p.sink.Last(), "Julian Day value is outside specified range.");
  EXPECT_EQ(CheckJDText(p.ctx, "5373485"), 0);

  auto longCount = [&](const char* text) {
    p.sink.Clear();
    auto lc = ParseLongCount(p.ctx, text);
    if (!lc) return p.sink.Last();
    return std::to_string(lc->baktun) + "." + std::to_string(lc->kin);
  };
  EXPECT_EQ(longCount("13.0.0.0.0"), "13.0");
  EXPECT_EQ(longCount("13.0.0.0"), "Missing period in Mayan long count date.");
  EXPECT_EQ(longCount("13..0.0.0"), "Missing part in Mayan long count date.");
  EXPECT_EQ(longCount("13.0.0.0."), "Missing part in Mayan long count date.");
  EXPECT_EQ(longCount("13.x.0.0.0"), "Non-numeric part in Mayan long count date");
  EXPECT_EQ(longCount("6.0.0.0.0"), "Baktun value is not in the range 7 to 33.");
  EXPECT_EQ(longCount("13.0.0.18.0"), "Uinal value is not in the range 0 to 17.");
  EXPECT_EQ(longCount("13.0.0.0.20"), "Kin value is not in the range 0 to 19.");
}

}  // namespace
}  // namespace mc
