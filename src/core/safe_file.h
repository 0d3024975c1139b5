// Reading and writing whole files so that a failed write never loses data:
// content goes to a work file, is flushed to disk, and only then is renamed
// over the target.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace mc {

std::optional<std::string> ReadWholeFile(const std::filesystem::path& file);

// Writes content to `file` and flushes it to the disk. False on any failure,
// after which the file may be partial (callers write work files this way).
bool WriteDurably(const std::filesystem::path& file, std::string_view content);

// Replaces `target` with content: writes `<target>.tmp`, flushes, renames.
// On failure the target is untouched and the work file is removed.
bool WriteFileAtomically(const std::filesystem::path& target, std::string_view content);

// Removes a file if it exists; true when it is gone afterwards.
bool RemoveIfExists(const std::filesystem::path& file);

}  // namespace mc
