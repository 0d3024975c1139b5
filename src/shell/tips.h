// Tip of the Day (form 42): one tip per line of DayTips.dat, shown in turn.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"

namespace mc {

class TipOfTheDay {
 public:
  explicit TipOfTheDay(Context& ctx) : ctx_(ctx) {}

  // Reads DayTips.dat: every line that is neither empty nor a ">" comment is a
  // tip. False after "Missing file DayTips.dat.".
  bool Load();
  const std::vector<std::string>& Tips() const { return tips_; }

  // The tip after Last Tip Shown Number, wrapping to the first; the number
  // used is stored. Empty when there are no tips.
  std::string Next();
  // The number of the tip shown last (1-based; 0 before the first).
  int Number() const { return ctx_.settings.lastTipNumber; }

  // The "Show Tip of the Day" check box.
  bool ShowAtStart() const { return ctx_.settings.showTip == "Yes"; }
  void SetShowAtStart(bool show);

  // A tip as it is shown: each ". " starts a new line.
  static std::string DisplayText(std::string_view tip);

 private:
  Context& ctx_;
  std::vector<std::string> tips_;
};

}  // namespace mc
