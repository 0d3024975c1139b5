// Numbers as the program writes and reads them: significant-figure output
// through the classic digit masks, and the strict numeric test of input boxes.
// The decimal separator is the user's ('.' or ',').
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mc {

// Formats with a digit mask: '0' a digit always shown, '#' a digit shown when
// significant, one '.' for the decimal separator, and "E-"/"E+" followed by
// exponent placeholders for scientific form. Rounds to the last placeholder.
std::string FormatWithMask(double value, std::string_view mask, char decimalSeparator = '.');

// A value to SigFigs significant digits: whole numbers as they are, others
// rounded and written with the mask of their magnitude.
std::string FormatSigFigs(int sigFigs, double value, char decimalSeparator = '.');

// True when the text is a number and holds no character of the other decimal
// separator: with a decimal point a comma anywhere fails, and the reverse.
bool IsStrictNumeric(std::string_view text, char decimalSeparator = '.');

// The value of a text that passes IsStrictNumeric.
std::optional<double> ParseStrictNumber(std::string_view text, char decimalSeparator = '.');

}  // namespace mc
