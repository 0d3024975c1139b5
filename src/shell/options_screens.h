// The screens of the Options menu as models: General Options (form 40),
// Colour Options (41), Favourites Options (43), Display and User Font
// Options (46, 47). Each change is written at once to mercod.ini and copied
// into the settings block; there is no OK button.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/context.h"

namespace mc {

// The numbered screens and their names, by form number.
struct ScreenTitle {
  int form;
  std::string_view name;
};
const std::vector<ScreenTitle>& ScreenTitles();
std::string_view ScreenName(int form);

inline constexpr std::string_view kListSeparator = "----------------------------------------";

class GeneralOptionsScreen {
 public:
  explicit GeneralOptionsScreen(Context& ctx) : ctx_(ctx) {}

  // The calendars a user can choose as the favourite, by full name.
  static std::vector<std::string> CalendarNames();
  // "Main screen (1)", the separator, then every screen that can open at
  // start, by name: "Date Conversions (12)".
  static std::vector<std::string> OpeningScreens();
  // The screen number of an entry ("Quick Notes (25)" -> 25); 0 for the separator.
  static int ScreenOfEntry(std::string_view entry);

  // The check boxes: "Yes"/"No" keys of [Form0].
  bool ShowJulianDay() const { return ctx_.settings.showJulianDay == "Yes"; }
  bool ShowSeconds() const { return ctx_.settings.showSeconds == "Yes"; }
  bool ShowYear() const { return ctx_.settings.showYear == "Yes"; }
  bool Show24Hour() const { return ctx_.settings.show24Hour == "Yes"; }
  bool MinimiseToTray() const { return ctx_.settings.minimiseToTray == "Yes"; }
  void SetShowJulianDay(bool on);
  void SetShowSeconds(bool on);
  void SetShowYear(bool on);
  void SetShow24Hour(bool on);
  void SetMinimiseToTray(bool on);

  std::string FavouriteCalendar();
  void SetFavouriteCalendar(const std::string& name);
  std::string OpeningScreen();
  // The separator line is no screen and is refused (false).
  bool SetOpeningScreen(const std::string& entry);

  // "Week Start Day": 7 Saturday, 1 Sunday, 2 Monday.
  int StartDay() const { return ctx_.settings.startDay; }
  void SetStartDay(int day);

  // "Islamic Arithmetical Calendar Variations".
  int IslamicLeapScheme() const { return ctx_.settings.islamicLeapScheme; }
  void SetIslamicLeapScheme(int scheme);  // 1 .. 4
  const std::string& IslamicEpochDay() const { return ctx_.settings.islamicEpochDay; }
  void SetIslamicEpochDay(const std::string& day);  // "Thursday" or "Friday"

  // "Set constant": asks through the Data Input box. An empty reply gives
  // back the default, "0" or an unreadable one changes nothing. True when the
  // constant was stored.
  static constexpr std::int32_t kDefaultMayanConstant = 584283;
  std::int32_t MayanConstant() const { return ctx_.settings.mayanConstant; }
  std::string MayanPrompt() const;
  bool SetMayanConstant();

 private:
  void SetYesNo(std::string& field, const char* key, bool on);
  Context& ctx_;
};

class ColourOptionsScreen {
 public:
  explicit ColourOptionsScreen(Context& ctx) : ctx_(ctx) {}

  enum class Kind { Background, Text, Button };
  static std::string_view KeyOf(Kind kind);

  // The list: "All screens", "Main screen", the separator, then each screen
  // with a section of its own, by name. `section` is -1 for all screens, 0
  // for the separator.
  struct Target {
    std::string name;
    int section;
  };
  static const std::vector<Target>& Targets();

  // The colour the target has now (for "All screens", the main screen's).
  std::optional<long long> Colour(const Target& target, Kind kind);
  // Writes the colour to the target's section, or for "All screens" to every
  // section from [Form2] on and to [Form1].
  void SetColour(const Target& target, Kind kind, long long value);

  // "Restore All Screens to &Default Colours".
  void RestoreDefaultColours();
  // "Restore All Screens to Classic &Grey".
  void RestoreClassicGrey();

  // The classic grey's main-screen background: the system's window colour.
  static constexpr long long kSystemWindowColour = -2147483644;

 private:
  Context& ctx_;
};

class FavouritesOptionsScreen {
 public:
  explicit FavouritesOptionsScreen(Context& ctx) : ctx_(ctx) {}
  static constexpr int kCount = 69;
  std::array<bool, kCount> Shown();
  void SetShown(int n, bool shown);
  bool MenuShown();
  void SetMenuShown(bool shown);

 private:
  Context& ctx_;
};

// Display Font Options (form 46: program output) and User Font Options (47:
// reminder lists).
class FontOptionsScreen {
 public:
  FontOptionsScreen(Context& ctx, int form) : ctx_(ctx), form_(form) {}
  enum class Which { Fixed, Proportional };

  int Form() const { return form_; }
  const FontChoice& Font(Which which) const;
  void SetName(Which which, const std::string& name);
  void SetSize(Which which, int size);
  void SetBold(Which which, bool bold);
  static std::vector<int> Sizes();

 private:
  FontChoice& Field(Which which);
  void Store(Which which, const char* what, const std::string& value);
  Context& ctx_;
  int form_;
};

}  // namespace mc
