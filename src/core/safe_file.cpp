#include "core/safe_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <sstream>

namespace mc {

std::optional<std::string> ReadWholeFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream ss;
  ss << in.rdbuf();
  if (in.bad()) return std::nullopt;
  return std::move(ss).str();
}

bool WriteDurably(const std::filesystem::path& file, std::string_view content) {
  int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (fd < 0) return false;
  const char* p = content.data();
  std::size_t left = content.size();
  bool ok = true;
  while (left > 0) {
    ssize_t n = ::write(fd, p, left);
    if (n < 0) {
      if (errno == EINTR) continue;
      ok = false;
      break;
    }
    p += n;
    left -= static_cast<std::size_t>(n);
  }
  if (ok && ::fsync(fd) != 0) ok = false;
  if (::close(fd) != 0) ok = false;
  return ok;
}

bool WriteFileAtomically(const std::filesystem::path& target, std::string_view content) {
  std::filesystem::path work = target;
  work += ".tmp";
  if (!WriteDurably(work, content)) {
    RemoveIfExists(work);
    return false;
  }
  std::error_code ec;
  std::filesystem::rename(work, target, ec);
  if (ec) {
    RemoveIfExists(work);
    return false;
  }
  return true;
}

bool RemoveIfExists(const std::filesystem::path& file) {
  std::error_code ec;
  std::filesystem::remove(file, ec);
  return !std::filesystem::exists(file, ec);
}

}  // namespace mc
