// The Find screen (form 74): a search text and "Match case" over the output
// box of the screen that opened it.
#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace mc::ui {

class Desktop;
class OutputBox;

class FindForm : public QDialog {
  Q_OBJECT
 public:
  FindForm(Desktop& desktop, OutputBox* box, QWidget* parent = nullptr);

  // The Find command: blank text does nothing; a hit selects it in the caller.
  void FindClicked();

 private:
  OutputBox* box_;
  QLineEdit* text_;
  QCheckBox* matchCase_;
  bool searched_ = false;
};

}  // namespace mc::ui
