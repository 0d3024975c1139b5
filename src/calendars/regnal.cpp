#include "calendars/regnal.h"

#include "calendars/gregorian.h"
#include "core/errors.h"
#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr std::string_view kRegnalFile = "regnal.dat";

// The line where the Gregorian reckoning starts.
bool IsCalendarChange(const RegnalRecord& r) {
  return r.name == "George II" && r.firstYear == 26;
}

std::optional<RegnalRecord> ParseRecord(std::string_view line) {
  std::vector<std::string_view> fields;
  std::size_t from = 0;
  while (true) {
    auto comma = line.find(',', from);
    fields.push_back(line.substr(from, comma == std::string_view::npos ? comma : comma - from));
    if (comma == std::string_view::npos) break;
    from = comma + 1;
  }
  if (fields.size() != 9) return std::nullopt;
  long long v[8];
  for (int i = 0; i < 8; ++i)
    if (!ParseInt(fields[static_cast<std::size_t>(i) + 1], v[i]) || v[i] < -1 || v[i] > 99999)
      return std::nullopt;
  RegnalRecord r;
  r.name = TrimCopy(fields[0]);
  if (r.name.empty()) return std::nullopt;
  r.firstYear = static_cast<int>(v[0]);
  r.lastYear = static_cast<int>(v[1]);
  r.start = CalDate{static_cast<int>(v[2]), static_cast<int>(v[3]), static_cast<int>(v[4])};
  r.end = CalDate{static_cast<int>(v[5]), static_cast<int>(v[6]), static_cast<int>(v[7])};
  return r;
}

// Regnal year of a date within a record's reign.
int RegnalYearWithin(CalendarEngine& engine, const RegnalRecord& r, JD jd) {
  if (r.firstYear == r.lastYear && !r.inProgress) return r.firstYear;
  const CalType type = r.gregorian ? CalType::Greg : CalType::Jul;
  const int year = engine.JDToDate(type, jd).year;
  const JD anniversary = engine.DateToJD(type, r.start.day, r.start.month, year);
  return r.firstYear + year - r.start.year - (jd >= anniversary ? 0 : 1);
}

}  // namespace

std::optional<std::vector<RegnalRecord>> ReadRegnalFile(Context& ctx) {
  ctx.settings.lastFileOpened = std::string(kRegnalFile);
  auto content = ReadWholeFile(ctx.FilePath(kRegnalFile));
  if (!content) {
    ShowRunTimeError(ctx, kFileNotFound);
    return std::nullopt;
  }
  CalendarEngine& engine = Calendars(ctx);
  const int thisYear = ctx.Now().year;
  std::vector<RegnalRecord> records;
  bool gregorian = false;
  for (const std::string& line : SplitLines(*content)) {
    if (StartsWith(line, ">") || Trim(line).empty()) continue;
    auto r = ParseRecord(line);
    if (!r) {
      ShowRunTimeError(ctx, kTypeMismatch);
      return std::nullopt;
    }
    if (r->lastYear == -1) {
      r->inProgress = true;
      r->lastYear = thisYear + 1 - r->start.year;
    }
    if (r->end.year == -1) r->end.year = thisYear + 1;
    if (IsCalendarChange(*r)) gregorian = true;
    r->gregorian = gregorian;
    const CalType type = gregorian ? CalType::Greg : CalType::Jul;
    r->startJD = IsCalendarChange(*r)
                     ? GregorianToJD(14, 9, 1752)
                     : engine.DateToJD(type, r->start.day, r->start.month, r->start.year);
    r->endJD = engine.DateToJD(type, r->end.day, r->end.month, r->end.year);
    records.push_back(std::move(*r));
  }
  return records;
}

std::optional<RegnalAnswer> RegnalYearOf(Context& ctx, JD jd, RegnalStyle style) {
  auto records = ReadRegnalFile(ctx);
  if (!records) return std::nullopt;
  CalendarEngine& engine = Calendars(ctx);
  RegnalAnswer answer;
  std::size_t first = 0;
  if (style == RegnalStyle::Gregorian) {
    while (first < records->size() && !IsCalendarChange((*records)[first])) ++first;
  }
  for (std::size_t i = first; i < records->size(); ++i) {
    const RegnalRecord& r = (*records)[i];
    if (jd < r.startJD || jd > r.endJD) continue;
    answer.reign = RegnalYear{r.name, RegnalYearWithin(engine, r, jd)};
    // Only the last day of a reign that is also the successor's first.
    if (jd == r.endJD && i + 1 < records->size() && (*records)[i + 1].startJD == r.endJD) {
      const RegnalRecord& n = (*records)[i + 1];
      answer.next = RegnalYear{n.name, n.firstYear};
    }
    return answer;
  }
  if (style == RegnalStyle::Julian) {
    // The reign that ended last before the date and the one that began next.
    JD lastEnd = 0, nextStart = 0;
    for (const RegnalRecord& r : *records) {
      if (r.endJD < jd && (answer.before.empty() || r.endJD > lastEnd)) {
        answer.before = r.name;
        lastEnd = r.endJD;
      }
      if (r.startJD > jd && (answer.after.empty() || r.startJD < nextStart)) {
        answer.after = r.name;
        nextStart = r.startJD;
      }
    }
  }
  return answer;
}

std::string_view MonarchTitle(std::string_view name) {
  for (std::string_view queen : {"Victoria", "Elizabeth II", "Jane", "Mary", "Elizabeth I", "Anne",
                                 "Philip & Mary", "William III and Mary II"})
    if (name == queen) return "Queen ";
  return "King ";
}

std::vector<std::string> RegnalLines(Context& ctx, JD jd, RegnalStyle style) {
  std::vector<std::string> lines;
  auto answer = RegnalYearOf(ctx, jd, style);
  if (!answer) return lines;
  auto line = [](std::string_view opening, const RegnalYear& y) {
    return std::string(opening) + std::to_string(y.year) + " of " +
           std::string(MonarchTitle(y.name)) + y.name + ".";
  };
  if (answer->reign) {
    lines.push_back(line("Date is in regnal year ", *answer->reign));
    if (answer->next) lines.push_back(line("Date is also in regnal year ", *answer->next));
  } else if (!answer->before.empty() && !answer->after.empty()) {
    lines.push_back("Date occurred in the period between the reigns of " + answer->before +
                    " and " + answer->after);
  }
  return lines;
}

}  // namespace mc
