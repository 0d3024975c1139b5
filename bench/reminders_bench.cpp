// The reminder store at ten thousand reminders: importing them from
// newrems.txt, and building the list over them.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench_program.h"
#include "reminder_import_file.h"
#include "reminders/report.h"
#include "reminders/store.h"
#include "reminders/utilities_screen.h"

namespace {

using namespace mc;

// A program folder of its own whose questions are answered Yes.
struct Program : bench::TempProgram {
  Program() : TempProgram(true) {}
};

const FieldFormat kFormat{"day month year message", "Comma ,", ""};

void BM_Import10000(benchmark::State& state) {
  Program p;
  for (auto _ : state) {
    state.PauseTiming();
    std::filesystem::remove(p.File("person.dat"));
    std::filesystem::remove(p.File("mercod.dat"));
    bench::WriteReminderImportFile(p.path());
    Context ctx(p.path(), p.clock, p.sink);
    state.ResumeTiming();
    if (!ImportReminders(ctx, kFormat)) state.SkipWithError("import failed");
  }
}
BENCHMARK(BM_Import10000)->Unit(benchmark::kMillisecond);

void BM_Report10000(benchmark::State& state) {
  Program p;
  bench::WriteReminderImportFile(p.path());
  ImportReminders(p.ctx, kFormat);
  std::size_t size = 0;
  for (auto _ : state) {
    Context ctx(p.path(), p.clock, p.sink);
    ReminderReport r = BuildReminderReport(ctx);
    size = r.text.size();
    benchmark::DoNotOptimize(r);
  }
  state.counters["report_bytes"] = static_cast<double>(size);
}
BENCHMARK(BM_Report10000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
