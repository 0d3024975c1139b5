#include <iostream>

#include "cli/cli_app.h"
#include "core/locale_facts.h"

int main(int argc, char** argv) {
  mc::AdoptUserLocale();
  std::ios::sync_with_stdio(false);
  std::vector<std::string> args(argv + 1, argv + argc);
  return mc::RunCli(args, std::cout, std::cerr);
}
