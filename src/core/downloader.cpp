#include "core/downloader.h"

#include <curl/curl.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "core/safe_file.h"

namespace mc {

namespace {

struct Transfer {
  std::FILE* out = nullptr;
  const std::function<bool()>* keepGoing = nullptr;
};

std::size_t WriteChunk(char* data, std::size_t size, std::size_t count, void* user) {
  auto* t = static_cast<Transfer*>(user);
  return std::fwrite(data, size, count, t->out) * size;
}

int Progress(void* user, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
  auto* t = static_cast<Transfer*>(user);
  if (t->keepGoing && *t->keepGoing && !(*t->keepGoing)()) return 1;  // abandon
  return 0;
}

}  // namespace

DownloadResult DownloadToFile(const std::string& url, const std::filesystem::path& file,
                              const DownloadOptions& options) {
  DownloadResult result;
  std::filesystem::path work = file;
  work += ".part";
  std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(), curl_easy_cleanup);
  if (!curl) {
    result.error = "curl_easy_init failed";
    return result;
  }
  Transfer t;
  t.keepGoing = &options.keepGoing;
  t.out = std::fopen(work.c_str(), "wb");
  if (!t.out) {
    result.error = "cannot write " + work.string();
    return result;
  }
  char errorText[CURL_ERROR_SIZE] = "";
  CURL* c = curl.get();
  curl_easy_setopt(c, CURLOPT_URL, url.c_str());
  curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, WriteChunk);
  curl_easy_setopt(c, CURLOPT_WRITEDATA, &t);
  curl_easy_setopt(c, CURLOPT_XFERINFOFUNCTION, Progress);
  curl_easy_setopt(c, CURLOPT_XFERINFODATA, &t);
  curl_easy_setopt(c, CURLOPT_NOPROGRESS, 0L);
  curl_easy_setopt(c, CURLOPT_FAILONERROR, 1L);
  curl_easy_setopt(c, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(c, CURLOPT_MAXREDIRS, 5L);
  curl_easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(c, CURLOPT_TIMEOUT, options.timeoutSeconds);
  curl_easy_setopt(c, CURLOPT_CONNECTTIMEOUT, std::min(options.timeoutSeconds, 10L));
  curl_easy_setopt(c, CURLOPT_ERRORBUFFER, errorText);
  curl_easy_setopt(c, CURLOPT_USERAGENT, "MeridianCodex/" CODEX_VERSION);
  CURLcode code = curl_easy_perform(c);
  curl_easy_getinfo(c, CURLINFO_RESPONSE_CODE, &result.httpStatus);
  bool written = std::fclose(t.out) == 0;
  if (code != CURLE_OK || !written || result.httpStatus / 100 != 2) {
    result.error = *errorText ? errorText : curl_easy_strerror(code);
    RemoveIfExists(work);
    return result;
  }
  std::error_code ec;
  std::filesystem::rename(work, file, ec);
  if (ec) {
    result.error = ec.message();
    RemoveIfExists(work);
    return result;
  }
  result.ok = true;
  return result;
}

}  // namespace mc
