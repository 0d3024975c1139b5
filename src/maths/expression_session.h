// An Expression Calculator session: the text of the output box, in which
// the user types lines and the results are written below them under "==>",
// with the commands that work on the whole text and the *.shf files.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/context.h"
#include "maths/expression.h"

namespace mc {

class ExpressionSession {
 public:
  explicit ExpressionSession(Context& ctx) : engine_(ctx) {}

  ExpressionEngine& engine() { return engine_; }
  const ExpressionEngine& engine() const { return engine_; }

  // The session as the box shows it, lines ended by CR LF.
  const std::string& Text() const { return text_; }
  // The box as the user left it; LF line ends become CR LF.
  void SetText(std::string_view text);
  // A line typed on a line of its own at the end of the session, ended by
  // the line break the Enter key puts in the box; Calculate then works on it.
  void TypeLine(std::string_view line);

  // Calculates the last line of the text (the line above it when the last
  // one is a result line) and writes the result below it.
  LineResult Calculate();
  // The Enter key with the caret at byte `offset`: the line holding it is
  // calculated where it stands. Its old result lines give way to the new
  // ones and the lines below stay as they are; on a failure the line stands
  // without results. A blank or comment line gets a line break after it, and
  // a result line stands for the line it belongs to. `caret` receives where
  // typing goes on: below the results, or at the end of a line that failed.
  // On the last line this is typing the line and pressing Enter at the end.
  LineResult CalculateAt(std::size_t offset, std::size_t& caret);
  // Calculates every line that is not a result line, from the top, with
  // marked lines passed over when ignoreMarkedLines; stops at the first fault.
  bool RecalcAll(bool ignoreMarkedLines);
  // Writes the session to a *.shf file, with the angle measure first when
  // the session uses sin, cos or tan.
  bool Save(const std::filesystem::path& file);
  // Reads a *.shf file and calculates its lines as if typed, after the
  // present text; the tables keep what they hold.
  bool Load(const std::filesystem::path& file);
  // Empties the text and the tables.
  void ClearAll();

  // The last value written, as it was put on the clipboard.
  const std::string& Clipboard() const { return clipboard_; }

 private:
  LineResult Enter(std::string prefix, std::string_view line);

  ExpressionEngine engine_;
  std::string text_;
  std::string clipboard_;
};

}  // namespace mc
