#include "core/ini_file.h"

#include <optional>
#include <vector>

#include "core/errors.h"
#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr std::string_view kIniName = "mercod.ini";
constexpr std::string_view kBakName = "mercod.bak";
constexpr std::string_view kMissingIni =
    "File mercod.ini not found. Exit program -- it will not run properly.";

std::string SectionHead(int formNumber) {
  return "[Form" + std::to_string(formNumber) + "]";
}

bool MatchesKey(std::string_view line, std::string_view key) {
  return StartsWith(line, key);
}

std::string KeyLine(std::string_view key, std::string_view value) {
  return std::string(key) + " = " + std::string(value);
}

void ReportMissingForm(Context& ctx, std::string_view proc, int formNumber) {
  std::string text = "Form " + std::to_string(formNumber) + " not found in mercod.ini.";
  ShowErrorText(ctx, text);
  ctx.Trace(std::string(proc) + ". " + text);
}

void ReportMissingKey(Context& ctx, std::string_view proc, std::string_view key) {
  std::string text = "Parameter " + std::string(key) + " not found in mercod.ini.";
  ShowErrorText(ctx, text);
  ctx.Trace(std::string(proc) + ". " + text);
}

// The live file's lines, or nothing after the message for a missing or unreadable file.
std::optional<std::vector<std::string>> ReadIniLines(Context& ctx) {
  auto path = ctx.FilePath(kIniName);
  if (!std::filesystem::exists(path)) {
    ctx.sink().Show(kFailure, kMissingIni);
    return std::nullopt;
  }
  ctx.settings.lastFileOpened = std::string(kIniName);
  auto content = ReadWholeFile(path);
  if (!content) {
    ShowRunTimeError(ctx, kPathFileAccess);
    return std::nullopt;
  }
  return SplitLines(*content);
}

// Writes the work file, then mercod.ini -> mercod.bak and work file -> mercod.ini.
bool SwapInWorkFile(Context& ctx, std::string_view workName, const std::vector<std::string>& lines,
                    std::string_view proc) {
  auto work = ctx.FilePath(workName);
  ctx.settings.lastFileOpened = std::string(workName);
  if (!WriteDurably(work, JoinCrLf(lines))) {
    RemoveIfExists(work);
    ShowRunTimeError(ctx, kPathFileAccess);
    return false;
  }
  ctx.Trace(std::string(proc) + ". File renaming about to begin.");
  std::error_code ec;
  RemoveIfExists(ctx.FilePath(kBakName));
  std::filesystem::rename(ctx.FilePath(kIniName), ctx.FilePath(kBakName), ec);
  if (!ec) std::filesystem::rename(work, ctx.FilePath(kIniName), ec);
  if (ec) {
    ctx.settings.lastFileOpened = std::string(kIniName);
    ShowRunTimeError(ctx, kPathFileAccess);
    return false;
  }
  ctx.Trace(std::string(proc) + ". File " + std::string(workName) + " renamed as mercod.ini.");
  return true;
}

}  // namespace

std::string ReadIniFile(Context& ctx, int formNumber, std::string_view paramName) {
  ctx.Trace("ReadIniFile entered. FormNumber = " + std::to_string(formNumber) +
            ". ParamName$ = " + std::string(paramName));
  auto lines = ReadIniLines(ctx);
  if (!lines) return {};
  const std::string head = SectionHead(formNumber);
  std::size_t i = 0;
  while (i < lines->size() && (*lines)[i] != head) ++i;
  if (i == lines->size()) {
    ReportMissingForm(ctx, "ReadIniFile", formNumber);
    return {};
  }
  for (++i; i < lines->size(); ++i) {
    const std::string& line = (*lines)[i];
    if (StartsWith(line, "[")) break;
    if (MatchesKey(line, paramName)) {
      auto eq = line.find('=');
      std::string_view value(line);
      if (eq != std::string::npos) value = value.substr(eq + 1);
      return TrimCopy(value);
    }
  }
  if (paramName == "Debug") return "No";
  ReportMissingKey(ctx, "ReadIniFile", paramName);
  return {};
}

void UpdateIniFile(Context& ctx, int formNumber, std::string_view paramName,
                   std::string_view paramVal) {
  constexpr std::string_view proc = "UpdateIniFile";
  ctx.Trace("UpdateIniFile entered. FormNumber = " + std::to_string(formNumber) +
            ". ParamName$ = " + std::string(paramName) + ". ParamVal$ = " + std::string(paramVal));
  if (!std::filesystem::exists(ctx.FilePath(kIniName))) {
    ctx.sink().Show(kFailure, kMissingIni);
    return;
  }
  RemoveIfExists(ctx.FilePath("temp.ini"));
  auto lines = ReadIniLines(ctx);
  if (!lines) return;
  ctx.Trace("UpdateIniFile. File mercod.ini successfully opened.");
  ctx.Trace("UpdateIniFile. File temp.ini successfully opened.");

  std::vector<std::string> out;
  out.reserve(lines->size());
  const std::string head = SectionHead(formNumber);
  std::size_t i = 0;
  for (; i < lines->size(); ++i) {
    out.push_back((*lines)[i]);
    if ((*lines)[i] == head) break;
  }
  if (i == lines->size()) {
    ReportMissingForm(ctx, proc, formNumber);
    return;
  }
  ctx.Trace("UpdateIniFile. Search for form completed.");
  for (++i; i < lines->size(); ++i) {
    const std::string& line = (*lines)[i];
    if (StartsWith(line, "[")) break;
    if (MatchesKey(line, paramName)) break;
    out.push_back(line);
  }
  if (i == lines->size() || StartsWith((*lines)[i], "[")) {
    ReportMissingKey(ctx, proc, paramName);
    return;
  }
  ctx.Trace("UpdateIniFile. Search for parameter completed.");
  out.push_back(KeyLine(paramName, paramVal));
  out.insert(out.end(), lines->begin() + static_cast<std::ptrdiff_t>(i) + 1, lines->end());
  ctx.Trace("UpdateIniFile. Remaining lines in file mercod.ini copied to file temp.ini.");
  SwapInWorkFile(ctx, "temp.ini", out, proc);
}

void UpdateIniAllForms(Context& ctx, std::string_view paramName, std::string_view paramVal) {
  ctx.Trace("UpdateIniAllForms entered. ParamName$ = " + std::string(paramName) +
            ". ParamVal$ = " + std::string(paramVal));
  RemoveIfExists(ctx.FilePath("temp.ini"));
  auto lines = ReadIniLines(ctx);
  if (!lines) return;
  std::vector<std::string> out;
  out.reserve(lines->size());
  bool inRange = false;
  for (const auto& line : *lines) {
    if (inRange && MatchesKey(line, paramName)) {
      out.push_back(KeyLine(paramName, paramVal));
      continue;
    }
    out.push_back(line);
    if (!inRange && Left(line, 7) == "[Form2]") inRange = true;
  }
  SwapInWorkFile(ctx, "temp.ini", out, "UpdateIniAllForms");
}

bool AddIniSection(Context& ctx, int formNumber, std::string_view title) {
  RemoveIfExists(ctx.FilePath("AFtemp.ini"));
  auto lines = ReadIniLines(ctx);
  if (!lines) return false;
  const std::string head = SectionHead(formNumber);
  for (const auto& line : *lines)
    if (line == head) return true;
  std::vector<std::string> out = std::move(*lines);
  out.emplace_back();
  out.push_back(head);
  out.push_back("> " + std::string(title));
  SwapInWorkFile(ctx, "AFtemp.ini", out, "AddIniSection");
  return false;
}

void AddIniParameter(Context& ctx, int formNumber, std::string_view paramName,
                     std::string_view paramVal) {
  RemoveIfExists(ctx.FilePath("APtemp.ini"));
  auto lines = ReadIniLines(ctx);
  if (!lines) return;
  const std::string head = SectionHead(formNumber);
  std::vector<std::string> out;
  out.reserve(lines->size() + 1);
  std::size_t i = 0;
  for (; i < lines->size(); ++i) {
    out.push_back((*lines)[i]);
    if ((*lines)[i] == head) break;
  }
  if (i == lines->size()) {
    ReportMissingForm(ctx, "AddIniParameter", formNumber);
    return;
  }
  for (++i; i < lines->size(); ++i) {
    const std::string& line = (*lines)[i];
    if (MatchesKey(line, paramName)) return;  // present: nothing changes
    if (line.empty()) break;                  // the section's end
    out.push_back(line);
  }
  out.push_back(KeyLine(paramName, paramVal));
  if (i < lines->size())
    out.insert(out.end(), lines->begin() + static_cast<std::ptrdiff_t>(i), lines->end());
  SwapInWorkFile(ctx, "APtemp.ini", out, "AddIniParameter");
}

}  // namespace mc
