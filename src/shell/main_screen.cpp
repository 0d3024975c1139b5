#include "shell/main_screen.h"

#include <cstdio>

#include "calendars/gregorian.h"
#include "calendars/names.h"
#include "core/ini_file.h"
#include "core/number_format.h"
#include "core/text_util.h"
#include "timeplace/ephemeris.h"

namespace mc {

std::string CurrentTimeText(const SettingsBlock& settings, const LocalDateTime& now) {
  char buf[32];
  int hour = now.hour;
  const bool twelve = settings.show24Hour != "Yes";
  if (twelve && hour >= 12) hour -= 12;
  if (settings.showSeconds == "Yes")
    std::snprintf(buf, sizeof buf, "%02d:%02d:%02d", hour, now.minute, now.second);
  else
    std::snprintf(buf, sizeof buf, "%02d:%02d", hour, now.minute);
  std::string text = buf;
  if (twelve) text += now.hour >= 12 ? " PM" : " AM";
  return text;
}

std::string DateBoxText(const LocalDateTime& now, bool showYear) {
  int weekday = WeekdayOfJD(GregorianToJD(now.day, now.month, now.year));
  std::string text = std::string(Left(kWeekdayNames[weekday], 3)) + " " +
                     std::string(Left(kMonthNames[now.month], 3)) + " " + std::to_string(now.day);
  if (showYear) text += " " + std::to_string(now.year);
  return text;
}

double JulianDayOfMoment(const LocalDateTime& now, double zoneOffsetHours) {
  JD jd = GregorianToJD(now.day, now.month, now.year);
  double hours = now.hour + now.minute / 60.0 + now.second / 3600.0 - zoneOffsetHours;
  while (hours < 0) {
    hours += 24;
    --jd;
  }
  while (hours >= 24) {
    hours -= 24;
    ++jd;
  }
  return jd - 0.5 + hours / 24.0;
}

std::string JulianDayText(double julianDay) {
  return "Julian Day " + FormatWithMask(julianDay, "########.0000");
}

std::string SunStatusText(const SettingsBlock& s, const LocalDateTime& now) {
  std::string rise, set;
  float zone = s.homeTimeZone + (s.homeDSTState == "On" ? 1.0f : 0.0f);
  SunRiseSet(now.day, now.month, now.year, s.homeLatitude, s.homeLongitude, zone, rise, set);
  if (StartsWith(rise, "Sun up") || StartsWith(rise, "Sun down")) return rise;
  return rise + "; " + ToLower(set);
}

std::string FormatElapsed(long seconds, int mode) {
  char buf[48];
  switch (mode) {
    case 1:
      std::snprintf(buf, sizeof buf, "%ld:%02ld", seconds / 60, seconds % 60);
      break;
    case 2:
      std::snprintf(buf, sizeof buf, "%ld:%02ld:%02ld", seconds / 3600, (seconds / 60) % 60,
                    seconds % 60);
      break;
    default:
      std::snprintf(buf, sizeof buf, "%ld", seconds);
      break;
  }
  return buf;
}

MainScreenModel::Tick MainScreenModel::OnTick(const LocalDateTime& now) {
  const SettingsBlock& s = ctx_.settings;
  Tick t;
  t.clockText = CurrentTimeText(s, now);
  std::string date = DateBoxText(now, s.showYear == "Yes");
  if (date != lastDateText_) {
    lastDateText_ = date;
    t.dateText = date;
  }
  if (s.showJulianDay == "Yes")
    t.julianDayText = JulianDayText(JulianDayOfMoment(now, s.homeZoneOffset));
  t.sunText = SunStatusText(s, now);
  return t;
}

std::string MainScreenModel::PlaceText() const {
  return ctx_.settings.homeLocation + ", " + ctx_.settings.homeCountry;
}

std::array<bool, MainScreenModel::kFavouriteCount> MainScreenModel::FavouritesShown() {
  std::array<bool, kFavouriteCount> shown{};
  for (int i = 0; i < kFavouriteCount; ++i)
    shown[static_cast<std::size_t>(i)] =
        ReadIniFile(ctx_, 1, "Show Menu Item " + std::to_string(i)) == "Yes";
  return shown;
}

bool MainScreenModel::FavouritesMenuShown() {
  return ReadIniFile(ctx_, 1, "Show Favourites Menu") != "No";
}

int MainScreenModel::OpeningScreen() {
  std::string text = ReadIniFile(ctx_, 0, "Opening Screen");
  auto open = text.rfind('(');
  if (open == std::string::npos || text.empty()) return 1;
  long long n = 1;
  if (!ParseInt(std::string_view(text).substr(open + 1, text.size() - open - 2), n)) return 1;
  return static_cast<int>(n);
}

}  // namespace mc
