#include "ui/menus.h"

namespace mc::ui {

namespace {
constexpr MenuEntry kSep{"", "---"};
using C = Command;
}  // namespace

const std::vector<Menu>& MenuBar() {
  static const std::vector<Menu> bar = {
      {"muFile",
       "&File",
       {{"muSave", "&Save", 0, C::Save},
        {"muPrint", "&Print", 0, C::Print},
        kSep,
        {"muBackup", "&Backup", 0, C::Backup},
        {"muRestoreAll", "Restore &All", 0, C::RestoreAll},
        {"muRestoreIni", "Restore &Initialisation File", 0, C::RestoreIni},
        {"muRestoreNotes", "Restore &Quick Notes", 0, C::RestoreNotes},
        {"muRestoreRems", "Restore &Reminders", 0, C::RestoreReminders},
        kSep,
        {"muExit", "E&xit", 0, C::Exit}}},
      {"muFavourites", "Fa&vourites", {}},
      {"muCalendars",
       "&Calendars",
       {{"muDualCal", "&Dual Calendars", 48},
        {"muMonthCal", "&Month Calendars", 13},
        {"muPlanCal", "&Planning Calendars", 23},
        {"muSpecCal", "&Special Calendars", 35},
        {"muYearCal", "&Year Calendars", 11},
        kSep,
        {"muCalComp", "&Calendar Comparison", 10},
        {"muCalCollector", "Calendar Collector", 81},
        {"muGregAnalysis", "&Gregorian Analysis", 0, C::GregorianAnalysis}}},
      {"muDates",
       "&Dates",
       {{"muBeforeAfter", "Before and &After", 14},
        {"muDateConv", "Date &Conversions", 12},
        {"muDateDetective", "&Date Detective", 38},
        {"muDaysBetween", "Days &between Dates", 37},
        {"muEaster", "&Easter Dates", 76},
        {"muOlympiad", "&Greek Olympiad Conversion", 50},
        {"muWhichMonths", "In Which &Months?", 26},
        {"muRegnal", "&Regnal Dates", 32},
        kSep,
        {"muDSTDates", "DST Dates", 0, C::DstDates},
        {"muNewYears", "&New Year's Days", 55},
        {"muObserved", "&Observed Days", 9},
        {"muOnThisDate", "On &This Date", 56},
        {"muFestivals", "Religious &Festivals", 17},
        {"muSummerGames", "&Summer Olympic Games", 0, C::SummerGames},
        {"muWinterGames", "&Winter Olympic Games", 0, C::WinterGames},
        kSep,
        {"muYourLife", "This is Your &Life", 54}}},
      {"muTime",
       "&Time",
       {{"muTimeCalc", "&Time Calculator", 19},
        {"muWhatTime", "&What Time is it in?", 16},
        {"muWorldClocks", "World &Clocks", 71},
        {"muRevTime", "&Revolutionary Time", 79},
        kSep,
        {"muAlarm", "&Alarm Clock", 15},
        {"muCountdown", "Countdown Timer", 77},
        {"muReaction", "Reaction Timer", 34},
        {"muStopwatch", "&Stopwatch", 33}}},
      {"muReminders",
       "&Reminders",
       {{"muListRem", "&List Reminders", 0, C::ListReminders},
        {"muAddRem", "&Add Reminders", 2},
        {"muEditRem", "&Edit Reminders", 3},
        {"muRemByMonth", "Reminders by &Month", 4},
        kSep,
        {"muOutOfDate", "List &Out-of-Date Reminders", 0, C::ListOutOfDate},
        {"muRemUtils", "Reminder &Utilities", 21},
        {"muQuickNotes", "&Quick Notes", 25}}},
      {"muUtilities1",
       "&Maths Utilities",
       {{"muEquation", "Equation Solver", 84},
        {"muExpression", "&Expression Calculator", 27},
        {"muScientific", "&Scientific Calculator", 7},
        {"muInterval", "&Interval Arithmetic Calculator", 80},
        {"muBigNumbers", "&Big Numbers Calculator", 59},
        {"muNumberBase", "&Number Base Converter", 60},
        kSep,
        {"muFraction", "&Fraction Calculator", 64},
        {"muContFraction", "&Continued Fraction Calculator", 65},
        {"muEgyptian", "Egyptian Fraction Calculator", 82},
        {"muRecurring", "&Recurring Decimals", 70},
        kSep,
        {"muFactor", "F&actor Calculator", 57},
        {"muPrime", "&Prime Calculator", 78},
        kSep,
        {"muGeometry", "&Geometry Calculator", 20},
        {"muMagic", "&Magic Squares", 58},
        {"muStatistics", "S&tatistics Calculator", 66}}},
      {"muUtilities2",
       "Other &Utilities",
       {{"muSunMoon", "&Sun and Moon Data", 22},
        kSep,
        {"muAvgSpeed", "&Average Speed", 68},
        {"muFuel", "Fuel Consumption", 44},
        {"muDistances", "&Global Distances", 6},
        {"muTSP", "Tra&velling Salesman Problem", 61},
        kSep,
        {"muCurrency", "&Currency Converter", 75},
        {"muFinancial", "&Financial Calculator", 45},
        {"muPaperWeight", "Paper &Weight Converter", 49},
        {"muUnits", "&Unit Converter", 8},
        kSep,
        {"muABSI", "ABSI Calculator", 83},
        {"muBAC", "&BAC Calculator", 36},
        {"muBiorhythm", "B&iorhythm Calculator", 73},
        {"muBMI", "B&MI Calculator", 53},
        {"muOvulation", "&Ovulation Calculator", 51},
        {"muPregnancy", "&Pregnancy Calculator", 24}}},
      {"muPersonal",
       "&Options",
       {{"muLocation", "&Location", 5},
        {"muGeneral", "&General", 40},
        {"muColour", "&Colour", 41},
        {"muFavOptions", "&Favourites", 43},
        {"muPassword", "&Password Manager", 63},
        kSep,
        {"muDisplayFonts", "&Display Fonts", 46},
        {"muUserFonts", "&User Fonts", 47}}},
      {"muHelp",
       "&Help",
       {{"muGeneralHelp", "&General Help", 0, C::GeneralHelp},
        {"muMenuBar", "&Menu Bar Summary", 0, C::MenuBarSummary},
        {"muSpecialKeys", "&Special Keys Summary", 0, C::SpecialKeysSummary},
        {"muTip", "&Tip of the Day", 42},
        {"muHistory", "&Version History", 0, C::VersionHistory},
        kSep,
        {"muLastBackup", "Last &File Backup Date", 0, C::LastBackupDate},
        {"muUpdates", "Check for Updates", 0, C::CheckForUpdates},
        {"muAbout", "&About Meridian Codex", 39},
        {"muWeb", "Meridian Codex on the Web", 0, C::OnTheWeb},
        {"muAboutLocation", "About My &Location", 0, C::AboutMyLocation}}},
  };
  return bar;
}

std::string AccessKeyFree(std::string_view caption) {
  std::string plain;
  for (char c : caption)
    if (c != '&') plain += c;
  return plain;
}

const MenuEntry* EntryOfFavourite(int n) {
  if (n < 0 || n >= static_cast<int>(std::size(kFavourites))) return nullptr;
  for (const Menu& menu : MenuBar())
    for (const MenuEntry& e : menu.entries)
      if (AccessKeyFree(e.caption) == kFavourites[n]) return &e;
  return nullptr;
}

}  // namespace mc::ui
