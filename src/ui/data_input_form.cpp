#include "ui/data_input_form.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace mc::ui {

DataInputForm::DataInputForm(const QString& caption, const QString& prompt, bool masked,
                             const QString& defaultReply, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(caption);
  setObjectName("Form72");
  auto* layout = new QVBoxLayout(this);
  auto* label = new QLabel(prompt, this);
  label->setWordWrap(true);
  layout->addWidget(label);
  reply_ = new QLineEdit(this);
  reply_->setObjectName("txtReply");
  if (masked) reply_->setEchoMode(QLineEdit::Password);
  if (defaultReply != "0" && defaultReply != "-1") reply_->setText(defaultReply);
  layout->addWidget(reply_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  setMinimumWidth(360);
}

QString DataInputForm::Reply() const {
  return reply_->text();
}

}  // namespace mc::ui
