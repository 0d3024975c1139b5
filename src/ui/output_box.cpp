#include "ui/output_box.h"

#include <QKeyEvent>
#include <QTextBlock>

namespace mc::ui {

OutputBox::OutputBox(Context& ctx, QWidget* parent) : QPlainTextEdit(parent), ctx_(ctx) {
  setReadOnly(true);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(false);
}

void OutputBox::SetReport(const std::string& text) {
  report_ = text;
  QString shown = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
  shown.replace("\r\n", "\n");
  setPlainText(shown);
  lastHit_ = -1;
}

bool OutputBox::Find(const QString& text, bool matchCase, bool first) {
  if (text.trimmed().isEmpty()) return false;
  findText_ = text;
  matchCase_ = matchCase;
  const QString haystack = toPlainText();
  const int from = first || lastHit_ < 0 ? 0 : lastHit_ + static_cast<int>(text.size());
  const int hit = haystack.indexOf(text, from, matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
  if (hit < 0) {
    ctx_.sink().Show(kSorry,
                     first || lastHit_ < 0 ? "Text not found." : "No more occurrences of text.");
    return false;
  }
  lastHit_ = hit;
  QTextCursor c = textCursor();
  c.setPosition(hit);
  c.setPosition(hit + static_cast<int>(text.size()), QTextCursor::KeepAnchor);
  setTextCursor(c);
  ensureCursorVisible();
  return true;
}

void OutputBox::FindNext() {
  if (!findText_.isEmpty()) Find(findText_, matchCase_, false);
}

void OutputBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_F11:
      emit enlargeToggled();
      return;
    case Qt::Key_F3:
      FindNext();
      return;
    case Qt::Key_F1:
      emit helpRequested();
      return;
    case Qt::Key_Tab:
      return;  // focus stays in the output
    default:
      break;
  }
  if (event->modifiers() & Qt::ControlModifier) {
    if (event->key() == Qt::Key_F) {
      emit findRequested();
      return;
    }
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
      emit moveRequested(event->key() == Qt::Key_Up);
      return;
    }
    if (event->key() == Qt::Key_A) {
      selectAll();
      return;
    }
  }
  QPlainTextEdit::keyPressEvent(event);
}

bool OutputBox::focusNextPrevChild(bool) {
  return false;
}

}  // namespace mc::ui
