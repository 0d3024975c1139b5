#include "reminders/add_screen.h"

#include <cmath>

#include "calendars/gregorian.h"
#include "calendars/names.h"
#include "core/errors.h"
#include "core/number_format.h"
#include "core/text_util.h"
#include "reminders/reminder_text.h"
#include "reminders/store.h"

namespace mc {

namespace {

bool Whole(double v) {
  return std::floor(v) == v;
}

JD Today(Context& ctx) {
  LocalDateTime now = ctx.Now();
  return GregorianToJD(now.day, now.month, now.year);
}

int MonthLength(int year, int month) {
  return GregorianMonthLength(month, IsGregorianLeap(year));
}

}  // namespace

std::optional<DayMonthText> ParseDayMonth(Context& ctx, std::string_view text) {
  std::string_view t = Trim(text);
  if (t.empty()) {
    ShowError(ctx, Err("No values specified for d and m."));
    return std::nullopt;
  }
  auto slash = t.find('/');
  if (slash == std::string_view::npos) {
    ShowError(ctx, Err("Missing / between d and m"));
    return std::nullopt;
  }
  const char sep = ctx.settings.decimalSeparator;
  auto day = ParseStrictNumber(t.substr(0, slash), sep);
  if (!day) {
    ShowError(ctx, Err("Day value must be numeric."));
    return std::nullopt;
  }
  auto month = ParseStrictNumber(t.substr(slash + 1), sep);
  if (!month) {
    ShowError(ctx, Err("Month value must be numeric."));
    return std::nullopt;
  }
  if (!Whole(*month) || *month < 1 || *month > 12) {
    ShowError(ctx, Err("Invalid month value."));
    return std::nullopt;
  }
  return DayMonthText{*day, static_cast<int>(*month)};
}

std::optional<int> CheckReminderDay(Context& ctx, double day, int month, int year) {
  // The year 10000 counts as a leap year by the Gregorian rule; the rule
  // below is what keeps February 29 out of every-year reminders.
  if (!Whole(day) || day < 1 || day > MonthLength(year, month)) {
    ShowError(ctx, Err("Invalid day value."));
    return std::nullopt;
  }
  if (day == 29 && month == 2 && year == kEveryYear) {
    ShowError(ctx, Err("February 29 does not occur every year."));
    return std::nullopt;
  }
  return static_cast<int>(day);
}

std::optional<std::string> CheckReminderMessage(Context& ctx, std::string_view message) {
  std::string text = TrimCopy(message);
  if (text.empty()) {
    ShowError(ctx, Err("No message."));
    return std::nullopt;
  }
  if (text.size() > static_cast<std::size_t>(kMessageWidth)) {
    ShowError(ctx, Err("Message contains more than 60 characters."));
    return std::nullopt;
  }
  return text;
}

bool ConfirmFieldsInDatedReminder(Context& ctx, std::string_view message, int year) {
  if (year == kEveryYear || message.find('<') == std::string_view::npos ||
      message.find('>') == std::string_view::npos)
    return true;
  return ctx.sink().Ask(kInformation,
                        "This is not an \"every year\" reminder yet it contains the characters "
                        "\"<\" and \">\". Do you definitely want it saved?");
}

AddRemindersScreen::AddRemindersScreen(Context& ctx) : ctx_(ctx) {
  ResetInputs();
}

const std::vector<std::string>& AddRemindersScreen::OrdinalList() {
  static const std::vector<std::string> list = {"First", "Second",      "Third", "Fourth",
                                                "Fifth", "Second last", "Last",  "Every"};
  return list;
}

const std::vector<std::string>& AddRemindersScreen::WeekdayList() {
  static const std::vector<std::string> list = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                "Thursday", "Friday", "Saturday"};
  return list;
}

const std::vector<std::string>& AddRemindersScreen::Type3DayList() {
  static const std::vector<std::string> list = [] {
    std::vector<std::string> l;
    for (int d = 1; d <= 31; ++d) l.push_back(std::to_string(d));
    l.insert(l.end(), {"Second last", "Last", "Every"});
    return l;
  }();
  return list;
}

std::vector<int> AddRemindersScreen::YearList() const {
  int y = ctx_.Now().year;
  return {y - 1, y, y + 1, y + 2};
}

void AddRemindersScreen::SetSeries(bool on) {
  series = on;
  if (on) {
    seriesEndMonth = 12;
    seriesEndYear = ctx_.Now().year + 1;
  }
}

std::string AddRemindersScreen::MessageCount() const {
  return std::to_string(message.size());
}

void AddRemindersScreen::PresetDate(int day, int month, YearOption option) {
  type = 1;
  dayMonth = std::to_string(day) + "/" + std::to_string(month);
  yearOption = option;
}

void AddRemindersScreen::ResetInputs() {
  const LocalDateTime now = ctx_.Now();
  message.clear();
  type = 1;
  dayMonth.clear();
  yearOption = YearOption::ThisYear;
  series = false;
  seriesDays.clear();
  seriesEndMonth = 12;
  seriesEndYear = now.year + 1;
  ordinal = "First";
  weekday = "Sunday";
  type3Day = "1";
  fromMonth = now.month;
  fromYear = now.year;
  toMonth = 12;
  toYear = now.year + 1;
}

bool AddRemindersScreen::Type1(const std::string& text, std::vector<Date>& dates,
                               std::optional<std::string>& peyrLine, bool& seriesRequested) {
  const LocalDateTime now = ctx_.Now();
  const JD today = Today(ctx_);
  auto dm = ParseDayMonth(ctx_, dayMonth);
  if (!dm) return false;
  const int year = yearOption == YearOption::ThisYear   ? now.year
                   : yearOption == YearOption::NextYear ? now.year + 1
                                                        : kEveryYear;
  auto day = CheckReminderDay(ctx_, dm->day, dm->month, year);
  if (!day) return false;
  const int month = dm->month;
  if (!ConfirmFieldsInDatedReminder(ctx_, text, year)) return false;

  seriesRequested = series && year != kEveryYear;
  int step = 0;
  JD endJD = 0;
  if (seriesRequested) {
    auto n = ParseStrictNumber(seriesDays, ctx_.settings.decimalSeparator);
    if (!n) {
      ShowError(ctx_, Err("Number of days must be numeric."));
      return false;
    }
    if (*n < 1) {
      ShowError(ctx_, Err("Number of days must be greater than 0."));
      return false;
    }
    if (*n > 730) {
      ShowError(ctx_, Err("Number of days must not exceed 730."));
      return false;
    }
    if (!Whole(*n)) {
      ShowError(ctx_, Err("Value must be an integer."));
      return false;
    }
    step = static_cast<int>(*n);
    if (seriesEndMonth < 1 || seriesEndMonth > 12) {
      ShowError(ctx_, Err("Invalid month value."));
      return false;
    }
    if (seriesEndYear < year) {
      ShowError(ctx_, Err("Year values are wrongly ordered."));
      return false;
    }
    if (seriesEndYear == year && seriesEndMonth < month) {
      ShowError(ctx_, Err("Month values are wrongly ordered within year."));
      return false;
    }
    if (seriesEndYear > now.year + 1) {
      ShowError(ctx_, Err("Year values must not be greater than {next year}."));
      return false;
    }
    endJD =
        GregorianToJD(MonthLength(seriesEndYear, seriesEndMonth), seriesEndMonth, seriesEndYear);
  }

  const JD d = GregorianToJD(*day, month, year);
  if (d >= today) dates.push_back({*day, month, year});
  if (year == kEveryYear && GregorianToJD(*day, month, now.year) < today) {
    std::string shown = ExpandReminderField(ctx_, text, now.year);
    if (!shown.empty()) peyrLine = OutOfDateLine(month, *day, now.year, shown);
  }
  if (seriesRequested) {
    CalendarEngine& cal = Calendars(ctx_);
    for (JD next = d + step; next <= endJD; next += step) {
      if (next < today) continue;
      CalDate c = cal.JDToDate(CalType::Greg, next);
      dates.push_back({c.day, c.month, c.year});
    }
  }
  return true;
}

bool AddRemindersScreen::SpanChecks() {
  const LocalDateTime now = ctx_.Now();
  if (fromMonth < 1 || fromMonth > 12 || toMonth < 1 || toMonth > 12) {
    ShowError(ctx_, Err("Invalid month value."));
    return false;
  }
  if ((fromYear == now.year && fromMonth < now.month) ||
      (toYear == now.year && toMonth < now.month)) {
    ShowError(ctx_, Err("A specified month is in the past."));
    return false;
  }
  if (fromYear > now.year + 1 || toYear > now.year + 1) {
    ShowError(ctx_, Err("Year values must not be greater than {next year}."));
    return false;
  }
  if (fromYear < now.year || toYear < now.year) {
    ShowError(ctx_, Err("Year values must not be less than {this year}."));
    return false;
  }
  if (toYear < fromYear) {
    ShowError(ctx_, Err("Year values are wrongly ordered."));
    return false;
  }
  if (toYear == fromYear && toMonth < fromMonth) {
    ShowError(ctx_, Err("Month values are wrongly ordered within year."));
    return false;
  }
  return true;
}

bool AddRemindersScreen::Type2(std::vector<Date>& dates) {
  if (!SpanChecks()) return false;
  const JD today = Today(ctx_);
  CalendarEngine& cal = Calendars(ctx_);
  if (ordinal == "Every") {
    int first = DayInMonthNumber(ctx_, kMonthNames[fromMonth], weekday, "First", fromYear);
    if (first == 0) return false;
    const JD end = GregorianToJD(MonthLength(toYear, toMonth), toMonth, toYear);
    for (JD jd = GregorianToJD(first, fromMonth, fromYear); jd <= end; jd += 7) {
      if (jd < today) continue;
      CalDate c = cal.JDToDate(CalType::Greg, jd);
      dates.push_back({c.day, c.month, c.year});
    }
    return true;
  }
  const std::string word = ordinal == "Second last" ? "Penultimate" : ordinal;
  for (int y = fromYear; y <= toYear; ++y) {
    const int m0 = y == fromYear ? fromMonth : 1;
    const int m1 = y == toYear ? toMonth : 12;
    for (int m = m0; m <= m1; ++m) {
      int d = DayInMonthNumber(ctx_, kMonthNames[m], weekday, word, y);
      if (d > 0 && GregorianToJD(d, m, y) >= today) dates.push_back({d, m, y});
    }
  }
  return true;
}

bool AddRemindersScreen::Type3(std::vector<Date>& dates) {
  if (!SpanChecks()) return false;
  const JD today = Today(ctx_);
  long long number = 0;
  const bool numeric = ParseInt(type3Day, number) && number >= 1 && number <= 31;
  const std::string choice = TrimCopy(type3Day);
  if (!numeric && choice != "Last" && choice != "Second last" && choice != "Every") {
    ShowError(ctx_, Err("Invalid day value in Type 3 reminder specification."));
    return false;
  }
  for (int y = fromYear; y <= toYear; ++y) {
    const int m0 = y == fromYear ? fromMonth : 1;
    const int m1 = y == toYear ? toMonth : 12;
    for (int m = m0; m <= m1; ++m) {
      const int length = MonthLength(y, m);
      auto add = [&](int d) {
        if (d >= 1 && d <= length && GregorianToJD(d, m, y) >= today) dates.push_back({d, m, y});
      };
      if (numeric)
        add(static_cast<int>(number));  // a day past the month's end is skipped
      else if (choice == "Last")
        add(length);
      else if (choice == "Second last")
        add(length - 1);
      else
        for (int d = 1; d <= length; ++d) add(d);
    }
  }
  return true;
}

bool AddRemindersScreen::Save() {
  information_.clear();
  inserted_ = 0;
  auto text = CheckReminderMessage(ctx_, message);
  if (!text) return false;
  std::vector<Date> dates;
  std::optional<std::string> peyrLine;
  bool seriesRequested = type != 1;
  bool ok = type == 1   ? Type1(*text, dates, peyrLine, seriesRequested)
            : type == 2 ? Type2(dates)
                        : Type3(dates);
  if (!ok) return false;

  ReminderStore store(ctx_);
  if (!dates.empty() || peyrLine) {
    if (!store.Open()) return false;
    if (!store.NoRecord() && !store.Check()) return false;
  }
  for (const Date& d : dates) {
    if (store.Insert(d.month * 100 + d.day, d.year, *text) == InsertOutcome::StoreFull) {
      ShowRunTimeError(ctx_, kOverflow);
      return false;
    }
  }
  if (peyrLine) {
    // An every-year reminder whose date has passed this year is noted at once.
    std::string list = store.PeyrList();
    if (list.empty())
      store.SetPeyrList(*peyrLine);
    else if (list.find(*peyrLine) == std::string::npos)
      store.SetPeyrList(list + ";" + *peyrLine);
  }
  if (!store.Commit()) return false;
  inserted_ = static_cast<int>(dates.size());
  if (inserted_ == 0) {
    if (seriesRequested)
      ShowError(ctx_, Err("There are no reminders defined for dates in the future."));
    else
      ShowError(ctx_, Err("Date must not be in the past."));
    return false;
  }
  ResetInputs();
  information_ = "Reminder(s) have been successfully processed.";
  CheckReminderStore(ctx_);
  return true;
}

bool AddRemindersScreen::PasteIntoMessage(
    const std::function<std::optional<std::string>()>& readClipboard, std::size_t selectionStart,
    std::size_t selectionLength) {
  std::optional<std::string> clip;
  while (!(clip = readClipboard())) {
    if (!ctx_.sink().Ask(kWarning, "Can't open Clipboard. Try again?")) return false;
  }
  // The message is one line: line breaks and tabs of the clipboard become blanks.
  std::string flat;
  for (std::size_t i = 0; i < clip->size(); ++i) {
    const char c = (*clip)[i];
    if (c == '\r' && i + 1 < clip->size() && (*clip)[i + 1] == '\n') continue;
    flat += c == '\r' || c == '\n' || c == '\t' ? ' ' : c;
  }
  clip = std::move(flat);
  selectionStart = std::min(selectionStart, message.size());
  selectionLength = std::min(selectionLength, message.size() - selectionStart);
  const std::size_t kept = message.size() - selectionLength;
  const std::size_t limit = static_cast<std::size_t>(kMessageWidth);
  if (kept + clip->size() > limit) {
    const std::size_t room = kept < limit ? limit - kept : 0;
    if (!ctx_.sink().Ask(kWarning, "Text to be pasted will be truncated to " +
                                       std::to_string(room) +
                                       " characters. Do you wish to continue?"))
      return false;
    std::size_t cut = room;
    while (cut > 0 && cut < clip->size() &&
           (static_cast<unsigned char>((*clip)[cut]) & 0xC0) == 0x80)
      --cut;
    clip->resize(cut);
  }
  message.replace(selectionStart, selectionLength, *clip);
  return true;
}

}  // namespace mc
