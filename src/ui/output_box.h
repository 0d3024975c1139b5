// The large output box of the main screen and of every screen with a report:
// fixed-pitch text, selectable, with the keys every output box shares
// (F11 enlarged view, F3 find next, Ctrl+A, Ctrl+F find, F1 help; Tab stays).
#pragma once

#include <QPlainTextEdit>
#include <string>

#include "core/context.h"

namespace mc::ui {

class OutputBox : public QPlainTextEdit {
  Q_OBJECT
 public:
  OutputBox(Context& ctx, QWidget* parent = nullptr);

  // Shows a report (CR LF or LF lines) and keeps it as it is for saving and printing.
  void SetReport(const std::string& text);
  const std::string& Report() const { return report_; }

  // Searches from the start (first) or on from the last hit; selects a hit.
  // Shows "Text not found." or "No more occurrences of text." when none.
  bool Find(const QString& text, bool matchCase, bool first);
  // F3: the last search again, from the last hit.
  void FindNext();

 signals:
  void enlargeToggled();
  void findRequested();
  void helpRequested();
  // Ctrl+Up / Ctrl+Down: move the line at the caret within its day.
  void moveRequested(bool up);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  Context& ctx_;
  std::string report_;
  QString findText_;
  bool matchCase_ = false;
  int lastHit_ = -1;
};

}  // namespace mc::ui
