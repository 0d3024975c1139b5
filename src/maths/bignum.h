// Arbitrary-precision arithmetic on number text: decimal digit strings with at
// most one decimal separator (the user's), no sign. "-1" is the failure value:
// a routine that fails returns it after its message, and an operand "-1" is
// passed on as a failure without another message.
#pragma once

#include <string>
#include <string_view>

#include "core/context.h"

namespace mc {

inline constexpr std::string_view kNumberFailure = "-1";

// a + b, decimals allowed.
std::string LongAdd(Context& ctx, std::string_view a, std::string_view b);
// a * b, decimals allowed: the scales add.
std::string LongMul(Context& ctx, std::string_view a, std::string_view b);

// Puts the decimal separator `scale` places from the right of a digit string,
// padding with zeros as needed; with `strip` the result is CleanDecimal'd.
std::string InsertPoint(Context& ctx, std::string_view digits, int scale, bool strip);
// The normal form: no leading zeros in the integer part (one digit at least),
// no trailing zeros in the fraction, and no separator when the fraction is 0.
std::string CleanDecimal(Context& ctx, std::string_view text);

}  // namespace mc
