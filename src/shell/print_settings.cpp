#include "shell/print_settings.h"

#include <cmath>
#include <cstdio>

#include "calendars/date_text.h"
#include "core/ini_file.h"
#include "core/number_format.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr int kForm = 29;

std::string Bool(bool v) {
  return v ? "True" : "False";
}

// A key of [Form29], or its default when the value is empty or unreadable.
class Section {
 public:
  explicit Section(Context& ctx) : ctx_(&ctx) {}
  std::string Text(const char* key, const std::string& fallback) {
    std::string v = ReadIniFile(*ctx_, kForm, key);
    return v.empty() ? fallback : v;
  }
  int Int(const char* key, int fallback) {
    long long v = 0;
    return ParseInt(ReadIniFile(*ctx_, kForm, key), v) ? static_cast<int>(v) : fallback;
  }
  bool Flag(const char* key, bool fallback) {
    std::string v = ReadIniFile(*ctx_, kForm, key);
    return v.empty() ? fallback : v == "True";
  }
  double Number(const char* key, double fallback) {
    auto v = ParseStrictNumber(ReadIniFile(*ctx_, kForm, key), '.');
    return v ? *v : fallback;
  }

 private:
  Context* ctx_;
};

PrintFont ReadFont(Section& s, const char* prefix, const PrintFont& d, bool hasName) {
  std::string p(prefix);
  PrintFont f = d;
  if (hasName) f.name = s.Text((p + " Font Name").c_str(), d.name);
  f.size = s.Int((p + " Font Size").c_str(), d.size);
  f.bold = s.Flag((p + " Bold").c_str(), d.bold);
  f.italic = s.Flag((p + " Italic").c_str(), d.italic);
  f.underline = s.Flag((p + " Underline").c_str(), d.underline);
  return f;
}

std::string Margin(double v) {
  return FormatSigFigs(6, v);
}

}  // namespace

PrintSettings LoadPrintSettings(Context& ctx) {
  PrintSettings d;
  Section s(ctx);
  d.title = ReadFont(s, "Title", d.title, true);
  d.header = ReadFont(s, "Header", d.header, true);
  d.footer = ReadFont(s, "Footer", d.footer, true);
  d.bodyFixedFontName = s.Text("Body Fixed Width Font Name", d.bodyFixedFontName);
  d.bodyPropFontName = s.Text("Body Proportional Width Font Name", d.bodyPropFontName);
  d.body = ReadFont(s, "Body", d.body, false);
  d.body.name = d.bodyFixedFontName;
  d.lineSpacing = s.Text("Body Line Spacing", d.lineSpacing);
  d.printerName = s.Text("Printer Name", d.printerName);
  d.printQuality = s.Text("Print Quality", d.printQuality);
  d.paperSize = s.Text("Paper Size", d.paperSize);
  d.orientation = s.Text("Paper Orientation", d.orientation);
  d.paperBin = s.Text("Paper Bin", d.paperBin);
  d.copies = s.Int("Number of Copies", d.copies);
  d.lastHeader = ReadIniFile(ctx, kForm, "Last Header");
  d.lastFooter = ReadIniFile(ctx, kForm, "Last Footer");
  d.marginUnit = s.Text("Margin Unit", d.marginUnit);
  d.marginLeft = s.Number("Margin Left", d.marginLeft);
  d.marginRight = s.Number("Margin Right", d.marginRight);
  d.marginTop = s.Number("Margin Top", d.marginTop);
  d.marginBottom = s.Number("Margin Bottom", d.marginBottom);
  d.pageNumbers = s.Flag("Print Page Numbers", d.pageNumbers);
  d.dateAndTime = s.Flag("Print Date and Time", d.dateAndTime);
  d.border = s.Flag("Draw Border Around Document", d.border);
  d.lineUnderHeader = s.Flag("Draw Line Under Header", d.lineUnderHeader);
  d.lineAboveFooter = s.Flag("Draw Line Above Footer", d.lineAboveFooter);
  return d;
}

void StorePrintSettings(Context& ctx, const PrintSettings& p) {
  std::vector<std::pair<std::string, std::string>> keys;
  auto add = [&](std::string key, std::string value) {
    keys.emplace_back(std::move(key), std::move(value));
  };
  // The keys of a font in the order ReadFont reads them.
  auto addFont = [&](const std::string& prefix, const PrintFont& f, bool hasName) {
    if (hasName) add(prefix + " Font Name", f.name);
    add(prefix + " Font Size", std::to_string(f.size));
    add(prefix + " Bold", Bool(f.bold));
    add(prefix + " Italic", Bool(f.italic));
    add(prefix + " Underline", Bool(f.underline));
  };
  addFont("Title", p.title, true);
  add("Body Fixed Width Font Name", p.bodyFixedFontName);
  add("Body Proportional Width Font Name", p.bodyPropFontName);
  addFont("Body", p.body, false);
  add("Body Line Spacing", p.lineSpacing);
  addFont("Header", p.header, true);
  addFont("Footer", p.footer, true);
  add("Printer Name", p.printerName);
  add("Print Quality", p.printQuality);
  add("Paper Size", p.paperSize);
  add("Paper Orientation", p.orientation);
  add("Paper Bin", p.paperBin);
  add("Number of Copies", std::to_string(p.copies));
  add("Last Header", p.lastHeader);
  add("Last Footer", p.lastFooter);
  add("Margin Unit", p.marginUnit);
  add("Margin Left", Margin(p.marginLeft));
  add("Margin Right", Margin(p.marginRight));
  add("Margin Top", Margin(p.marginTop));
  add("Margin Bottom", Margin(p.marginBottom));
  add("Print Page Numbers", Bool(p.pageNumbers));
  add("Print Date and Time", Bool(p.dateAndTime));
  add("Draw Border Around Document", Bool(p.border));
  add("Draw Line Under Header", Bool(p.lineUnderHeader));
  add("Draw Line Above Footer", Bool(p.lineAboveFooter));
  for (const auto& [key, value] : keys)
    if (ReadIniFile(ctx, kForm, key) != value) UpdateIniFile(ctx, kForm, key, value);
}

void ConvertMargins(PrintSettings& s, std::string_view newUnit) {
  if (newUnit == s.marginUnit) return;
  const double factor = newUnit == "inches" ? 1 / 2.54 : 2.54;
  for (double* m : {&s.marginLeft, &s.marginRight, &s.marginTop, &s.marginBottom})
    *m = std::round(*m * factor * 1000) / 1000;
  s.marginUnit = std::string(newUnit);
}

bool IsTableLikeOutput(std::string_view firstLine) {
  static constexpr std::string_view kTables[] = {
      "*** About My Location ***",   "*** Factor Calculator ***", "*** Magic Square",
      "*** New Year's Days",         "*** Date Conversions ***",  "*** Month Calendar",
      "*** Year Calendar",           "*** List of Reminders ***", "*** Prime Calculator",
      "*** Religious Festivals",     "*** Observed Days",         "*** Easter Dates",
      "*** Reminder List for Month",
  };
  for (auto t : kTables)
    if (StartsWith(firstLine, t)) return true;
  return false;
}

PrintDocument SplitForPrinting(std::string_view output, const PrintSettings& settings) {
  PrintDocument doc;
  auto end = output.find("\r\n");
  if (end == std::string_view::npos) end = output.find('\n');
  doc.title = std::string(output.substr(0, end));
  if (end != std::string_view::npos)
    doc.text = std::string(output.substr(end + (output[end] == '\r' ? 2 : 1)));
  doc.header = settings.lastHeader;
  doc.footer = settings.lastFooter.empty() ? std::string(kDefaultFooter) : settings.lastFooter;
  return doc;
}

std::string PrintDateLine(Context& ctx, const LocalDateTime& now) {
  char time[8];
  std::snprintf(time, sizeof time, "%02d:%02d", now.hour, now.minute);
  return FormatDateText(ctx, CalType::Greg, now.day, now.month, now.year) + " " + time;
}

}  // namespace mc
