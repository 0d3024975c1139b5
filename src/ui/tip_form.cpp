#include "ui/tip_form.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

namespace mc::ui {

TipForm::TipForm(Desktop& desktop) : ScreenForm(desktop, 42, "Tip of the Day"), model_(ctx()) {
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel("Did you know ...", this);
  QFont big = heading->font();
  big.setPointSize(big.pointSize() + 4);
  big.setBold(true);
  heading->setFont(big);
  layout->addWidget(heading);
  tip_ = new QLabel(this);
  tip_->setObjectName("lblTip");
  tip_->setWordWrap(true);
  tip_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  tip_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  tip_->setMinimumHeight(140);
  QFont tipFont = tip_->font();
  tipFont.setPointSize(tipFont.pointSize() + 1);
  tip_->setFont(tipFont);
  layout->addWidget(tip_, 1);
  number_ = new QLabel(this);
  number_->setObjectName("lblTipNumber");
  layout->addWidget(number_);
  auto* row = new QHBoxLayout;
  showAtStart_ = new QCheckBox("Show Tip of the Day at start", this);
  showAtStart_->setObjectName("chkShowTip");
  showAtStart_->setChecked(model_.ShowAtStart());
  auto* next = new QPushButton("&Next Tip", this);
  next->setObjectName("cmdNextTip");
  row->addWidget(showAtStart_);
  row->addStretch();
  row->addWidget(next);
  row->addWidget(MakeMainScreenButton());
  layout->addLayout(row);
  connect(showAtStart_, &QCheckBox::toggled, this, [this](bool on) { model_.SetShowAtStart(on); });
  connect(next, &QPushButton::clicked, this, &TipForm::ShowNextTip);
  resize(520, 280);
}

void TipForm::ShowNextTip() {
  if (!loaded_) {
    loaded_ = true;
    if (!model_.Load()) return;
  }
  const std::string tip = TipOfTheDay::DisplayText(model_.Next());
  QString text = QString::fromStdString(tip);
  text.replace("\r\n", "\n");
  tip_->setText(text);
  if (!model_.Tips().empty())
    number_->setText(
        QString("Tip %1 of %2").arg(model_.Number()).arg(static_cast<int>(model_.Tips().size())));
}

void TipForm::showEvent(QShowEvent* event) {
  ScreenForm::showEvent(event);
  if (!event->spontaneous()) ShowNextTip();
}

}  // namespace mc::ui
