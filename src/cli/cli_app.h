// codex-cli: the command-line front end over the same engine and screen
// models as the desktop program, for scripting and testing.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace mc {

// Exit statuses of codex-cli.
inline constexpr int kExitOk = 0;
inline constexpr int kExitRefused = 1;  // input refused, with the program's message
inline constexpr int kExitSetup = 2;    // no program folder or no mercod.ini

// Runs one command line (without the program name) and returns the exit status.
int RunCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace mc
