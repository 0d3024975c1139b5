#include "views/month_calendars.h"

#include <algorithm>
#include <cmath>

#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "calendars/hindu.h"
#include "core/errors.h"
#include "core/ini_file.h"
#include "core/number_format.h"
#include "core/text_util.h"
#include "views/calendar_views.h"

namespace mc {

using views::MonthDayYear;

namespace {

using C = CalType;

// Calendars whose thirteenth month is a short one of epagomenal days.
bool HasShortThirteenth(CalType t) {
  return t == C::Arm || t == C::Cop || t == C::Egy || t == C::Eth || t == C::Fre || t == C::Fas ||
         t == C::ParShe || t == C::PerQad;
}

// Balinese Saka years: not leap, leap with "11L" (A) or with "12L" (B).
enum class BalYear { Common, A, B };
BalYear BalYearType(CalendarEngine& engine, int year) {
  if (!engine.IsLeapYear(C::Bal, year)) return BalYear::Common;
  const int r = ((year % 19) + 19) % 19;
  return r == 0 || r == 6 || r == 11 ? BalYear::A : BalYear::B;
}

// The same Balinese month in a year of another type.
int BalMonthInYear(int month, BalYear from, BalYear to) {
  using B = BalYear;
  if (from == to) return month;
  if (from == B::Common && to == B::A) return month < 3 ? month : month + 1;
  if (from == B::Common && to == B::B) return month < 4 ? month : month + 1;
  if (from == B::A && to == B::Common) return month < 3 ? month : month - 1;
  if (from == B::A && to == B::B) return month != 3 && month != 4 ? month : month - 1;
  if (from == B::B && to == B::Common) return month < 4 ? month : month - 1;
  return month == 3 ? 4 : month;  // B to A
}

JD TodayJD(Context& ctx) {
  LocalDateTime now = ctx.Now();
  return GregorianToJD(now.day, now.month, now.year);
}

}  // namespace

const std::vector<MonthCalendarsScreen::Entry>& MonthCalendarsScreen::Entries() {
  static const std::vector<Entry> entries = {
      {"Afghan", C::Afg, 1, 9377},
      {"Armenian", C::Arm, 1, 9453},
      {"Baha'i", C::Bah, 1, 8155},
      {"Balinese Saka", C::Bal, 1737, 9920},
      {"Bangla", C::Ban, 1374, 9405},
      {"Chinese", C::Chi, 4282, 5636},
      {"Coptic", C::Cop, 1, 9715},
      {"Egyptian", C::Egy, 755, 10753},
      {"Ethiopic", C::Eth, 1, 9991},
      {"French Revolutionary", C::Fre, 1, 14},
      {"Gregorian", C::Greg, 1583, 9999},
      {"Hebrew", C::Heb, 3768, 13759},
      {"Hindu Lunisolar Ashada", C::HinLun1, 64, 10054},
      {"Hindu Lunisolar Chaitra", C::HinLun, 64, 10055},
      {"Hindu Lunisolar Kartika", C::HinLun2, 64, 10054},
      {"Hindu Solar", C::HinSol, 1, 9920},
      {"Indian National", C::Ind, 1879, 9920},
      {"Islamic Arithmetical", C::Isl, 1, 9665},
      {"Islamic Umm al-Qura", C::UAQ, 1356, 1500},
      {"Javanese Pawukon/Pasaran", C::Jav, 1555, 10177},
      {"Julian", C::Jul, 7, 9998},
      {"Parsi Fasli", C::Fas, 1276, 9368},
      {"Parsi Kadmi", C::PerQad, 500, 9373},
      {"Parsi Shenshai", C::ParShe, 500, 9373},
      {"Persian Arithmetic", C::Per, 1, 9377},
      {"Persian Astronomical", C::APer, 1, 2500},
      {"Revised Julian", C::RevJul, 1924, 9999},
      {"Sikh Nanakshahi", C::Sikh, 531, 8530},
      {"Vietnamese", C::Vie, 4282, 5636},
  };
  return entries;
}

std::optional<int> MonthCalendarsScreen::EntryIndex(std::string_view caption) {
  const auto& entries = Entries();
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (entries[i].caption == caption) return static_cast<int>(i);
  return std::nullopt;
}

MonthCalendarsScreen::MonthCalendarsScreen(Context& ctx) : ctx_(ctx) {}

void MonthCalendarsScreen::Load() {
  auto index = EntryIndex(ReadIniFile(ctx_, 0, "Favourite Calendar System"));
  if (index) SelectCalendar(*index);
}

CalType MonthCalendarsScreen::Type() const {
  return entry_ >= 0 ? Entries()[static_cast<std::size_t>(entry_)].type : C::Greg;
}

bool MonthCalendarsScreen::IsLunar() const {
  return HasCalendar() && (Type() == C::Chi || Type() == C::Vie);
}

bool MonthCalendarsScreen::IsHindu() const {
  return HasCalendar() && IsHinduLunisolar(Type());
}

int MonthCalendarsScreen::LastMonth(int year) {
  const CalType t = Type();
  if (t == C::Bah) return 20;
  if (t == C::Heb || HasShortThirteenth(t)) return 13;
  if (t == C::Bal) return Calendars(ctx_).IsLeapYear(C::Bal, year) ? 13 : 12;
  return 12;
}

const LunarYearTable& MonthCalendarsScreen::LunarYear(int year) {
  if (lunar_.monthCount == 0 || lunar_.type != Type() || lunar_.Year() != year)
    lunar_ = BuildLunarYear(Calendars(ctx_), Type(), year - kChineseYearOffset);
  return lunar_;
}

std::vector<int> MonthCalendarsScreen::HinduMonths(int year) {
  if (hinduMonths_.empty() || hinduMonthsYear_ != year || hinduMonthsType_ != Type()) {
    hinduMonths_ = views::HinduMonthsOfYear(Calendars(ctx_), Type(), year);
    hinduMonthsYear_ = year;
    hinduMonthsType_ = Type();
  }
  return hinduMonths_;
}

void MonthCalendarsScreen::SelectCalendar(int index) {
  if (index < 0 || index >= static_cast<int>(Entries().size()) || index == entry_) return;
  entry_ = index;
  focusMain_ = false;
  const CalType t = Type();
  CalendarEngine& engine = Calendars(ctx_);
  int month = 1, year = 1, row = 1;
  if (t != C::Fre) {
    const JD today = TodayJD(ctx_);
    CalDate d = engine.JDToDate(t, today);
    month = d.month;
    year = d.year;
    const CalendarInfo& info = InfoOf(t);
    if (year < info.firstYear || year > info.lastYear) {
      // A clock outside the calendar's years: its nearest end.
      year = std::clamp(year, info.firstYear, info.lastYear);
      month = 1;
    }
    if (t == C::Greg && (year < 1582 || (year == 1582 && month < 11))) {
      month = 11;
      year = 1582;
    }
    if (t == C::RevJul && (year < 1923 || (year == 1923 && month < 11))) {
      month = 11;
      year = 1923;
    }
    if (IsLunar()) {
      const LunarYearTable& table = LunarYear(year);
      for (int s = 1; s <= table.monthCount; ++s)
        if (table.monthStart[s] <= today) row = s;
      month = table.monthNumber[static_cast<std::size_t>(row)];
    }
    if (IsHindu()) {
      auto months = HinduMonths(year);
      if (!months.empty() && std::find(months.begin(), months.end(), month) == months.end())
        month = months.front();
    }
  }
  Show(month, year, row, true);
  status_ = t == C::Fre ? "This is the first month of the first year."
                        : "This is the current month and year.";
}

int MonthCalendarsScreen::MonthIndex() const {
  const int value = IsLunar() ? (Type() == C::Chi ? chineseRow_ : vietnameseRow_) : month_;
  auto it = std::find(listMonths_.begin(), listMonths_.end(), value);
  return it == listMonths_.end() ? -1 : static_cast<int>(it - listMonths_.begin());
}

std::string MonthCalendarsScreen::YearText() const {
  return HasCalendar() ? std::to_string(year_) : "";
}

std::string MonthCalendarsScreen::YearHint() const {
  if (!HasCalendar()) return "";
  const Entry& e = Entries()[static_cast<std::size_t>(entry_)];
  return "Enter a year value in the range " + std::to_string(e.low) + " to " +
         std::to_string(e.high) + " and press the Enter key.";
}

bool MonthCalendarsScreen::ChangeOverRefused(int month, int year) {
  if (Type() == C::Greg && (year < 1582 || (year == 1582 && month < 11))) {
    ShowError(ctx_, Err("Months earlier than November in 1582 cannot be displayed."));
    return true;
  }
  if (Type() == C::RevJul && (year < 1923 || (year == 1923 && month < 11))) {
    ShowError(ctx_, Err("Months earlier than November in 1923 cannot be displayed."));
    return true;
  }
  return false;
}

bool MonthCalendarsScreen::YearInRange(int year) {
  if (ValidateYearText(ctx_, Type(), std::to_string(year)) != 0) return true;
  status_.clear();
  return false;
}

int MonthCalendarsScreen::MonthInYear(int month, int oldYear, int newYear, int& row) {
  CalendarEngine& engine = Calendars(ctx_);
  const CalType t = Type();
  row = 1;
  if (t == C::Heb) return month == 7 && !engine.IsLeapYear(C::Heb, newYear) ? 6 : month;
  if (t == C::Bal)
    return BalMonthInYear(month, BalYearType(engine, oldYear), BalYearType(engine, newYear));
  if (IsHindu()) {
    int m = month > 100 ? month - 100 : month;
    if (!hindu::ValidHinduMonth(engine, t, m, newYear)) m = m < 2 ? 2 : m - 1;
    auto months = HinduMonths(newYear);
    if (!months.empty() && std::find(months.begin(), months.end(), m) == months.end())
      m = months.front();  // a month lost from the year: its first
    return m;
  }
  if (IsLunar()) {
    int& shown = t == C::Chi ? chineseRow_ : vietnameseRow_;
    const LunarYearTable& old = LunarYear(oldYear);
    int r = shown;
    if (old.monthNumber[static_cast<std::size_t>(r)] == 0 && r > 1) --r;
    month = old.monthNumber[static_cast<std::size_t>(r)];
    const LunarYearTable& table = LunarYear(newYear);
    for (int s = table.monthCount; s >= 1; --s)
      if (table.monthNumber[static_cast<std::size_t>(s)] == month) row = s;
    return table.monthNumber[static_cast<std::size_t>(row)];
  }
  return std::min(month, LastMonth(newYear));
}

bool MonthCalendarsScreen::EnterYear(std::string_view text) {
  if (!HasCalendar()) return false;
  focusMain_ = false;
  int year = 0;
  if (Trim(text).empty()) {
    year = Type() == C::Fre ? 1 : Calendars(ctx_).JDToDate(Type(), TodayJD(ctx_)).year;
  } else {
    auto v = ParseStrictNumber(Trim(text), ctx_.settings.decimalSeparator);
    if (!v) {
      ShowError(ctx_, Err("Year value must be numeric."));
      return false;
    }
    if (*v <= 0) {
      ShowError(ctx_, Err("Year value must be positive."));
      return false;
    }
    if (std::floor(*v) != *v) {
      ShowError(ctx_, Err("Year value must be an integer."));
      return false;
    }
    if (*v > 1e6) {  // far past every calendar's range: its own message
      ValidateYearText(ctx_, Type(), Trim(text));
      status_.clear();
      return false;
    }
    year = static_cast<int>(*v);
  }
  return ChangeYear(year);
}

bool MonthCalendarsScreen::StepYear(int delta) {
  if (!HasCalendar()) return false;
  focusMain_ = false;
  return ChangeYear(year_ + delta);
}

bool MonthCalendarsScreen::ChangeYear(int year) {
  if (ChangeOverRefused(month_, year) || !YearInRange(year)) return false;
  int row = 1;
  int month = MonthInYear(month_, year_, year, row);
  Show(month, year, row, false);
  return true;
}

bool MonthCalendarsScreen::StepMonth(int delta) {
  if (!HasCalendar() || delta == 0) return false;
  focusMain_ = false;
  const CalType t = Type();
  int month = month_, year = year_, row = 1;
  if (IsLunar()) {
    const CalendarInfo& info = InfoOf(t);
    row = (t == C::Chi ? chineseRow_ : vietnameseRow_) + delta;
    if (row < 1 || row > LunarYear(year).monthCount) {
      year += delta < 0 ? -1 : 1;
      if (year < info.firstYear || year > info.lastYear) {
        status_ = kUnable;
        focusMain_ = true;
        return false;
      }
      row = row < 1 ? LunarYear(year).monthCount : 1;
    }
    month = LunarYear(year).monthNumber[static_cast<std::size_t>(row)];
    Show(month, year, row, false);
    return true;
  }
  if (IsHindu()) {
    auto months = HinduMonths(year);
    auto it = std::find(months.begin(), months.end(), month_);
    int i = static_cast<int>(it - months.begin()) + delta;
    if (i < 0 || i >= static_cast<int>(months.size())) {
      year += delta < 0 ? -1 : 1;
      if (!YearInRange(year)) return false;
      months = HinduMonths(year);
      if (months.empty()) return false;
      i = delta < 0 ? static_cast<int>(months.size()) - 1 : 0;
    }
    Show(months[static_cast<std::size_t>(i)], year, 1, false);
    return true;
  }
  const bool common = t == C::Heb && !Calendars(ctx_).IsLeapYear(C::Heb, year);
  month += delta;
  if (common && month == 7) month += delta;
  if (month < 1) {
    --year;
    month = LastMonth(year);
  } else if (month > LastMonth(year)) {
    ++year;
    month = 1;
  }
  if (ChangeOverRefused(month, year)) return false;
  if (year != year_ && !YearInRange(year)) return false;
  Show(month, year, 1, false);
  return true;
}

bool MonthCalendarsScreen::SelectMonth(int listIndex) {
  if (!HasCalendar() || listIndex < 0 || listIndex >= static_cast<int>(listMonths_.size()))
    return false;
  focusMain_ = false;
  const int value = listMonths_[static_cast<std::size_t>(listIndex)];
  if (IsLunar()) {
    Show(LunarYear(year_).monthNumber[static_cast<std::size_t>(value)], year_, value, false);
    return true;
  }
  if (ChangeOverRefused(value, year_)) return false;
  Show(value, year_, 1, false);
  return true;
}

bool MonthCalendarsScreen::CtrlKey(bool plus, Focus focus) {
  switch (focus) {
    case Focus::Year:
      return StepYear(plus ? 1 : -1);
    case Focus::Month:
      return StepMonth(plus ? 1 : -1);
    case Focus::Other:
      break;
  }
  ctx_.sink().Show(kInformation,
                   plus ? "To use Ctrl++ you must first left-click the control containing the "
                          "value you wish to change."
                        : "To use Ctrl+- you must first left-click the control containing the "
                          "value you wish to change.");
  return false;
}

void MonthCalendarsScreen::Show(int month, int year, int row, bool forceList) {
  const bool refill = forceList || year != listYear_ || Type() != listType_;
  month_ = month;
  year_ = year;
  if (IsLunar()) (Type() == C::Chi ? chineseRow_ : vietnameseRow_) = row;
  if (refill) {
    status_ = kPleaseWait;
    if (onPleaseWait) onPleaseWait();
    FillMonthList();
  }
  Render();
  status_ = kReady;
}

void MonthCalendarsScreen::FillMonthList() {
  monthList_.clear();
  listMonths_.clear();
  const CalType t = Type();
  if (IsLunar()) {
    const LunarYearTable& table = LunarYear(year_);
    for (int s = 1; s <= table.monthCount; ++s) {
      monthList_.push_back(views::LunarRowCaption(table, s));
      listMonths_.push_back(s);
    }
  } else if (IsHindu()) {
    for (int m : HinduMonths(year_)) {
      monthList_.push_back(views::MonthName(ctx_, t, m, year_));
      listMonths_.push_back(m);
    }
  } else {
    const bool common = t == C::Heb && !Calendars(ctx_).IsLeapYear(C::Heb, year_);
    for (int m = 1; m <= LastMonth(year_); ++m) {
      if (common && m == 7) continue;
      monthList_.push_back(views::MonthName(ctx_, t, m, year_));
      listMonths_.push_back(m);
    }
  }
  listYear_ = year_;
  listType_ = t;
}

void MonthCalendarsScreen::Render() {
  CalendarEngine& engine = Calendars(ctx_);
  const CalType t = Type();
  JD jd = 0;
  std::vector<int> days;
  std::string caption;
  if (IsLunar()) {
    const LunarYearTable& table = LunarYear(year_);
    const int row = t == C::Chi ? chineseRow_ : vietnameseRow_;
    const auto r = static_cast<std::size_t>(row);
    jd = table.monthStart[r];
    for (int d = 1; d <= table.monthLength[r]; ++d) days.push_back(d);
    caption = views::LunarRowCaption(table, row);
  } else if (IsHindu()) {
    jd = engine.DateToJD(t, 1, month_, year_);
    if (jd < hindu::kRDToJD) jd = engine.DateToJD(t, 2, month_, year_);
    // The days of the month in the Chaitra reckoning (Rajasthan in its own),
    // each lunar day as it falls: a repeated day twice, a skipped one not at all.
    const CalType walk = t == C::HinLun3 ? C::HinLun3 : C::HinLun;
    const int target = hindu::ConvertHinduMonth(t, month_, year_, walk).month;
    for (JD d = jd; jd > hindu::kRDToJD && d < jd + 35; ++d) {
      CalDate c = engine.JDToDate(walk, d);
      if (c.month != target) break;
      days.push_back(c.day >= 100 ? c.day - 100 : c.day);
    }
    caption = views::MonthName(ctx_, t, month_, year_);
  } else if (t == C::Bal) {
    jd = engine.DateToJD(t, 1, month_, year_);
    if (jd == -1) jd = engine.DateToJD(t, 2, month_, year_);
    for (int d = 1; d <= 30; ++d)
      if (engine.DateToJD(t, d, month_, year_) != -1) days.push_back(d);
    caption = views::MonthName(ctx_, t, month_, year_);
  } else {
    jd = engine.DateToJD(t, 1, month_, year_);
    for (int d = 1; d <= engine.DaysInMonth(t, year_, month_); ++d) days.push_back(d);
    caption = views::MonthName(ctx_, t, month_, year_);
  }

  firstDay_ = jd;
  // The heading, centred over the grid's 24 characters.
  const std::string yearText = std::to_string(year_);
  const int n = static_cast<int>(DisplayWidth(caption) + yearText.size() + 1);
  const int lead = std::max(0, (24 - n) / 2 + 1);
  grid_ = std::string(static_cast<std::size_t>(lead), ' ') + caption + " " + yearText + "\r\n\r\n";

  const int startDay = ctx_.settings.startDay;
  grid_ += " " + std::string(views::WeekLetters(startDay)) + "\r\n ";
  int column = views::WeekColumn(WeekdayOfJD(jd), startDay);
  grid_ += std::string(static_cast<std::size_t>(3 * (column - 1)), ' ');
  for (int d : days) {
    grid_ += " " + PadLeft(std::to_string(d), 2);
    if (++column == 8) {
      grid_ += "\r\n ";
      column = 1;
    }
  }

  // When the month began, in the Julian or the Gregorian calendar.
  information_.clear();
  if (jd < kGregorianStart || t == C::Greg) {
    if (t != C::Jul && t != C::Greg) {
      CalDate j = JDToJulian(engine, jd);
      information_ = "Month began on " + MonthDayYear(j.day, j.month, j.year) + " (Julian).";
    }
  } else {
    CalDate g = JDToGregorian(engine, jd);
    information_ = std::string("Month ") + (jd > TodayJD(ctx_) ? "begins" : "began") + " on " +
                   MonthDayYear(g.day, g.month, g.year) + " (Gregorian).";
  }

  cycle_.clear();
  if (IsLunar()) {
    views::Sexagenary s = views::SexagenaryOf(year_);
    const int animal = s.year % 12 == 0 ? 12 : s.year % 12;
    cycle_ = "Cycle " + std::to_string(s.cycle) + ", Year " + std::to_string(s.year) +
             "\r\nThe Year of the " + views::AnimalOfBranch(views::BranchEntry(ctx_, t, animal));
  }
}

}  // namespace mc
