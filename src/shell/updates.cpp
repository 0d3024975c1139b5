#include "shell/updates.h"

#include "core/downloader.h"
#include "core/ini_file.h"
#include "core/safe_file.h"

namespace mc {

std::string UpdateCheckAddress(Context& ctx) {
  AddIniParameter(ctx, 0, "Update Check Address", kDefaultUpdateAddress);
  return ReadIniFile(ctx, 0, "Update Check Address");
}

std::string SiteOf(std::string_view address) {
  auto scheme = address.find("://");
  std::size_t hostStart = scheme == std::string_view::npos ? 0 : scheme + 3;
  auto slash = address.find('/', hostStart);
  return std::string(address.substr(0, slash));
}

std::optional<long long> FirstNumber(std::string_view text) {
  auto start = text.find_first_of("0123456789");
  if (start == std::string_view::npos) return std::nullopt;
  long long n = 0;
  for (std::size_t i = start; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    if (n > 100000000000LL) return std::nullopt;
    n = n * 10 + (text[i] - '0');
  }
  return n;
}

UpdateOutcome CheckForUpdates(Context& ctx, long timeoutSeconds) {
  ctx.Trace("CheckForUpdates entered.");
  ctx.ClearCancel();  // a Ctrl+T from before does not stop this one
  const std::string address = UpdateCheckAddress(ctx);
  const auto file = ctx.FilePath("version.txt");
  DownloadOptions options;
  options.timeoutSeconds = timeoutSeconds;
  bool cancelled = false;
  options.keepGoing = [&ctx, &cancelled] {
    ctx.YieldToEvents();
    if (ctx.CancelRequested()) {
      ctx.ClearCancel();
      cancelled = true;
      return false;
    }
    return true;
  };
  for (;;) {
    RemoveIfExists(file);
    DownloadResult result = DownloadToFile(address, file, options);
    if (cancelled) return UpdateOutcome::Cancelled;
    std::optional<long long> published;
    if (result.ok) {
      ctx.settings.lastFileOpened = "version.txt";
      if (auto content = ReadWholeFile(file)) published = FirstNumber(*content);
    } else {
      ctx.Trace("CheckForUpdates. " + result.error);
    }
    if (published) {
      const std::string site = SiteOf(address);
      if (*published > ctx.settings.versionNum) {
        ctx.sink().Show(kInformation, "A new version of Meridian Codex (" +
                                          std::to_string(*published) + ") is available. Visit " +
                                          site + " to download it.");
        return UpdateOutcome::NewerVersion;
      }
      ctx.sink().Show(kInformation,
                      "You have the latest released version of Meridian Codex. News of "
                      "future versions will appear at " +
                          site + ".");
      return UpdateOutcome::LatestVersion;
    }
    if (!ctx.sink().Ask(kWarning, "Can't access remote data. Try again?"))
      return UpdateOutcome::Unreachable;
  }
}

}  // namespace mc
