// The Expression Calculator (form 27): a session box in which Enter works out
// the line at the caret, the keypad of functions and constants, significant
// figures, the angle measure, and the session commands.
#pragma once

#include <QString>
#include <functional>

#include "maths/expression_screen.h"
#include "ui/screen_form.h"

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace mc::ui {

class ExpressionForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit ExpressionForm(Desktop& desktop);

  ExpressionCalculatorScreen& Model() { return model_; }
  OutputBox* SessionBox() const { return session_; }

  // Asks for a session file in a dialog with this title ("Save Session" or
  // "Load Session"); empty when cancelled. Tests replace it.
  std::function<QString(const QString& title)> sessionFileChooser;

  // What the Enter key, the buttons and the keypad do.
  void PressEnter();
  void Calculate();
  void RecalcAll();
  void SaveSession();
  void LoadSession();
  void PrintSession();
  void ClearAll();
  void PressKey(const QString& caption);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The session box as the user left it, caret included, into the model.
  void TakeSession();
  // The model's session text and caret into the box.
  void ShowSession();
  void ShowSettings();
  void CopyToClipboard(const std::string& value);
  QString ChooseSessionFile(const QString& title);

  ExpressionCalculatorScreen model_;
  OutputBox* session_;
  QComboBox* sigFigs_;
  QRadioButton *degrees_, *radians_;
  QCheckBox* ignoreMarked_;
};

}  // namespace mc::ui
