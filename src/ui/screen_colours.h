// Screen colours as the settings file keeps them: 24-bit blue-green-red
// integers, or a negative value naming a system colour.
#pragma once

#include <QColor>
#include <QWidget>

#include "core/context.h"

namespace mc::ui {

// The colour of a setting; system colours (negative values) take the
// palette's window colour.
QColor ColourOfSetting(long long value);

// Reads Screen Background Colour, Button Colour and Non-Button Text Colour of
// [FormN] and gives the form its background, each label, frame, check box and
// option button the background and text colour, each push button its colour.
void ApplyScreenColours(Context& ctx, QWidget* form, int formNumber);

}  // namespace mc::ui
