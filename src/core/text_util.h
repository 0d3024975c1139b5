// Small text helpers shared by the file readers and parsers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mc {

// Blanks and tabs removed from both ends.
std::string_view Trim(std::string_view s);
std::string TrimCopy(std::string_view s);

// Lines of a text, split at LF with a trailing CR removed, so that LF and
// CR LF files read alike. A final line end does not start another line.
std::vector<std::string> SplitLines(std::string_view text);

// Lines joined with CR LF after each, the program's own line end.
std::string JoinCrLf(const std::vector<std::string>& lines);

bool StartsWith(std::string_view s, std::string_view prefix);
std::string ToLower(std::string_view s);
// The first n characters (fewer when the text is shorter).
std::string_view Left(std::string_view s, std::size_t n);

// Characters of a UTF-8 text as a fixed-pitch report counts them (code points).
std::size_t DisplayWidth(std::string_view s);
// Padded with blanks on the right (left) to a display width; longer texts stay whole.
std::string PadRight(std::string_view s, std::size_t width);
std::string PadLeft(std::string_view s, std::size_t width);

// Whole decimal integer with optional sign and surrounding blanks.
bool ParseInt(std::string_view s, long long& out);

}  // namespace mc
