// The Javanese calendar: lunar years of 354 days, with a day added to three
// years of each eight-year windu, and one leap day dropped every 120 years at
// the change of kurup.
#include <algorithm>
#include <initializer_list>

#include "calendars/cycles.h"
#include "calendars/cycles_detail.h"

namespace mc {

using cycles::Cycle;
using cycles::Shown;
using cycles::ShownAt;

namespace {

constexpr JD kJavaneseEpoch = 2317689;  // the day before 1 Sura 1555
constexpr int kFirstYear = 1555;

// The kurup of Arbangiyah, whose windu puts its leap years elsewhere.
bool InArbangiyah(int year) {
  return year >= 1747 && year <= 1866;
}

bool JavLeap(int year) {
  const int t = JavaneseTaun(year);
  bool leap = InArbangiyah(year) ? (t == 2 || t == 5 || t == 8) : (t == 2 || t == 4 || t == 8);
  if (t == 8 && ((year >= 1746 && (year - 1746) % 120 == 0) || year == 1674)) leap = false;
  return leap;
}

// Years y in [a, b] with (y - 1554) mod 8 == r.
long long CountResidue(long long a, long long b, int r) {
  if (b < a) return 0;
  return FloorDiv(b - 1554 - r, 8) - FloorDiv(a - 1 - 1554 - r, 8);
}

// Leap years from 1555 to `last`, in closed form.
long long LeapYearsThrough(int last) {
  if (last < kFirstYear) return 0;
  auto count = [](long long a, long long b, std::initializer_list<int> residues) {
    long long n = 0;
    for (int r : residues) n += CountResidue(a, b, r);
    return n;
  };
  long long n = count(kFirstYear, std::min(last, 1746), {2, 4, 0}) +
                count(1747, std::min(last, 1866), {2, 5, 0}) + count(1867, last, {2, 4, 0});
  if (last >= 1674) n -= 1;
  if (last >= 1746) n -= FloorDiv(last - 1746, 120) + 1;
  return n;
}

int JavDaysInMonth(CalendarEngine&, int year, int month) {
  if (month < 1 || month > 12) return 0;
  if (JavaneseTaun(year) == 5 && InArbangiyah(year)) {
    // The Dal year of Arbangiyah: Sapar takes Mulud's thirtieth day.
    switch (month) {
      case 1:
      case 2:
      case 5:
      case 7:
      case 9:
      case 11:
      case 12:
        return 30;
      default:
        return 29;
    }
  }
  if (month == 12) return JavLeap(year) ? 30 : 29;
  return month % 2 == 1 ? 30 : 29;
}

JD JavDateToJD(CalendarEngine& engine, int day, int month, int year) {
  if (month < 1 || month > 12) return -1;
  long long dayOfYear = day;
  for (int m = 1; m < month; ++m) dayOfYear += JavDaysInMonth(engine, year, m);
  long long jd = (year - 1555LL) * 354 + dayOfYear + kJavaneseEpoch;
  if (year >= 1557) jd += LeapYearsThrough(year - 1);
  return static_cast<JD>(jd);
}

CalDate JavJDToDate(CalendarEngine& engine, JD jd) {
  return EstimateAndWalk(engine, CalType::Jav, jd, kJavaneseEpoch, 354, 1556);
}

bool JavIsLeapYear(CalendarEngine&, int year) {
  return JavLeap(year);
}

}  // namespace

int JavaneseTaun(int year) {
  return Cycle(year - 1554LL, 8);
}

int JavaneseWindu(int year) {
  return (Cycle(year - 1555LL + 9, 32) - 1) / 8 + 1;
}

int JavanesePasaran(JD jd) {
  return Cycle(jd + 1LL, 5);
}

std::string_view JavaneseKurup(int year) {
  if (year < 1675) return "Jamingiyah";
  if (year < 1747) return "Kamsiyah";
  if (year < 1867) return "Arbangiyah";
  if (year < 1987) return "Salasiyah";
  if (year < 2107) return "Isneniyah";
  if (year < 2227) return "Akadiyah";
  return "Not yet defined";
}

std::string JavaneseText(Context& ctx, JD jd) {
  CalDate d = Calendars(ctx).JDToDate(CalType::Jav, jd);
  return ShownAt(ctx, kJavaneseMonths, d.month) + " " + std::to_string(d.day) + ", " +
         std::to_string(d.year) + " A.J. until sunset";
}

std::vector<std::string> JavaneseDetailLines(Context& ctx, JD jd) {
  const int year = Calendars(ctx).JDToDate(CalType::Jav, jd).year;
  return {
      "Kurup = " + std::string(JavaneseKurup(year)),
      "Windu = " + ShownAt(ctx, kJavaneseWindu, JavaneseWindu(year)),
      "Taun  = " + ShownAt(ctx, kJavaneseTaun, JavaneseTaun(year)),
      "Wuku  = " + ShownAt(ctx, kWukuNames, WukuOf(jd)),
      "Dina  = " + ShownAt(ctx, kJavaneseWeekdays, WeekdayOfJD(jd)),
      "Pasar = " + ShownAt(ctx, kJavanesePasaran, JavanesePasaran(jd)),
  };
}

namespace cycles {

void RegisterJavaneseRules(RulesTable& table) {
  table[static_cast<int>(CalType::Jav)] =
      CalendarRules{JavDateToJD, JavJDToDate, JavIsLeapYear, JavDaysInMonth};
}

}  // namespace cycles

}  // namespace mc
