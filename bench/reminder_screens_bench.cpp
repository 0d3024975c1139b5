// What the reminder screens cost behind their forms at ten thousand
// reminders: the Edit Reminders listing, one month of Reminders by Month,
// and an Add Reminders series of every day over the rest of this year and
// all of next.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "calendars/gregorian.h"
#include "core/context.h"
#include "reminders/add_screen.h"
#include "reminders/edit_screen.h"
#include "reminders/month_screen.h"
#include "reminders/utilities_screen.h"

namespace {

using namespace mc;

class QuietSink final : public MessageSink {
 public:
  void Show(std::string_view, std::string_view) override {}
  bool Ask(std::string_view, std::string_view) override { return true; }
  std::optional<std::string> Input(std::string_view, std::string_view, bool,
                                   std::string_view) override {
    return std::nullopt;
  }
};

struct Folder {
  Folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "codex-bench-XXXXXX").string();
    path = ::mkdtemp(pattern.data());
    std::ofstream(path / "mercod.ini") << "[Form0]\r\nRemProc Julian Value = 0\r\n";
  }
  ~Folder() { std::filesystem::remove_all(path); }
  std::filesystem::path path;
};

// Ten thousand reminders over the coming year, every tenth an every-year one
// with a field, imported into the folder's store.
void FillStore(const std::filesystem::path& folder, Context& ctx) {
  {
    std::ofstream out(folder / "newrems.txt", std::ios::binary);
    const JD start = GregorianToJD(24, 11, 2026);
    for (int i = 0; i < 10000; ++i) {
      const JD jd = start + (i * 37) % 365;
      const int y = jd >= GregorianToJD(1, 1, 2027) ? 2027 : 2026;
      int m = 12;
      while (GregorianToJD(1, m, y) > jd) --m;
      const int d = jd - GregorianToJD(1, m, y) + 1;
      if (i % 10 == 0 && !(d == 29 && m == 2))
        out << d << ',' << m << ",every,Anniversary <1990!> number " << i << "\r\n";
      else
        out << d << ',' << m << ',' << y << ",Reminder number " << i << "\r\n";
    }
  }
  ImportReminders(ctx, {"day month year message", "Comma ,", ""});
}

void BM_EditListing10000(benchmark::State& state) {
  Folder folder;
  FixedClock clock({2026, 11, 23, 10, 30, 0, 0});
  QuietSink sink;
  Context ctx(folder.path, clock, sink);
  FillStore(folder.path, ctx);
  EditRemindersScreen edit(ctx);
  for (auto _ : state) {
    edit.Refresh();
    benchmark::DoNotOptimize(edit.Listing().data());
  }
  state.counters["listing_bytes"] = static_cast<double>(edit.Listing().size());
}
BENCHMARK(BM_EditListing10000)->Unit(benchmark::kMillisecond);

void BM_MonthFill10000(benchmark::State& state) {
  Folder folder;
  FixedClock clock({2026, 11, 23, 10, 30, 0, 0});
  QuietSink sink;
  Context ctx(folder.path, clock, sink);
  FillStore(folder.path, ctx);
  RemindersByMonthScreen month(ctx);
  month.ChooseMonth(12);
  for (auto _ : state) {
    month.Fill();
    benchmark::DoNotOptimize(month.Cells().data());
  }
  state.counters["report_bytes"] = static_cast<double>(month.ReportText().size());
}
BENCHMARK(BM_MonthFill10000)->Unit(benchmark::kMillisecond);

void BM_AddEveryDaySeries(benchmark::State& state) {
  Folder folder;
  FixedClock clock({2026, 11, 23, 10, 30, 0, 0});
  QuietSink sink;
  int inserted = 0;
  for (auto _ : state) {
    state.PauseTiming();
    std::filesystem::remove(folder.path / "person.dat");
    std::filesystem::remove(folder.path / "mercod.dat");
    Context ctx(folder.path, clock, sink);
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
