// The pages of the Year Calendars screen: a whole year of one calendar as
// fixed-pitch text with CR LF line ends. Most calendars share one layout of
// four bands of three months; Baha'i, Chinese, Vietnamese, the Hindu
// lunisolar calendars, Javanese, the Balinese Pawukon and Yoruba have their own.
#pragma once

#include <string>
#include <string_view>

#include "calendars/cal_type.h"
#include "core/context.h"

namespace mc::views {

// The page of `year` in the calendar `type` (Paw: the Pawukon of a Gregorian
// year) under its list caption and era text (" A.M." or empty). The year is
// one the calendar's year check has passed.
std::string YearPage(Context& ctx, CalType type, std::string_view caption, std::string_view era,
                     int year);

}  // namespace mc::views
