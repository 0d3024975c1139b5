// What the user's regional settings say about numbers and dates.
#pragma once

#include <string>
#include <string_view>

namespace mc {

// The six orders a date text may take, as the settings block names them.
inline constexpr std::string_view kDateOrders[] = {"d/m/y", "m/d/y", "y/m/d",
                                                   "d/y/m", "y/d/m", "m/y/d"};
bool IsKnownDateOrder(std::string_view order);

// The order of day, month and year in a formatted 23 October 4567: the first
// '2', '1' and '6' mark them; ties give "Unidentified".
std::string DateOrderOfSample(std::string_view formattedSample);

// The system's short date order (strftime %x under the user's locale).
std::string DetectDateOrder();

// The system's decimal separator, '.' or ','.
char DetectDecimalSeparator();

// Takes the user's locale for numbers and dates (setlocale(LC_ALL, "")), once.
void AdoptUserLocale();

}  // namespace mc
