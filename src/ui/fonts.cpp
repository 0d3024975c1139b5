#include "ui/fonts.h"

namespace mc::ui {

QFont FontOf(const FontChoice& choice, int extraSize, bool fixedPitch) {
  QFont f(QString::fromStdString(choice.name.empty() ? (fixedPitch ? "Courier New" : "Arial")
                                                     : choice.name));
  if (fixedPitch) {
    f.setStyleHint(QFont::Monospace);
    f.setFixedPitch(true);
  }
  f.setPointSize((choice.size > 0 ? choice.size : 9) + extraSize);
  f.setBold(choice.bold == "True" || choice.bold == "Yes");
  return f;
}

QFont DisplayFixedFont(const SettingsBlock& s, int extraSize) {
  return FontOf(s.displayFixedFont, extraSize, true);
}

QFont DisplayPropFont(const SettingsBlock& s) {
  return FontOf(s.displayPropFont);
}

}  // namespace mc::ui
