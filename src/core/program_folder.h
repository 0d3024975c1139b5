// Where the program lives: the folder of the running executable.
#pragma once

#include <filesystem>

namespace mc {

// The folder of /proc/self/exe, as the system spells it (no case change);
// empty when the system does not say.
std::filesystem::path GetExeFolder();

}  // namespace mc
