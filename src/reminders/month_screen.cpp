#include "reminders/month_screen.h"

#include <algorithm>

#include "calendars/gregorian.h"
#include "calendars/names.h"
#include "core/errors.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "reminders/reminder_text.h"
#include "reminders/store.h"
#include "shell/save_output.h"

namespace mc {

namespace {

int MonthLength(int year, int month) {
  return GregorianMonthLength(month, IsGregorianLeap(year));
}

// The column of a weekday (1 = Sunday) in a grid that starts on `startDay`
// (0 Saturday, 1 Sunday, 2 Monday).
int ColumnOf(int weekday, int startDay) {
  if (startDay == 0) return weekday == 7 ? 1 : weekday + 1;
  if (startDay == 2) return weekday == 1 ? 7 : weekday - 1;
  return weekday;
}

void AddOnce(std::vector<std::string>& list, const std::string& message) {
  if (std::find(list.begin(), list.end(), message) == list.end()) list.push_back(message);
}

}  // namespace

RemindersByMonthScreen::RemindersByMonthScreen(Context& ctx) : ctx_(ctx), month_(ctx.Now().month) {
  Fill();
}

int RemindersByMonthScreen::Year() const {
  int y = ctx_.Now().year;
  return shown_ == ShownYear::LastYear ? y - 1 : shown_ == ShownYear::NextYear ? y + 1 : y;
}

void RemindersByMonthScreen::ChooseMonth(int month) {
  month_ = std::clamp(month, 1, 12);
  Fill();
}

void RemindersByMonthScreen::ChooseYear(ShownYear shown) {
  shown_ = shown;
  Fill();
}

void RemindersByMonthScreen::SpinUp() {
  if (month_ < 12) {
    ++month_;
  } else if (shown_ != ShownYear::NextYear) {
    month_ = 1;
    shown_ = shown_ == ShownYear::LastYear ? ShownYear::ThisYear : ShownYear::NextYear;
  }
  Fill();
}

void RemindersByMonthScreen::SpinDown() {
  if (month_ > 1) {
    --month_;
  } else if (shown_ != ShownYear::LastYear) {
    month_ = 12;
    shown_ = shown_ == ShownYear::NextYear ? ShownYear::ThisYear : ShownYear::LastYear;
  }
  Fill();
}

void RemindersByMonthScreen::Fill() {
  marks_.clear();
  active_.clear();
  cells_.clear();
  const LocalDateTime now = ctx_.Now();
  const int year = Year();
  const JD today = GregorianToJD(now.day, now.month, now.year);

  if (shown_ != ShownYear::LastYear) {
    ReminderStore store(ctx_);
    if (store.Open() && !store.NoRecord() && store.Check()) {
      for (int s : store.ActiveSlots()) {
        const ReminderSlot& r = store.Slot(s);
        if (r.Month() != month_ || (r.year != year && r.year != kEveryYear)) continue;
        std::string text =
            r.year == kEveryYear ? ExpandReminderField(ctx_, r.message, year) : r.Text();
        if (text.empty() || r.Day() > MonthLength(year, month_)) continue;
        AddOnce(marks_[r.Day()], text);
        const JD jd = GregorianToJD(r.Day(), month_, year);
        active_.push_back(std::string(WeekdayAbbrev(WeekdayOfJD(jd))) + "  " +
                          PadLeft(std::to_string(r.Day()), 2) + " " +
                          std::string(MonthAbbrev(month_)) + " " + std::to_string(year) + "   " +
                          text);
      }
    }
  }
  // Reminders whose date has gone have left the store for purged.dat.
  if (auto purged = ReadWholeFile(ctx_.FilePath("purged.dat"))) {
    for (const auto& line : SplitLines(*purged)) {
      auto e = ParseOutOfDateLine(line);
      if (!e || e->month != month_ || e->year != year || e->day > MonthLength(year, month_))
        continue;
      const bool past = GregorianToJD(e->day, e->month, e->year) < today;
      if (shown_ == ShownYear::LastYear || (shown_ == ShownYear::ThisYear && past))
        AddOnce(marks_[e->day], e->message);
    }
  }

  const int startDay = ctx_.settings.startDay;
  int row = 0;
  for (int d = 1; d <= MonthLength(year, month_); ++d) {
    const JD jd = GregorianToJD(d, month_, year);
    Cell c;
    c.day = d;
    c.column = ColumnOf(WeekdayOfJD(jd), startDay);
    if (d > 1 && c.column == 1) ++row;
    c.row = row;
    c.marked = marks_.count(d) > 0;
    c.today = jd == today;
    cells_.push_back(c);
  }
}

std::array<std::string, 7> RemindersByMonthScreen::ColumnHeads() const {
  static constexpr std::string_view kLetters = "SSMTWTFSS";  // from Saturday
  const int startDay = ctx_.settings.startDay;
  const std::size_t first = startDay == 0 ? 0 : startDay == 2 ? 2 : 1;
  std::array<std::string, 7> heads;
  for (std::size_t i = 0; i < 7; ++i) heads[i] = std::string(1, kLetters[first + i]);
  return heads;
}

std::string RemindersByMonthScreen::GridText() const {
  const int year = Year();
  const std::string caption(kMonthNames[month_]);
  const std::string yearText = std::to_string(year);
  const int n = static_cast<int>(caption.size() + yearText.size() + 1);
  std::string text(static_cast<std::size_t>(std::max(0, (24 - n) / 2 + 1)), ' ');
  text += caption + " " + yearText + "\r\n\r\n";
  text += " ";
  for (const std::string& head : ColumnHeads()) text += "  " + head;
  text += "\r\n ";
  if (cells_.empty()) return text;
  int column = cells_.front().column;
  text += std::string(static_cast<std::size_t>(3 * (column - 1)), ' ');
  for (const Cell& c : cells_) {
    text += " " + PadLeft(std::to_string(c.day), 2);
    if (++column == 8) {
      text += "\r\n ";
      column = 1;
    }
  }
  return text;
}

std::string RemindersByMonthScreen::ClickDate(int day) const {
  auto it = marks_.find(day);
  if (it == marks_.end()) return "";
  const int year = Year();
  const int w = WeekdayOfJD(GregorianToJD(day, month_, year));
  std::string text = std::to_string(it->second.size()) +
                     (it->second.size() == 1 ? " Reminder" : " Reminders") + " for " +
                     std::string(kWeekdayNames[w]) + " " + std::to_string(day) + " " +
                     std::string(kMonthNames[month_]) + " " + std::to_string(year);
  for (const auto& m : it->second) text += "\r\n" + m;
  return text;
}

RemindersByMonthScreen::AddRequest RemindersByMonthScreen::DoubleClickDate(int day) {
  ctx_.settings.currentForm = "Form4";
  AddRequest r;
  r.day = day;
  r.month = month_;
  r.option = shown_ == ShownYear::NextYear ? YearOption::NextYear : YearOption::ThisYear;
  return r;
}

std::string RemindersByMonthScreen::ReportText() const {
  std::string text = "*** Reminder List for Month ***\r\n\r\n" + GridText();
  while (!text.empty() && (text.back() == ' ' || text.back() == '\n' || text.back() == '\r'))
    text.pop_back();
  text += "\r\n";
  if (!active_.empty()) {
    text += "\r\n";
    for (const auto& l : active_) text += l + "\r\n";
  }
  return text;
}

bool RemindersByMonthScreen::Save(const std::filesystem::path& file) {
  return SaveOutput(ctx_, ReportText(), file, SaveStyle::Screen);
}

}  // namespace mc
