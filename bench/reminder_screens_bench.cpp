// What the reminder screens cost behind their forms at ten thousand
// reminders: the Edit Reminders listing, one month of Reminders by Month,
// and an Add Reminders series of every day over the rest of this year and
// all of next.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench_program.h"
#include "reminder_import_file.h"
#include "reminders/add_screen.h"
#include "reminders/edit_screen.h"
#include "reminders/month_screen.h"
#include "reminders/utilities_screen.h"

namespace {

using namespace mc;

// A program folder of its own whose questions are answered Yes.
struct Program : bench::TempProgram {
  Program() : TempProgram(true) {}
};

// The store filled with the ten thousand reminders of the import file.
void FillStore(Context& ctx) {
  bench::WriteReminderImportFile(ctx.ExeFolder());
  ImportReminders(ctx, {"day month year message", "Comma ,", ""});
}

void BM_EditListing10000(benchmark::State& state) {
  Program p;
  FillStore(p.ctx);
  EditRemindersScreen edit(p.ctx);
  for (auto _ : state) {
    edit.Refresh();
    benchmark::DoNotOptimize(edit.Listing().data());
  }
  state.counters["listing_bytes"] = static_cast<double>(edit.Listing().size());
}
BENCHMARK(BM_EditListing10000)->Unit(benchmark::kMillisecond);

void BM_MonthFill10000(benchmark::State& state) {
  Program p;
  FillStore(p.ctx);
  RemindersByMonthScreen month(p.ctx);
  month.ChooseMonth(12);
  for (auto _ : state) {
    month.Fill();
    benchmark::DoNotOptimize(month.Cells().data());
  }
  state.counters["report_bytes"] = static_cast<double>(month.ReportText().size());
}
BENCHMARK(BM_MonthFill10000)->Unit(benchmark::kMillisecond);

void BM_AddEveryDaySeries(benchmark::State& state) {
  Program p;
  int inserted = 0;
  for (auto _ : state) {
    state.PauseTiming();
    std::filesystem::remove(p.File("person.dat"));
    std::filesystem::remove(p.File("mercod.dat"));
    Context ctx(p.path(), p.clock, p.sink);
    AddRemindersScreen add(ctx);
    add.message = "Water the plants";
    add.ChooseType(3);
    add.type3Day = "Every";
    state.ResumeTiming();
    if (!add.Save()) state.SkipWithError("save failed");
    inserted = add.InsertedCount();
  }
  state.counters["reminders"] = inserted;
}
BENCHMARK(BM_AddEveryDaySeries)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
