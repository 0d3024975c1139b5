#include "core/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace mc {

InstanceLock::InstanceLock(const std::filesystem::path& folder) {
  auto file = folder / ".codex.lock";
  int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  if (fd < 0) return;
  if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
    ::close(fd);
    return;
  }
  fd_ = fd;
}

InstanceLock::~InstanceLock() {
  if (fd_ >= 0) ::close(fd_);
}

}  // namespace mc
