// A program folder of its own for each test: a fresh temporary directory,
// optionally holding a copy of the shipped data files, with a fixed clock and
// a recording sink behind one context.
#pragma once

#include <filesystem>
#include <string>

#include "core/clock.h"
#include "core/context.h"
#include "support/recording_sink.h"

namespace mc::test {

class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

class TestProgram {
 public:
  // A program folder; with `withData` the shipped data files are copied in.
  explicit TestProgram(bool withData = true, LocalDateTime now = {2026, 11, 23, 10, 30, 0, 0});

  // Runs the start-up sequence with a d/m/y date order and a decimal point.
  void Start(const std::string& dateOrder = "d/m/y");

  std::filesystem::path File(const std::string& name) const { return folder.path() / name; }
  std::string Read(const std::string& name) const;
  void Write(const std::string& name, const std::string& content) const;

  TempFolder folder;
  FixedClock clock;
  RecordingSink sink;
  Context ctx;
};

}  // namespace mc::test
