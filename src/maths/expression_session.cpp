#include "maths/expression_session.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "core/errors.h"
#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

namespace {

constexpr std::string_view kCrLf = "\r\n";
constexpr std::string_view kResultMark = "==>";

bool EndsWithLineBreak(std::string_view s) {
  return !s.empty() && s.back() == '\n';
}

void DropLineBreak(std::string& s) {
  if (EndsWithLineBreak(s)) {
    s.pop_back();
    if (!s.empty() && s.back() == '\r') s.pop_back();
  }
}

// Splits off the last line: the text before it keeps its line break.
std::string TakeLastLine(std::string& text) {
  auto nl = text.rfind('\n');
  std::string line = nl == std::string::npos ? text : text.substr(nl + 1);
  text.resize(nl == std::string::npos ? 0 : nl + 1);
  return line;
}

// The line holding byte `at`: where it starts and where it ends (at its
// line break, or the end of the text).
std::pair<std::size_t, std::size_t> LineAround(const std::string& text, std::size_t at) {
  const auto nl = at == 0 ? std::string::npos : text.rfind('\n', at - 1);
  const std::size_t begin = nl == std::string::npos ? 0 : nl + 1;
  const auto end = text.find('\n', begin);
  return {begin, end == std::string::npos ? text.size() : end};
}

// The text of a line without its CR.
std::string_view LineText(const std::string& text, std::size_t begin, std::size_t end) {
  std::string_view line(text.data() + begin, end - begin);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

void AppendRest(std::string& text, const std::vector<std::string>& lines, std::size_t from) {
  if (from >= lines.size()) return;
  text += kCrLf;
  for (std::size_t i = from; i < lines.size(); ++i) {
    text += lines[i];
    text += kCrLf;
  }
}

}  // namespace

void ExpressionSession::SetText(std::string_view text) {
  text_.clear();
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) text_ += '\r';
    text_ += text[i];
  }
}

void ExpressionSession::TypeLine(std::string_view line) {
  if (!text_.empty() && !EndsWithLineBreak(text_)) text_ += kCrLf;
  text_ += line;
  text_ += kCrLf;
}

LineResult ExpressionSession::Enter(std::string prefix, std::string_view line) {
  LineResult r = engine_.ProcessLine(line);
  text_ = std::move(prefix);
  text_ += r.shown;
  if (r.ok()) {
    text_ += kCrLf;
    for (const auto& out : r.output) {
      text_ += out;
      text_ += kCrLf;
    }
  }
  if (!r.value.empty()) clipboard_ = r.value;
  return r;
}

LineResult ExpressionSession::Calculate() {
  std::string text = text_;
  DropLineBreak(text);
  std::string line = TakeLastLine(text);
  if (StartsWith(line, kResultMark)) {
    DropLineBreak(text);
    line = TakeLastLine(text);
  }
  return Enter(std::move(text), line);
}

LineResult ExpressionSession::CalculateAt(std::size_t offset, std::size_t& caret) {
  auto [begin, end] = LineAround(text_, std::min(offset, text_.size()));
  // A result line stands for the line above it that it belongs to.
  while (StartsWith(LineText(text_, begin, end), kResultMark) && begin > 0)
    std::tie(begin, end) = LineAround(text_, begin - 1);
  const std::string line(LineText(text_, begin, end));
  if (StartsWith(line, kResultMark)) {  // results with no line above
    caret = begin + line.size();
    return {};
  }
  // The old results: the result lines right below the line.
  std::size_t rest = end < text_.size() ? end + 1 : end;
  while (rest < text_.size()) {
    const auto [b, e] = LineAround(text_, rest);
    if (!StartsWith(LineText(text_, b, e), kResultMark)) break;
    rest = e < text_.size() ? e + 1 : e;
  }

  LineResult r = engine_.ProcessLine(line);
  std::string text = text_.substr(0, begin) + r.shown;
  if (r.kind == LineResult::Kind::Blank || r.kind == LineResult::Kind::Skipped) {
    // Enter on a line with nothing to work out opens a new line below it.
    text += kCrLf;
    caret = text.size();
    text += std::string_view(text_).substr(begin + line.size());
  } else if (r.ok()) {
    text += kCrLf;
    for (const auto& out : r.output) {
      text += out;
      text += kCrLf;
    }
    caret = text.size();
    text += std::string_view(text_).substr(rest);
  } else {
    caret = text.size();
    if (rest < text_.size()) {
      text += kCrLf;
      text += std::string_view(text_).substr(rest);
    }
  }
  text_ = std::move(text);
  if (!r.value.empty()) clipboard_ = r.value;
  return r;
}

bool ExpressionSession::RecalcAll(bool ignoreMarkedLines) {
  const std::vector<std::string> lines = SplitLines(text_);
  text_.clear();
  engine_.ignoreMarked = ignoreMarkedLines;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (StartsWith(lines[i], kResultMark)) continue;
    if (!Enter(text_, lines[i]).ok()) {
      engine_.ignoreMarked = false;
      AppendRest(text_, lines, i + 1);
      return false;
    }
  }
  engine_.ignoreMarked = false;
  engine_.ctx().sink().Show(kSuccess, "All expressions and statements successfully recalculated.");
  return true;
}

bool ExpressionSession::Save(const std::filesystem::path& file) {
  Context& ctx = engine_.ctx();
  std::string content;
  const std::string lower = ToLower(text_);
  if (lower.find("cos(") != std::string::npos || lower.find("sin(") != std::string::npos ||
      lower.find("tan(") != std::string::npos) {
    content += AngleMeasureName(engine_.angle);
    content += kCrLf;
  }
  content += JoinCrLf(SplitLines(text_));
  ctx.settings.lastFileOpened = file.string();
  if (!WriteFileAtomically(file, content)) {
    ShowRunTimeError(ctx, kPathFileAccess, kProcSaveSession);
    return false;
  }
  ctx.sink().Show(kSuccess, "Current session successfully saved as file " + file.string() + ".");
  return true;
}

bool ExpressionSession::Load(const std::filesystem::path& file) {
  Context& ctx = engine_.ctx();
  ctx.settings.lastFileOpened = file.string();
  auto content = std::filesystem::is_regular_file(file) ? ReadWholeFile(file) : std::nullopt;
  if (!content) {
    ShowRunTimeError(ctx, kFileNotFound, kProcLoadSession);
    return false;
  }
  std::vector<std::string> lines = SplitLines(*content);
  std::size_t first = 0;
  if (!lines.empty()) {
    const std::string_view head = Left(lines[0], 7);
    if (head == "Degrees" || head == "Radians") {
      const AngleMeasure mode = head == "Degrees" ? AngleMeasure::Degrees : AngleMeasure::Radians;
      if (mode != engine_.angle) {
        engine_.angle = mode;
        ctx.sink().Show(kWarning, mode == AngleMeasure::Degrees
                                      ? "Angle measure has been changed to degrees."
                                      : "Angle measure has been changed to radians.");
      }
      first = 1;
    }
  }
  const char sep = ctx.settings.decimalSeparator;
  for (std::size_t i = first; i < lines.size(); ++i) {
    std::string& line = lines[i];
    const auto quote = line.find('\'');
    line = ToUserDecimal(line.substr(0, quote), sep) +
           (quote == std::string::npos ? std::string() : line.substr(quote));
  }
  for (std::size_t i = first; i < lines.size(); ++i) {
    if (StartsWith(lines[i], kResultMark)) continue;
    if (!text_.empty() && !EndsWithLineBreak(text_)) text_ += kCrLf;
    if (!Enter(text_, lines[i]).ok()) {
      AppendRest(text_, lines, i + 1);
      return false;
    }
  }
  ctx.sink().Show(kSuccess,
                  "Session successfully loaded from file " + file.string() + " and recalculated.");
  return true;
}

void ExpressionSession::ClearAll() {
  text_.clear();
  clipboard_.clear();
  engine_.ClearTables();
}

}  // namespace mc
