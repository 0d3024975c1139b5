#include "ui/desktop.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "core/errors.h"
#include "ui/find_form.h"
#include "ui/print_form.h"
#include "ui/screen_form.h"

namespace mc::ui {

Desktop::Desktop(Context& ctx) : ctx_(ctx) {}

Desktop::~Desktop() {
  for (auto& [number, form] : loaded_) delete form.data();
}

ScreenForm* Desktop::Loaded(int formNumber) const {
  auto it = loaded_.find(formNumber);
  return it == loaded_.end() ? nullptr : it->second.data();
}

ScreenForm* Desktop::Open(int formNumber, const QString& caller) {
  auto factory = Screens().find(formNumber);
  if (factory == Screens().end()) return nullptr;
  ScreenForm* form = Loaded(formNumber);
  if (!form) {
    form = factory->second(*this);
    loaded_[formNumber] = form;
  }
  form->caller = caller;
  ctx_.settings.currentForm = caller.toStdString();
  QWidget* from = caller == "Form1" ? main_ : Loaded(caller.mid(4).toInt());
  form->show();
  form->raise();
  form->activateWindow();
  if (from && from != form) from->hide();
  return form;
}

void Desktop::ShowMain(QWidget* from) {
  if (main_) {
    main_->show();
    main_->raise();
    main_->activateWindow();
  }
  if (from && from != main_) from->hide();
}

void Desktop::ShowPrevious(ScreenForm* from) {
  if (from->caller == "Form1" || from->caller.isEmpty()) {
    ShowMain(from);
    return;
  }
  if (ScreenForm* previous = Loaded(from->caller.mid(4).toInt())) {
    previous->show();
    previous->raise();
    from->hide();
  } else {
    ShowMain(from);
  }
}

ScreenForm* Desktop::ActiveScreen() const {
  for (const auto& [number, form] : loaded_)
    if (form && form->isVisible()) return form.data();
  return nullptr;
}

void Desktop::SaveOutput(QWidget* parent, const std::string& text, SaveStyle style) {
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) return;
  QString file;
  if (saveFileChooser) {
    file = saveFileChooser();
  } else {
    file = QFileDialog::getSaveFileName(parent, "Save Output", QString(),
                                        "Text files (*.txt);;Other text file formats (*.*)");
  }
  if (file.isEmpty()) return;  // cancelled
  mc::SaveOutput(ctx_, text, file.toStdString(), style);
}

void Desktop::PrintOutput(QWidget* parent, const std::string& text) {
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) return;
  PrintForm form(*this, text, parent);
  form.exec();
}

void Desktop::PrintListing(QWidget* parent, const std::string& text, const PrintFont& body) {
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) return;
  PrintForm form(*this, text, parent, &body);
  form.exec();
}

void Desktop::OpenFind(QWidget* parent, OutputBox* box) {
  FindForm form(*this, box, parent);
  form.exec();
}

void Desktop::OpenHelpFile(const QString& pdfName) {
  QProcess query;
  query.start("xdg-mime", {"query", "default", "application/pdf"});
  bool registered =
      query.waitForFinished(3000) && !query.readAllStandardOutput().trimmed().isEmpty();
  if (!registered) {
    ShowError(ctx_, Err("No application currently associated with PDF files."));
    return;
  }
  QString file = QString::fromStdString(ctx_.FilePath(pdfName.toStdString()).string());
  if (!QFileInfo::exists(file) || !QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
    ShowError(ctx_, Err("Problem encountered opening PDF file."));
}

}  // namespace mc::ui
