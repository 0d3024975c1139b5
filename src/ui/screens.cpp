// The screens of the desktop that are built, by form number.
#include "ui/add_reminders_form.h"
#include "ui/date_conversions_form.h"
#include "ui/desktop.h"
#include "ui/edit_reminders_form.h"
#include "ui/expression_form.h"
#include "ui/month_calendars_form.h"
#include "ui/options_forms.h"
#include "ui/password_form.h"
#include "ui/quick_notes_form.h"
#include "ui/reminder_utilities_form.h"
#include "ui/reminders_by_month_form.h"
#include "ui/tip_form.h"
#include "ui/year_calendars_form.h"

namespace mc::ui {

const std::map<int, Desktop::Factory>& Desktop::Screens() {
  static const std::map<int, Factory> screens = {
      {2, [](Desktop& d) -> ScreenForm* { return new AddRemindersForm(d); }},
      {3, [](Desktop& d) -> ScreenForm* { return new EditRemindersForm(d); }},
      {4, [](Desktop& d) -> ScreenForm* { return new RemindersByMonthForm(d); }},
      {11, [](Desktop& d) -> ScreenForm* { return new YearCalendarsForm(d); }},
      {12, [](Desktop& d) -> ScreenForm* { return new DateConversionsForm(d); }},
      {13, [](Desktop& d) -> ScreenForm* { return new MonthCalendarsForm(d); }},
      {21, [](Desktop& d) -> ScreenForm* { return new ReminderUtilitiesForm(d); }},
      {25, [](Desktop& d) -> ScreenForm* { return new QuickNotesForm(d); }},
      {27, [](Desktop& d) -> ScreenForm* { return new ExpressionForm(d); }},
      {40, [](Desktop& d) -> ScreenForm* { return new GeneralOptionsForm(d); }},
      {41, [](Desktop& d) -> ScreenForm* { return new ColourOptionsForm(d); }},
      {42, [](Desktop& d) -> ScreenForm* { return new TipForm(d); }},
      {43, [](Desktop& d) -> ScreenForm* { return new FavouritesOptionsForm(d); }},
      {46, [](Desktop& d) -> ScreenForm* { return new FontOptionsForm(d, 46); }},
      {47, [](Desktop& d) -> ScreenForm* { return new FontOptionsForm(d, 47); }},
      {63, [](Desktop& d) -> ScreenForm* { return new PasswordForm(d); }},
  };
  return screens;
}

}  // namespace mc::ui
