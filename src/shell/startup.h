// The start of a run, shared by the desktop program and the command line:
// find the folder, check and upgrade mercod.ini, and fill the settings block.
#pragma once

#include <optional>
#include <string>

#include "core/context.h"

namespace mc {

enum class StartOutcome {
  Ready,
  MissingFolder,   // "Installation folder not found." was shown
  MissingIniFile,  // "File mercod.ini not found. ..." was shown
  BadDataFile,     // a data file read at start (ummalqur.dat) is missing or damaged;
                   // the run-time error box was shown
  PasswordRefused,  // the start-up password was not given; the program ends
};

struct StartOptions {
  // Reads the decimal separator and date order from the user's locale.
  bool detectLocale = true;
  // A date order to use instead of the locale's (one of the six).
  std::optional<std::string> dateOrder;
  // Asks for the start-up password when one is set (the desktop program).
  bool checkPassword = false;
};

// The load sequence up to a filled settings block, with its trace lines.
StartOutcome StartProgram(Context& ctx, const StartOptions& options = {});

// Fills the settings block from mercod.ini, upgrading the file first, and
// loads the tables read at start. False when a data file failed to load (its
// message has been shown); the remaining steps still run.
bool SetBasicData(Context& ctx, const StartOptions& options = {});

}  // namespace mc
