#include "ui/screenshots.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QThread>

#include "ui/desktop.h"
#include "ui/main_window.h"
#include "ui/quick_notes_form.h"
#include "ui/screen_form.h"

namespace mc::ui {

namespace {
void Settle() {
  for (int i = 0; i < 10; ++i) {
    QApplication::processEvents();
    QThread::msleep(20);
  }
}
}  // namespace

void SaveScreenshots(Desktop& desktop, MainWindow& main, const QString& dir) {
  QDir().mkpath(dir);
  Settle();
  main.grab().save(dir + "/Form1.png");
  for (const auto& [number, factory] : Desktop::Screens()) {
    ScreenForm* form = desktop.Open(number);
    if (!form) continue;
    Settle();
    form->grab().save(QString("%1/Form%2.png").arg(dir).arg(number));
    // Find and Replace is reached only through Quick Notes.
    if (auto* notes = qobject_cast<QuickNotesForm*>(form)) {
      FindReplaceForm* find = notes->OpenFindReplace();
      Settle();
      find->grab().save(dir + "/Form28.png");
      find->hide();
    }
    desktop.ShowMain(form);
  }
}

}  // namespace mc::ui
