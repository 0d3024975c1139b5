// Calendars of interlocking cycles: the Mayan long count, haab, tzolkin and
// Lords of the Night; the Aztec tonalpohualli and xiuhpohualli; the Balinese
// Pawukon with its ten concurrent weeks and the Balinese Saka count of
// tithis; the Javanese year of the windu; the Yoruba four-day week. All are
// functions of the day number. The engine codes Haab, Tzo, Ton and Xih give
// JDToDate only (Year = -1); Bal, Jav and Yor have all four rules.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/date_text.h"
#include "calendars/registry.h"

namespace mc {

// ---- Mayan and Aztec -------------------------------------------------------

// The day number of the long count's day 0.0.0.0.0 (setting, default 584283).
JD MayanConstant(const Context& ctx);

LongCount LongCountOfJD(const Context& ctx, JD jd);
JD JDOfLongCount(const Context& ctx, const LongCount& count);
// "13.0.0.0.0"
std::string LongCountText(const LongCount& count);
// A long count as typed ("B.K.T.U.D"): each part checked, then the day
// checked against the supported days; nothing after a message.
std::optional<JD> LongCountTextToJD(Context& ctx, std::string_view text);

// Lord of the Night, 1..9 (printed "G" + n).
int LordOfTheNight(const Context& ctx, JD jd);

// The year bearer of the xiuhpohualli year holding jd: the tonalpohualli day
// of 20 Tititl. nameIndex is 3, 8, 13 or 18, or 0 when no bearer fits.
struct Xiuhmolpilli {
  int number = 0;
  int nameIndex = 0;
};
Xiuhmolpilli XiuhmolpilliOf(CalendarEngine& engine, JD jd);

// Row texts of the all-calendars report.
std::string HaabText(Context& ctx, JD jd);           // "8 Cumku"
std::string TzolkinText(Context& ctx, JD jd);        // "4 Ahau"
std::string TonalpohualliText(Context& ctx, JD jd);  // "4 Xochitl"
// "8 Atemoztli (Month 17), Xiuhmolpilli year 12 Acatl"
std::string XiuhpohualliText(Context& ctx, JD jd);
std::string LordOfTheNightText(Context& ctx, JD jd);  // "G9"

// ---- Balinese Pawukon ------------------------------------------------------

// Day of the 210-day Pawukon cycle, 0..209, counted from JD 146.
int PawukonDay(JD jd);
int Dwiwara(JD jd);    // 1..2
int Triwara(JD jd);    // 1..3
int Caturwara(JD jd);  // 1..4
int Pancawara(JD jd);  // 1..5
int Sadwara(JD jd);    // 1..6
int Saptawara(JD jd);  // 1..7
int Asatawara(JD jd);  // 1..8
int Sangawara(JD jd);  // 1..9
int Dasawara(JD jd);   // 1..10
bool Luang(JD jd);
int WukuOf(JD jd);  // 1..30

// "Luang, " when it holds, then the names of the weeks of 2 to 10 days.
std::string PawukonLine(Context& ctx, JD jd);
// "Wuku           = Sinta" and the thirteen lines after it.
std::vector<std::string> PawukonDetailLines(Context& ctx, JD jd);

// ---- Balinese Saka ---------------------------------------------------------

// Leap years among the first k years of a nineteen-year cycle (k = 0: the
// whole cycle's seven).
int LeapYearsInBalCycle(int k);
// The first day of a year (its day 2 where day 1 is the second day of a
// pengunalatri).
JD BalineseYearStart(CalendarEngine& engine, int year);
// Month name of an internal month; month 13 of a common year shows "Invalid
// month value." and gives "".
std::string BalMonthName(Context& ctx, int year, int month);
// " Penanggal 5" for days 1 to 15, " Pangelong 3" for days above.
std::string BalDayText(int day);
// "Friday, Kadasa Penanggal 1, 1946"
std::string BalineseSakaText(Context& ctx, JD jd);

// ---- Javanese --------------------------------------------------------------

// Year of the windu, 1..8 (1 = Alip).
int JavaneseTaun(int year);
// 1..4 (1 = Adi).
int JavaneseWindu(int year);
// Market day 1..5 (1 = Legi).
int JavanesePasaran(JD jd);
std::string_view JavaneseKurup(int year);
// "Sura 1, 1555 A.J. until sunset"
std::string JavaneseText(Context& ctx, JD jd);
// "Kurup = ", "Windu = ", "Taun  = ", "Wuku  = ", "Dina  = ", "Pasar = ".
std::vector<std::string> JavaneseDetailLines(Context& ctx, JD jd);

// ---- Yoruba ----------------------------------------------------------------

// Day of the four-day week of 1 January of Yoruba year `year`, 1..4.
int YorubaFirstDay(int year);
// "3 Ojo-Ogun, Ose 1, 9625"
std::string YorubaText(Context& ctx, JD jd);

// ---- Shared ----------------------------------------------------------------

// "Day/Month" of a day cycle (Haab, Tzo, Ton, Xih) or "B.K.T.U.D" (May); other
// codes give FormatDateText of their date.
std::string CycleDateText(Context& ctx, CalType type, JD jd);

}  // namespace mc
