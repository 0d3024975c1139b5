#include "ui/screen_colours.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/ini_file.h"
#include "core/text_util.h"

namespace mc::ui {

QColor ColourOfSetting(long long value) {
  if (value < 0) return QApplication::palette().color(QPalette::Window);
  return QColor(static_cast<int>(value & 0xFF), static_cast<int>((value >> 8) & 0xFF),
                static_cast<int>((value >> 16) & 0xFF));
}

void ApplyScreenColours(Context& ctx, QWidget* form, int formNumber) {
  auto colour = [&](const char* key) {
    long long v = 0;
    if (!ParseInt(ReadIniFile(ctx, formNumber, key), v)) v = -1;
    return ColourOfSetting(v);
  };
  const QColor background = colour("Screen Background Colour");
  const QColor button = colour("Button Colour");
  const QColor text = colour("Non-Button Text Colour");

  QPalette p = form->palette();
  p.setColor(QPalette::Window, background);
  p.setColor(QPalette::WindowText, text);
  form->setAutoFillBackground(true);
  form->setPalette(p);
  for (QWidget* w : form->findChildren<QWidget*>()) {
    QPalette wp = w->palette();
    if (qobject_cast<QPushButton*>(w)) {
      wp.setColor(QPalette::Button, button);
      wp.setColor(QPalette::ButtonText, button.lightness() < 110 ? Qt::white : Qt::black);
      w->setPalette(wp);
    } else if (qobject_cast<QLabel*>(w) || qobject_cast<QCheckBox*>(w) ||
               qobject_cast<QRadioButton*>(w) || qobject_cast<QGroupBox*>(w)) {
      wp.setColor(QPalette::Window, background);
      wp.setColor(QPalette::WindowText, text);
      // A disabled input's caption fades towards the background.
      wp.setColor(
          QPalette::Disabled, QPalette::WindowText,
          QColor((text.red() + background.red()) / 2, (text.green() + background.green()) / 2,
                 (text.blue() + background.blue()) / 2));
      w->setPalette(wp);
    }
  }
}

}  // namespace mc::ui
