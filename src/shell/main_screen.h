// The main screen as a model: what its boxes show at each tick of the one
// timer, the favourites, and the opening screen. The window only shows it.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/context.h"

namespace mc {

// The time as the clock box shows it: "HH:MM:SS", without seconds unless
// Show Seconds is "Yes", and in 12-hour form with " AM"/" PM" unless Show
// 24-Hour Clock is "Yes" (13:05 is "01:05 PM").
std::string CurrentTimeText(const SettingsBlock& settings, const LocalDateTime& now);

// "Mon Nov 23", with " 2026" when Show Year is "Yes".
std::string DateBoxText(const LocalDateTime& now, bool showYear);

// The Julian Day of the moment in Universal Time: the local time less the
// home zone offset, carried over midnight into the day number.
double JulianDayOfMoment(const LocalDateTime& now, double zoneOffsetHours);
// "Julian Day 2461368.1042".
std::string JulianDayText(double julianDay);

// The sun status box: today's sunrise and sunset at the home place, with an
// hour more of zone while summer time is on: "Sunrise 07:31; sunset 16:02", or
// "Sun up all day" / "Sun down all day" alone.
std::string SunStatusText(const SettingsBlock& settings, const LocalDateTime& now);

// Seconds as the countdown shows them: mode 0 the number, 1 "m:ss", 2 "h:mm:ss".
std::string FormatElapsed(long seconds, int mode);

class MainScreenModel {
 public:
  explicit MainScreenModel(Context& ctx) : ctx_(ctx) {}

  // What one tick changes on the main screen.
  struct Tick {
    std::string clockText;
    std::optional<std::string> dateText;       // only when it differs from the last one shown
    std::optional<std::string> julianDayText;  // when the Julian Day box is shown
    std::string sunText;
  };
  Tick OnTick(const LocalDateTime& now);

  // The place box: "London, England UK".
  std::string PlaceText() const;

  // Favourites: entry n is shown when Show Menu Item n is "Yes"; the whole
  // menu unless Show Favourites Menu is "No".
  static constexpr int kFavouriteCount = 69;
  std::array<bool, kFavouriteCount> FavouritesShown();
  bool FavouritesMenuShown();

  // The screen number of the Opening Screen setting, "Main screen (1)" -> 1.
  int OpeningScreen();

 private:
  Context& ctx_;
  std::string lastDateText_;
};

}  // namespace mc
