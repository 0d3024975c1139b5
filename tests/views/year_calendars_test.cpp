#include "views/year_calendars.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "calendars/cycles.h"
#include "calendars/registry.h"
#include "core/ini_file.h"
#include "core/text_util.h"
#include "support/program_test.h"

namespace mc {
namespace {

class YearCalendars : public test::ProgramTest {
 protected:
  // The page of a year, weeks from Sunday unless told.
  std::string Page(std::string_view caption, const std::string& year, int startDay = 1) {
    p.ctx.settings.startDay = startDay;
    auto index = YearCalendarsScreen::EntryIndex(caption);
    EXPECT_TRUE(index) << caption;
    screen.ChooseCalendar(*index);
    screen.SetYearText(year);
    EXPECT_TRUE(screen.Enter()) << p.sink.Last();
    return screen.Output();
  }
  static std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    while (true) {
      std::size_t end = text.find("\r\n", at);
      lines.push_back(text.substr(at, end == std::string::npos ? std::string::npos : end - at));
      if (end == std::string::npos) return lines;
      at = end + 2;
    }
  }
  static bool Holds(const std::string& text, const std::string& line) {
    auto lines = Lines(text);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }

  YearCalendarsScreen screen{p.ctx};
};

const std::string kHeads = "  S  M  T  W  T  F  S     S  M  T  W  T  F  S     S  M  T  W  T  F  S";

TEST_F(YearCalendars, Gregorian1582DropsTenDaysOfOctober) {
  // 1 January 1582 (Julian) was a Monday; the first nine months are Julian,
  // October runs 1 to 4 and 15 to 31, November begins on a Monday.
  const std::vector<std::string> expected = {
      "*** Julian/Gregorian Calendar for 1582 ***",
      "",
      "10 days omitted in October -- page/scroll down for more details",
      "",
      "        January                February                  March",
      kHeads,
      "     1  2  3  4  5  6                 1  2  3                 1  2  3",
      "  7  8  9 10 11 12 13     4  5  6  7  8  9 10     4  5  6  7  8  9 10",
      " 14 15 16 17 18 19 20    11 12 13 14 15 16 17    11 12 13 14 15 16 17",
      " 21 22 23 24 25 26 27    18 19 20 21 22 23 24    18 19 20 21 22 23 24",
      " 28 29 30 31             25 26 27 28             25 26 27 28 29 30 31",
      "",
      "         April                    May                    June",
      kHeads,
      "  1  2  3  4  5  6  7           1  2  3  4  5                    1  2",
      "  8  9 10 11 12 13 14     6  7  8  9 10 11 12     3  4  5  6  7  8  9",
      " 15 16 17 18 19 20 21    13 14 15 16 17 18 19    10 11 12 13 14 15 16",
      " 22 23 24 25 26 27 28    20 21 22 23 24 25 26    17 18 19 20 21 22 23",
      " 29 30                   27 28 29 30 31          24 25 26 27 28 29 30",
      "",
      "         July                   August                 September",
      kHeads,
      "  1  2  3  4  5  6  7              1  2  3  4                       1",
      "  8  9 10 11 12 13 14     5  6  7  8  9 10 11     2  3  4  5  6  7  8",
      " 15 16 17 18 19 20 21    12 13 14 15 16 17 18     9 10 11 12 13 14 15",
      " 22 23 24 25 26 27 28    19 20 21 22 23 24 25    16 17 18 19 20 21 22",
      " 29 30 31                26 27 28 29 30 31       23 24 25 26 27 28 29",
      " " + std::string(48, ' ') + "30" + std::string(18, ' '),
      "",
      "        October                November                December",
      kHeads,
      "     1  2  3  4 15 16        1  2  3  4  5  6              1  2  3  4",
      " 17 18 19 20 21 22 23     7  8  9 10 11 12 13     5  6  7  8  9 10 11",
      " 24 25 26 27 28 29 30    14 15 16 17 18 19 20    12 13 14 15 16 17 18",
      " 31                      21 22 23 24 25 26 27    19 20 21 22 23 24 25",
      " " + std::string(24, ' ') + "28 29 30" + std::string(16, ' ') + "26 27 28 29 30 31   ",
      "",
      "In February 1582, the Catholic Church decreed that a new calendar",
      "system be introduced by dropping 10 days in October 1582, with",
      "October 15 following October 4. The new Gregorian calendar differs",
      "from the Julian calendar in that century years (1600, 1700, 1800 ..)",
      "are only leap years if exactly divisible by 400.",
  };
  const std::vector<std::string> lines = Lines(Page("Gregorian", "1582"));
  ASSERT_EQ(lines.size(), expected.size());
  // Grid rows are whole (69 characters); compare them without their trailing blanks.
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].size() == 69) {
      EXPECT_EQ(lines[i].substr(0, lines[i].find_last_not_of(' ') + 1),
                expected[i].substr(0, expected[i].find_last_not_of(' ') + 1))
          << "line " << i;
    } else {
      EXPECT_EQ(lines[i], expected[i]) << "line " << i;
    }
  }
  EXPECT_EQ(lines[27], expected[27]);
  EXPECT_EQ(lines[35], expected[35]);

  // Other Gregorian years have neither a date range nor a note.
  const std::string y2026 = Page("Gregorian", "2026");
  EXPECT_TRUE(y2026.starts_with("*** Gregorian Calendar for 2026 ***\r\n\r\n        January"));
  EXPECT_TRUE(y2026.ends_with(" 27 28 29 30 31      \r\n\r\n"));
}

TEST_F(YearCalendars, RevisedJulian1923BeginsItsOctoberAt14) {
  const std::string page = Page("Revised Julian", "1923");
  EXPECT_TRUE(
      page.starts_with("*** Julian/Revised Julian Calendar for 1923 ***\r\n\r\n"
                       "13 days omitted in October -- page/scroll down for more "
                       "details\r\n\r\n"
                       "Start Date = Jan 14, 1923         End Date = Dec 31, 1923 "
                       "(Gregorian)\r\n\r\n"));
  // 1 January 1923 (Julian) was a Sunday; October runs from Sunday 14 to 31.
  EXPECT_TRUE(Holds(page, " 14 15 16 17 18 19 20                 1  2  3                       1"));
  EXPECT_TRUE(Holds(page, " 28 29 30 31             11 12 13 14 15 16 17     9 10 11 12 13 14 15"));
  EXPECT_TRUE(page.ends_with("rules for century years (2000, 2100, 2200 ...)."));
  // A later year is an ordinary one with a Gregorian date range.
  EXPECT_TRUE(Page("Revised Julian", "2026")
                  .starts_with("*** Revised Julian Calendar for 2026 C.E. ***\r\n\r\n"
                               "Start Date = Jan 1, 2026         End Date = Dec 31, 2026 "
                               "(Gregorian)\r\n\r\n"));
  // A year that starts before the change prints both ends Julian.
  EXPECT_TRUE(
      Page("Julian", "1582")
          .starts_with(
              "*** Julian Calendar for 1582 C.E. ***\r\n\r\n"
              "Start Date = Jan 1, 1582 C.E.    End Date = Dec 31, 1582 C.E. (Julian)\r\n\r\n"));
}

TEST_F(YearCalendars, ThirteenthMonths) {
  // A leap Hebrew year keeps Elul for a block of its own; a common year has
  // twelve months and none.
  const std::string leap = Page("Hebrew", "5784");
  EXPECT_TRUE(
      leap.starts_with("*** Hebrew Calendar for 5784 A.M. ***\r\n\r\n"
                       "Start Date = Sep 16, 2023         End Date = Oct 2, 2024 "
                       "(Gregorian)\r\n\r\n"
                       "        Tishri                 Cheshvan                 Kislev"));
  EXPECT_TRUE(Holds(leap, "         Tevet                  Shevat                   Adar"));
  EXPECT_TRUE(Holds(leap, "        Adar II                  Nisan                   Iyyar"));
  // Elul 5784 from Wednesday 4 September 2024.
  EXPECT_TRUE(
      leap.ends_with("         Elul\r\n"
                     "  S  M  T  W  T  F  S\r\n"
                     "           1  2  3  4\r\n"
                     "  5  6  7  8  9 10 11\r\n"
                     " 12 13 14 15 16 17 18\r\n"
                     " 19 20 21 22 23 24 25\r\n"
                     " 26 27 28 29         \r\n" +
                     std::string(21, ' ') + "\r\n\r\n"));
  const std::string common = Page("Hebrew", "5785");
  EXPECT_TRUE(Holds(common, std::string(9, ' ') + "Tevet" + std::string(18, ' ') + "Shevat" +
                                std::string(19, ' ') + "Adar"));
  EXPECT_TRUE(Holds(common, std::string(9, ' ') + "Nisan" + std::string(19, ' ') + "Iyyar" +
                                std::string(19, ' ') + "Sivan"));
  EXPECT_TRUE(Holds(common, std::string(8, ' ') + "Tammuz" + std::string(20, ' ') + "Av" +
                                std::string(21, ' ') + "Elul"));
  EXPECT_EQ(common.find("Adar II"), std::string::npos);

  // The French complementary days keep one row: a tail past the week's end is lost.
  const std::string french = Page("French Revolutionary", "3");
  EXPECT_NE(french.find("  Jours Complémentaire\r\n"
                        "  S  M  T  W  T  F  S\r\n" +
                        std::string(12, ' ') +
                        "  1  2  3\r\n\r\n"
                        "Strictly speaking"),
            std::string::npos);
  EXPECT_TRUE(french.ends_with("Octidi, Nonidi and Decadi."));

  // A Balinese leap year ends with Kasanga; its dropped days take no cell.
  const std::string bali = Page("Balinese Saka", "1946");
  EXPECT_TRUE(Holds(bali, "        Kasanga"));
  EXPECT_TRUE(Holds(bali, " 24 25 26 28 29 30   "));
  // In a common year Kasanga is the twelfth month, in the last band.
  const std::string common1947 = Page("Balinese Saka", "1947");
  EXPECT_FALSE(Holds(common1947, "        Kasanga"));
  EXPECT_NE(common1947.find("Kasanga\r\n" + kHeads), std::string::npos);
}

TEST_F(YearCalendars, BahaiYearInSevenBands) {
  const std::string page = Page("Baha'i", "182");
  EXPECT_TRUE(page.starts_with(
      "*** Baha'i Calendar for 182 B.E. - Kull-i-Shay 1, Vahid 10, Year 11 (Bahhaj) ***\r\n\r\n"
      "Start Date = Mar 20, 2025                  End Date = Mar 20, 2026\r\n\r\n"
      "         Baha'                   Jalal                   Jamal\r\n" +
      kHeads + "\r\n"));
  // Ayyam-i-Ha, five days of a leap year from Wednesday 25 February, and 'Ala'.
  EXPECT_TRUE(
      page.ends_with("      Ayyam-i-Ha                 'Ala'\r\n"
                     "  S  M  T  W  T  F  S     S  M  T  W  T  F  S\r\n" +
                     std::string(9, ' ') + "  1  2  3  4      " +
                     "  1  2  3  4  5  6\r\n"
                     "  5" +
                     std::string(21, ' ') + "  7  8  9 10 11 12 13\r\n" + std::string(24, ' ') +
                     " 14 15 16 17 18 19   \r\n\r\n"));
}

TEST_F(YearCalendars, ChineseYearWithALeapMonth) {
  const std::string page = Page("Chinese", "4660");
  EXPECT_TRUE(
      page.starts_with("*** Chinese Calendar for 4660, Gui-Mao - The Year of the Hare ***\r\n\r\n"
                       "Sexagesimal Cycle 78, Year Within Cycle 40\r\n\r\n"
                       "Start Date = Jan 22, 2023                  End Date = Feb 9, 2024\r\n\r\n"
                       "        Month 1                 Month 2              Leap Month 2\r\n"));
  EXPECT_TRUE(Holds(page, "       Month 12"));  // the thirteenth row
  // The major solar terms of the year, and the month starts as published.
  const std::string terms = "Major Solar Terms (UT)\r\n" + std::string(45, '-') +
                            "\r\n"
                            "Chinese       English            Date\r\n"
                            "Name          Meaning\r\n" +
                            std::string(45, '-') +
                            "\r\n"
                            "Yushui        Rain Water        Feb 19, 2023\r\n"
                            "Chunfen       Spring Equinox    Mar 21, 2023\r\n"
                            "Guyu          Great Rain        Apr 20, 2023\r\n"
                            "Xiaoman       Grain Full        May 21, 2023\r\n"
                            "Xiazhi        Summer Solstice   Jun 21, 2023\r\n"
                            "Dashu         Great Heat        Jul 23, 2023\r\n"
                            "Chushu        Limit of Heat     Aug 23, 2023\r\n"
                            "Qiufen        Autumnal Equinox  Sep 23, 2023\r\n"
                            "Shuangjiang   Descent of Frost  Oct 24, 2023\r\n"
                            "Xiaoxue       Slight Snow       Nov 22, 2023\r\n"
                            "Dongzhi       Winter Solstice   Dec 22, 2023\r\n"
                            "Dahan         Great Cold        Jan 20, 2024\r\n" +
                            std::string(45, '-') + "\r\n\r\n";
  const std::string starts = "Month Starts\r\n" + std::string(32, '-') +
                             "\r\n"
                             "Month     Leap      Start\r\n"
                             "Number    Month?    Date\r\n" +
                             std::string(32, '-') +
                             "\r\n"
                             "1         No        Jan 22, 2023\r\n"
                             "2         No        Feb 20, 2023\r\n"
                             "2         Yes       Mar 22, 2023\r\n"
                             "3         No        Apr 20, 2023\r\n"
                             "4         No        May 19, 2023\r\n"
                             "5         No        Jun 18, 2023\r\n"
                             "6         No        Jul 18, 2023\r\n"
                             "7         No        Aug 16, 2023\r\n"
                             "8         No        Sep 15, 2023\r\n"
                             "9         No        Oct 15, 2023\r\n"
                             "10        No        Nov 13, 2023\r\n"
                             "11        No        Dec 13, 2023\r\n"
                             "12        No        Jan 11, 2024\r\n" +
                             std::string(32, '-') + "\r\n";
  EXPECT_TRUE(page.ends_with(terms + starts));

  // The Vietnamese page has its own names and no solar terms.
  const std::string vn = Page("Vietnamese", "4660");
  EXPECT_TRUE(
      vn.starts_with("*** Vietnamese Calendar for 4660, Quí-Mão - The Year of the Cat ***"));
  EXPECT_EQ(vn.find("Major Solar Terms"), std::string::npos);
}

TEST_F(YearCalendars, HinduLunisolarYearWithALeapMonth) {
  const std::string page = Page("Hindu Lunisolar Chaitra", "2083");
  EXPECT_TRUE(page.starts_with(
      "*** Hindu Lunisolar Chaitra Calendar for 2083 V.E. ***\r\n\r\n"
      "Start Date = Mar 19, 2026                  End Date = Apr 6, 2027 (Gregorian)\r\n\r\n"
      "        Chaitra                Vaisakha              Leap Jyaistha\r\n"));
  // Thirteen months: the last in a band of its own.
  EXPECT_TRUE(Holds(page, "       Phalguna"));
  EXPECT_TRUE(Holds(page, "  S  M  T  W  T  F  S"));
  EXPECT_NE(page.find("Bright and Dark Periods\r\n" + std::string(58, '-') +
                      "\r\n"
                      "Month          Leap    Bright Half         Dark Half\r\n"
                      "               Month?\r\n" +
                      std::string(58, '-') +
                      "\r\n"
                      "Chaitra             No  Mar 19 - Apr  1    Apr  2 - Apr 17\r\n"
                      "Vaisakha            No  Apr 18 - May  1    May  2 - May 16\r\n"
                      "Jyaistha            Yes May 17 - May 31    Jun  1 - Jun 15\r\n"
                      "Jyaistha            No  Jun 16 - Jun 29    Jun 30 - Jul 14\r\n"),
            std::string::npos);
  EXPECT_TRUE(page.ends_with("Phalguna            No  Mar  9 - Mar 22    Mar 23 - Apr  6\r\n" +
                             std::string(58, '-') + "\r\n"));

  // The Ashada year runs into the next Vikrama year at Chaitra.
  const std::string ashada = Page("Hindu Lunisolar Ashada", "2083");
  EXPECT_NE(ashada.find("Phalguna            No  Mar  9 - Mar 22    Mar 23 - Apr  6\r\n" +
                        std::string(23, ' ') +
                        "2084\r\n"
                        "Chaitra             No  Apr  7 - Apr 20    Apr 21 - May  6\r\n"),
            std::string::npos);
  // Months from full moon: the dark half first.
  const std::string rajasthan = Page("Hindu Lunisolar Rajasthan", "2083");
  EXPECT_NE(rajasthan.find("Dark and Bright Periods\r\n" + std::string(58, '-') +
                           "\r\n"
                           "Month          Leap    Dark Half           Bright Half\r\n"),
            std::string::npos);
  EXPECT_TRUE(Holds(rajasthan, "Chaitra             No  Mar  4 - Mar 18    Mar 19 - Apr  1"));
}

TEST_F(YearCalendars, HinduSolarMonthsByTheirSigns) {
  const std::string page = Page("Hindu Solar", "1948");
  EXPECT_TRUE(page.starts_with(
      "*** Hindu Solar Calendar for 1948 S.E. ***\r\n\r\n"
      "Start Date = Apr 14, 2026         End Date = Apr 13, 2027 (Gregorian)\r\n\r\n"
      "         Mesha                 Vrishabha                Mithuna\r\n"));
  // Month 1 is Mesha, month 12 Mina: each month has the name of its sign.
  EXPECT_TRUE(Holds(page, std::string(8, ' ') + "Makara" + std::string(18, ' ') + "Kumbha" +
                              std::string(19, ' ') + "Mina"));
}

TEST_F(YearCalendars, JavaneseAndYorubaPages) {
  const std::string jav = Page("Javanese Pawukon/Pasaran", "1960");
  const auto lines = Lines(jav);
  ASSERT_GT(lines.size(), 12u);
  EXPECT_EQ(lines[0], "*** Javanese Pawukon/Pasaran Calendar for Year 1960 A.J. ***");
  EXPECT_EQ(lines[4], "Kurup = Salasiyah");
  EXPECT_EQ(lines[5], "Windu = Sancaya (Sarawungan)");
  EXPECT_EQ(lines[6], "Taun  = Bé (Pawaka)");
  EXPECT_EQ(lines[8], std::string(87, '-'));
  EXPECT_EQ(lines[9],
            "Date             Gregorian Date      Wuku           Dina               "
            "Pasar   Neptu");
  // Rebo (7) and Kliwon (8): neptu 15.
  EXPECT_EQ(lines[11],
            "Sura 1           Wed Jun 17, 2026    Galungan       Rebo (Buda)        "
            "Kliwon     15");
  EXPECT_TRUE(Holds(jav, ""));  // a blank line before each new month
  EXPECT_TRUE(Holds(jav,
                    "Sapar 1          Fri Jul 17, 2026    Julungpujud    Jemuwah (Sukra)    "
                    "Kliwon     14"));

  const std::string yor = Page("Yoruba", "10068");
  const auto y = Lines(yor);
  EXPECT_EQ(y[0], "*** Yoruba Calendar for 10068 ***");
  EXPECT_EQ(y[2], "Start Date = Jan 1, 2026         End Date = Dec 31, 2026 (Gregorian)");
  // 1 January 2026 is the second day of week 1, Ojo-Shango.
  EXPECT_EQ(y[5],
            "Ose                   1  2  3  4  5  6  7  8        9 10 11 12 13 14 15       "
            "16 17 18 19 20 21 22 23");
  EXPECT_EQ(y[7],
            "Ojo-Shango (Jakuta)   1  5  9 13 17 21 25 29        2  6 10 14 18 22 26        "
            "2  6 10 14 18 22 26 30");
}

TEST_F(YearCalendars, PawukonPageAndItsPrintQuestion) {
  const std::string page = Page("Balinese Pawukon", "2026");
  const auto lines = Lines(page);
  EXPECT_GT(lines.size(), 800u);
  EXPECT_EQ(lines[0], "*** Balinese Pawukon Calendar for Gregorian Year 2026 ***");
  EXPECT_EQ(lines[3],
            "Date    Wuku           Eka    Dwi    Tri     Catur   Panca    Sad      "
            "Sapta      Asta    Sanga    Dasa");
  // Thursday 1 January 2026 is day 117 of the cycle.
  EXPECT_EQ(lines[5],
            "Jan  1  Kuruwelut      Luang  Pepet  Kajeng  Jaya    Pon      Urukung  "
            "Wrhaspati  Guru    Erangan  Manuh");
  EXPECT_TRUE(Holds(page, "Auspicious and Inauspicious Days"));
  EXPECT_TRUE(Holds(page,
                    "Date    Ingkel  Parerasan           Panca Suda         Lintang         "
                    "Ekajala Rasi"));
  EXPECT_EQ(screen.Hint(),
            "Input a Gregorian year in the range 1583 to 9999 and press the Enter key. Leave "
            "blank for current year.");
  p.sink.answers = {false, true};
  EXPECT_FALSE(screen.ConfirmPrint());
  EXPECT_TRUE(screen.ConfirmPrint());
  EXPECT_EQ(p.sink.messages.back(),
            (test::Message{"Information!",
                           "Landscape mode should be selected. Also, over 800 lines will be "
                           "printed. Do you wish to continue?"}));
  Page("Gregorian", "2026");
  p.sink.Clear();
  EXPECT_TRUE(screen.ConfirmPrint());
  EXPECT_TRUE(p.sink.messages.empty());
}

TEST_F(YearCalendars, YearInputAndSpin) {
  screen.Load();  // the favourite: Gregorian, this year
  EXPECT_EQ(screen.YearText(), "2026");
  EXPECT_TRUE(screen.Output().starts_with("*** Gregorian Calendar for 2026 ***"));
  EXPECT_TRUE(screen.Spin(1));
  EXPECT_EQ(screen.YearText(), "2027");
  EXPECT_TRUE(screen.Output().starts_with("*** Gregorian Calendar for 2027 ***"));
  const std::string shown = screen.Output();
  for (auto [text, message] : std::initializer_list<std::pair<const char*, const char*>>{
           {"abc", "Year value must be numeric."},
           {"40000", "Invalid input error."},
           {"-3", "Year value must be positive."},
           {"2026.5", "Year value must be an integer."},
           {"1581", "Gregorian year must be greater than 1581."},
       }) {
    screen.SetYearText(text);
    EXPECT_FALSE(screen.Enter()) << text;
    EXPECT_EQ(p.sink.Last(), message) << text;
    EXPECT_EQ(screen.Output(), shown) << text;
  }
  screen.SetYearText("");
  EXPECT_TRUE(screen.Enter());
  EXPECT_EQ(screen.YearText(), "2026");  // written back

  // Choosing a calendar shows its current year.
  screen.SelectCalendar(*YearCalendarsScreen::EntryIndex("Islamic Umm al-Qura"));
  EXPECT_EQ(screen.YearText(), "1448");
  EXPECT_EQ(screen.Hint(),
            "Input an Islamic year in the range 1356 to 1500 and press the Enter key. Leave "
            "blank for current year.");
  screen.SelectCalendar(*YearCalendarsScreen::EntryIndex("French Revolutionary"));
  EXPECT_EQ(screen.YearText(), "1");
  EXPECT_EQ(screen.Hint(),
            "Input a French Revolutionary year in the range 1 to 14 and press the Enter key.");
  EXPECT_FALSE(screen.Spin(-1));
  EXPECT_EQ(p.sink.Last(), "Year value must be positive.");

  // Long builds say "Please wait ..." first.
  int waits = 0;
  screen.onPleaseWait = [&] {
    ++waits;
    EXPECT_EQ(screen.Output(), "Please wait ...");
  };
  screen.SelectCalendar(*YearCalendarsScreen::EntryIndex("Hindu Solar"));
  screen.SelectCalendar(*YearCalendarsScreen::EntryIndex("Afghan"));
  EXPECT_EQ(waits, 1);
}

// Every day of a year in the shared layout has one cell: the grid rows hold
// as many numbers as the year has days.
TEST_F(YearCalendars, SharedPagesHoldEveryDayOnce) {
  CalendarEngine& engine = Calendars(p.ctx);
  for (const auto& e : YearCalendarsScreen::Entries()) {
    const CalType t = e.type;
    if (t == CalType::Bah || t == CalType::Chi || t == CalType::Vie || IsHinduLunisolar(t) ||
        t == CalType::Jav || t == CalType::Paw || t == CalType::Yor || t == CalType::Fre)
      continue;
    for (int year : {e.low + 1, (e.low + e.high) / 2, e.high - 1}) {
      for (int startDay = 0; startDay <= 2; ++startDay) {
        SCOPED_TRACE(std::string(e.caption) + " " + std::to_string(year));
        const std::string page = Page(e.caption, std::to_string(year), startDay);
        int cells = 0;
        for (const std::string& line : Lines(page)) {
          if ((line.size() != 69 && line.size() != 21) ||
              line.find_first_not_of(" 0123456789") != std::string::npos)
            continue;
          for (std::size_t c = 0; c + 3 <= line.size(); c += 3)
            if (line.substr(c, 3) != "   ") ++cells;
        }
        JD start = engine.DateToJD(t, 1, 1, year), end = engine.DateToJD(t, 1, 1, year + 1);
        if (t == CalType::Bal) {
          start = BalineseYearStart(engine, year);
          end = BalineseYearStart(engine, year + 1);
        }
        EXPECT_EQ(cells, end - start);
      }
    }
  }
}

}  // namespace
}  // namespace mc
