// Check for Updates: fetches version.txt from the program's site and compares
// its first number with the settings file's Version.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/context.h"

namespace mc {

// Where version.txt is published; kept as Update Check Address in [Form0].
inline constexpr std::string_view kDefaultUpdateAddress =
    "https://www.meridiancodex.example/version.txt";

// The address from the settings file; a file without the key gets it with
// the default value first.
std::string UpdateCheckAddress(Context& ctx);

// "https://host" of an address, as the messages name the site.
std::string SiteOf(std::string_view address);

// The first whole number in a text (its leading digits run), if any.
std::optional<long long> FirstNumber(std::string_view text);

enum class UpdateOutcome {
  NewerVersion,   // "A new version ..." was shown
  LatestVersion,  // "You have the latest ..." was shown
  Unreachable,    // the user gave up after "Can't access remote data. Try again?"
  Cancelled,      // Ctrl+T during the transfer
};

// The whole command: deletes an old version.txt, fetches the new one into the
// program folder (asking whether to try again after each failure), compares.
UpdateOutcome CheckForUpdates(Context& ctx, long timeoutSeconds = 20);

}  // namespace mc
