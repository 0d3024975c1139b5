#include "shell/save_output.h"

#include "calendars/names.h"
#include "core/errors.h"
#include "core/safe_file.h"
#include "core/text_util.h"

namespace mc {

std::string SavedOutputContent(std::string_view text, SaveStyle style, const LocalDateTime& today) {
  if (style == SaveStyle::MainScreen) {
    std::string_view rest = text;
    std::string out;
    // Line by line until nothing but a final line end is left.
    while (!rest.empty() && rest != "\r\n") {
      auto end = rest.find("\r\n");
      out += rest.substr(0, end);
      out += "\r\n";
      if (end == std::string_view::npos) break;
      rest = rest.substr(end + 2);
    }
    return out;
  }
  std::string out(text);
  out += "\r\n\r\nFile produced on ";
  out += kMonthNames[today.month];
  out += " " + std::to_string(today.day) + ", " + std::to_string(today.year) + "\r\n";
  return out;
}

bool SaveOutput(Context& ctx, std::string_view text, const std::filesystem::path& file,
                SaveStyle style) {
  if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) return false;
  ctx.settings.lastFileOpened = file.string();
  if (!WriteFileAtomically(file, SavedOutputContent(text, style, ctx.Now()))) {
    ShowRunTimeError(ctx, kPathFileAccess);
    return false;
  }
  ctx.sink().Show(kSuccess, "Output successfully saved as file " + file.string() + ".");
  return true;
}

}  // namespace mc
