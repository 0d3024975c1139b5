#include "core/program_folder.h"

namespace mc {

std::filesystem::path GetExeFolder() {
  std::error_code ec;
  auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  if (ec || !exe.has_parent_path()) return {};
  return exe.parent_path();
}

}  // namespace mc
