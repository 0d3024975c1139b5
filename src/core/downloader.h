// Fetching a file over HTTP(S): Check for Updates and the daily exchange rates.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace mc {

struct DownloadOptions {
  // The whole transfer gives up after this many seconds, the connection after
  // the smaller of this and ten.
  long timeoutSeconds = 20;
  // Called now and then while the transfer runs (the event pump); returning
  // false abandons the transfer.
  std::function<bool()> keepGoing;
};

struct DownloadResult {
  bool ok = false;
  long httpStatus = 0;  // 0 when no answer came
  std::string error;    // what went wrong, for the trace
};

// Fetches `url` into `file`. The content goes to a work file beside it and is
// renamed over `file` only when the whole transfer succeeded with a 2xx
// status; otherwise no file is left behind.
DownloadResult DownloadToFile(const std::string& url, const std::filesystem::path& file,
                              const DownloadOptions& options = {});

}  // namespace mc
