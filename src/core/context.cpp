#include "core/context.h"

#include <fstream>

namespace mc {

void Context::TraceLine(std::string_view text) {
  std::ofstream out(FilePath("debug.txt"), std::ios::binary | std::ios::app);
  out << text << "\r\n";
}

}  // namespace mc
