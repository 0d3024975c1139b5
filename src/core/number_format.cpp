#include "core/number_format.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "core/text_util.h"

namespace mc {

namespace {

struct MaskShape {
  bool scientific = false;
  int minInt = 0;  // integer digits always shown
  int minDec = 0;  // decimals always shown
  int maxDec = 0;  // decimals at most
  bool expPlus = false;
  int minExp = 0;  // exponent digits always shown
};

// Placeholder positions count from the decimal point outwards: in "#0" the
// units digit is forced, in "0#" the tens digit is.
int ForcedIntDigits(std::string_view intPart) {
  auto first0 = intPart.find('0');
  return first0 == std::string_view::npos ? 0 : static_cast<int>(intPart.size() - first0);
}

MaskShape ShapeOf(std::string_view mask) {
  MaskShape s;
  auto e = mask.find_first_of("Ee");
  std::string_view num = mask.substr(0, e);
  if (e != std::string_view::npos) {
    s.scientific = true;
    std::string_view ex = mask.substr(e + 1);
    if (!ex.empty() && (ex[0] == '+' || ex[0] == '-')) {
      s.expPlus = ex[0] == '+';
      ex.remove_prefix(1);
    }
    s.minExp = ForcedIntDigits(ex);
  }
  auto dot = num.find('.');
  std::string_view intPart = num.substr(0, dot);
  s.minInt = ForcedIntDigits(intPart);
  if (dot != std::string_view::npos) {
    std::string_view dec = num.substr(dot + 1);
    s.maxDec = static_cast<int>(dec.size());
    auto last0 = dec.rfind('0');
    s.minDec = last0 == std::string_view::npos ? 0 : static_cast<int>(last0) + 1;
  }
  return s;
}

// "123.4500" -> "123.45" keeping at least minDec decimals; drops a bare point.
void TrimDecimals(std::string& digits, int minDec) {
  auto dot = digits.find('.');
  if (dot == std::string::npos) return;
  std::size_t keep = dot + 1 + static_cast<std::size_t>(minDec);
  while (digits.size() > keep && digits.back() == '0') digits.pop_back();
  if (digits.back() == '.') digits.pop_back();
}

void PadInt(std::string& digits, int minInt) {
  auto dot = digits.find('.');
  std::size_t intLen = dot == std::string::npos ? digits.size() : dot;
  if (intLen == 1 && digits[0] == '0' && minInt == 0) {
    digits.erase(0, 1);
    return;
  }
  if (static_cast<int>(intLen) < minInt)
    digits.insert(0, static_cast<std::size_t>(minInt) - intLen, '0');
}

}  // namespace

std::string FormatWithMask(double value, std::string_view mask, char decimalSeparator) {
  if (!std::isfinite(value)) return "Overflow";
  MaskShape s = ShapeOf(mask);
  bool negative = std::signbit(value) && value != 0;
  double a = std::fabs(value);
  char buf[512];
  std::string out;
  if (s.scientific) {
    std::snprintf(buf, sizeof buf, "%.*e", s.maxDec, a);
    std::string text(buf);
    auto e = text.find('e');
    std::string mant = text.substr(0, e);
    int exp = std::atoi(text.c_str() + e + 1);
    TrimDecimals(mant, s.minDec);
    std::string expDigits = std::to_string(std::abs(exp));
    if (static_cast<int>(expDigits.size()) < s.minExp)
      expDigits.insert(0, static_cast<std::size_t>(s.minExp) - expDigits.size(), '0');
    out = mant + "E" + (exp < 0 ? "-" : (s.expPlus ? "+" : "")) + expDigits;
  } else {
    std::snprintf(buf, sizeof buf, "%.*f", s.maxDec, a);
    out = buf;
    TrimDecimals(out, s.minDec);
    PadInt(out, s.minInt);
    if (out.empty()) out = "0";
  }
  bool allZero = out.find_first_of("123456789") == std::string::npos ||
                 (s.scientific &&
                  out.substr(0, out.find('E')).find_first_of("123456789") == std::string::npos);
  if (negative && !allZero) out.insert(0, 1, '-');
  for (auto& c : out)
    if (c == '.') c = decimalSeparator;
  return out;
}

std::string FormatSigFigs(int sigFigs, double value, char decimalSeparator) {
  if (!std::isfinite(value)) return "Overflow";
  if (std::floor(value) == value && value > -900719925474099.0 && value < 900719925474099.0) {
    return std::to_string(static_cast<long long>(value));
  }
  constexpr std::string_view kScientific = "0.0############E-0#";
  if (sigFigs < 14) {
    std::string sci = FormatWithMask(value, kScientific);
    auto e = sci.find('E');
    double mantissa = std::fabs(std::strtod(sci.substr(0, e).c_str(), nullptr));
    double scale = std::pow(10.0, sigFigs - 1);
    double rounded = std::floor(scale * mantissa + 0.4999999999999) / scale;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15g", rounded);
    std::string text = std::string(value < 0 ? "-" : "") + buf + sci.substr(e);
    // Rounding up next to the largest double would overflow: keep the value.
    const double back = std::strtod(text.c_str(), nullptr);
    if (std::isfinite(back)) value = back;
  }
  static constexpr struct {
    double from;
    std::string_view mask;
  } kMasks[] = {
      {1e12, "############0.0"}, {1e11, "###########0.0#"}, {1e10, "##########0.0##"},
      {1e9, "#########0.0###"},  {1e8, "########0.0####"},  {1e7, "#######0.0#####"},
      {1e6, "######0.0######"},  {1e5, "#####0.0#######"},  {1e4, "####0.0########"},
      {1e3, "###0.0#########"},  {100, "##0.0##########"},  {10, "#0.0###########"},
  };
  double a = std::fabs(value);
  std::string_view mask = "0.0############";
  if (a != 0 && (a >= 1e13 || a < 0.1)) {
    mask = kScientific;
  } else {
    for (const auto& m : kMasks)
      if (a >= m.from) {
        mask = m.mask;
        break;
      }
  }
  std::string out = FormatWithMask(value, mask, decimalSeparator);
  std::string tail = std::string(1, decimalSeparator) + "0";
  if (out.size() >= 2 && out.compare(out.size() - 2, 2, tail) == 0) out.resize(out.size() - 2);
  return out;
}

bool IsStrictNumeric(std::string_view text, char decimalSeparator) {
  return ParseStrictNumber(text, decimalSeparator).has_value();
}

std::optional<double> ParseStrictNumber(std::string_view text, char decimalSeparator) {
  std::string_view s = Trim(text);
  std::string plain;
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) plain += s[i++];
  int digits = 0;
  while (i < s.size() && s[i] >= '0' && s[i] <= '9') plain += s[i++], ++digits;
  if (i < s.size() && s[i] == decimalSeparator) {
    plain += '.';
    ++i;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') plain += s[i++], ++digits;
  }
  if (digits == 0) return std::nullopt;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
    plain += 'e';
    ++i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) plain += s[i++];
    int expDigits = 0;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') plain += s[i++], ++expDigits;
    if (expDigits == 0) return std::nullopt;
  }
  if (i != s.size()) return std::nullopt;
  double v = std::strtod(plain.c_str(), nullptr);
  if (!std::isfinite(v)) return std::nullopt;
  return v;
}

}  // namespace mc
