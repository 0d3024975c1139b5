// The main screen's menu bar as a table: captions with their access keys,
// separators, and what each entry does (open a numbered screen, or one of the
// main screen's own commands).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mc::ui {

enum class Command {
  None,  // a screen of its own (form) or a separator
  Save,
  Print,
  Backup,
  RestoreAll,
  RestoreIni,
  RestoreNotes,
  RestoreReminders,
  Exit,
  ListReminders,
  ListOutOfDate,
  GeneralHelp,
  MenuBarSummary,
  SpecialKeysSummary,
  VersionHistory,
  LastBackupDate,
  CheckForUpdates,
  OnTheWeb,
  AboutMyLocation,
  DstDates,
  SummerGames,
  WinterGames,
  GregorianAnalysis,
};

struct MenuEntry {
  std::string_view name;     // object name, "muDateConv"
  std::string_view caption;  // "Date &Conversions"; "---" for a separator
  int form = 0;              // the screen it opens, 0 for none
  Command command = Command::None;
};

struct Menu {
  std::string_view name;
  std::string_view caption;
  std::vector<MenuEntry> entries;
};

// The menus in bar order; the favourites menu is built from kFavourites.
const std::vector<Menu>& MenuBar();

// Favourite n (the n of "Show Menu Item n") and its caption.
inline constexpr std::string_view kFavourites[] = {"Month Calendars",
                                                   "Planning Calendars",
                                                   "Special Calendars",
                                                   "Year Calendars",
                                                   "Calendar Comparison",
                                                   "Gregorian Analysis",
                                                   "Before and After",
                                                   "Date Conversions",
                                                   "Date Detective",
                                                   "Days between Dates",
                                                   "In Which Months?",
                                                   "Regnal Dates",
                                                   "New Year's Days",
                                                   "Observed Days",
                                                   "On This Date",
                                                   "Religious Festivals",
                                                   "This is Your Life",
                                                   "Time Calculator",
                                                   "What Time is it in?",
                                                   "Alarm Clock",
                                                   "Reaction Timer",
                                                   "Stopwatch",
                                                   "List Reminders",
                                                   "Add Reminders",
                                                   "Edit Reminders",
                                                   "Reminders by Month",
                                                   "Reminder Utilities",
                                                   "Quick Notes",
                                                   "Expression Calculator",
                                                   "Factor Calculator",
                                                   "Geometry Calculator",
                                                   "Scientific Calculator",
                                                   "Global Distances",
                                                   "Magic Squares",
                                                   "Sun and Moon Data",
                                                   "Unit Converter",
                                                   "BAC Calculator",
                                                   "Pregnancy Calculator",
                                                   "Fuel Consumption",
                                                   "Financial Calculator",
                                                   "Paper Weight Converter",
                                                   "Dual Calendars",
                                                   "Greek Olympiad Conversion",
                                                   "Ovulation Calculator",
                                                   "BMI Calculator",
                                                   "Big Numbers Calculator",
                                                   "Number Base Converter",
                                                   "Travelling Salesman Problem",
                                                   "Fraction Calculator",
                                                   "Continued Fraction Calculator",
                                                   "Statistics Calculator",
                                                   "Average Speed",
                                                   "Summer Olympic Games",
                                                   "Winter Olympic Games",
                                                   "Recurring Decimals",
                                                   "World Clocks",
                                                   "Biorhythm Calculator",
                                                   "List Out-of-Date Reminders",
                                                   "Currency Converter",
                                                   "Easter Dates",
                                                   "Countdown Timer",
                                                   "Prime Calculator",
                                                   "Revolutionary Time",
                                                   "Interval Arithmetic Calculator",
                                                   "Calendar Collector",
                                                   "Egyptian Fraction Calculator",
                                                   "ABSI Calculator",
                                                   "Equation Solver",
                                                   "DST Dates"};

// A caption without its access-key marks: "Date &Conversions" -> "Date Conversions".
std::string AccessKeyFree(std::string_view caption);

// The menu entry a favourite stands for, or nothing.
const MenuEntry* EntryOfFavourite(int n);

}  // namespace mc::ui
