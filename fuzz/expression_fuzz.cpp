// libFuzzer target over the Expression Calculator and the numeric input
// evaluator. The first byte picks the options; the rest is a session of up
// to 12 lines worked on one engine, so that variables and functions made by
// early lines are used by later ones. Every line must end in a result or in
// one message, and no result may be NaN or infinite.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/clock.h"
#include "core/context.h"
#include "core/number_format.h"
#include "core/text_util.h"
#include "maths/expression.h"

namespace {

class CountingSink final : public mc::MessageSink {
 public:
  void Show(std::string_view caption, std::string_view text) override {
    if (caption.empty() || text.empty()) std::abort();
    ++shown;
  }
  bool Ask(std::string_view, std::string_view) override { return false; }
  std::optional<std::string> Input(std::string_view, std::string_view, bool,
                                   std::string_view) override {
    return std::nullopt;
  }
  int shown = 0;
};

void Require(bool ok) {
  if (!ok) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1 || size > 4096) return 0;
  const std::uint8_t options = data[0];
  const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);

  mc::FixedClock clock(mc::LocalDateTime{2026, 11, 23, 10, 30, 0, 0});
  CountingSink sink;
  mc::Context ctx(std::filesystem::temp_directory_path(), clock, sink);
  const char sep = options & 1 ? ',' : '.';
  ctx.settings.decimalSeparator = sep;
  ctx.settings.usesDecimalPoint = sep == '.';

  mc::ExpressionEngine engine(ctx);
  engine.angle = options & 2 ? mc::AngleMeasure::Degrees : mc::AngleMeasure::Radians;
  engine.ignoreMarked = (options & 4) != 0;
  engine.sigFigs = 1 + (options >> 3) % 14;

  auto lines = mc::SplitLines(text);
  if (lines.size() > 12) lines.resize(12);
  for (const auto& line : lines) {
    sink.shown = 0;
    mc::LineResult r = engine.ProcessLine(line);
    if (r.ok()) {
      if (!r.value.empty()) {
        auto v = mc::ParseStrictNumber(r.value, sep);
        Require(v.has_value() && std::isfinite(*v));
      }
      for (const auto& out : r.output) Require(mc::StartsWith(out, "==>"));
    } else {
      Require(sink.shown >= 1);
      Require(r.output.empty());
    }
    // A stored value reads back, unless its 15 digits round past the largest double.
    for (const auto& v : engine.Variables()) {
      auto value = mc::ParseStrictNumber(v.value, sep);
      Require(value ? std::isfinite(*value) : v.value.find("E+308") != std::string::npos);
    }
    Require(engine.Variables().size() <= 50 && engine.Functions().size() <= 50);

    sink.shown = 0;
    double n = mc::EvalNumericInput(ctx, line);
    Require(n == -1 ? sink.shown == 1 : (n > 0 && std::isfinite(n) && sink.shown == 0));
    if (auto d = mc::ParseDecimalNumber(line, sep)) Require(std::isfinite(*d));
  }
  return 0;
}
