// Easter Sunday of a year in the Gregorian or the Julian reckoning. The
// Julian answer is a Julian calendar date.
#pragma once

#include "calendars/cal_type.h"

namespace mc {

struct EasterDate {
  int month = 0;  // 3 or 4
  int day = 0;
};

// Gregorian (`Greg`) or Julian (`Jul`) Easter; any other code gives the
// meaningless answer of the shared tail of the rule.
EasterDate ComputeEaster(int year, CalType type);

}  // namespace mc
