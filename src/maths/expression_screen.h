// The Expression Calculator screen (form 27) as a model: the session box,
// the significant-figure list, the angle measure, "Ignore # lines", the
// commands by their captions, the keypad, and what the screen shows.
#pragma once

#include <algorithm>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"
#include "maths/expression_session.h"

namespace mc {

class ExpressionCalculatorScreen {
 public:
  static constexpr int kFormNumber = 27;
  static constexpr std::string_view kTitle = "Expression Calculator";
  static constexpr std::string_view kPrintTitle = "Expression Calculator Session";
  static constexpr std::string_view kSaveDialogTitle = "Save Session";
  static constexpr std::string_view kLoadDialogTitle = "Load Session";
  static constexpr std::string_view kSessionFilter = "Session files (*.shf)|*.shf";

  // Captions of the commands.
  static constexpr std::string_view kCalculate = "&Calculate";
  static constexpr std::string_view kRecalcAll = "&Recalc All";
  static constexpr std::string_view kSave = "&Save";
  static constexpr std::string_view kLoad = "&Load";
  static constexpr std::string_view kPrint = "&Print";
  static constexpr std::string_view kClearAll = "Clear &All";

  // On load: seeds the random source and reads Significant Figures and
  // Angle Measure of [Form27].
  explicit ExpressionCalculatorScreen(Context& ctx);

  // --- Inputs ---
  // The significant-figure list: "1" to "14".
  static std::vector<std::string> SignificantFigureChoices();
  int SignificantFigures() const { return session_.engine().sigFigs; }
  // A choice of the list; a change is written to the settings file.
  void SetSignificantFigures(int sigFigs);
  AngleMeasure Angle() const { return session_.engine().angle; }
  // The Degrees / Radians option buttons; a change is written to the settings file.
  void SetAngle(AngleMeasure angle);
  // "Ignore # lines".
  bool ignoreMarkedLines = false;
  // The session box as the user edited it.
  void SetSessionText(std::string_view text) { session_.SetText(text); }
  // A line typed on a line of its own at the end of the session box, with
  // the line break of the Enter key (Calculate follows).
  void TypeLine(std::string_view line) { session_.TypeLine(line); }

  // --- Commands ---
  // &Calculate (or the Enter key): the last line.
  LineResult Calculate();
  // The Enter key in the session box: the line at the caret, worked out
  // where it stands (see ExpressionSession::CalculateAt); the caret goes
  // below its results.
  LineResult PressEnter();
  // &Recalc All.
  bool RecalcAll();
  // &Save and &Load, with the file chosen in the dialog.
  bool Save(const std::filesystem::path& file);
  bool Load(const std::filesystem::path& file);
  // Clear &All.
  void ClearAll();
  // &Print: the document handed to the print settings screen.
  struct PrintRequest {
    std::string title;
    std::string text;
  };
  PrintRequest Print() const;
  // Runs the command of a caption that needs no file; false for others.
  bool Run(std::string_view caption);

  // The function and constant buttons of the keypad, by caption.
  static std::span<const std::string_view> KeypadCaptions();
  // What a button inserts at the caret: its caption without the argument
  // part ("sin(x)" inserts "sin("); userfuncs, uservars and rand whole.
  static std::string KeypadText(std::string_view caption);
  // Inserts a button's text at the caret.
  void PressKey(std::string_view caption);

  // --- Outputs ---
  const std::string& SessionText() const { return session_.Text(); }
  // Where the caret stands in the session text (a byte offset).
  std::size_t Caret() const { return caret_; }
  void SetCaret(std::size_t caret) { caret_ = std::min(caret, session_.Text().size()); }
  // The last result, also placed on the clipboard.
  const std::string& Clipboard() const { return session_.Clipboard(); }
  // False when the last Calculate stopped with a message.
  bool LastLineOk() const { return lastLineOk_; }

  ExpressionSession& session() { return session_; }

 private:
  void CaretToEnd() { caret_ = session_.Text().size(); }

  Context& ctx_;
  ExpressionSession session_;
  std::size_t caret_ = 0;
  bool lastLineOk_ = true;
};

}  // namespace mc
