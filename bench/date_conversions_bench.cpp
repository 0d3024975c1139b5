// The Date Conversions report, the heaviest report of the calendars: every
// calendar's row (Chinese and Hindu included) and the detail lines.
#include <benchmark/benchmark.h>

#include "calendars/date_conversions.h"
#include "calendars/gregorian.h"
#include "core/program_folder.h"
#include "shell/startup.h"

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

// The program folder of the build (bin/ beside bench/).
struct Program {
  NullSink sink;
  mc::FixedClock clock{{2026, 11, 23, 10, 30, 0, 0}};
  mc::Context ctx{mc::GetExeFolder().parent_path() / "bin", clock, sink};
  Program() {
    mc::StartOptions options;
    options.detectLocale = false;
    options.dateOrder = "d/m/y";
    mc::StartProgram(ctx, options);
  }
};

// A day of a different year each time, so that no lunar year is reused.
void BM_DateConversionsReport(benchmark::State& state) {
  Program p;
  mc::JD jd = mc::GregorianToJD(1, 1, 1650);
  for (auto _ : state) {
    mc::CalDate d = mc::Calendars(p.ctx).JDToDate(mc::CalType::Greg, jd);
    benchmark::DoNotOptimize(mc::DateConversionsReport(p.ctx, mc::CalType::Greg, d, jd));
    jd += 400;
    if (jd > mc::GregorianToJD(1, 1, 2999)) jd -= 490000;
  }
}
BENCHMARK(BM_DateConversionsReport)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
