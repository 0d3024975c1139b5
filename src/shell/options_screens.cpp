#include "shell/options_screens.h"

#include <algorithm>
#include <cstdint>

#include "calendars/cal_type.h"
#include "core/ini_file.h"
#include "core/text_util.h"

namespace mc {

const std::vector<ScreenTitle>& ScreenTitles() {
  static const std::vector<ScreenTitle> titles = {
      {1, "Main screen"},
      {2, "Add Reminders"},
      {3, "Edit Reminders"},
      {4, "Reminders by Month"},
      {5, "My Location"},
      {6, "Global Distances"},
      {7, "Scientific Calculator"},
      {8, "Unit Converter"},
      {9, "Observed Days"},
      {10, "Calendar Comparison"},
      {11, "Year Calendars"},
      {12, "Date Conversions"},
      {13, "Month Calendars"},
      {14, "Before and After"},
      {15, "Alarm Clock"},
      {16, "What Time is it in?"},
      {17, "Religious Festivals"},
      {19, "Time Calculator"},
      {20, "Geometry Calculator"},
      {21, "Reminder Utilities"},
      {22, "Sun and Moon Data"},
      {23, "Planning Calendars"},
      {24, "Pregnancy Calculator"},
      {25, "Quick Notes"},
      {26, "In Which Months?"},
      {27, "Expression Calculator"},
      {28, "Find and Replace"},
      {29, "Print Settings"},
      {30, "Edit Categories and Units"},
      {31, "Add Categories and Units"},
      {32, "Regnal Dates"},
      {33, "Stopwatch"},
      {34, "Reaction Timer"},
      {35, "Special Calendars"},
      {36, "BAC Calculator"},
      {37, "Days between Dates"},
      {38, "Date Detective"},
      {39, "About"},
      {40, "General Options"},
      {41, "Colour Options"},
      {42, "Tip of the Day"},
      {43, "Favourites Options"},
      {44, "Fuel Consumption"},
      {45, "Financial Calculator"},
      {46, "Display Font Options"},
      {47, "User Font Options"},
      {48, "Dual Calendars"},
      {49, "Paper Weight Converter"},
      {50, "Greek Olympiad Conversion"},
      {51, "Ovulation Calculator"},
      {52, "Term Dates"},
      {53, "BMI Calculator"},
      {54, "This is Your Life"},
      {55, "New Year's Days"},
      {56, "On This Date"},
      {57, "Factor Calculator"},
      {58, "Magic Squares"},
      {59, "Big Numbers Calculator"},
      {60, "Number Base Converter"},
      {61, "Travelling Salesman Problem"},
      {62, "TSP Data Editor"},
      {63, "Password Manager"},
      {64, "Fraction Calculator"},
      {65, "Continued Fraction Calculator"},
      {66, "Statistics Calculator"},
      {67, "Statistics Data Editor"},
      {68, "Average Speed"},
      {69, "Enlarged Plot"},
      {70, "Recurring Decimals"},
      {71, "World Clocks"},
      {72, "Data Input"},
      {73, "Biorhythm Calculator"},
      {74, "Find"},
      {75, "Currency Converter"},
      {76, "Easter Dates"},
      {77, "Countdown Timer"},
      {78, "Prime Calculator"},
      {79, "Revolutionary Time"},
      {80, "Interval Arithmetic Calculator"},
      {81, "Calendar Collector"},
      {82, "Egyptian Fraction Calculator"},
      {83, "ABSI Calculator"},
      {84, "Equation Solver"},
  };
  return titles;
}

std::string_view ScreenName(int form) {
  for (const auto& t : ScreenTitles())
    if (t.form == form) return t.name;
  return {};
}

namespace {

std::string YesNo(bool on) {
  return on ? "Yes" : "No";
}

// Screens reached only through another screen, or shown by the program
// itself, cannot be the opening screen.
bool CanOpenAtStart(int form) {
  switch (form) {
    case 1:
    case 28:  // Find and Replace, from Quick Notes
    case 29:  // Print Settings
    case 30:
    case 31:  // the unit editors, from the Unit Converter
    case 39:  // About
    case 42:  // Tip of the Day shows at start by its own setting
    case 62:
    case 67:  // the data editors of their calculators
    case 69:  // Enlarged Plot
    case 72:  // Data Input
    case 74:  // Find
      return false;
    default:
      return true;
  }
}

}  // namespace

// ---------------------------------------------------------------------------
// General Options

std::vector<std::string> GeneralOptionsScreen::CalendarNames() {
  std::vector<std::string> names;
  for (int i = 0; i < kCalTypeCount; ++i) {
    const CalendarInfo& info = InfoOf(static_cast<CalType>(i));
    if (!info.listName.empty() && info.firstYear != 0) names.emplace_back(info.listName);
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> GeneralOptionsScreen::OpeningScreens() {
  std::vector<std::pair<std::string, int>> screens;
  for (const auto& t : ScreenTitles())
    if (CanOpenAtStart(t.form)) screens.emplace_back(std::string(t.name), t.form);
  std::sort(screens.begin(), screens.end());
  std::vector<std::string> entries{"Main screen (1)", std::string(kListSeparator)};
  for (const auto& [name, form] : screens)
    entries.push_back(name + " (" + std::to_string(form) + ")");
  return entries;
}

int GeneralOptionsScreen::ScreenOfEntry(std::string_view entry) {
  auto open = entry.rfind('(');
  if (open == std::string_view::npos || entry.empty() || entry.back() != ')') return 0;
  long long n = 0;
  if (!ParseInt(entry.substr(open + 1, entry.size() - open - 2), n)) return 0;
  return static_cast<int>(n);
}

void GeneralOptionsScreen::SetYesNo(std::string& field, const char* key, bool on) {
  field = YesNo(on);
  UpdateIniFile(ctx_, 0, key, field);
}

void GeneralOptionsScreen::SetShowJulianDay(bool on) {
  SetYesNo(ctx_.settings.showJulianDay, "Show Julian Day", on);
}
void GeneralOptionsScreen::SetShowSeconds(bool on) {
  SetYesNo(ctx_.settings.showSeconds, "Show Seconds", on);
}
void GeneralOptionsScreen::SetShowYear(bool on) {
  SetYesNo(ctx_.settings.showYear, "Show Year", on);
}
void GeneralOptionsScreen::SetShow24Hour(bool on) {
  SetYesNo(ctx_.settings.show24Hour, "Show 24-Hour Clock", on);
}
void GeneralOptionsScreen::SetMinimiseToTray(bool on) {
  SetYesNo(ctx_.settings.minimiseToTray, "Minimise to System Tray", on);
}

std::string GeneralOptionsScreen::FavouriteCalendar() {
  return ReadIniFile(ctx_, 0, "Favourite Calendar System");
}

void GeneralOptionsScreen::SetFavouriteCalendar(const std::string& name) {
  UpdateIniFile(ctx_, 0, "Favourite Calendar System", name);
}

std::string GeneralOptionsScreen::OpeningScreen() {
  return ReadIniFile(ctx_, 0, "Opening Screen");
}

bool GeneralOptionsScreen::SetOpeningScreen(const std::string& entry) {
  if (ScreenOfEntry(entry) <= 0) return false;
  UpdateIniFile(ctx_, 0, "Opening Screen", entry);
  return true;
}

void GeneralOptionsScreen::SetStartDay(int day) {
  if (day < 1 || day > 7) return;
  ctx_.settings.startDay = day;
  UpdateIniFile(ctx_, 0, "Start Day", std::to_string(day));
}

void GeneralOptionsScreen::SetIslamicLeapScheme(int scheme) {
  if (scheme < 1 || scheme > 4) return;
  ctx_.settings.islamicLeapScheme = scheme;
  UpdateIniFile(ctx_, 0, "Islamic Leap Year Scheme", std::to_string(scheme));
}

void GeneralOptionsScreen::SetIslamicEpochDay(const std::string& day) {
  if (day != "Thursday" && day != "Friday") return;
  ctx_.settings.islamicEpochDay = day;
  UpdateIniFile(ctx_, 0, "Islamic Epoch Day of Week", day);
}

std::string GeneralOptionsScreen::MayanPrompt() const {
  return "Enter the Julian Day number of the Mayan long count's day 0.0.0.0.0 (current value = " +
         std::to_string(ctx_.settings.mayanConstant) +
         "). Correlations in use range from 584280 to 584286. Leave blank for the default value.";
}

bool GeneralOptionsScreen::SetMayanConstant() {
  ctx_.settings.inputReply = "-1";
  auto reply = ctx_.sink().Input("Mayan and Aztec Constant", MayanPrompt(), false, "0");
  if (!reply) return false;  // cancelled
  ctx_.settings.inputReply = *reply;
  long long value = kDefaultMayanConstant;
  if (!Trim(*reply).empty()) {
    if (!ParseInt(*reply, value) || value == 0 || value < INT32_MIN || value > INT32_MAX)
      return false;  // refused silently: the old value stays
  }
  ctx_.settings.mayanConstant = static_cast<std::int32_t>(value);
  UpdateIniFile(ctx_, 0, "Mayan Constant", std::to_string(value));
  return true;
}

// ---------------------------------------------------------------------------
// Colour Options

std::string_view ColourOptionsScreen::KeyOf(Kind kind) {
  switch (kind) {
    case Kind::Background:
      return "Screen Background Colour";
    case Kind::Text:
      return "Non-Button Text Colour";
    case Kind::Button:
      return "Button Colour";
  }
  return {};
}

const std::vector<ColourOptionsScreen::Target>& ColourOptionsScreen::Targets() {
  static const std::vector<Target> targets = [] {
    std::vector<Target> screens;
    for (const auto& t : ScreenTitles()) {
      // The main screen stands at the top; the About screen, the Data Input
      // box and the Enlarged Plot have no colours of their own (the plot's
      // section is 18).
      if (t.form == 1 || t.form == 39 || t.form == 72) continue;
      screens.push_back({std::string(t.name), t.form == 69 ? 18 : t.form});
    }
    std::sort(screens.begin(), screens.end(),
              [](const Target& a, const Target& b) { return a.name < b.name; });
    std::vector<Target> all{
        {"All screens", -1}, {"Main screen", 1}, {std::string(kListSeparator), 0}};
    all.insert(all.end(), screens.begin(), screens.end());
    return all;
  }();
  return targets;
}

std::optional<long long> ColourOptionsScreen::Colour(const Target& target, Kind kind) {
  if (target.section == 0) return std::nullopt;
  const int section = target.section < 0 ? 1 : target.section;
  long long v = 0;
  if (!ParseInt(ReadIniFile(ctx_, section, KeyOf(kind)), v)) return std::nullopt;
  return v;
}

void ColourOptionsScreen::SetColour(const Target& target, Kind kind, long long value) {
  if (target.section == 0) return;
  const std::string v = std::to_string(value);
  if (target.section < 0) {
    UpdateIniAllForms(ctx_, KeyOf(kind), v);
    UpdateIniFile(ctx_, 1, KeyOf(kind), v);
  } else {
    UpdateIniFile(ctx_, target.section, KeyOf(kind), v);
  }
}

void ColourOptionsScreen::RestoreDefaultColours() {
  const std::pair<Kind, const char*> colours[] = {
      {Kind::Background, "16774593"}, {Kind::Text, "0"}, {Kind::Button, "13172735"}};
  for (const auto& [kind, value] : colours) {
    UpdateIniFile(ctx_, 1, KeyOf(kind), value);
    UpdateIniAllForms(ctx_, KeyOf(kind), value);
  }
  ctx_.sink().Show(kSuccess, "Default colours have been applied to all screens.");
}

void ColourOptionsScreen::RestoreClassicGrey() {
  UpdateIniFile(ctx_, 1, KeyOf(Kind::Background), std::to_string(kSystemWindowColour));
  UpdateIniFile(ctx_, 1, KeyOf(Kind::Text), "16711680");
  UpdateIniFile(ctx_, 1, KeyOf(Kind::Button), "14211288");
  UpdateIniAllForms(ctx_, KeyOf(Kind::Background), "12632256");
  UpdateIniAllForms(ctx_, KeyOf(Kind::Text), "16711680");
  UpdateIniAllForms(ctx_, KeyOf(Kind::Button), "14211288");
  ctx_.sink().Show(kSuccess, "Classic grey colours have been applied to all screens.");
}

// ---------------------------------------------------------------------------
// Favourites Options

std::array<bool, FavouritesOptionsScreen::kCount> FavouritesOptionsScreen::Shown() {
  std::array<bool, kCount> shown{};
  for (int i = 0; i < kCount; ++i)
    shown[static_cast<std::size_t>(i)] =
        ReadIniFile(ctx_, 1, "Show Menu Item " + std::to_string(i)) == "Yes";
  return shown;
}

void FavouritesOptionsScreen::SetShown(int n, bool shown) {
  if (n < 0 || n >= kCount) return;
  UpdateIniFile(ctx_, 1, "Show Menu Item " + std::to_string(n), YesNo(shown));
}

bool FavouritesOptionsScreen::MenuShown() {
  return ReadIniFile(ctx_, 1, "Show Favourites Menu") != "No";
}

void FavouritesOptionsScreen::SetMenuShown(bool shown) {
  UpdateIniFile(ctx_, 1, "Show Favourites Menu", YesNo(shown));
}

// ---------------------------------------------------------------------------
// Display and User Font Options

FontChoice& FontOptionsScreen::Field(Which which) {
  SettingsBlock& s = ctx_.settings;
  if (form_ == 47) return which == Which::Fixed ? s.userFixedFont : s.userPropFont;
  return which == Which::Fixed ? s.displayFixedFont : s.displayPropFont;
}

const FontChoice& FontOptionsScreen::Font(Which which) const {
  return const_cast<FontOptionsScreen*>(this)->Field(which);
}

void FontOptionsScreen::Store(Which which, const char* what, const std::string& value) {
  const std::string key =
      std::string(which == Which::Fixed ? "Fixed Width Font " : "Proportional Width Font ") + what;
  UpdateIniFile(ctx_, form_, key, value);
  ctx_.settings.fontsChanged = true;
}

void FontOptionsScreen::SetName(Which which, const std::string& name) {
  if (Trim(name).empty() || Field(which).name == name) return;
  Field(which).name = name;
  Store(which, "Name", name);
}

void FontOptionsScreen::SetSize(Which which, int size) {
  if (size < 1 || Field(which).size == size) return;
  Field(which).size = size;
  Store(which, "Size", std::to_string(size));
}

void FontOptionsScreen::SetBold(Which which, bool bold) {
  const std::string text = bold ? "True" : "False";
  if (Field(which).bold == text) return;
  Field(which).bold = text;
  Store(which, "Bold", text);
}

std::vector<int> FontOptionsScreen::Sizes() {
  return {7, 8, 9, 10, 11, 12, 14, 16, 18, 20};
}

}  // namespace mc
