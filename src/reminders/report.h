// The list of coming reminders on the main screen. Building it also purges
// reminders whose date has gone, keeps PEYR.dat, finds the days to go until
// the nearest reminder, sets the lamp and stamps the day of processing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/context.h"

namespace mc {

inline constexpr std::string_view kReminderListTitle = "*** List of Reminders ***";
inline constexpr std::string_view kNoReminders = "No personal reminders currently defined.";
inline constexpr std::string_view kReportError = "Error";

// The reminder lamp: hidden, red for a reminder today, light orange for one
// within six days.
enum class LampColour : int { Hidden = -1, Red = 255, LightOrange = 9094655 };

struct ReminderReport {
  std::string text;  // the listing, kNoReminders, or kReportError
  int minDTG = 1000;
  LampColour lamp = LampColour::Hidden;
};

ReminderReport BuildReminderReport(Context& ctx);

// The output box's font mode for a report: "PW" for the no-reminders text,
// "UFW" (the user's fixed font) for the list.
std::string_view ReportFontMode(const ReminderReport& report);

// "List &Out-of-Date Reminders": the listing, or nothing after "No
// out-of-date reminders exist.".
std::optional<std::string> OutOfDateListing(Context& ctx);

struct MovedList {
  ReminderReport report;
  std::size_t caret = 0;  // at the start of the moved line
};
// Ctrl+Up (up) and Ctrl+Down in the output box: swaps the reminder on the
// caret's line with its neighbour when both fall on the same date of the same
// year section, and rebuilds the list. Nothing when the move doesn't apply.
std::optional<MovedList> MoveReminderInList(Context& ctx, std::string_view shownText,
                                            std::size_t caret, bool up);

// What the main screen does about reminders at its load (after the report at
// start) and at each tick.
struct ReminderSignal {
  int soundPlays = 0;         // times to play reminder.wav
  bool waitForFirst = false;  // play the first to its end before the second
  std::string notice;         // text of an "Information!" box, or ""
};

struct ReminderLoadResult {
  ReminderReport report;
  bool leaveLoad = false;  // the report failed its check
  ReminderSignal signal;
};
// The report at start: the text for the output box (with ReportFontMode) and
// the sound; no box.
ReminderLoadResult ReminderLoadReport(Context& ctx);

struct ReminderTickResult {
  bool rebuilt = false;  // a new day: a report was built
  ReminderReport report;
  bool replaceOutput = false;  // the output box showed the list: show the new one
  ReminderSignal signal;
};
// The reminder part of a timer tick: when a new day has begun since the last
// report, rebuilds it and says what to show and play. `outputText` is the
// main output box's text; `alarmSet` suppresses the notice.
ReminderTickResult ReminderDayCheck(Context& ctx, std::string_view outputText, bool alarmSet);

// Opening a reminder screen from the menus: RemindersChanged starts clear, so
// that leaving tells whether this visit changed the store.
void EnterReminderScreen(Context& ctx);

// Leaving a reminder screen: clears RemindersChanged and says whether the
// main screen's list must be rebuilt (it was changed and the box shows the
// list or the no-reminders text).
bool LeaveReminderScreen(Context& ctx, std::string_view mainOutputText);

}  // namespace mc
