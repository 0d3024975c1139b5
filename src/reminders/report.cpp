#include "reminders/report.h"

#include <algorithm>

#include "calendars/gregorian.h"
#include "calendars/registry.h"
#include "core/ini_file.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "reminders/reminder_text.h"
#include "reminders/store.h"
#include "reminders/store_files.h"

namespace mc {

namespace {

constexpr std::string_view kCrLf = "\r\n";

JD TodayJD(Context& ctx) {
  LocalDateTime now = ctx.Now();
  return Calendars(ctx).DateToJD(CalType::Greg, now.day, now.month, now.year);
}

std::string TrimRight(std::string_view s) {
  auto end = s.find_last_not_of(' ');
  return end == std::string_view::npos ? "" : std::string(s.substr(0, end + 1));
}

// Splits at CR LF as the output box's text is split: a final line end leaves
// an empty last line.
std::vector<std::string> SplitCrLf(std::string_view text, std::size_t limit) {
  std::vector<std::string> lines;
  while (lines.size() < limit) {
    auto end = text.find(kCrLf);
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text = text.substr(end + 2);
  }
  return lines;
}

// The message a reminder shows in a year's section.
std::string ShownMessage(Context& ctx, const ReminderSlot& r, int year) {
  return r.year == kEveryYear ? ExpandReminderField(ctx, r.message, year) : r.Text();
}

}  // namespace

ReminderReport BuildReminderReport(Context& ctx) {
  ReminderReport rep;
  rep.text = kReportError;
  ReminderStore store(ctx);
  if (!store.Open()) return rep;
  if (store.NoRecord()) {
    store.DropEmptyPersonFile();
    rep.text = kNoReminders;
    return rep;
  }
  // A damaged store is left exactly as it is.
  if (!store.Check()) return rep;
  if (store.Header().head == 0) {
    store.RemoveStoreFiles();
    store.Commit();
    rep.text = kNoReminders;
    return rep;
  }

  CalendarEngine& cal = Calendars(ctx);
  const LocalDateTime now = ctx.Now();
  const int thisYear = now.year;
  const int todayKey = now.month * 100 + now.day;
  const JD todayJD = TodayJD(ctx);
  const std::string rule = std::string(88, '-') + std::string(kCrLf);
  std::string a = rule + "Year   Day   Date     DTG   Event" + std::string(kCrLf) + rule +
                  std::to_string(thisYear) + "   ";
  std::string b = std::to_string(thisYear + 1) + "   ";

  auto list = [&](std::string& section, const ReminderSlot& r, int year) {
    const int day = r.Day(), month = r.Month();
    const JD jd = cal.DateToJD(CalType::Greg, day, month, year);
    const int dtg = jd - todayJD;
    std::string message = ShownMessage(ctx, r, year);
    if (message.empty()) return;
    rep.minDTG = std::min(rep.minDTG, dtg);
    section += std::string(WeekdayAbbrev(WeekdayOfJD(jd))) + "   ";
    section +=
        std::string(MonthAbbrev(month)) + (day < 10 ? " " : "") + " " + std::to_string(day) + "   ";
    section += PadLeft(std::to_string(dtg), 3) + "   " + message + std::string(kCrLf) +
               std::string(7, ' ');
  };

  for (int s : store.ActiveSlots()) {
    const ReminderSlot r = store.Slot(s);
    if (r.year < thisYear || (r.year == thisYear && r.monthDay < todayKey)) {
      store.AppendPurged(OutOfDateLine(r.Month(), r.Day(), r.year, r.Text()));
      store.Unlink(s);
      continue;
    }
    if (r.monthDay >= todayKey && r.year != thisYear + 1) {
      list(a, r, thisYear);
    } else if (r.monthDay < todayKey && r.year != thisYear + 1 && r.year == kEveryYear) {
      // Its date has passed this year: note it in PEYR.dat.
      std::string text = ExpandReminderField(ctx, r.message, thisYear);
      if (!text.empty()) {
        std::string line = OutOfDateLine(r.Month(), r.Day(), thisYear, text);
        std::string peyr = store.PeyrList();
        if (peyr.empty()) {
          store.SetPeyrList(line);
        } else if (peyr.find(line) == std::string::npos) {
          store.SetPeyrList(peyr + "; " + line);
          store.AppendPurged(line);
        }
      }
    }
    if (r.year != thisYear) list(b, r, thisYear + 1);
  }

  std::string text = std::string(kReminderListTitle) + std::string(kCrLf) + std::string(kCrLf);
  const std::string emptyA = std::to_string(thisYear) + "   ";
  if (a.size() >= 7 && a.compare(a.size() - 7, 7, emptyA) == 0) {
    text += a.substr(0, a.size() - 7);
    if (b.size() != 7) text += TrimRight(b);
  } else if (b.size() == 7) {
    text += TrimRight(a);
  } else {
    text += TrimRight(a) + std::string(kCrLf) + TrimRight(b);
  }
  text += rule + std::string(kCrLf) + "DTG = Days to Go (until event occurs)" + std::string(kCrLf);

  if (!store.Commit()) {
    rep.minDTG = 1000;
    return rep;
  }
  if (!store.Check()) {
    rep.minDTG = 1000;
    return rep;
  }
  UpdateIniFile(ctx, 0, "RemProc Julian Value", std::to_string(todayJD));
  ctx.settings.remProcJD = todayJD;
  rep.text = std::move(text);
  if (rep.minDTG == 0)
    rep.lamp = LampColour::Red;
  else if (rep.minDTG < 7)
    rep.lamp = LampColour::LightOrange;
  return rep;
}

std::string_view ReportFontMode(const ReminderReport& report) {
  return StartsWith(report.text, "No personal") ? "PW" : "UFW";
}

std::optional<std::string> OutOfDateListing(Context& ctx) {
  auto content = ReadWholeFile(ctx.FilePath("purged.dat"));
  if (!content) {
    ctx.sink().Show(kInformation, "No out-of-date reminders exist.");
    return std::nullopt;
  }
  CalendarEngine& cal = Calendars(ctx);
  const JD todayJD = TodayJD(ctx);
  struct Row {
    int year;
    std::string rest;
  };
  std::vector<Row> rows;
  std::size_t longest = 0;
  for (const auto& line : SplitLines(*content)) {
    auto e = ParseOutOfDateLine(line);
    if (!e) continue;  // not a line this listing can read
    longest = std::max(longest, DisplayWidth(e->message));
    const JD jd = cal.DateToJD(CalType::Greg, e->day, e->month, e->year);
    const int w = WeekdayOfJD(jd);
    const long dgb = static_cast<long>(todayJD) - jd;
    std::string dgbText = dgb < 9999 ? PadLeft(std::to_string(dgb), 4) : "****";
    rows.push_back({e->year, "   " + std::string(WeekdayAbbrev(w)) + "   " +
                                 std::string(MonthAbbrev(e->month)) + " " + e->dayField + "   " +
                                 dgbText + "   " + e->message});
  }
  if (rows.empty()) {
    ctx.sink().Show(kInformation, "No out-of-date reminders exist.");
    return std::nullopt;
  }
  const std::string rule = std::string(longest + 29, '-') + std::string(kCrLf);
  std::string out = std::string(kCrLf) + "*** List of Out-of-Date Reminders ***" +
                    std::string(kCrLf) + rule + "Year   Day   Date      DGB   Event" +
                    std::string(kCrLf) + rule;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t count = i + 1;
    std::string year = std::to_string(rows[i].year);
    if (i > 0 && rows[i].year != rows[i - 1].year) out += kCrLf;
    if (i > 0 && rows[i].year == rows[i - 1].year && count % 5 != 0) year = "    ";
    out += TrimRight(year + rows[i].rest) + std::string(kCrLf);
  }
  out +=
      rule + std::string(kCrLf) + "DGB = Days Gone By (since event occurred)" + std::string(kCrLf);
  return out;
}

std::optional<MovedList> MoveReminderInList(Context& ctx, std::string_view shownText,
                                            std::size_t caret, bool up) {
  if (shownText.substr(0, 25) != kReminderListTitle) return std::nullopt;
  const auto lines = SplitCrLf(shownText, 2500);
  const int n = static_cast<int>(lines.size());
  int at = n - 1;
  std::size_t pos = 0;
  for (int i = 0; i < n; ++i) {
    if (caret <= pos + lines[i].size()) {
      at = i;
      break;
    }
    pos += lines[i].size() + 2;
  }
  const int other = up ? at - 1 : at + 1;
  if (at < 5 || at >= n - 4 || other < 0 || other >= n || lines[other].empty()) return std::nullopt;
  auto dateOf = [](const std::string& l) { return l.size() < 29 ? "" : l.substr(13, 6); };
  if (dateOf(lines[at]).empty() || dateOf(lines[at]) != dateOf(lines[other])) return std::nullopt;
  // The section's year stands at the start of its first line.
  int sectionYear = 0;
  for (int i = at; i >= 5 && sectionYear == 0; --i) {
    long long y = 0;
    if (lines[i].size() >= 4 && ParseInt(lines[i].substr(0, 4), y))
      sectionYear = static_cast<int>(y);
  }
  const int thisYear = ctx.Now().year;
  if (sectionYear != thisYear && sectionYear != thisYear + 1) return std::nullopt;
  const int month = MonthNumberOfName(lines[at].substr(13, 3));
  long long day = 0;
  if (month == 0 || !ParseInt(lines[at].substr(17, 2), day)) return std::nullopt;
  const int key = month * 100 + static_cast<int>(day);

  ReminderStore store(ctx);
  if (!store.Open() || store.NoRecord() || !store.Check()) return std::nullopt;
  auto find = [&](const std::string& message, int except) {
    for (int s : store.ActiveSlots()) {
      const ReminderSlot& r = store.Slot(s);
      bool inSection = sectionYear == thisYear ? r.year != thisYear + 1 : r.year != thisYear;
      if (s != except && r.monthDay == key && inSection &&
          ShownMessage(ctx, r, sectionYear) == message)
        return s;
    }
    return 0;
  };
  const int first = find(lines[at].substr(28), 0);
  const int second = first ? find(lines[other].substr(28), first) : 0;
  if (!first || !second) return std::nullopt;
  store.SwapContents(first, second);
  if (!store.Commit()) return std::nullopt;

  MovedList moved;
  moved.report = BuildReminderReport(ctx);
  const auto newLines = SplitCrLf(moved.report.text, 2500);
  for (int i = 0; i < other && i < static_cast<int>(newLines.size()); ++i)
    moved.caret += newLines[i].size() + 2;
  return moved;
}

ReminderLoadResult ReminderLoadReport(Context& ctx) {
  ReminderLoadResult r;
  r.report = BuildReminderReport(ctx);
  if (r.report.text == kReportError) {
    r.leaveLoad = true;
    return r;
  }
  if (ctx.settings.reminderAudio == "On") {
    if (r.report.minDTG == 0) {
      r.signal.soundPlays = 2;
      r.signal.waitForFirst = true;
    } else if (r.report.minDTG < 7) {
      r.signal.soundPlays = 1;
    }
  }
  return r;
}

ReminderTickResult ReminderDayCheck(Context& ctx, std::string_view outputText, bool alarmSet) {
  ReminderTickResult r;
  const LocalDateTime now = ctx.Now();
  const JD jd = TodayJD(ctx);
  const long long seconds = now.hour * 3600LL + now.minute * 60LL + now.second;
  // RemProcJD + 0.5 < JD - 0.5 + seconds / 86400, in whole seconds.
  const bool newDay =
      (static_cast<long long>(jd) - ctx.settings.remProcJD - 1) * 86400 + seconds > 0;
  ReminderSession& session = Reminders(ctx);
  if (!newDay || session.dayHandled == jd) return r;
  r.rebuilt = true;
  r.report = BuildReminderReport(ctx);
  if (r.report.text == kReportError || r.report.text == kNoReminders) session.dayHandled = jd;
  r.replaceOutput = StartsWith(outputText, kReminderListTitle) && r.report.text != kReportError;
  if (r.report.minDTG == 0) {
    if (ctx.settings.reminderAudio == "On") {
      r.signal.soundPlays = 2;
      r.signal.waitForFirst = true;
    }
    if (!alarmSet) r.signal.notice = "You have a reminder set for today.";
  } else if (r.report.minDTG < 7) {
    r.signal.soundPlays = 1;  // whatever the audio switch says, as the timer always did
    if (!alarmSet) r.signal.notice = "One of your set reminders is imminent.";
  }
  return r;
}

void EnterReminderScreen(Context& ctx) {
  Reminders(ctx).remindersChanged = false;
}

bool LeaveReminderScreen(Context& ctx, std::string_view mainOutputText) {
  ReminderSession& s = Reminders(ctx);
  if (!s.remindersChanged) return false;
  s.remindersChanged = false;
  return StartsWith(mainOutputText, kReminderListTitle) ||
         StartsWith(mainOutputText, "No personal");
}

}  // namespace mc
