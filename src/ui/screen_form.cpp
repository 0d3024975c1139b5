#include "ui/screen_form.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>

#include "ui/fonts.h"
#include "ui/output_box.h"
#include "ui/screen_colours.h"

namespace mc::ui {

ScreenForm::ScreenForm(Desktop& desktop, int formNumber, const QString& title)
    : QWidget(nullptr, Qt::Window), desktop_(desktop), formNumber_(formNumber) {
  setObjectName(QString("Form%1").arg(formNumber));
  setWindowTitle(title);
  setWindowIcon(QIcon(QString::fromStdString(ctx().FilePath("sun.ico").string())));
}

void ScreenForm::Tick(const LocalDateTime&) {}

OutputBox* ScreenForm::MakeOutputBox() {
  auto* box = new OutputBox(ctx(), this);
  box->setObjectName("txtOutput");
  box->setFont(DisplayFixedFont(ctx().settings, 0));
  outputs_.emplace_back(box);
  connect(box, &OutputBox::enlargeToggled, this, &ScreenForm::ToggleEnlarged);
  connect(box, &OutputBox::findRequested, this, [this, box] { desktop_.OpenFind(this, box); });
  connect(box, &OutputBox::helpRequested, this, [this] { desktop_.OpenHelpFile("readme.pdf"); });
  return box;
}

QPushButton* ScreenForm::MakeMainScreenButton() {
  auto* b = new QPushButton("&Main Screen", this);
  b->setObjectName("cmdMainScreen");
  b->setToolTip("Return to main screen.");
  connect(b, &QPushButton::clicked, this, [this] { desktop_.ShowMain(this); });
  return b;
}

QPushButton* ScreenForm::MakePreviousScreenButton() {
  auto* b = new QPushButton("&Previous Screen", this);
  b->setObjectName("cmdPreviousScreen");
  b->setToolTip("Return to previous screen.");
  connect(b, &QPushButton::clicked, this, [this] { desktop_.ShowPrevious(this); });
  return b;
}

QPushButton* ScreenForm::MakeSaveButton(OutputBox* box) {
  auto* b = new QPushButton("Save Output", this);
  b->setObjectName("cmdSave");
  connect(b, &QPushButton::clicked, this,
          [this, box] { desktop_.SaveOutput(this, box->Report(), SaveStyle::Screen); });
  return b;
}

QPushButton* ScreenForm::MakePrintButton(OutputBox* box) {
  auto* b = new QPushButton("Print Output", this);
  b->setObjectName("cmdPrint");
  connect(b, &QPushButton::clicked, this,
          [this, box] { desktop_.PrintOutput(this, box->Report()); });
  return b;
}

void ScreenForm::showEvent(QShowEvent* event) {
  ApplyScreenColours(ctx(), this, formNumber_);
  // Font options take effect at the next activation.
  for (const auto& box : outputs_)
    if (box) box->setFont(DisplayFixedFont(ctx().settings, 0));
  QWidget::showEvent(event);
}

void ScreenForm::closeEvent(QCloseEvent* event) {
  // Closing a screen goes back to the main screen, as "&Main Screen" does.
  event->ignore();
  desktop_.ShowMain(this);
}

void ScreenForm::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) {
    desktop_.OpenHelpFile("readme.pdf");
    return;
  }
  if (event->key() == Qt::Key_T && (event->modifiers() & Qt::ControlModifier)) {
    ctx().RequestCancel();
    return;
  }
  if (event->key() == Qt::Key_F11) {
    ToggleEnlarged();
    return;
  }
  QWidget::keyPressEvent(event);
}

void ScreenForm::ToggleEnlarged() {
  QScreen* s = screen();
  if (!s) return;
  const QRect avail = s->availableGeometry();
  if (!enlarged_) {
    normalGeometry_ = geometry();
    const int width = avail.width() - 27;  // 400 twips
    setGeometry(avail.left() + (avail.width() - width) / 2, geometry().top(), width,
                geometry().height());
  } else {
    setGeometry(avail.left() + (avail.width() - normalGeometry_.width()) / 2, normalGeometry_.top(),
                normalGeometry_.width(), normalGeometry_.height());
  }
  enlarged_ = !enlarged_;
}

}  // namespace mc::ui
