// The detail lines of the Date Conversions report: what else can be said of a
// Gregorian day (from 1583 on) or of a Julian one (before the change).
#include <cstdio>

#include "calendars/date_conversions.h"
#include "calendars/gregorian.h"
#include "calendars/names.h"
#include "calendars/regnal.h"
#include "calendars/roman.h"
#include "core/text_util.h"
#include "datetools/easter.h"
#include "datetools/games.h"

namespace mc {

namespace {

constexpr std::string_view kCrLf = "\r\n";

std::string N(long long v) {
  return std::to_string(v);
}

// The two reckonings side by side: day numbers, leap years, Easter.
struct Reckoning {
  CalType type;
  JD (*toJD)(int, int, int);
  bool (*leap)(int);
};
constexpr Reckoning kGregorian{CalType::Greg, GregorianToJD, IsGregorianLeap};
constexpr Reckoning kJulian{CalType::Jul, JulianToJD, [](int y) { return y % 4 == 0; }};

class Lines {
 public:
  void Add(const std::string& line) { text_ += line + std::string(kCrLf); }
  void Blank() { text_ += kCrLf; }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

std::string WeekdayOf(JD jd) {
  return std::string(kWeekdayNames[WeekdayOfJD(jd)]);
}

void ChristmasCountdown(Lines& out, const Reckoning& r, int year, int dayOfYear) {
  const int last = r.leap(year) ? 360 : 359;  // the day of the year of Christmas
  if (dayOfYear > last) return;
  if (dayOfYear == last) {
    out.Add("Today is Christmas Day.");
  } else if (last - dayOfYear == 1) {
    out.Add("Tonight is Christmas Eve.");
  } else {
    const int more = last - dayOfYear - 1;
    out.Add(N(more) + (last - dayOfYear == 2 ? " more day" : " more days") +
            " and then Christmas.");
  }
}

bool SameEaster(const Reckoning& r, int a, int b) {
  EasterDate ea = ComputeEaster(a, r.type), eb = ComputeEaster(b, r.type);
  return ea.month == eb.month && ea.day == eb.day;
}

// The calendar re-use lines: the first later year with the same first
// weekday and leapness, with and without the same Easter.
void ReuseLines(Lines& out, const Reckoning& r, int year, std::string_view easterWord) {
  const int w = WeekdayOfJD(r.toJD(1, 1, year));
  const bool leap = r.leap(year);
  int sameEaster = 0, otherEaster = 0;
  for (int y = year + 1; y <= 9999 && !(sameEaster && otherEaster); ++y) {
    if (WeekdayOfJD(r.toJD(1, 1, y)) != w || r.leap(y) != leap) continue;
    if (SameEaster(r, year, y)) {
      if (!sameEaster) sameEaster = y;
    } else if (!otherEaster) {
      otherEaster = y;
    }
  }
  const std::string opening = "The calendar for " + N(year) + " may be re-used first in ";
  if (sameEaster)
    out.Add(opening + N(sameEaster) + " with " + std::string(easterWord) + " on the same date.");
  if (otherEaster)
    out.Add(opening + N(otherEaster) + " with " + std::string(easterWord) +
            " on a different date.");
}

void RomanYearLines(Lines& out, int year) {
  if (year >= 4000) return;
  out.Add("The year " + N(year) + " in Roman numeral form is " + ToRoman(year) + ".");
  const int auc = year + 753;
  out.Add(N(year) + " is Roman year " + N(auc) + (auc < 4000 ? " (" + ToRoman(auc) + ")" : "") +
          " AUC.");
}

void CycleLines(Lines& out, int year) {
  out.Add("Julian Period = " + N(JulianPeriod(year)));
  out.Add("Dionysian Period = " + N(DionysianPeriod(year)));
  out.Add("Golden Number = " + ToRoman(GoldenNumber(year)));
  out.Add("Solar Number = " + N(SolarNumber(year)));
  out.Add("Roman Indiction = " + N(RomanIndiction(year)));
}

// Week of the year with weeks from Sunday to Saturday, week 1 holding 1 January.
int NorthAmericanWeek(int dayOfYear, int weekdayOfJanuary1) {
  return (dayOfYear + weekdayOfJanuary1 - 2) / 7 + 1;
}

// Whitaker's Almanack: week 1 starts on the year's first Monday.
int FirstMondayOfYear(int year) {
  int f = (10 - WeekdayOfJD(GregorianToJD(1, 1, year))) % 7;
  return f == 0 ? 7 : f;
}

std::string IsoYearMonthDay(int year, int month, int day) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%04d-%02d-%02d", year, month, day);
  return buf;
}

bool HasIso53Weeks(int year) {
  const int w = WeekdayOfJD(GregorianToJD(1, 1, year));
  return w == 5 || (w == 4 && IsGregorianLeap(year));
}

}  // namespace

std::string GregorianDetails(Context& ctx, int day, int month, int year, JD jd) {
  Lines out;
  const JD newYear = GregorianToJD(1, 1, year);
  const int dayOfYear = jd - newYear + 1;
  const int w1 = WeekdayOfJD(newYear);
  const bool from1583 = jd >= GregorianToJD(1, 1, 1583);

  if (from1583) ChristmasCountdown(out, kGregorian, year, dayOfYear);
  if (year <= ctx.Now().year + 1)
    for (const std::string& l : RegnalLines(ctx, jd, RegnalStyle::Gregorian)) out.Add(l);
  char ordinal[16];
  std::snprintf(ordinal, sizeof ordinal, "%03d", dayOfYear);
  out.Add("Ordinal date format is " + N(year) + "-" + ordinal + ".");
  if (from1583) {
    out.Add("Date in ISO 8601 international standard date format is " +
            IsoYearMonthDay(year, month, day) + ".");
    const IsoWeek iso = IsoWeekOf(Calendars(ctx), jd);
    out.Add("In line with the ISO 8601 standard, this date is in week " + N(iso.week) +
            (iso.year < year   ? " of the previous year."
             : iso.year > year ? " of the following year."
                               : " of the year."));
  }
  if (jd >= GregorianToJD(1, 1, 1780)) {
    const JD nextNewYear = GregorianToJD(1, 1, year + 1);
    const bool inNextWeek1 = month == 12 && jd >= nextNewYear - (WeekdayOfJD(nextNewYear) - 1);
    out.Add("In North America, this date is in week " +
            (inNextWeek1 ? std::string("1 of the following year.")
                         : N(NorthAmericanWeek(dayOfYear, w1)) + " of the year."));
  }
  if (from1583) {
    const int f = FirstMondayOfYear(year);
    std::string text = "In line with Whitaker's Almanack, this date is in week ";
    if (dayOfYear < f) {
      int lastWeek = 51;
      if (year > 1583) {
        const int previousLength = newYear - GregorianToJD(1, 1, year - 1);
        lastWeek = (previousLength - FirstMondayOfYear(year - 1)) / 7 + 1;
      }
      text += N(lastWeek) + " of the previous year.";
    } else {
      text += N((dayOfYear - f) / 7 + 1) + " of the year.";
    }
    out.Add(text);
  }
  const JD gpsEpoch = GregorianToJD(6, 1, 1980);
  if (jd >= gpsEpoch) {
    const int w = (jd - gpsEpoch) / 7;
    out.Add("This date is in GPS week " + N(w % 1024) + " (cycle " + N(w / 1024) + ").");
  }
  int s = (jd - 1721470) % 10, b = (jd - 1721470) % 12;
  if (s == 0) s = 10;
  if (b == 0) b = 12;
  std::string_view branch = kChineseBranches[static_cast<std::size_t>(b)];
  branch = branch.substr(0, branch.find(' '));
  out.Add("Traditional Chinese day name is " + ToLower(kChineseStems[static_cast<std::size_t>(s)]) +
          "-" + ToLower(branch) + " (celestial stem " + N(s) + ", terrestrial branch " + N(b) +
          ").");
  static constexpr const char* kThaiColours[] = {"",      "red",    "yellow", "pink",
                                                 "green", "orange", "blue",   "purple"};
  out.Add(std::string("Thai day colour = ") + kThaiColours[WeekdayOfJD(jd)]);
  out.Blank();
  out.Add("Modified Julian Day (MJD) = " + N(jd - 2400001));
  out.Add("Lilian Day = " + N(jd - 2299160));
  out.Add("Rata Die (RD) = " + N(jd - 1721425));
  const JD cep = GregorianToJD(20, 3, 2675);
  out.Add(jd > cep    ? "CEP + " + N(jd - cep)
          : jd == cep ? std::string("CEP")
                      : "CEP - " + N(cep - jd));
  out.Blank();
  if (day == 13 && WeekdayOfJD(jd) == 6) out.Add("Unlucky Friday the Thirteenth?");
  if (from1583) {
    out.Add("ISO calendar year " + N(year) + " contains " + (HasIso53Weeks(year) ? "53" : "52") +
            " weeks.");
    for (int y = year + 1; y <= 9999; ++y)
      if (HasIso53Weeks(y)) {
        out.Add("Next ISO calendar year containing 53 weeks is " + N(y) + ".");
        break;
      }
  }
  if (year < 4000) {
    CalDate julian = JDToJulian(Calendars(ctx), jd);
    const int auc = julian.year + 753;
    out.Add("Equivalent Julian date in Roman date form is " +
            RomanDate(julian.day, julian.month, julian.year) + ", " +
            (auc < 4000 ? ToRoman(auc) : N(auc)) + " AUC.");
  }
  RomanYearLines(out, year);
  if (year >= 1873 && year <= 2015) {
    const char* era = year <= 1911   ? "Meiji"
                      : year <= 1925 ? "Taisho"
                      : year <= 1988 ? "Showa"
                                     : "Heisei";
    const int base = year <= 1911 ? 1867 : year <= 1925 ? 1911 : year <= 1988 ? 1925 : 1988;
    out.Add(N(year) + " is Japanese year " + era + " " + N(year - base) + ".");
  }
  static constexpr const char* kElements[] = {"Fire", "Earth", "Iron", "Water", "Wood"};
  static constexpr const char* kAnimals[] = {"Hare", "Dragon", "Snake", "Horse", "Sheep", "Monkey",
                                             "Bird", "Dog",    "Pig",   "Mouse", "Ox",    "Tiger"};
  const int r = (year + 4) % 10;
  const int element = year % 2 ? (r - 1) / 2 : r / 2;
  out.Add(std::string("The Tibetan year is ") + kElements[element] + "-" +
          kAnimals[(year + 5) % 12] + ", Rabjung cycle " + N((year - 967) / 60) + ".");
  out.Blank();
  out.Add("The first day of the year is a " + WeekdayOf(newYear) + ".");
  out.Add("Christmas Day occurs on a " + WeekdayOf(GregorianToJD(25, 12, year)) + ".");
  if (from1583) {
    ReuseLines(out, kGregorian, year, "Easter");
    std::string earlier;
    int found = 0;
    for (int y = year - 1; y >= 1583 && found < 5; --y)
      if (WeekdayOfJD(GregorianToJD(1, 1, y)) == w1 &&
          IsGregorianLeap(y) == IsGregorianLeap(year)) {
        earlier += (found ? ", " : "") + N(y);
        ++found;
      }
    if (found)
      out.Add("Ignoring Easter, the calendar for " + N(year) +
              " is the same as the calendar(s) for " + earlier + ".");
  }
  for (const std::string& l : GamesLinesOfYear(year)) out.Add(l);
  out.Blank();
  const std::string letters = DominicalLetters(w1, IsGregorianLeap(year));
  if (letters.size() == 2)
    out.Add(std::string("Dominical (Sunday) letters are ") + letters[0] + " and " + letters[1] +
            ".");
  else
    out.Add("Dominical (Sunday) letter is " + letters + ".");
  CycleLines(out, year);
  out.Add("Epact = " + N(GregorianEpact(year)));
  return out.Take();
}

std::string JulianDetails(Context& ctx, int day, int month, int year, JD jd) {
  (void)day;
  (void)month;
  Lines out;
  const JD newYear = JulianToJD(1, 1, year);
  ChristmasCountdown(out, kJulian, year, jd - newYear + 1);
  for (const std::string& l : RegnalLines(ctx, jd, RegnalStyle::Julian)) out.Add(l);
  out.Add("Modified Julian Day (MJD) = " + N(jd - 2400001));
  if (year >= 1) {
    const int auc = year + 753;
    out.Add("Date in Roman date form is " + RomanDate(day, month, year) + ", " +
            (auc < 4000 ? ToRoman(auc) : N(auc)) + " AUC.");
  }
  if (year >= 1) RomanYearLines(out, year);
  out.Add("The first day of the year is a " + WeekdayOf(newYear) + ".");
  // In 1582 Christmas fell after the change, on a Gregorian Saturday.
  out.Add("Christmas Day occurs on a " +
          (year == 1582 ? std::string("Saturday") : WeekdayOf(JulianToJD(25, 12, year))) + ".");
  ReuseLines(out, kJulian, year, "Julian Easter");
  out.Blank();
  out.Add("Dominical (Sunday) letter is G.");
  CycleLines(out, year);
  out.Add("Epact = " + N(JulianEpact(year)));
  return out.Take();
}

}  // namespace mc
