// The start-up password digest, big-number products, Quick Notes files at
// their largest, and a backup with the reminder restore.
#include <benchmark/benchmark.h>

#include <fstream>

#include "bench_program.h"
#include "maths/bignum.h"
#include "shell/backup.h"
#include "shell/password.h"
#include "shell/quick_notes.h"

namespace {

void BM_PasswordDigest(benchmark::State& state) {
  mc::bench::StartedProgram p;
  for (auto _ : state) benchmark::DoNotOptimize(mc::PasswordDigest(p.ctx, "Meridian2026Codex"));
}
BENCHMARK(BM_PasswordDigest);

void BM_LongMul(benchmark::State& state) {
  mc::bench::StartedProgram p;
  const auto n = static_cast<std::size_t>(state.range(0));
  std::string a(n, '7'), b(n, '3');
  a[n / 2] = '.';
  for (auto _ : state) benchmark::DoNotOptimize(mc::LongMul(p.ctx, a, b));
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

// A program folder with a 2 MB reminder file and notes at their largest.
void BM_BackupAndRestoreReminders(benchmark::State& state) {
  mc::bench::TempProgram p;
  auto write = [&](const char* name, const std::string& content) {
    std::ofstream(p.File(name), std::ios::binary) << content;
  };
  write("mercod.dat", std::string(2 << 20, 'r'));
  write("person.dat", std::string(64 << 10, 'p'));
  write("mynotes.txt", mc::NotesFileContent(FullSheets()));
  for (auto _ : state) {
    mc::Backup(p.ctx);
    mc::Restore(p.ctx, mc::RestoreKind::Reminders);
  }
}
BENCHMARK(BM_BackupAndRestoreReminders)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
