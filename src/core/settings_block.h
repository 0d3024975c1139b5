// The global settings block: filled once at start from mercod.ini and the
// system's regional settings, read everywhere afterwards.
#pragma once

#include <cstdint>
#include <string>

namespace mc {

struct FontChoice {
  std::string name;
  int size = 0;
  std::string bold;  // "True" / "False" as the settings file holds it
};

struct AlarmBlock {
  bool set = false;
  std::string date, day, month, year, alarmTime, hours, minutes, duration;
  long waitTimeMinutes = 0;  // converted from Wait Unit
  std::string repeatCount, message, waitUnit, musicFileName;
};

struct SettingsBlock {
  bool debugOn = false;
  bool usesDecimalPoint = true;
  char decimalSeparator = '.';
  std::string dateOrder = "d/m/y";  // one of the six orders, or "Unidentified"
  int versionNum = 0;
  std::string homeCountry, homeLocation;
  float homeLatitude = 0, homeLongitude = 0, homeTimeZone = 0;
  float homeZoneOffset = 0;
  std::string homeDSTState;
  int startDay = 1;
  std::int32_t mayanConstant = 584283;
  int islamicLeapScheme = 2;
  std::string islamicEpochDay = "Friday";
  std::string showJulianDay = "Yes", show24Hour = "Yes", showSeconds = "Yes", showYear = "No";
  std::string showTip = "Yes";
  int lastTipNumber = 0;
  std::string minimiseToTray = "Yes";
  std::string reminderAudio = "On";
  std::string processRemFields = "Yes";
  std::int32_t remProcJD = 0;
  std::string remLengthUpdated = "Yes";
  int factorThreads = 1;
  FontChoice displayFixedFont, displayPropFont, userFixedFont, userPropFont;
  int peyrYear = 0;
  AlarmBlock alarm;
  std::string lastFileOpened;
  std::string currentForm = "Form1";
  std::string inputReply;
  bool showTipPending = true;
  // Set when a font option changes; screens re-apply their fonts at their
  // next activation.
  bool fontsChanged = false;
  // Name tables in plain letters rather than accented ones. Start-up leaves
  // it clear; the plain tables stay for users who need them.
  bool plainLetters = false;
};

}  // namespace mc
