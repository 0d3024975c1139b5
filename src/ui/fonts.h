// The fonts the settings name, as Qt fonts. "Courier New" and "Arial" resolve
// through fontconfig to their metric twins (Liberation Mono and Sans).
#pragma once

#include <QFont>

#include "core/settings_block.h"

namespace mc::ui {

QFont FontOf(const FontChoice& choice, int extraSize = 0, bool fixedPitch = false);
// The display fixed font; the main screen shows it one size up.
QFont DisplayFixedFont(const SettingsBlock& s, int extraSize);
QFont DisplayPropFont(const SettingsBlock& s);

}  // namespace mc::ui
