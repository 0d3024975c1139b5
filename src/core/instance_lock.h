// One running copy per program folder: an advisory lock on a file beside the
// program, released by the system when the process ends, however it ends.
#pragma once

#include <filesystem>

namespace mc {

class InstanceLock {
 public:
  explicit InstanceLock(const std::filesystem::path& folder);
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  // False when another copy holds the lock.
  bool Acquired() const { return fd_ >= 0; }

 private:
  int fd_ = -1;
};

}  // namespace mc
