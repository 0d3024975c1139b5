// The screens of the desktop that are built, by form number.
#include "ui/desktop.h"

namespace mc::ui {

const std::map<int, Desktop::Factory>& Desktop::Screens() {
  static const std::map<int, Factory> screens = {};
  return screens;
}

}  // namespace mc::ui
