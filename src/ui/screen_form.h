// A numbered screen of the desktop: a top-level window over a screen model,
// with the program's colours, keys and navigation buttons.
#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

#include "core/clock.h"
#include "ui/desktop.h"

class QPushButton;

namespace mc::ui {

class OutputBox;

class ScreenForm : public QWidget {
  Q_OBJECT
 public:
  ScreenForm(Desktop& desktop, int formNumber, const QString& title);

  int FormNumber() const { return formNumber_; }
  // The screen that opened this one ("Form1" for the main screen).
  QString caller = "Form1";

  // Work of the one timer while this screen is on top (clocks and the like).
  virtual void Tick(const LocalDateTime& now);

 protected:
  Desktop& desktop() { return desktop_; }
  Context& ctx() { return desktop_.ctx(); }

  // The standard parts of a screen.
  OutputBox* MakeOutputBox();
  QPushButton* MakeMainScreenButton();
  QPushButton* MakePreviousScreenButton();
  QPushButton* MakeSaveButton(OutputBox* box);
  QPushButton* MakePrintButton(OutputBox* box);

  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ToggleEnlarged();

  Desktop& desktop_;
  int formNumber_;
  QRect normalGeometry_;
  bool enlarged_ = false;
  std::vector<QPointer<OutputBox>> outputs_;
};

}  // namespace mc::ui
