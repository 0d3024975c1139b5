#include "calendars/cycles.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "core/text_util.h"
#include "support/program_test.h"

namespace mc {
namespace {

// Rows of a comma-separated table under tests/data, headings (">") left out.
std::vector<std::vector<std::string>> ReadTable(const std::string& name) {
  std::ifstream in(std::string(CODEX_TEST_DATA_DIR) + "/" + name);
  std::stringstream text;
  text << in.rdbuf();
  std::vector<std::vector<std::string>> rows;
  for (const std::string& line : SplitLines(text.str())) {
    if (line.empty() || line[0] == '>') continue;
    std::vector<std::string> fields;
    std::stringstream fs(line);
    for (std::string f; std::getline(fs, f, ',');) fields.push_back(f);
    rows.push_back(fields);
  }
  return rows;
}

class CycleCalendars : public test::ProgramTest {};

// The sample dates published with the standard algorithms: long count both
// ways, haab, tzolkin, xihuitl, tonalpohualli and the ten Pawukon weeks.
TEST_F(CycleCalendars, AgreesWithPublishedSampleDates) {
  auto rows = ReadTable("cycles-sample-dates.csv");
  ASSERT_EQ(rows.size(), 33u);
  for (const auto& r : rows) {
    SCOPED_TRACE("R.D. " + r[0]);
    auto n = [&](int i) { return std::stoi(r[static_cast<std::size_t>(i)]); };
    const JD jd = n(1);
    LongCount lc = LongCountOfJD(p.ctx, jd);
    EXPECT_EQ(LongCountText(lc), r[2] + "." + r[3] + "." + r[4] + "." + r[5] + "." + r[6]);
    EXPECT_EQ(JDOfLongCount(p.ctx, lc), jd);
    // The haab here counts months from 0 (Pop), the table from 1.
    EXPECT_EQ(engine().JDToDate(CalType::Haab, jd), (CalDate{n(8), n(7) - 1, -1}));
    EXPECT_EQ(engine().JDToDate(CalType::Tzo, jd), (CalDate{n(9), n(10), -1}));
    EXPECT_EQ(engine().JDToDate(CalType::Ton, jd), (CalDate{n(9), n(10), -1}));
    EXPECT_EQ(engine().JDToDate(CalType::Xih, jd), (CalDate{n(12), n(11), -1}));
    EXPECT_EQ(Luang(jd), r[13] == "t");
    EXPECT_EQ(Dwiwara(jd), n(14));
    EXPECT_EQ(Triwara(jd), n(15));
    EXPECT_EQ(Caturwara(jd), n(16));
    EXPECT_EQ(Pancawara(jd), n(17));
    EXPECT_EQ(Sadwara(jd), n(18));
    EXPECT_EQ(Saptawara(jd), n(19));
    EXPECT_EQ(Asatawara(jd), n(20));
    EXPECT_EQ(Sangawara(jd), n(21));
    EXPECT_EQ(Dasawara(jd) % 10, n(22));  // counted 0..9 there, 1..10 here
  }
}

TEST_F(CycleCalendars, MayanAndAztecAnchors) {
  // The base date of the long count, 4 Ahau 8 Cumku, and its return on
  // 21 December 2012, 4 Ahau 3 Kankin; both under the ninth Lord of the Night.
  EXPECT_EQ(LongCountText(LongCountOfJD(p.ctx, 584283)), "0.0.0.0.0");
  EXPECT_EQ(TzolkinText(p.ctx, 584283), "4 Ahau");
  EXPECT_EQ(HaabText(p.ctx, 584283), "8 Cumku");
  const JD end = GregorianToJD(21, 12, 2012);
  EXPECT_EQ(LongCountText(LongCountOfJD(p.ctx, end)), "13.0.0.0.0");
  EXPECT_EQ(TzolkinText(p.ctx, end), "4 Ahau");
  EXPECT_EQ(HaabText(p.ctx, end), "3 Kankin");
  EXPECT_EQ(LordOfTheNightText(p.ctx, end), "G9");
  EXPECT_EQ(TonalpohualliText(p.ctx, end), "4 Xochitl");
  // The fall of Tenochtitlan, 13 August 1521 (Julian): 1 Coatl, 2 Xocolhuetzi,
  // in the year 3 Calli.
  const JD fall = JulianToJD(13, 8, 1521);
  EXPECT_EQ(TonalpohualliText(p.ctx, fall), "1 Coatl");
  EXPECT_EQ(XiuhpohualliText(p.ctx, fall), "2 Xocolhuetzi (Month 11), Xiuhmolpilli year 3 Calli");
  // The bearer holds for the whole year, nameless days included.
  for (JD jd = fall - 400; jd < fall + 400; ++jd) {
    Xiuhmolpilli b = XiuhmolpilliOf(engine(), jd);
    ASSERT_TRUE(b.nameIndex == 3 || b.nameIndex == 8 || b.nameIndex == 13 || b.nameIndex == 18);
    CalDate x = engine().JDToDate(CalType::Xih, jd);
    if (x.day != 1 || x.month != 1) {
      Xiuhmolpilli before = XiuhmolpilliOf(engine(), jd - 1);
      EXPECT_EQ(b.number, before.number);
      EXPECT_EQ(b.nameIndex, before.nameIndex);
    }
  }
}

TEST_F(CycleCalendars, DayCyclesRunThroughTheirDays) {
  // Haab days run 0..19 and its month 18 has 0..4; the xiuhpohualli counts
  // from 1 and its month 19 has 1..5. The 260-day count steps both wheels.
  int haabShort = 0, xihShort = 0;
  CalDate prevT = engine().JDToDate(CalType::Tzo, 2451544);
  for (JD jd = 2451545; jd < 2451545 + 365; ++jd) {
    CalDate h = engine().JDToDate(CalType::Haab, jd);
    CalDate x = engine().JDToDate(CalType::Xih, jd);
    CalDate t = engine().JDToDate(CalType::Tzo, jd);
    ASSERT_GE(h.day, 0);
    ASSERT_LE(h.day, h.month == 18 ? 4 : 19);
    ASSERT_GE(x.day, 1);
    ASSERT_LE(x.day, x.month == 19 ? 5 : 20);
    haabShort += h.month == 18;
    xihShort += x.month == 19;
    EXPECT_EQ(t.day, prevT.day % 13 + 1);
    EXPECT_EQ(t.month, prevT.month % 20 + 1);
    EXPECT_EQ(h.year, -1);
    prevT = t;
  }
  EXPECT_EQ(haabShort, 5);
  EXPECT_EQ(xihShort, 5);
}

TEST_F(CycleCalendars, MayanConstantMovesEveryMayanAndAztecCount) {
  const JD jd = GregorianToJD(21, 12, 2012);
  const CalDate haab = engine().JDToDate(CalType::Haab, jd);
  const CalDate xih = engine().JDToDate(CalType::Xih, jd);
  const std::string ton = TonalpohualliText(p.ctx, jd);
  p.ctx.settings.mayanConstant = 584285;
  EXPECT_EQ(LongCountText(LongCountOfJD(p.ctx, jd)), "12.19.19.17.18");
  EXPECT_EQ(engine().JDToDate(CalType::Haab, jd + 2), haab);
  EXPECT_EQ(engine().JDToDate(CalType::Xih, jd + 2), xih);
  EXPECT_EQ(TonalpohualliText(p.ctx, jd + 2), ton);
  EXPECT_NE(TonalpohualliText(p.ctx, jd), ton);
  EXPECT_EQ(LongCountTextToJD(p.ctx, "13.0.0.0.0"), jd + 2);
}

TEST_F(CycleCalendars, LongCountInputKeepsToTheSupportedDays) {
  EXPECT_EQ(LongCountText(LongCountOfJD(p.ctx, FirstJulianDay())), "7.18.4.14.12");
  EXPECT_EQ(LongCountText(LongCountOfJD(p.ctx, LastJulianDay())), "33.5.3.6.1");
  EXPECT_EQ(LongCountTextToJD(p.ctx, "7.18.4.14.12"), FirstJulianDay());
  EXPECT_EQ(LongCountTextToJD(p.ctx, "33.5.3.6.1"), LastJulianDay());
  EXPECT_FALSE(LongCountTextToJD(p.ctx, "7.18.4.14.11"));
  EXPECT_EQ(p.sink.Last(), "Mayan long count date lies outside supported range.");
  EXPECT_FALSE(LongCountTextToJD(p.ctx, "33.5.3.6.2"));
  EXPECT_EQ(p.sink.Last(), "Mayan long count date lies outside supported range.");
  EXPECT_FALSE(LongCountTextToJD(p.ctx, "13.0.0.0"));
  EXPECT_EQ(p.sink.Last(), "Missing period in Mayan long count date.");
  EXPECT_FALSE(LongCountTextToJD(p.ctx, "13.0.0.18.0"));
  EXPECT_EQ(p.sink.Last(), "Uinal value is not in the range 0 to 17.");
  // Every day of the supported range has a long count that leads back to it.
  for (JD jd = FirstJulianDay(); jd <= LastJulianDay(); jd += 997)
    ASSERT_EQ(LongCountTextToJD(p.ctx, LongCountText(LongCountOfJD(p.ctx, jd))), jd);
}

TEST_F(CycleCalendars, PawukonLines) {
  // 21 December 2012 (Pawukon day 183 from 1): not luang.
  const JD jd = GregorianToJD(21, 12, 2012);
  EXPECT_EQ(PawukonLine(p.ctx, jd),
            "Menga, Beteng, Laba, Wage, Aryang, Sukra, Indra, Ogan, Pandita");
  auto lines = PawukonDetailLines(p.ctx, jd);
  ASSERT_EQ(lines.size(), 14u);
  EXPECT_EQ(lines[0], "Wuku           = Wayang");
  EXPECT_EQ(lines[13], "Ekajala Rasi   = Kinasihaning Amerta");
  EXPECT_EQ(PawukonDetailLines(p.ctx, jd - PawukonDay(jd))[0], "Wuku           = Sinta");
  // Through a whole cycle: every list entry exists, the weeks keep their
  // lengths, luang days lead the line, and Galungan (Buda Keliwon of
  // Dungulan, the eleventh wuku) falls once.
  int luang = 0, galungan = 0;
  const JD start = 146 + 210 * 11000;
  for (JD d = start; d < start + 210; ++d) {
    const std::string line = PawukonLine(p.ctx, d);
    EXPECT_EQ(StartsWith(line, "Luang, "), Luang(d));
    luang += Luang(d);
    for (const auto& l : PawukonDetailLines(p.ctx, d)) ASSERT_GT(l.size(), 17u) << l;
    EXPECT_EQ(Triwara(d + 3), Triwara(d));
    EXPECT_EQ(Pancawara(d + 5), Pancawara(d));
    EXPECT_EQ(Saptawara(d), WeekdayOfJD(d));
    galungan += WukuOf(d) == 11 && Saptawara(d) == 4 && Pancawara(d) == 5;
  }
  EXPECT_EQ(galungan, 1);
  EXPECT_GT(luang, 0);
  EXPECT_LT(luang, 210);
}

// Every tithi of the supported years, in order: each has the next day, or is
// a second day with none, and each day leads back to its tithi.
TEST_F(CycleCalendars, BalineseSakaWholeRange) {
  CalendarEngine& e = engine();
  JD previous = BalineseYearStart(e, 1737) - 1;
  int skipped = 0;
  for (int y = 1737; y <= 9920; ++y) {
    const int months = e.IsLeapYear(CalType::Bal, y) ? 13 : 12;
    ASSERT_EQ(e.DaysInMonth(CalType::Bal, y, months), 30);
    ASSERT_EQ(e.DaysInMonth(CalType::Bal, y, months + 1), 0);
    for (int m = 1; m <= months; ++m) {
      for (int d = 1; d <= 30; ++d) {
        JD jd = e.DateToJD(CalType::Bal, d, m, y);
        if (jd == -1) {
          ++skipped;
          continue;
        }
        ASSERT_EQ(jd, previous + 1) << d << "/" << m << "/" << y;
        ASSERT_EQ(e.JDToDate(CalType::Bal, jd), (CalDate{d, m, y}));
        previous = jd;
      }
    }
  }
  EXPECT_EQ(previous, e.DateToJD(CalType::Bal, 30, 12, 9920));
  // One tithi in 64, and the day set back in 1921.
  EXPECT_NEAR(skipped, (previous - BalineseYearStart(e, 1737)) / 63.0, 2.0);
  EXPECT_EQ(e.DateToJD(CalType::Bal, 24, 10, 1921), -1);
  EXPECT_EQ(e.DateToJD(CalType::Bal, 25, 10, 1921), e.DateToJD(CalType::Bal, 23, 10, 1921) + 1);
  EXPECT_EQ(e.DateToJD(CalType::Bal, 1, 13, 1921), -1);  // a common year
}

TEST_F(CycleCalendars, BalineseNewYearAgreesWithNyepi) {
  for (const auto& r : ReadTable("nyepi-dates.csv")) {
    const int year = std::stoi(r[0]);
    const JD nyepi = GregorianToJD(std::stoi(r[1]), std::stoi(r[2]), std::stoi(r[3]));
    EXPECT_EQ(BalineseYearStart(engine(), year), nyepi) << year;
    EXPECT_NE(BalineseSakaText(p.ctx, nyepi).find(", Kadasa Penanggal "), std::string::npos);
  }
}

TEST_F(CycleCalendars, BalineseMonthsByYearType) {
  // 1938 (r = 0) has "11L", 1941 (r = 3) "12L", 1940 is common.
  EXPECT_EQ(BalMonthName(p.ctx, 1938, 3), "Mala Jesta");
  EXPECT_EQ(BalMonthName(p.ctx, 1938, 4), "Sada");
  EXPECT_EQ(BalMonthName(p.ctx, 1941, 3), "Sada");
  EXPECT_EQ(BalMonthName(p.ctx, 1941, 4), "Mala Sada");
  EXPECT_EQ(BalMonthName(p.ctx, 1940, 4), "Kasa");
  EXPECT_EQ(BalMonthName(p.ctx, 1941, 13), "Kasanga");
  EXPECT_EQ(BalMonthName(p.ctx, 1940, 12), "Kasanga");
  EXPECT_TRUE(p.sink.messages.empty());
  EXPECT_EQ(BalMonthName(p.ctx, 1940, 13), "");
  EXPECT_EQ(p.sink.Last(), "Invalid month value.");
  EXPECT_EQ(BalDayText(15), " Penanggal 15");
  EXPECT_EQ(BalDayText(16), " Pangelong 1");
  // The user's month "11L" is the leap month, and the names follow the
  // user's numbers whatever the year's type.
  auto d = ParseDateText(p.ctx, CalType::Bal, "5/11L/1938");
  ASSERT_TRUE(d);
  EXPECT_EQ(BalMonthName(p.ctx, d->year, d->month), "Mala Jesta");
  for (int y : {1938, 1940, 1941}) {
    auto k = ParseDateText(p.ctx, CalType::Bal, "1/1/" + std::to_string(y));
    ASSERT_TRUE(k);
    EXPECT_EQ(BalMonthName(p.ctx, k->year, k->month), "Kasa");
  }
}

TEST_F(CycleCalendars, JavaneseWholeRange) {
  CalendarEngine& e = engine();
  // 1 Sura 1555 was Friday Legi, 8 July 1633.
  const JD epoch = e.DateToJD(CalType::Jav, 1, 1, 1555);
  EXPECT_EQ(epoch, GregorianToJD(8, 7, 1633));
  EXPECT_EQ(WeekdayOfJD(epoch), 6);
  EXPECT_EQ(JavanesePasaran(epoch), 1);
  JD expected = epoch;
  for (int y = 1555; y <= 10177; ++y) {
    ASSERT_EQ(e.DateToJD(CalType::Jav, 1, 1, y), expected) << y;
    int length = 0;
    for (int m = 1; m <= 12; ++m) {
      const int days = e.DaysInMonth(CalType::Jav, y, m);
      for (int d = 1; d <= days; ++d)
        ASSERT_EQ(e.JDToDate(CalType::Jav, expected + length + d - 1), (CalDate{d, m, y}));
      length += days;
    }
    ASSERT_EQ(length, e.IsLeapYear(CalType::Jav, y) ? 355 : 354) << y;
    expected += length;
  }
  // Leap days dropped at the changes of kurup.
  EXPECT_FALSE(e.IsLeapYear(CalType::Jav, 1674));
  EXPECT_FALSE(e.IsLeapYear(CalType::Jav, 1866));
  EXPECT_FALSE(e.IsLeapYear(CalType::Jav, 1986));
  EXPECT_TRUE(e.IsLeapYear(CalType::Jav, 1994));
  EXPECT_TRUE(e.IsLeapYear(CalType::Jav, 1751));  // a Dal year of Arbangiyah
}

TEST_F(CycleCalendars, JavaneseReportLines) {
  const JD jd = GregorianToJD(21, 12, 2012);
  EXPECT_EQ(JavaneseText(p.ctx, jd), "Sapar 7, 1946 A.J. until sunset");
  auto lines = JavaneseDetailLines(p.ctx, jd);
  ASSERT_EQ(lines.size(), 6u);
  EXPECT_EQ(lines[0], "Kurup = Salasiyah");
  EXPECT_EQ(lines[2], "Taun  = Jimakir (Swasana)");
  EXPECT_EQ(lines[4], "Dina  = Jemuwah (Sukra)");
  EXPECT_EQ(lines[5], "Pasar = Wagé");
  p.ctx.settings.plainLetters = true;
  EXPECT_EQ(JavaneseDetailLines(p.ctx, jd)[5], "Pasar = Wage");
  EXPECT_EQ(JavaneseKurup(1674), "Jamingiyah");
  EXPECT_EQ(JavaneseKurup(2227), "Not yet defined");
  EXPECT_EQ(JavaneseWindu(1555), 2);
  EXPECT_EQ(JavaneseWindu(1555 + 23), 4);
  EXPECT_EQ(JavaneseWindu(1555 + 24), 1);
}

TEST_F(CycleCalendars, YorubaWholeRange) {
  CalendarEngine& e = engine();
  for (int g = 1583; g <= 9999; ++g) {
    const JD first = GregorianToJD(1, 1, g), last = GregorianToJD(31, 12, g);
    for (JD jd = first; jd <= last; ++jd) {
      CalDate d = e.JDToDate(CalType::Yor, jd);
      ASSERT_EQ(e.DateToJD(CalType::Yor, d.day, d.month, d.year), jd) << jd;
    }
    ASSERT_EQ(e.JDToDate(CalType::Yor, last).month, 93) << g;
    ASSERT_EQ(e.JDToDate(CalType::Yor, first).day, YorubaFirstDay(g + 8042));
  }
}

TEST_F(CycleCalendars, YorubaInputAcceptsExactlyTheDaysThatExist) {
  CalendarEngine& e = engine();
  for (int y : {9625, 10054, 10058, 10062, 10066, 18041}) {
    int days = 0, counted = 0;
    for (int w = 1; w <= 93; ++w) {
      counted += e.DaysInMonth(CalType::Yor, y, w);
      for (int d = 1; d <= 4; ++d) {
        std::string text = std::to_string(d) + "/" + std::to_string(w) + "/" + std::to_string(y);
        auto parsed = ParseDateText(p.ctx, CalType::Yor, text);
        JD jd = e.DateToJD(CalType::Yor, d, w, y);
        bool exists = e.JDToDate(CalType::Yor, jd) == CalDate{d, w, y};
        ASSERT_EQ(parsed.has_value(), exists) << text;
        days += exists;
      }
    }
    EXPECT_EQ(days, IsGregorianLeap(y - 8042) ? 366 : 365) << y;
    EXPECT_EQ(counted, days);
  }
  EXPECT_EQ(YorubaText(p.ctx, GregorianToJD(1, 1, 1583)), "3 Ojo-Ogun, Ose 1, 9625");
}

TEST_F(CycleCalendars, CycleDateTexts) {
  const JD jd = GregorianToJD(21, 12, 2012);
  EXPECT_EQ(CycleDateText(p.ctx, CalType::May, jd), "13.0.0.0.0");
  EXPECT_EQ(CycleDateText(p.ctx, CalType::Haab, jd), "3/13");
  EXPECT_EQ(CycleDateText(p.ctx, CalType::Tzo, jd), "4/20");
  EXPECT_EQ(CycleDateText(p.ctx, CalType::Xih, jd), "17/4");
}

}  // namespace
}  // namespace mc
