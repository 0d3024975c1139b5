// The screens of the desktop that are built, by form number.
#include "ui/date_conversions_form.h"
#include "ui/desktop.h"

namespace mc::ui {

const std::map<int, Desktop::Factory>& Desktop::Screens() {
  static const std::map<int, Factory> screens = {
      {12, [](Desktop& d) -> ScreenForm* { return new DateConversionsForm(d); }},
  };
  return screens;
}

}  // namespace mc::ui
