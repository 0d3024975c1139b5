// The reminder store at ten thousand reminders: importing them from
// newrems.txt, and building the list over them.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "calendars/gregorian.h"
#include "core/context.h"
#include "reminders/report.h"
#include "reminders/store.h"
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

// Ten thousand reminders over the coming year, a few dozen a day, every
// tenth an every-year one with a field.
void WriteImportFile(const std::filesystem::path& folder) {
  std::ofstream out(folder / "newrems.txt", std::ios::binary);
  const JD start = GregorianToJD(24, 11, 2026);
  for (int i = 0; i < 10000; ++i) {
    int d = 0, m = 0, y = 0;
    const JD jd = start + (i * 37) % 365;
    for (y = 2026; GregorianToJD(1, 1, y + 1) <= jd; ++y) {
    }
    for (m = 12; GregorianToJD(1, m, y) > jd; --m) {
    }
    d = jd - GregorianToJD(1, m, y) + 1;
    if (i % 10 == 0 && !(d == 29 && m == 2))
      out << d << ',' << m << ",every,Anniversary <1990!> number " << i << "\r\n";
    else
      out << d << ',' << m << ',' << y << ",Reminder number " << i << "\r\n";
  }
}

const FieldFormat kFormat{"day month year message", "Comma ,", ""};

void BM_Import10000(benchmark::State& state) {
  Folder folder;
  FixedClock clock({2026, 11, 23, 10, 30, 0, 0});
  QuietSink sink;
  for (auto _ : state) {
    state.PauseTiming();
    std::filesystem::remove(folder.path / "person.dat");
    std::filesystem::remove(folder.path / "mercod.dat");
    WriteImportFile(folder.path);
    Context ctx(folder.path, clock, sink);
    state.ResumeTiming();
    if (!ImportReminders(ctx, kFormat)) state.SkipWithError("import failed");
  }
}
BENCHMARK(BM_Import10000)->Unit(benchmark::kMillisecond);

void BM_Report10000(benchmark::State& state) {
  Folder folder;
  FixedClock clock({2026, 11, 23, 10, 30, 0, 0});
  QuietSink sink;
  WriteImportFile(folder.path);
  {
    Context ctx(folder.path, clock, sink);
    ImportReminders(ctx, kFormat);
  }
  std::size_t size = 0;
  for (auto _ : state) {
    Context ctx(folder.path, clock, sink);
    ReminderReport r = BuildReminderReport(ctx);
    size = r.text.size();
    benchmark::DoNotOptimize(r);
  }
  state.counters["report_bytes"] = static_cast<double>(size);
}
BENCHMARK(BM_Report10000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
