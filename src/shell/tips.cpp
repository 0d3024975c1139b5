#include "shell/tips.h"

#include "core/errors.h"
#include "core/ini_file.h"
#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

bool TipOfTheDay::Load() {
  tips_.clear();
  ctx_.settings.lastFileOpened = "DayTips.dat";
  auto content = ReadWholeFile(ctx_.FilePath("DayTips.dat"));
  if (!content) {
    ShowError(ctx_, Err("Missing file DayTips.dat."));
    return false;
  }
  for (const auto& line : SplitLines(*content)) {
    std::string tip = TrimCopy(line);
    if (!tip.empty() && tip.front() != '>') tips_.push_back(std::move(tip));
  }
  return true;
}

std::string TipOfTheDay::Next() {
  if (tips_.empty()) return {};
  int n = ctx_.settings.lastTipNumber + 1;
  if (n < 1 || n > static_cast<int>(tips_.size())) n = 1;
  ctx_.settings.lastTipNumber = n;
  UpdateIniFile(ctx_, 0, "Last Tip Shown Number", std::to_string(n));
  return tips_[static_cast<std::size_t>(n - 1)];
}

void TipOfTheDay::SetShowAtStart(bool show) {
  ctx_.settings.showTip = show ? "Yes" : "No";
  UpdateIniFile(ctx_, 0, "Show Tip of the Day", ctx_.settings.showTip);
}

std::string TipOfTheDay::DisplayText(std::string_view tip) {
  std::string out;
  for (std::size_t i = 0; i < tip.size(); ++i) {
    if (tip[i] == '.' && i + 1 < tip.size() && tip[i + 1] == ' ') {
      out += ".\r\n";
      ++i;
    } else {
      out += tip[i];
    }
  }
  return out;
}

}  // namespace mc
