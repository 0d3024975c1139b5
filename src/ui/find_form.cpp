#include "ui/find_form.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/desktop.h"
#include "ui/output_box.h"
#include "ui/screen_colours.h"

namespace mc::ui {

FindForm::FindForm(Desktop& desktop, OutputBox* box, QWidget* parent) : QDialog(parent), box_(box) {
  setObjectName("Form74");
  setWindowTitle("Find Text");
  auto* layout = new QVBoxLayout(this);
  text_ = new QLineEdit(this);
  text_->setObjectName("txtFind");
  layout->addWidget(text_);
  matchCase_ = new QCheckBox("Match case", this);
  matchCase_->setObjectName("chkMatchCase");
  layout->addWidget(matchCase_);
  auto* row = new QHBoxLayout;
  auto* find = new QPushButton("&Find", this);
  find->setObjectName("cmdFind");
  find->setDefault(true);
  auto* close = new QPushButton("&Close", this);
  close->setObjectName("cmdClose");
  row->addWidget(find);
  row->addWidget(close);
  layout->addLayout(row);
  connect(find, &QPushButton::clicked, this, &FindForm::FindClicked);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  ApplyScreenColours(desktop.ctx(), this, 74);
}

void FindForm::FindClicked() {
  if (text_->text().trimmed().isEmpty()) {
    text_->setFocus();
    return;
  }
  if (box_->Find(text_->text(), matchCase_->isChecked(), !searched_)) {
    searched_ = true;
    accept();
    box_->setFocus();
  } else {
    searched_ = true;
  }
}

}  // namespace mc::ui
