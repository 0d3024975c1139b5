// Roman numerals, Roman dates, regnal years and the cycle calendars of a day.
#include <cmath>
#include <ostream>

#include "calendars/cycles.h"
#include "calendars/date_text.h"
#include "calendars/gregorian.h"
#include "calendars/regnal.h"
#include "calendars/roman.h"
#include "cli/commands.h"
#include "core/errors.h"
#include "core/number_format.h"
#include "core/text_util.h"

namespace mc {

namespace {

// A number gives its numeral, anything else is read as a numeral.
int Roman(CliEnv& env, const std::string& text) {
  Context& ctx = env.ctx;
  const std::string_view t = Trim(text);
  if (auto v = ParseStrictNumber(t, ctx.settings.decimalSeparator)) {
    if (*v <= 0) {
      ShowError(ctx, Err("Number to be converted must be positive."));
      return kExitRefused;
    }
    if (std::floor(*v) != *v || *v > 3999) {
      ShowError(ctx, Err("Number must be an integer in the range 1 to 3999."));
      return kExitRefused;
    }
    env.out << ToRoman(static_cast<int>(*v)) << '\n';
    return kExitOk;
  }
  int value = FromRoman(t);
  if (value == 0) {
    ShowError(ctx, Err("Invalid Roman numeral."));
    return kExitRefused;
  }
  env.out << value << '\n';
  return kExitOk;
}

int RomanDateCommand(CliEnv& env, const std::string& text) {
  auto d = ParseDateText(env.ctx, CalType::Jul, text);
  if (!d) return kExitRefused;
  env.out << RomanDate(d->day, d->month, d->year) << ", " << ToRoman(d->year + 753) << " AUC.\n";
  return kExitOk;
}

std::optional<JD> DayNumber(CliEnv& env, const std::string& text) {
  long long jd = 0;
  if (!ParseInt(text, jd) || jd < FirstJulianDay() || jd > LastJulianDay()) {
    ShowError(env.ctx, Err("Julian Day value is outside specified range."));
    return std::nullopt;
  }
  return static_cast<JD>(jd);
}

int Regnal(CliEnv& env, const std::string& text) {
  auto jd = DayNumber(env, text);
  if (!jd) return kExitRefused;
  RegnalStyle style = *jd < kGregorianStart ? RegnalStyle::Julian : RegnalStyle::Gregorian;
  if (!RegnalYearOf(env.ctx, *jd, style)) return kExitRefused;
  for (const std::string& line : RegnalLines(env.ctx, *jd, style)) env.out << line << '\n';
  return kExitOk;
}

// The rows of the cycle calendars as the date conversions report shows them.
int CyclesOfDay(CliEnv& env, const std::string& text) {
  auto day = DayNumber(env, text);
  if (!day) return kExitRefused;
  const JD jd = *day;
  Context& ctx = env.ctx;
  CalendarEngine& engine = Calendars(ctx);
  auto row = [&](std::string_view name, const std::string& value) {
    env.out << PadRight(name, 26) << value << '\n';
  };
  auto more = [&](const std::vector<std::string>& lines) {
    for (const auto& l : lines) env.out << std::string(26, ' ') << l << '\n';
  };
  row("Aztec Tonalpohualli", TonalpohualliText(ctx, jd));
  row("Aztec Xiuhpohualli", XiuhpohualliText(ctx, jd));
  if (jd >= 146) {
    row("Balinese Pawukon", PawukonLine(ctx, jd));
    more(PawukonDetailLines(ctx, jd));
  }
  if (jd >= BalineseYearStart(engine, 1737) && jd <= engine.DateToJD(CalType::Bal, 30, 12, 9920))
    row("Balinese Saka", BalineseSakaText(ctx, jd));
  if (jd >= engine.DateToJD(CalType::Jav, 1, 1, 1555)) {
    row("Javanese Pawukon/Pasaran", JavaneseText(ctx, jd));
    more(JavaneseDetailLines(ctx, jd));
  }
  row("Mayan long count", LongCountText(LongCountOfJD(ctx, jd)));
  row("Mayan civil haab", HaabText(ctx, jd));
  row("Mayan religious tzolkin", TzolkinText(ctx, jd));
  row("Mayan Lord of the Night", LordOfTheNightText(ctx, jd));
  if (jd >= GregorianToJD(1, 1, 1583)) row("Yoruba", YorubaText(ctx, jd));
  return kExitOk;
}

}  // namespace

std::vector<CliCommand> CycleCommands() {
  using Args = const std::vector<std::string>&;
  return {
      {"roman", "roman NUMBER|NUMERAL",
       "a number 1 to 3999 in Roman numerals, or a numeral's value",
       [](CliEnv& env, Args a) { return a.size() == 1 ? Roman(env, a[0]) : kExitUsage; }},
      {"roman-date", "roman-date D/M/Y", "a Julian date in the Roman form, with its year AUC",
       [](CliEnv& env, Args a) {
         return a.size() == 1 ? RomanDateCommand(env, a[0]) : kExitUsage;
       }},
      {"regnal", "regnal JD", "the English or British regnal year of a Julian Day",
       [](CliEnv& env, Args a) { return a.size() == 1 ? Regnal(env, a[0]) : kExitUsage; }},
      {"cycles", "cycles JD",
       "the Mayan, Aztec, Balinese, Javanese and Yoruba days of a Julian Day",
       [](CliEnv& env, Args a) { return a.size() == 1 ? CyclesOfDay(env, a[0]) : kExitUsage; }},
  };
}

}  // namespace mc
