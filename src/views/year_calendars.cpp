#include "views/year_calendars.h"

#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "core/errors.h"
#include "core/ini_file.h"
#include "core/number_format.h"
#include "core/text_util.h"
#include "views/year_pages.h"

namespace mc {

namespace {
using C = CalType;
}  // namespace

const std::vector<YearCalendarsScreen::Entry>& YearCalendarsScreen::Entries() {
  static const std::vector<Entry> entries = {
      {"Afghan", C::Afg, 1, 9377, " an ", ""},
      {"Armenian", C::Arm, 1, 9453, " an ", ""},
      {"Baha'i", C::Bah, 1, 8155, " a ", " B.E."},
      {"Balinese Pawukon", C::Paw, 1583, 9999, " a ", ""},
      {"Balinese Saka", C::Bal, 1737, 9920, " a ", ""},
      {"Bangla", C::Ban, 1374, 9405, " a ", " B.S."},
      {"Chinese", C::Chi, 4282, 5637, " a ", ""},
      {"Coptic", C::Cop, 1, 9715, " a ", " A.M."},
      {"Egyptian", C::Egy, 755, 10753, " an ", ""},
      {"Ethiopic", C::Eth, 1, 9991, " an ", " E.E."},
      {"French Revolutionary", C::Fre, 1, 14, " a ", ""},
      {"Gregorian", C::Greg, 1582, 9999, " a ", ""},
      {"Hebrew", C::Heb, 3768, 13759, " a ", " A.M."},
      {"Hindu Lunisolar Ashada", C::HinLun1, 64, 10054, " a ", " V.E."},
      {"Hindu Lunisolar Chaitra", C::HinLun, 64, 10055, " a ", " V.E."},
      {"Hindu Lunisolar Kartika", C::HinLun2, 64, 10054, " a ", " V.E."},
      {"Hindu Lunisolar Rajasthan", C::HinLun3, 65, 10055, " a ", " V.E."},
      {"Hindu Solar", C::HinSol, 1, 9920, " a ", " S.E."},
      {"Indian National", C::Ind, 1879, 9920, " an ", " S.E."},
      {"Islamic Arithmetical", C::Isl, 1, 9665, " an ", " A.H."},
      {"Islamic Umm al-Qura", C::UAQ, 1356, 1500, " an ", " A.H."},
      {"Javanese Pawukon/Pasaran", C::Jav, 1555, 10177, " a ", " A.J."},
      {"Julian", C::Jul, 7, 9999, " a ", " C.E."},
      {"Parsi Fasli", C::Fas, 1276, 9367, " a ", ""},
      {"Parsi Kadmi", C::PerQad, 500, 9373, " a ", ""},
      {"Parsi Shenshai", C::ParShe, 500, 9373, " a ", ""},
      {"Persian Arithmetic", C::Per, 1, 9377, " a ", " A.P."},
      {"Persian Astronomical", C::APer, 1, 2500, " a ", " A.P."},
      {"Revised Julian", C::RevJul, 1923, 9999, " a ", " C.E."},
      {"Sikh Nanakshahi", C::Sikh, 531, 8530, " a ", ""},
      {"Vietnamese", C::Vie, 4282, 5637, " a ", ""},
      {"Yoruba", C::Yor, 9625, 18041, " a ", ""},
  };
  return entries;
}

std::optional<int> YearCalendarsScreen::EntryIndex(std::string_view caption) {
  const auto& entries = Entries();
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (entries[i].caption == caption) return static_cast<int>(i);
  return std::nullopt;
}

YearCalendarsScreen::YearCalendarsScreen(Context& ctx) : ctx_(ctx) {}

void YearCalendarsScreen::Load() {
  auto index = EntryIndex(ReadIniFile(ctx_, 0, "Favourite Calendar System"));
  if (index) SelectCalendar(*index);
}

CalType YearCalendarsScreen::Type() const {
  return entry_ >= 0 ? Entries()[static_cast<std::size_t>(entry_)].type : C::Greg;
}

void YearCalendarsScreen::ChooseCalendar(int index) {
  if (index < 0 || index >= static_cast<int>(Entries().size())) return;
  entry_ = index;
  year_ = 0;
}

void YearCalendarsScreen::SelectCalendar(int index) {
  if (index < 0 || index >= static_cast<int>(Entries().size())) return;
  ChooseCalendar(index);
  yearText_.clear();
  Enter();
}

std::string YearCalendarsScreen::Hint() const {
  if (!HasCalendar()) return "";
  const Entry& e = Entries()[static_cast<std::size_t>(entry_)];
  std::string caption(e.caption);
  if (e.type == C::Isl || e.type == C::UAQ) caption = "Islamic";
  if (e.type == C::Paw) caption = "Gregorian";
  std::string hint = "Input" + std::string(e.article) + caption + " year in the range " +
                     std::to_string(e.low) + " to " + std::to_string(e.high) +
                     " and press the Enter key.";
  if (e.type != C::Fre) hint += " Leave blank for current year.";
  return hint;
}

bool YearCalendarsScreen::LongBuild() const {
  const CalType t = Type();
  return HasCalendar() && (IsHinduLunisolar(t) || t == C::HinSol || t == C::Paw);
}

bool YearCalendarsScreen::Enter() {
  if (!HasCalendar()) return false;
  const CalType t = Type();
  std::string text = TrimCopy(yearText_);
  if (text.empty()) {
    const LocalDateTime now = ctx_.Now();
    int year = now.year;
    if (t == C::Fre)
      year = 1;
    else if (t != C::Paw)
      year = Calendars(ctx_).JDToDate(t, GregorianToJD(now.day, now.month, now.year)).year;
    text = std::to_string(year);
  } else {
    auto v = ParseStrictNumber(text, ctx_.settings.decimalSeparator);
    if (!v) {
      ShowError(ctx_, Err("Year value must be numeric."));
      return false;
    }
    if (*v > 32765) {
      ShowError(ctx_, Err("Invalid input error."));
      return false;
    }
    if (*v <= 0) {
      ShowError(ctx_, Err("Year value must be positive."));
      return false;
    }
  }
  yearText_ = text;
  const int year = ValidateYearText(ctx_, t, text);
  if (year == 0) return false;
  if (LongBuild()) {
    output_ = kPleaseWait;
    if (onPleaseWait) onPleaseWait();
  }
  const Entry& e = Entries()[static_cast<std::size_t>(entry_)];
  output_ = views::YearPage(ctx_, t, e.caption, e.era, year);
  year_ = year;
  return true;
}

bool YearCalendarsScreen::Spin(int delta) {
  if (!HasCalendar()) return false;
  int base = year_;
  if (base == 0) {
    long long typed = 0;
    if (!ParseInt(yearText_, typed)) return false;
    base = static_cast<int>(typed);
  }
  yearText_ = std::to_string(base + delta);
  return Enter();
}

bool YearCalendarsScreen::ConfirmPrint() {
  if (Type() != C::Paw) return true;
  return ctx_.sink().Ask(kInformation, kPawukonPrintQuestion);
}

}  // namespace mc
