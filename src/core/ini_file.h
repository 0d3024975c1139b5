// mercod.ini: the settings file. Sections [Form0] .. [Form84], one "Key = value"
// line per setting. There is no cache: every read scans the file, every write
// copies it through a work file and keeps the previous copy as mercod.bak.
//
// A line matches a key when it begins with the key's characters: a prefix test,
// so "Country 1" finds whichever of "Country 1" and "Country 10" stands first.
#pragma once

#include <string>
#include <string_view>

#include "core/context.h"

namespace mc {

// The value of a key, trimmed, or "" after a reported failure. A missing
// "Debug" key reads as "No" without a message.
std::string ReadIniFile(Context& ctx, int formNumber, std::string_view paramName);

// Replaces the value of an existing key; an absent key or section is reported
// and leaves the file alone.
void UpdateIniFile(Context& ctx, int formNumber, std::string_view paramName,
                   std::string_view paramVal);

// Replaces the value of a key in every section from [Form2] to the end.
void UpdateIniAllForms(Context& ctx, std::string_view paramName, std::string_view paramVal);

// Appends a section (head and "> title" comment) unless it exists. Returns
// Found: true when the section was there already.
bool AddIniSection(Context& ctx, int formNumber, std::string_view title);

// Adds a key at the end of an existing section unless it is present; an
// existing value is never changed.
void AddIniParameter(Context& ctx, int formNumber, std::string_view paramName,
                     std::string_view paramVal);

}  // namespace mc
