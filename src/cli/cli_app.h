// codex-cli: the command-line front end over the same engine and screen
// models as the desktop program, for scripting and testing.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace mc {

// Runs one command line (without the program name) and returns the exit status.
int RunCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace mc
