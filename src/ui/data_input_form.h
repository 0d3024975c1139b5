// The Data Input box (form 72): a modal question with one line of reply,
// masked for passwords.
#pragma once

#include <QDialog>

class QLineEdit;

namespace mc::ui {

class DataInputForm : public QDialog {
  Q_OBJECT
 public:
  DataInputForm(const QString& caption, const QString& prompt, bool masked,
                const QString& defaultReply, QWidget* parent = nullptr);
  QString Reply() const;

 private:
  QLineEdit* reply_;
};

}  // namespace mc::ui
