// Brings an older mercod.ini up to the current layout, one version step at a
// time, so that a single start can climb from 158 to the current version.
#pragma once

#include "core/context.h"

namespace mc {

inline constexpr int kCurrentIniVersion = 190;

// Runs every step from the file's Version upwards; returns the final version.
int UpgradeIniFile(Context& ctx);

}  // namespace mc
