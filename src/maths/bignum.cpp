// The operations run on GMP integers: a number text is split into its digits
// and its scale (digits after the separator), computed on, and joined again.
#include "maths/bignum.h"

#include <gmp.h>

#include <algorithm>

#include "core/errors.h"

namespace mc {

namespace {

// A GMP integer that frees itself.
class BigInt {
 public:
  BigInt() { mpz_init(v_); }
  ~BigInt() { mpz_clear(v_); }
  BigInt(const BigInt&) = delete;
  BigInt& operator=(const BigInt&) = delete;
  mpz_ptr get() { return v_; }

  std::string Digits() {
    std::string s(mpz_sizeinbase(v_, 10) + 2, '\0');
    mpz_get_str(s.data(), 10, v_);
    s.resize(s.find('\0'));
    return s;
  }

 private:
  mpz_t v_;
};

// Number text as digits and scale. False for anything else.
bool Split(std::string_view text, char separator, std::string& digits, int& scale) {
  digits.clear();
  scale = 0;
  bool seen = false;
  for (char c : text) {
    if (c >= '0' && c <= '9') {
      digits += c;
      if (seen) ++scale;
    } else if (c == separator && !seen) {
      seen = true;
    } else {
      return false;
    }
  }
  return !digits.empty();
}

struct Operand {
  BigInt value;
  int scale = 0;
};

// Parses an operand; on failure shows the message (none for a passed-on "-1").
bool Parse(Context& ctx, std::string_view text, Operand& out) {
  std::string digits;
  if (text == kNumberFailure) return false;
  if (!Split(text, ctx.settings.decimalSeparator, digits, out.scale)) {
    ShowError(ctx, Err("Non-digit character detected."));
    return false;
  }
  mpz_set_str(out.value.get(), digits.c_str(), 10);
  return true;
}

// Multiplies by 10^n.
void Shift(BigInt& v, int n) {
  if (n <= 0) return;
  BigInt p;
  mpz_ui_pow_ui(p.get(), 10, static_cast<unsigned long>(n));
  mpz_mul(v.get(), v.get(), p.get());
}

}  // namespace

std::string CleanDecimal(Context& ctx, std::string_view text) {
  const char sep = ctx.settings.decimalSeparator;
  std::string t(text);
  if (!t.empty() && t.front() == sep) t.insert(t.begin(), '0');
  if (!t.empty() && t.back() == sep) t += '0';
  auto at = t.find(sep);
  std::string whole = at == std::string::npos ? t : t.substr(0, at);
  std::string fraction = at == std::string::npos ? std::string() : t.substr(at + 1);
  auto firstNonZero = whole.find_first_not_of('0');
  whole = firstNonZero == std::string::npos ? "0" : whole.substr(firstNonZero);
  if (at == std::string::npos) return whole;
  auto lastNonZero = fraction.find_last_not_of('0');
  fraction = lastNonZero == std::string::npos ? "0" : fraction.substr(0, lastNonZero + 1);
  if (fraction == "0") return whole;
  return whole + sep + fraction;
}

std::string InsertPoint(Context& ctx, std::string_view digits, int scale, bool strip) {
  std::string d(digits);
  if (scale <= 0) return strip ? CleanDecimal(ctx, d) : d;
  if (static_cast<int>(d.size()) <= scale)
    d.insert(0, static_cast<std::size_t>(scale) - d.size() + 1, '0');
  d.insert(d.size() - static_cast<std::size_t>(scale), 1, ctx.settings.decimalSeparator);
  return strip ? CleanDecimal(ctx, d) : d;
}

std::string LongAdd(Context& ctx, std::string_view a, std::string_view b) {
  ctx.Trace("LongAdd entered.");
  Operand x, y;
  if (!Parse(ctx, a, x) || !Parse(ctx, b, y)) return std::string(kNumberFailure);
  const int scale = std::max(x.scale, y.scale);
  Shift(x.value, scale - x.scale);
  Shift(y.value, scale - y.scale);
  BigInt sum;
  mpz_add(sum.get(), x.value.get(), y.value.get());
  return InsertPoint(ctx, sum.Digits(), scale, true);
}

std::string LongMul(Context& ctx, std::string_view a, std::string_view b) {
  ctx.Trace("LongMul entered.");
  Operand x, y;
  if (!Parse(ctx, a, x) || !Parse(ctx, b, y)) return std::string(kNumberFailure);
  BigInt product;
  mpz_mul(product.get(), x.value.get(), y.value.get());
  return InsertPoint(ctx, product.Digits(), x.scale + y.scale, true);
}

}  // namespace mc
