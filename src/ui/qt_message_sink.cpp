#include "ui/qt_message_sink.h"

#include <QApplication>
#include <QMessageBox>

#include "ui/data_input_form.h"

namespace mc::ui {

namespace {

QString Q(std::string_view s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

QMessageBox::Icon IconOf(std::string_view caption) {
  if (caption == kErrorDetected) return QMessageBox::Warning;
  if (caption == kFailure) return QMessageBox::Critical;
  if (caption == kWarning) return QMessageBox::Warning;
  return QMessageBox::Information;
}

}  // namespace

QWidget* DialogParent() {
  return QApplication::activeWindow();
}

void QtMessageSink::Show(std::string_view caption, std::string_view text) {
  // A long calculation may have set the busy cursor.
  while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
  QMessageBox box(IconOf(caption), Q(caption), Q(text), QMessageBox::Ok, DialogParent());
  box.exec();
}

bool QtMessageSink::Ask(std::string_view caption, std::string_view text) {
  while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
  QMessageBox box(caption == kWarning ? QMessageBox::Question : IconOf(caption), Q(caption),
                  Q(text), QMessageBox::Yes | QMessageBox::No, DialogParent());
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> QtMessageSink::Input(std::string_view caption, std::string_view prompt,
                                                bool masked, std::string_view defaultReply) {
  DataInputForm form(Q(caption), Q(prompt), masked, Q(defaultReply), DialogParent());
  if (form.exec() != QDialog::Accepted) return std::nullopt;
  return form.Reply().toStdString();
}

}  // namespace mc::ui
