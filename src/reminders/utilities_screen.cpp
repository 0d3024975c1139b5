#include "reminders/utilities_screen.h"

#include <array>
#include <cmath>
#include <optional>

#include "calendars/gregorian.h"
#include "core/errors.h"
#include "core/ini_file.h"
#include "core/number_format.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "reminders/add_screen.h"
#include "reminders/report.h"
#include "reminders/store.h"
#include "reminders/store_files.h"

namespace mc {

namespace {

enum Field { kDay = 0, kMonth = 1, kYear = 2 };

struct Format {
  std::string separator;
  std::array<Field, 3> order;  // the field standing first, second, third
};

std::optional<Format> CheckFormat(Context& ctx, const FieldFormat& f) {
  Format out;
  if (f.order == "day month year message")
    out.order = {kDay, kMonth, kYear};
  else if (f.order == "month day year message")
    out.order = {kMonth, kDay, kYear};
  else if (f.order == "year month day message")
    out.order = {kYear, kMonth, kDay};
  else {
    ShowError(ctx, Err("Field order not defined."));
    return std::nullopt;
  }
  if (f.separator == "Comma ,")
    out.separator = ",";
  else if (f.separator == "Forward Slash /")
    out.separator = "/";
  else if (f.separator == "Hyphen -")
    out.separator = "-";
  else if (f.separator == "Semicolon ;")
    out.separator = ";";
  else if (f.separator == "Tab")
    out.separator = "\t";
  else if (f.separator == "User Specified") {
    if (f.userSeparator.empty()) {
      ShowError(ctx, Err("User specified separator missing."));
      return std::nullopt;
    }
    out.separator = f.userSeparator;
  } else {
    ShowError(ctx, Err("Field separator not defined."));
    return std::nullopt;
  }
  return out;
}

bool Whole(double v) {
  return std::floor(v) == v;
}

// A file as the messages name it: its bare name in the program folder,
// else its whole path.
std::string NameInMessages(Context& ctx, const std::filesystem::path& file) {
  return file.parent_path() == ctx.ExeFolder() ? file.filename().string() : file.string();
}

// One line of newrems.txt: the reminder, or the catalogue number of the
// reason for refusing it (after its box).
struct Parsed {
  int monthDay = 0, year = 0;
  std::string message;
  int refusal = 0;
};

Parsed ParseImportLine(Context& ctx, std::string_view line, const Format& f) {
  Parsed p;
  auto refuse = [&](int n) {
    ShowError(ctx, n);
    p.refusal = n;
    return p;
  };
  const std::string& sep = f.separator;
  std::size_t cuts[3];
  std::size_t from = 0;
  for (auto& c : cuts) {
    c = line.find(sep, from);
    if (c == std::string_view::npos) return refuse(Err("Missing field delimiter."));
    from = c + sep.size();
  }
  std::string fields[3];
  fields[f.order[0]] = TrimCopy(line.substr(0, cuts[0]));
  fields[f.order[1]] = TrimCopy(line.substr(cuts[0] + sep.size(), cuts[1] - cuts[0] - sep.size()));
  fields[f.order[2]] = TrimCopy(line.substr(cuts[1] + sep.size(), cuts[2] - cuts[1] - sep.size()));
  std::string message = TrimCopy(line.substr(cuts[2] + sep.size()));
  const char ds = ctx.settings.decimalSeparator;

  if (fields[kDay].empty()) return refuse(Err("Empty day field in record."));
  auto day = ParseStrictNumber(fields[kDay], ds);
  if (!day) return refuse(Err("Day value must be numeric."));
  if (fields[kMonth].empty()) return refuse(Err("Empty month field in record."));
  auto month = ParseStrictNumber(fields[kMonth], ds);
  if (!month) return refuse(Err("Month value must be numeric."));
  if (!Whole(*month) || *month < 1 || *month > 12) return refuse(Err("Invalid month value."));
  std::string yearText = fields[kYear];
  if (yearText.empty()) return refuse(Err("Empty year field in record."));
  if (yearText.front() == '"') yearText = TrimCopy(yearText.substr(1));
  const int thisYear = ctx.Now().year;
  if (ToLower(yearText) == "every") {
    p.year = kEveryYear;
  } else {
    auto y = ParseStrictNumber(yearText, ds);
    if (!y) return refuse(Err("Year value must be numeric."));
    if (!Whole(*y)) return refuse(Err("Year value must be an integer."));
    if (*y < thisYear) return refuse(Err("Year must not be in the past."));
    if (*y > thisYear + 1) return refuse(Err("Year value is greater than current year value + 1."));
    p.year = static_cast<int>(*y);
  }
  const int m = static_cast<int>(*month);
  if (!Whole(*day) || *day < 1 || *day > GregorianMonthLength(m, IsGregorianLeap(p.year)))
    return refuse(Err("Invalid day value."));
  const int d = static_cast<int>(*day);
  if (d == 29 && m == 2 && p.year == kEveryYear)
    return refuse(Err("February 29 does not occur every year."));
  if (!message.empty() && message.front() == '"') {
    message.erase(0, 1);
    auto close = message.rfind('"');
    if (close != std::string::npos) message.erase(close, 1);
    message = TrimCopy(message);
  }
  if (message.empty()) return refuse(Err("No message."));
  if (message.size() > static_cast<std::size_t>(kMessageWidth)) {
    message = FitMessage(message);
    ctx.sink().Show(kWarning, "Reminder message truncated to " + std::to_string(kMessageWidth) +
                                  " characters during importation.");
  }
  const LocalDateTime now = ctx.Now();
  if (p.year != kEveryYear &&
      GregorianToJD(d, m, p.year) < GregorianToJD(now.day, now.month, now.year))
    return refuse(Err("Date must not be in the past."));
  p.monthDay = m * 100 + d;
  p.message = std::move(message);
  return p;
}

}  // namespace

bool CheckFieldFormat(Context& ctx, const FieldFormat& format) {
  return CheckFormat(ctx, format).has_value();
}

std::filesystem::path DefaultExportFile(Context& ctx) {
  return ctx.FilePath("myrems.txt");
}

std::filesystem::path DefaultImportFile(Context& ctx) {
  return ctx.FilePath("newrems.txt");
}

bool ExportReminders(Context& ctx, const FieldFormat& format, const std::filesystem::path& file) {
  const std::filesystem::path target = file.empty() ? DefaultExportFile(ctx) : file;
  auto f = CheckFormat(ctx, format);
  if (!f) return false;
  ReminderStore store(ctx);
  if (!store.Open()) return false;
  if (store.NoRecord()) {
    store.DropEmptyPersonFile();
    ShowError(ctx, Err("No reminders to export."));
    return false;
  }
  // A damaged store still gives up what can be reached from its head, so
  // that the reminders can be saved before it is restored.
  const int finding = store.Finding();
  if (finding == Err("Maximum slot number does not agree with MaxRemNum.") &&
      store.ActiveSlots().empty()) {
    ShowError(ctx, finding);
    return false;
  }
  auto fresh = ctx.FilePath("newrems.txt");
  if (std::filesystem::exists(fresh)) {
    RemoveIfExists(ctx.FilePath("newrems.old"));
    std::error_code ec;
    std::filesystem::rename(fresh, ctx.FilePath("newrems.old"), ec);
  }
  std::string out;
  int n = 0;
  for (int s : store.ActiveSlots()) {
    const ReminderSlot& r = store.Slot(s);
    std::string fields[3] = {std::to_string(r.Day()), std::to_string(r.Month()),
                             r.year == kEveryYear ? "every" : std::to_string(r.year)};
    for (Field which : f->order) out += fields[which] + f->separator;
    out += r.Text() + "\r\n";
    ++n;
  }
  if (n == 0) {
    ShowError(ctx, Err("All personal reminders have already been deleted."));
    return false;
  }
  const std::string name = NameInMessages(ctx, target);
  ctx.settings.lastFileOpened = name;
  if (!WriteFileAtomically(target, out)) {
    ShowRunTimeError(ctx, kPathFileAccess);
    return false;
  }
  ctx.sink().Show(kSuccess, (n == 1 ? "1 reminder has" : std::to_string(n) + " reminders have") +
                                " been successfully exported to file " + name + ".");
  return true;
}

bool ImportReminders(Context& ctx, const FieldFormat& format, const std::filesystem::path& file) {
  const std::filesystem::path source = file.empty() ? DefaultImportFile(ctx) : file;
  const std::string name = NameInMessages(ctx, source);
  if (!ctx.sink().Ask(kWarning, "Data will be imported from the file " + name +
                                    ". Please confirm that you wish to continue."))
    return false;
  auto f = CheckFormat(ctx, format);
  if (!f) return false;
  ctx.settings.lastFileOpened = name;
  auto content = ReadWholeFile(source);
  if (!content) {
    if (source == DefaultImportFile(ctx))
      ShowError(ctx, Err("Missing reminder import file newrems.txt."));
    else
      ShowRunTimeError(ctx, kFileNotFound);
    return false;
  }
  RemoveIfExists(ctx.FilePath("rejects.txt"));
  ReminderStore store(ctx);
  if (!store.Open()) return false;
  if (!store.NoRecord() && !store.Check()) return false;

  std::string rejects;
  int accepted = 0, refused = 0;
  for (const auto& line : SplitLines(*content)) {
    if (Trim(line).empty()) continue;
    Parsed p = ParseImportLine(ctx, line, *f);
    if (p.refusal != 0) {
      rejects += line + "\r\n" + ErrorText(p.refusal, ctx.Now().year) + "\r\n\r\n";
      ++refused;
      continue;
    }
    if (store.Insert(p.monthDay, p.year, p.message) == InsertOutcome::StoreFull) {
      ShowRunTimeError(ctx, kOverflow);
      return false;
    }
    ++accepted;
  }
  ctx.settings.lastFileOpened = "rejects.txt";
  if (!WriteFileAtomically(ctx.FilePath("rejects.txt"), rejects)) {
    ShowRunTimeError(ctx, kPathFileAccess);
    return false;
  }
  if (accepted == 0) {
    ShowError(ctx, Err("No valid reminders were found. Study the file rejects.txt."));
    return false;
  }
  if (!store.Commit()) return false;
  std::string text = accepted == 1
                         ? "1 reminder has been successfully imported."
                         : std::to_string(accepted) + " reminders have been successfully imported.";
  if (refused == 1)
    text += " 1 reject is in the file rejects.txt.";
  else if (refused > 1)
    text += " " + std::to_string(refused) + " rejects are in the file rejects.txt.";
  ctx.sink().Show(kInformation, text);
  CheckReminderStore(ctx);
  return true;
}

ReminderUtilitiesScreen::ReminderUtilitiesScreen(Context& ctx) : ctx_(ctx) {}

bool ReminderUtilitiesScreen::AudioSignal() const {
  return ctx_.settings.reminderAudio == "On";
}

bool ReminderUtilitiesScreen::ProcessFields() const {
  return ctx_.settings.processRemFields != "No";
}

void ReminderUtilitiesScreen::SetAudioSignal(bool on) {
  ctx_.settings.reminderAudio = on ? "On" : "Off";
  UpdateIniFile(ctx_, 0, "Reminder Audio Signal", ctx_.settings.reminderAudio);
}

bool ReminderUtilitiesScreen::SetProcessFields(bool on, std::string_view mainOutputText) {
  ctx_.settings.processRemFields = on ? "Yes" : "No";
  UpdateIniFile(ctx_, 0, "Process Reminder Fields", ctx_.settings.processRemFields);
  if (!StartsWith(mainOutputText, kReminderListTitle)) return false;
  // The list's messages read differently now: it is rebuilt as the screen is left.
  Reminders(ctx_).remindersChanged = true;
  return true;
}

void ReminderUtilitiesScreen::Run() {
  printText_.clear();
  switch (action) {
    case UtilityAction::PrintStructures:
      printText_ = PrintReminderStructures(ctx_);
      break;
    case UtilityAction::Compact:
      CompactReminders(ctx_);
      break;
    case UtilityAction::Import:
      ImportReminders(ctx_, format, file);
      break;
    case UtilityAction::Export:
      ExportReminders(ctx_, format, file);
      break;
  }
}

}  // namespace mc
