#include "shell/startup.h"

#include <cmath>

#include "calendars/islamic.h"
#include "core/errors.h"
#include "core/ini_file.h"
#include "core/locale_facts.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "maths/expression.h"
#include "reminders/store.h"
#include "shell/ini_upgrade.h"
#include "shell/password.h"

namespace mc {

namespace {

long long IniInt(Context& ctx, int form, const char* key) {
  long long v = 0;
  ParseInt(ReadIniFile(ctx, form, key), v);
  return v;
}

// Latitude, longitude and zone: written with the user's decimal separator or
// with the other one (the place files use a point); either reads.
float IniCoordinate(Context& ctx, const char* key) {
  auto v = ParseDecimalNumber(ReadIniFile(ctx, 0, key), ctx.settings.decimalSeparator);
  return v ? static_cast<float>(*v) : 0.0f;
}

FontChoice IniFont(Context& ctx, int form, const std::string& kind) {
  FontChoice f;
  f.name = ReadIniFile(ctx, form, kind + " Font Name");
  long long size = 0;
  ParseInt(ReadIniFile(ctx, form, kind + " Font Size"), size);
  f.size = static_cast<int>(size);
  f.bold = ReadIniFile(ctx, form, kind + " Font Bold");
  return f;
}

void ReadAlarmBlock(Context& ctx) {
  AlarmBlock& a = ctx.settings.alarm;
  std::string set = ReadIniFile(ctx, 0, "Alarm Set?");
  a.set = set == "True" || set == "Yes";
  a.date = ReadIniFile(ctx, 0, "Date");
  a.day = ReadIniFile(ctx, 0, "Day");
  a.month = ReadIniFile(ctx, 0, "Month");
  a.year = ReadIniFile(ctx, 0, "Year");
  a.alarmTime = ReadIniFile(ctx, 0, "Alarm Time");
  a.hours = ReadIniFile(ctx, 0, "Hours");
  a.minutes = ReadIniFile(ctx, 0, "Minutes");
  a.duration = ReadIniFile(ctx, 0, "Duration");
  a.waitUnit = ReadIniFile(ctx, 0, "Wait Unit");
  long long wait = 0;
  ParseInt(ReadIniFile(ctx, 0, "Wait Time"), wait);
  if (a.waitUnit == "Hours") wait *= 60;
  if (a.waitUnit == "Days") wait *= 1440;
  a.waitTimeMinutes = static_cast<long>(wait);
  a.repeatCount = ReadIniFile(ctx, 0, "Repeat Count");
  a.message = ReadIniFile(ctx, 0, "Message");
  a.musicFileName = ReadIniFile(ctx, 0, "Music File Name");
}

}  // namespace

bool SetBasicData(Context& ctx, const StartOptions& options) {
  SettingsBlock& s = ctx.settings;
  ctx.Trace("SetBasicData entered.");
  s.showTipPending = true;
  s.usesDecimalPoint = true;
  s.decimalSeparator = '.';
  if (options.detectLocale && DetectDecimalSeparator() == ',') {
    s.usesDecimalPoint = false;
    s.decimalSeparator = ',';
  }
  for (const char* old : {"myalarm.dat", "mycolours.dat", "myfsizes.dat", "myopt.dat",
                          "myplaces.dat", "mysigfig.dat"})
    RemoveIfExists(ctx.FilePath(old));

  s.versionNum = UpgradeIniFile(ctx);
  ctx.Trace("SetBasicData. VersionNum = " + std::to_string(s.versionNum) + ".");
  ctx.Trace("SetBasicData. File mercod.ini updates completed.");

  s.homeCountry = ReadIniFile(ctx, 0, "Country");
  s.homeLocation = ReadIniFile(ctx, 0, "Location");
  s.homeLatitude = IniCoordinate(ctx, "Latitude");
  s.homeLongitude = IniCoordinate(ctx, "Longitude");
  s.homeTimeZone = IniCoordinate(ctx, "Time Zone");
  s.homeZoneOffset = s.homeTimeZone;
  s.startDay = static_cast<int>(IniInt(ctx, 0, "Start Day"));
  s.mayanConstant = static_cast<std::int32_t>(IniInt(ctx, 0, "Mayan Constant"));
  s.islamicLeapScheme = static_cast<int>(IniInt(ctx, 0, "Islamic Leap Year Scheme"));
  s.islamicEpochDay = ReadIniFile(ctx, 0, "Islamic Epoch Day of Week");
  s.showJulianDay = ReadIniFile(ctx, 0, "Show Julian Day");
  s.show24Hour = ReadIniFile(ctx, 0, "Show 24-Hour Clock");
  s.showSeconds = ReadIniFile(ctx, 0, "Show Seconds");
  s.showYear = ReadIniFile(ctx, 0, "Show Year");
  s.showTip = ReadIniFile(ctx, 0, "Show Tip of the Day");
  s.lastTipNumber = static_cast<int>(IniInt(ctx, 0, "Last Tip Shown Number"));
  s.minimiseToTray = ReadIniFile(ctx, 0, "Minimise to System Tray");
  s.reminderAudio = ReadIniFile(ctx, 0, "Reminder Audio Signal");
  s.processRemFields = ReadIniFile(ctx, 0, "Process Reminder Fields");
  s.remProcJD = static_cast<std::int32_t>(IniInt(ctx, 0, "RemProc Julian Value"));
  s.remLengthUpdated = ReadIniFile(ctx, 0, "Rem Message Length Updated");
  s.factorThreads = static_cast<int>(IniInt(ctx, 0, "Factorisation Threads"));
  s.displayFixedFont = IniFont(ctx, 46, "Fixed Width");
  s.displayPropFont = IniFont(ctx, 46, "Proportional Width");
  s.userFixedFont = IniFont(ctx, 47, "Fixed Width");
  s.userPropFont = IniFont(ctx, 47, "Proportional Width");
  s.peyrYear = static_cast<int>(IniInt(ctx, 0, "PEYR File Creation Year"));

  // A new year starts a new list of the past year's purged reminders.
  int year = ctx.Now().year;
  if (year > s.peyrYear) {
    s.peyrYear = year;
    UpdateIniFile(ctx, 0, "PEYR File Creation Year", std::to_string(year));
    RemoveIfExists(ctx.FilePath("PEYR.dat"));
  }

  ReadAlarmBlock(ctx);
  ctx.Trace("SetBasicData. Global data successfully read from file mercod.ini.");

  // Reminder messages were widened from 40 to 60 characters once.
  if (s.remLengthUpdated == "No") WidenReminderMessages(ctx);

  bool dataLoaded = true;
  if (LoadUmmAlQuraTable(ctx))
    ctx.Trace("SetBasicData. UAQ data arrays successfully created.");
  else
    dataLoaded = false;

  ctx.Trace("SetBasicData. Global values successfully defined.");
  ctx.Trace("SetBasicData. Remaining global values successfully defined.");
  return dataLoaded;
}

StartOutcome StartProgram(Context& ctx, const StartOptions& options) {
  if (ctx.ExeFolder().empty()) {
    ShowError(ctx, Err("Installation folder not found."));
    return StartOutcome::MissingFolder;
  }
  RemoveIfExists(ctx.FilePath("debug.txt"));
  ctx.TraceLine("Main form load. ExeFolder$ = " + ctx.ExeFolder().string());
  if (!std::filesystem::exists(ctx.FilePath("mercod.ini"))) {
    ctx.TraceLine("Main form load. File mercod.ini does not exist.");
    ctx.sink().Show(kFailure,
                    "File mercod.ini not found. Exit program -- it will not run properly.");
    return StartOutcome::MissingIniFile;
  }
  ctx.TraceLine("Main form load. File mercod.ini exists.");
  ctx.settings.debugOn = ReadIniFile(ctx, 0, "Debug") == "Yes";
  const bool dataLoaded = SetBasicData(ctx, options);
  ctx.Trace("Main form load. SetBasicData has completed.");
  if (!dataLoaded) return StartOutcome::BadDataFile;
  if (options.checkPassword && !CheckStartupPassword(ctx, ProgramUserSettings()))
    return StartOutcome::PasswordRefused;

  // The factoring engine is written out only while it runs.
  RemoveIfExists(ctx.FilePath("yafu-32k-Win32.exe"));
  RemoveIfExists(ctx.FilePath("yafu-32k-x64.exe"));

  if (options.dateOrder)
    ctx.settings.dateOrder = *options.dateOrder;
  else if (options.detectLocale)
    ctx.settings.dateOrder = DetectDateOrder();
  return StartOutcome::Ready;
}

}  // namespace mc
