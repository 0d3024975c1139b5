// Saving a screen's output as a text file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/clock.h"
#include "core/context.h"

namespace mc {

enum class SaveStyle {
  MainScreen,  // the text line by line
  Screen,      // the text, an empty line, and "File produced on <date>"
};

// The bytes written for a saved output.
std::string SavedOutputContent(std::string_view text, SaveStyle style, const LocalDateTime& today);

// Writes the output to `file` (through a work file, so a failed save leaves
// any earlier file whole) and confirms with "Success!". An output that is
// empty after trimming writes nothing. False when nothing was saved.
bool SaveOutput(Context& ctx, std::string_view text, const std::filesystem::path& file,
                SaveStyle style);

}  // namespace mc
