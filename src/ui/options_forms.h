// The Options menu's screens: General Options (form 40), Colour Options (41),
// Favourites Options (43), Display and User Font Options (46, 47). Every
// change is written at once; the only command is "&Main Screen".
#pragma once

#include <QColor>
#include <functional>
#include <optional>

#include "shell/options_screens.h"
#include "ui/screen_form.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QListWidget;
class QRadioButton;

namespace mc::ui {

class GeneralOptionsForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit GeneralOptionsForm(Desktop& desktop);

 private:
  void ShowValues();
  void ShowMayanConstant();

  GeneralOptionsScreen model_;
  QCheckBox *julianDay_, *seconds_, *year_, *clock24_, *tray_;
  QComboBox *calendar_, *opening_, *leapScheme_;
  QRadioButton *saturday_, *sunday_, *monday_, *thursday_, *friday_;
  QLabel* mayan_;
  QString openingShown_;
  bool loading_ = false;
};

class ColourOptionsForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit ColourOptionsForm(Desktop& desktop);

  // Asks for a colour starting from the present one; nothing when cancelled.
  // Tests replace it.
  std::function<std::optional<QColor>(const QColor&)> colourChooser;

  // "Choose &Colour": the dialog for the chosen screen and kind.
  void ChooseColour();

 private:
  ColourOptionsScreen::Kind ChosenKind() const;
  void ShowSwatch();
  void ColoursChanged();

  ColourOptionsScreen model_;
  QListWidget* screens_;
  QRadioButton *background_, *text_, *button_;
  QLabel* swatch_;
};

class FavouritesOptionsForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit FavouritesOptionsForm(Desktop& desktop);

 private:
  void ApplyToMainScreen();
  FavouritesOptionsScreen model_;
};

class FontOptionsForm : public ScreenForm {
  Q_OBJECT
 public:
  FontOptionsForm(Desktop& desktop, int form);

 private:
  struct Row {
    QComboBox* name;
    QComboBox* size;
    QCheckBox* bold;
    QLabel* sample;
  };
  Row AddRow(QGridLayout* grid, int row, FontOptionsScreen::Which which);
  void ShowSample(const Row& row, FontOptionsScreen::Which which);

  FontOptionsScreen model_;
};

}  // namespace mc::ui
