// The screens of the desktop that are built, by form number.
#include "ui/desktop.h"

#include "ui/add_reminders_form.h"
#include "ui/edit_reminders_form.h"
#include "ui/reminder_utilities_form.h"
#include "ui/reminders_by_month_form.h"

namespace mc::ui {

const std::map<int, Desktop::Factory>& Desktop::Screens() {
  static const std::map<int, Factory> screens = {
      {2, [](Desktop& d) -> ScreenForm* { return new AddRemindersForm(d); }},
      {3, [](Desktop& d) -> ScreenForm* { return new EditRemindersForm(d); }},
      {4, [](Desktop& d) -> ScreenForm* { return new RemindersByMonthForm(d); }},
      {21, [](Desktop& d) -> ScreenForm* { return new ReminderUtilitiesForm(d); }},
  };
  return screens;
}

}  // namespace mc::ui
