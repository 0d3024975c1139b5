#include "shell/ini_upgrade.h"

#include <string>

#include "core/ini_file.h"
#include "core/text_util.h"
#include "reminders/store.h"

namespace mc {

namespace {

struct Palette {
  const char* background;
  const char* button;
  const char* text;
};
constexpr Palette kPaletteA = {"16313285", "15916706", "3684408"};
constexpr Palette kPaletteB = {"16774593", "13172735", "0"};
constexpr Palette kEquationSolverPalette = {"16440764", "13172735", "0"};

// Print settings with their defaults, in the order they are written.
constexpr std::pair<const char*, const char*> kPrintKeys[] = {
    {"Title Font Name", "Arial"},
    {"Title Font Size", "16"},
    {"Title Bold", "True"},
    {"Title Italic", "False"},
    {"Title Underline", "False"},
    {"Body Fixed Width Font Name", "Courier New"},
    {"Body Proportional Width Font Name", "Arial"},
    {"Body Font Size", "10"},
    {"Body Bold", "False"},
    {"Body Italic", "False"},
    {"Body Underline", "False"},
    {"Body Line Spacing", "Single"},
    {"Header Font Name", "Arial"},
    {"Header Font Size", "8"},
    {"Header Bold", "False"},
    {"Header Italic", "False"},
    {"Header Underline", "False"},
    {"Footer Font Name", "Arial"},
    {"Footer Font Size", "8"},
    {"Footer Bold", "False"},
    {"Footer Italic", "True"},
    {"Footer Underline", "False"},
    {"Printer Name", "(Default Printer)"},
    {"Print Quality", "Medium"},
    {"Paper Size", "A4"},
    {"Paper Orientation", "Portrait"},
    {"Paper Bin", "(Default Paper Bin)"},
    {"Number of Copies", "1"},
    {"Last Header", ""},
    {"Last Footer", ""},
    {"Margin Unit", "cm"},
    {"Margin Left", "2.54"},
    {"Margin Right", "2.54"},
    {"Margin Top", "2.54"},
    {"Margin Bottom", "2.54"},
    {"Print Page Numbers", "False"},
    {"Print Date and Time", "True"},
    {"Draw Border Around Document", "False"},
    {"Draw Line Under Header", "False"},
    {"Draw Line Above Footer", "False"},
};

constexpr std::pair<const char*, const char*> kWorldClocks[] = {
    {"England UK", "London"},      {"France", "Paris"},           {"Germany", "Berlin"},
    {"Russia", "Moscow"},          {"China", "Beijing"},          {"Japan", "Tokyo"},
    {"Australia", "Canberra ACT"}, {"New Zealand", "Wellington"}, {"Canada", "Ottawa ON"},
    {"USA", "Washington D.C. MD"}, {"Brazil", "Brasilia DF"},     {"Argentina", "Buenos Aires"},
};

// The additions of one step; sections added get the palette of their step.
class Step {
 public:
  Step(Context& ctx, int to) : ctx_(ctx), palette_(to <= 174 ? kPaletteA : kPaletteB) {}

  Step& Key(int form, const std::string& key, const std::string& value) {
    AddIniParameter(ctx_, form, key, value);
    return *this;
  }
  Step& Section(int form, const char* title) {
    return SectionWithPalette(form, title, form == 84 ? kEquationSolverPalette : palette_);
  }
  Step& Items(int from, int to) {
    for (int i = from; i <= to; ++i) Key(1, "Show Menu Item " + std::to_string(i), "No");
    return *this;
  }
  Step& PrintKeys() {
    for (const auto& [k, v] : kPrintKeys) Key(29, k, v);
    return *this;
  }
  Step& FontKeys(int form) {
    return Key(form, "Fixed Width Font Name", "Courier New")
        .Key(form, "Fixed Width Font Size", "9")
        .Key(form, "Fixed Width Font Bold", "True")
        .Key(form, "Proportional Width Font Name", "Arial")
        .Key(form, "Proportional Width Font Size", "10")
        .Key(form, "Proportional Width Font Bold", "False");
  }

 private:
  Step& SectionWithPalette(int form, const char* title, const Palette& p) {
    AddIniSection(ctx_, form, title);
    return Key(form, "Screen Background Colour", p.background)
        .Key(form, "Button Colour", p.button)
        .Key(form, "Non-Button Text Colour", p.text);
  }

  Context& ctx_;
  Palette palette_;
};

void ApplyStep(Context& ctx, int to) {
  Step s(ctx, to);
  switch (to) {
    case 160: {
      s.Key(0, "Wait Unit", "Minutes")
          .Key(8, "Category", "Choose category")
          .Key(8, "Unit", "Choose unit")
          .Section(25, "Quick Notes");
      for (int i = 1; i <= 15; ++i)
        s.Key(25, "Tab " + std::to_string(i) + " Name", "Sheet " + std::to_string(i));
      s.Key(25, "Last Sheet Used", "1")
          .Section(26, "In Which Months?")
          .Section(27, "Expression Calculator")
          .Key(27, "Significant Figures", "7")
          .Section(29, "Print Settings")
          .PrintKeys()
          .Section(30, "Edit Conversion Data")
          .Section(31, "Add Conversion Data")
          .Section(32, "Regnal Dates");
      s.Key(8, "Category 1", ReadIniFile(ctx, 8, "Category"))
          .Key(8, "Category 2", "Choose category")
          .Key(8, "Unit 1", ReadIniFile(ctx, 8, "Unit"))
          .Key(8, "Unit 2", "Choose unit");
      break;
    }
    case 161:
      s.Section(33, "Stop Watch");
      break;
    case 162:
      s.Key(17, "Religion", "Christian");
      break;
    case 163:
      s.Key(20, "2D Object", "Circle").Key(20, "3D Object", "Buckminster Ball");
      break;
    case 164:
      s.Section(34, "Reaction Timer");
      break;
    case 165:
      s.Key(0, "Islamic Leap Year Scheme", "2").Key(0, "Islamic Epoch Day of Week", "Friday");
      break;
    case 166:
      s.Section(35, "Special Calendars")
          .Key(35, "Country", "Great Britain")
          .Section(36, "BAC Calculator")
          .Key(36, "Sex", "Male")
          .Key(36, "Weight", "154")
          .Key(36, "Weight Unit", "Pounds")
          .Key(36, "Country Index", "76");
      break;
    case 167:
      s.Key(36, "Height", "68")
          .Key(36, "Height Unit", "Inches")
          .Section(37, "Days between Dates")
          .Section(38, "Date Detective")
          .Section(40, "Calendar Options")
          .Section(41, "General Options")
          .Section(42, "Tip of the Day")
          .Key(0, "Show Julian Day", "Yes")
          .Key(0, "Show Tip of the Day", "Yes")
          .Key(0, "Last Tip Shown Number", "0")
          .Key(1, "Button Colour", kPaletteA.button);
      UpdateIniFile(ctx, 1, "Screen Background Colour", kPaletteA.background);
      UpdateIniFile(ctx, 1, "Non-Button Text Colour", kPaletteA.text);
      break;
    case 168:
      s.Section(43, "Favourites Options").Key(1, "Show Favourites Menu", "Yes").Items(0, 38);
      UpdateIniFile(ctx, 1, "Show Menu Item 3", "Yes");
      s.Section(44, "Fuel Consumption")
          .Key(44, "Significant Figures", "6")
          .Section(45, "Financial Calculator")
          .Key(45, "Significant Figures", "6");
      break;
    case 169:
      s.Items(39, 39)
          .Section(46, "Display Font Options")
          .FontKeys(46)
          .Section(47, "User Font Options")
          .FontKeys(47)
          .Section(48, "Dual Calendars")
          .Items(40, 42)
          .Section(49, "Paper Weight Converter")
          .Key(49, "Significant Figures", "6")
          .Section(50, "Greek Olympiad Conversion");
      break;
    case 170:
      s.Key(0, "Debug", "No")
          .Key(0, "Music File Name", "alarm.wav")
          .Section(51, "Ovulation Calculator")
          .Items(43, 43);
      break;
    case 171:
      s.Section(52, "Term Dates").Key(52, "Number of Terms", "3");
      for (int i = 1; i <= 8; ++i) {
        s.Key(52, "Term " + std::to_string(i) + " Start Date", "")
            .Key(52, "Term " + std::to_string(i) + " End Date", "");
      }
      break;
    case 172:
      s.Section(53, "BMI Calculator")
          .Items(44, 44)
          .Section(54, "This is Your Life")
          .Key(54, "Last Birth Date", "")
          .Section(55, "New Years Days")
          .Section(56, "On This Date")
          .Section(57, "Factor Calculator")
          .Section(58, "Magic Squares")
          .Section(59, "Big Numbers Calculator")
          .Items(45, 45)
          .Section(60, "Number Base Converter")
          .Items(46, 46)
          .Key(0, "Reminder Audio Signal", "On");
      break;
    case 173:
      s.Key(0, "Show Seconds", "Yes")
          .Section(61, "Travelling Salesman Problem")
          .Items(47, 47)
          .Section(62, "Choose Locations")
          .Key(16, "Time Zone Abbreviation", "Choose Time Zone abbreviation")
          .Key(16, "Time Zone Description", "Choose Time Zone description")
          .Section(63, "Password Manager")
          .Section(64, "Fraction Calculator")
          .Items(48, 48)
          .Section(65, "Continued Fraction Calculator")
          .Items(49, 49);
      break;
    case 174:
      s.Section(66, "Statistics Calculator")
          .Key(66, "Significant Figures", "4")
          .Section(67, "Data Editor")
          .Section(68, "Average Speed")
          .Key(68, "Significant Figures", "4")
          .Items(50, 51);
      break;
    case 175: {
      s.Items(52, 55)
          .Section(70, "Recurring Decimals")
          .Section(71, "World Clocks")
          .Key(71, "Number of Clocks", "12");
      int n = 1;
      for (const auto& [country, location] : kWorldClocks) {
        s.Key(71, "Country " + std::to_string(n), country)
            .Key(71, "Location " + std::to_string(n), location);
        ++n;
      }
      break;
    }
    case 176:
      s.Items(56, 59)
          .Key(0, "Favourite Calendar System", "Gregorian")
          .Section(73, "Biorhythm Calculator")
          .Key(73, "Last Birth Date", "")
          .Section(74, "Find Text")
          .Section(75, "Currency Converter")
          .Key(75, "In Currency", "European euro (EUR)")
          .Key(75, "Out Currency", "Pound sterling (GBP)")
          .Key(75, "Last Update", "22/6/2010")
          .Section(76, "Easter Dates")
          .Section(28, "Find and Replace Text")
          .Key(0, "Opening Screen", "Main screen (1)")
          .Key(10, "Left Calendar", "Gregorian")
          .Key(10, "Right Calendar", "Gregorian");
      break;
    case 177:
      s.Key(0, "Show Year", "No")
          .Key(0, "Show 24-Hour Clock", "Yes")
          .Key(0, "Last File Backup Date", "");
      break;
    case 178:
      s.Section(77, "Countdown Timer").Items(60, 60).Key(0, "Process Reminder Fields", "Yes");
      break;
    case 179:
      s.Section(78, "Prime Calculator")
          .Items(61, 61)
          .Key(0, "Processor Type", "32-bit")
          .Key(0, "Factorisation Threads", "1")
          .Key(0, "PEYR File Creation Year", std::to_string(ctx.Now().year));
      BuildPeyrFile(ctx);
      break;
    case 180:
      s.Section(79, "Revolutionary Time")
          .Section(80, "Interval Arithmetic Calculator")
          .Section(81, "Calendar Collector")
          .Items(62, 64);
      break;
    case 181:
      s.Key(0, "RemProc Julian Value", "0")
          .Key(0, "Rem Message Length Updated", "No")
          .Section(82, "Egyptian Fraction Calculator")
          .Items(65, 65);
      break;
    case 182:
      s.Section(83, "ABSI Calculator")
          .Key(83, "Age", "50")
          .Key(83, "Sex", "Female")
          .Key(83, "Weight", "")
          .Key(83, "Weight Unit", "Kilograms")
          .Key(83, "Height", "")
          .Key(83, "Height Unit", "Centimetres")
          .Key(83, "Waist", "")
          .Key(83, "Waist Unit", "Centimetres")
          .Items(66, 66);
      break;
    case 186:
      s.Section(84, "Equation Solver").Key(84, "Significant Figures", "4").Items(67, 67);
      break;
    case 187:
      s.Key(0, "Minimise to System Tray", "Yes")
          .Key(27, "Angle Measure", "Radians")
          .Key(16, "Time Zone 1", "ACDT Australian Central Daylight Time")
          .Key(16, "Time Zone 2", "ACDT Australian Central Daylight Time")
          .Key(16, "Date and Time 1", "");
      break;
    case 188:
      s.Key(35, "Year", "1700");
      break;
    case 189:
      s.Items(68, 68);
      break;
    default:
      break;  // 183, 184, 185 and 190: the version alone
  }
}

}  // namespace

int UpgradeIniFile(Context& ctx) {
  AddIniParameter(ctx, 0, "Version", "158");  // a file from before versioning
  long long v = 0;
  ParseInt(ReadIniFile(ctx, 0, "Version"), v);
  for (int to = 160; to <= kCurrentIniVersion; ++to) {
    bool due = to == 160 ? v < 160 : v == to - 1;
    if (!due) continue;
    ApplyStep(ctx, to);
    UpdateIniFile(ctx, 0, "Version", std::to_string(to));
    v = to;
  }
  return static_cast<int>(v);
}

}  // namespace mc
