#include "maths/random.h"

#include <array>
#include <cstdint>
#include <random>

namespace mc {

namespace {

constexpr int kShuffleSize = 97;

// The shuffle table and its generator, one per run.
struct RandomSource {
  explicit RandomSource(Context&) {}

  double Draw() { return static_cast<double>(engine() >> 11) * 0x1.0p-53; }

  void Seed(Context& ctx) {
    LocalDateTime t = ctx.Now();
    // Milliseconds since midnight, as a timer reads them, with the date mixed in.
    std::uint64_t ms =
        ((static_cast<std::uint64_t>(t.hour) * 60 + t.minute) * 60 + t.second) * 1000 +
        t.millisecond;
    std::uint64_t day = (static_cast<std::uint64_t>(t.year) * 12 + t.month) * 31 + t.day;
    engine.seed(ms ^ (day << 32));
    for (int i = 0; i < kShuffleSize; ++i) Draw();
    for (auto& v : table) v = Draw();
    selector = Draw();
    seeded = true;
  }

  std::mt19937_64 engine;
  std::array<double, kShuffleSize> table{};
  double selector = 0;
  bool seeded = false;
};

}  // namespace

double NextRandom(Context& ctx, double seedFlag) {
  RandomSource& r = ctx.Module<RandomSource>();
  if (seedFlag < 0 || !r.seeded) r.Seed(ctx);
  auto j = static_cast<std::size_t>(kShuffleSize * r.selector);
  if (j >= kShuffleSize) j = kShuffleSize - 1;
  double value = r.table[j];
  r.selector = value;
  r.table[j] = r.Draw();
  return value;
}

}  // namespace mc
