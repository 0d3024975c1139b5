#include "support/test_program.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "shell/startup.h"

namespace mc::test {

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "codex-test-XXXXXX").string();
  char* made = ::mkdtemp(pattern.data());
  if (!made) throw std::runtime_error("mkdtemp failed");
  path_ = made;
}

TempFolder::~TempFolder() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

TestProgram::TestProgram(bool withData, LocalDateTime now)
    : clock(now), ctx(folder.path(), clock, sink) {
  if (withData)
    std::filesystem::copy(CODEX_DATA_DIR, folder.path(),
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
}

void TestProgram::Start(const std::string& dateOrder) {
  StartOptions options;
  options.detectLocale = false;
  options.dateOrder = dateOrder;
  ASSERT_EQ(StartProgram(ctx, options), StartOutcome::Ready);
  ASSERT_TRUE(sink.messages.empty()) << sink.messages.front().text;
}

std::string TestProgram::Read(const std::string& name) const {
  std::ifstream in(File(name), std::ios::binary);
  std::ostringstream ss;
  ss << in.rdbuf();
  return ss.str();
}

void TestProgram::Write(const std::string& name, const std::string& content) const {
  std::ofstream out(File(name), std::ios::binary);
  out << content;
}

}  // namespace mc::test
