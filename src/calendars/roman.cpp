#include "calendars/roman.h"

#include <array>

#include "calendars/gregorian.h"
#include "calendars/names.h"
#include "core/int_math.h"

namespace mc {

std::string ToRoman(int n) {
  if (n < 1 || n > 3999) return "****";
  static constexpr std::array<std::string_view, 10> kUnits = {"",  "I",  "II",  "III",  "IV",
                                                              "V", "VI", "VII", "VIII", "IX"};
  static constexpr std::array<std::string_view, 10> kTens = {"",  "X",  "XX",  "XXX",  "XL",
                                                             "L", "LX", "LXX", "LXXX", "XC"};
  static constexpr std::array<std::string_view, 10> kHundreds = {"",  "C",  "CC",  "CCC",  "CD",
                                                                 "D", "DC", "DCC", "DCCC", "CM"};
  static constexpr std::array<std::string_view, 4> kThousands = {"", "M", "MM", "MMM"};
  std::string out(kThousands[static_cast<std::size_t>(n / 1000)]);
  out += kHundreds[static_cast<std::size_t>(n / 100 % 10)];
  out += kTens[static_cast<std::size_t>(n / 10 % 10)];
  out += kUnits[static_cast<std::size_t>(n % 10)];
  return out;
}

int FromRoman(std::string_view text) {
  if (text.empty()) return 0;
  std::string s(text);
  for (char& c : s)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  // A subtractive pair followed by its own smaller letter is never written.
  for (std::string_view bad : {"CDC", "CMC", "XLX", "XCX", "IVI", "IXI"})
    if (s.find(bad) != std::string::npos) return 0;

  struct Piece {
    std::string_view text;
    int value;
  };
  // Taken from the front, at most one piece of each group, the longest first.
  static constexpr std::array<std::array<Piece, 3>, 7> kGroups = {{
      {{{"MMM", 3000}, {"MM", 2000}, {"M", 1000}}},
      {{{"CM", 900}, {"CD", 400}, {"D", 500}}},
      {{{"CCC", 300}, {"CC", 200}, {"C", 100}}},
      {{{"XC", 90}, {"XL", 40}, {"L", 50}}},
      {{{"XXX", 30}, {"XX", 20}, {"X", 10}}},
      {{{"IX", 9}, {"IV", 4}, {"V", 5}}},
      {{{"III", 3}, {"II", 2}, {"I", 1}}},
  }};
  std::string_view rest = s;
  int sum = 0;
  for (const auto& group : kGroups) {
    for (const Piece& p : group) {
      if (rest.substr(0, p.text.size()) == p.text) {
        sum += p.value;
        rest.remove_prefix(p.text.size());
        break;
      }
    }
  }
  return rest.empty() ? sum : 0;
}

std::string RomanDate(int day, int month, int year) {
  if (month < 1 || month > 12) return "";
  const bool leap = FloorMod(year, 4) == 0;
  const int length = GregorianMonthLength(month, leap);
  if (day < 1 || day > length) return "";
  const bool longMonth = month == 3 || month == 5 || month == 7 || month == 10;
  const int nones = longMonth ? 7 : 5;
  const int ides = longMonth ? 15 : 13;
  const std::string thisMonth(kRomanMonths[static_cast<std::size_t>(month)]);
  const std::string nextMonth(kRomanMonths[static_cast<std::size_t>(month % 12 + 1)]);

  std::string text;
  if (day == 1) {
    text = "Kalendae " + thisMonth;
  } else if (day <= nones - 2) {
    text = ToRoman(nones + 1 - day) + " Nonas " + thisMonth;
  } else if (day == nones - 1) {
    text = "pridie Nonas " + thisMonth;
  } else if (day == nones) {
    text = "Nonae " + thisMonth;
  } else if (day <= ides - 2) {
    text = ToRoman(ides + 1 - day) + " Idus " + thisMonth;
  } else if (day == ides - 1) {
    text = "pridie Idus " + thisMonth;
  } else if (day == ides) {
    text = "Idus " + thisMonth;
  } else if (month == 2 && leap) {
    // The leap day doubles the sixth day before the Kalends of March.
    if (day <= 24)
      text = ToRoman(30 - day) + " Kalendas " + nextMonth;
    else if (day == 25)
      text = "bis " + ToRoman(6) + " Kalendas " + nextMonth;
    else if (day <= 28)
      text = ToRoman(31 - day) + " Kalendas " + nextMonth;
    else
      text = "pridie Kalendas " + nextMonth;
  } else if (day < length) {
    text = ToRoman(length + 2 - day) + " Kalendas " + nextMonth;
  } else {
    text = "pridie Kalendas " + nextMonth;
  }
  // Counting towards a day puts the month in the accusative.
  if (day != 1 && day != nones && day != ides) text.back() = 's';
  return text;
}

int JulianPeriod(int year) {
  return FloorMod(year + 4712LL, 7980) + 1;
}
int DionysianPeriod(int year) {
  return FloorMod(year - 1140LL, 532) + 1;
}
int GoldenNumber(int year) {
  return FloorMod(year, 19) + 1;
}
int SolarNumber(int year) {
  return FloorMod(year + 8LL, 28) + 1;
}
int RomanIndiction(int year) {
  return FloorMod(year + 2LL, 15) + 1;
}

int JulianEpact(int year) {
  int e = FloorMod(11LL * (GoldenNumber(year) - 1), 30);
  return e == 0 ? 30 : e;
}

int GregorianEpact(int year) {
  const long long c = FloorDiv(year, 100) + 1;
  long long e = 11LL * (GoldenNumber(year) - 1) - (3 * c) / 4 + (8 * c + 5) / 25 + 8;
  int r = FloorMod(e, 30);
  return r == 0 ? 30 : r;
}

std::string DominicalLetters(int weekdayOfJanuary1, bool leap) {
  const int w = weekdayOfJanuary1 == 1 ? 8 : weekdayOfJanuary1;
  const char first = static_cast<char>('A' + (9 - w) - 1);
  if (!leap) return std::string(1, first);
  const char second = first == 'A' ? 'G' : static_cast<char>(first - 1);
  return std::string{first, second};
}

}  // namespace mc
