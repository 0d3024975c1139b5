// The start-up password digest, big-number products, Quick Notes files at
// their largest, and a backup with the reminder restore.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>

#include "maths/bignum.h"
#include "shell/backup.h"
#include "shell/password.h"
#include "shell/quick_notes.h"

namespace {

class NullSink final : public mc::MessageSink {
 public:
  void Show(std::string_view, std::string_view) override {}
  bool Ask(std::string_view, std::string_view) override { return false; }
  std::optional<std::string> Input(std::string_view, std::string_view, bool,
                                   std::string_view) override {
    return std::nullopt;
  }
};

struct Engine {
  explicit Engine(std::filesystem::path folder = {}) : ctx(std::move(folder), clock, sink) {}
  NullSink sink;
  mc::FixedClock clock{{2026, 11, 23, 10, 30, 0, 0}};
  mc::Context ctx;
};

void BM_PasswordDigest(benchmark::State& state) {
  Engine e;
  for (auto _ : state) benchmark::DoNotOptimize(mc::PasswordDigest(e.ctx, "Meridian2026Codex"));
}
BENCHMARK(BM_PasswordDigest);

void BM_LongMul(benchmark::State& state) {
  Engine e;
  const auto n = static_cast<std::size_t>(state.range(0));
  std::string a(n, '7'), b(n, '3');
  a[n / 2] = '.';
  for (auto _ : state) benchmark::DoNotOptimize(mc::LongMul(e.ctx, a, b));
}
BENCHMARK(BM_LongMul)->Arg(100)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

// Fifteen sheets of 65,535 characters in lines of 64.
mc::Sheets FullSheets() {
  mc::Sheets sheets;
  for (auto& s : sheets) {
    while (s.size() + 65 <= mc::kSheetCharacterLimit) s += std::string(64, 'n') + "\n";
    s.resize(mc::kSheetCharacterLimit, 'x');
  }
  return sheets;
}

void BM_QuickNotesWriteAndRead(benchmark::State& state) {
  const mc::Sheets sheets = FullSheets();
  for (auto _ : state) {
    std::string file = mc::NotesFileContent(sheets);
    benchmark::DoNotOptimize(mc::ParseNotesFile(file));
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * 15 * 65535);
}
BENCHMARK(BM_QuickNotesWriteAndRead)->Unit(benchmark::kMillisecond);

// A folder with a small settings file, a 2 MB reminder file and notes.
void BM_BackupAndRestoreReminders(benchmark::State& state) {
  std::string pattern = (std::filesystem::temp_directory_path() / "codex-bench-XXXXXX").string();
  std::filesystem::path folder = ::mkdtemp(pattern.data());
  auto write = [&](const char* name, const std::string& content) {
    std::ofstream(folder / name, std::ios::binary) << content;
  };
  write("mercod.ini", "[Form0]\r\nLast File Backup Date = \r\n");
  write("mercod.dat", std::string(2 << 20, 'r'));
  write("person.dat", std::string(64 << 10, 'p'));
  write("mynotes.txt", mc::NotesFileContent(FullSheets()));
  Engine e(folder);
  for (auto _ : state) {
    mc::Backup(e.ctx);
    mc::Restore(e.ctx, mc::RestoreKind::Reminders);
  }
  std::filesystem::remove_all(folder);
}
BENCHMARK(BM_BackupAndRestoreReminders)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
