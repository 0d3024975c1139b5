// What the benchmark programs share: a sink that shows nothing, the build's
// program folder, a program with a fixed clock over it, started as the
// desktop starts, and a fresh temporary program folder for benchmarks that
// write files.
#pragma once

#include <stdlib.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "calendars/registry.h"
#include "core/clock.h"
#include "core/context.h"
#include "core/message_sink.h"
#include "core/program_folder.h"
#include "shell/startup.h"

namespace mc::bench {

// Shows nothing; every question gets the same answer, every input none.
class QuietSink final : public MessageSink {
 public:
  explicit QuietSink(bool answer = false) : answer_(answer) {}
  void Show(std::string_view, std::string_view) override {}
  bool Ask(std::string_view, std::string_view) override { return answer_; }
  std::optional<std::string> Input(std::string_view, std::string_view, bool,
                                   std::string_view) override {
    return std::nullopt;
  }

 private:
  bool answer_;
};

// The program folder of the build: bin/ beside bench/, holding the
// executables and a copy of data/.
inline std::filesystem::path BuildProgramFolder() {
  return GetExeFolder().parent_path() / "bin";
}

// A context over a folder, with a fixed clock (23 November 2026, 10:30) and a
// quiet sink answering `answer`.
struct BenchProgram {
  explicit BenchProgram(std::filesystem::path folder, bool answer = false)
      : sink(answer), ctx(std::move(folder), clock, sink) {}
  BenchProgram(const BenchProgram&) = delete;
  BenchProgram& operator=(const BenchProgram&) = delete;

  // The start-up sequence with a d/m/y date order and a decimal point; a
  // refused start ends the benchmark program.
  void Start() {
    StartOptions options;
    options.detectLocale = false;
    options.dateOrder = "d/m/y";
    if (StartProgram(ctx, options) != StartOutcome::Ready) {
      std::fprintf(stderr, "No program to benchmark in %s\n", ctx.ExeFolder().c_str());
      std::exit(1);
    }
  }

  FixedClock clock{{2026, 11, 23, 10, 30, 0, 0}};
  QuietSink sink;
  Context ctx;
};

// The build's program folder, started, with its calendar engine.
struct StartedProgram : BenchProgram {
  StartedProgram() : BenchProgram(BuildProgramFolder()), engine(Started(*this)) {}
  CalendarEngine& engine;

 private:
  static CalendarEngine& Started(BenchProgram& p) {
    p.Start();
    return Calendars(p.ctx);
  }
};

// A fresh temporary folder holding a copy of the shipped data files, removed
// with its contents at the end.
class TempFolder {
 public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "codex-bench-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) {
      std::perror("mkdtemp");
      std::exit(1);
    }
    path_ = pattern;
    std::filesystem::copy(CODEX_DATA_DIR, path_, std::filesystem::copy_options::recursive);
  }
  ~TempFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// A program over a temporary folder of its own, for benchmarks that write
// files; not started.
struct TempProgram : TempFolder, BenchProgram {
  explicit TempProgram(bool answer = false) : BenchProgram(path(), answer) {}
  std::filesystem::path File(std::string_view name) const { return path() / name; }
};

}  // namespace mc::bench
