// The text of a number, built in a buffer, against the same rules written with strings: random
// floats and doubles of every magnitude, both separators, CStr and Str.
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <random>
#include <string>

#include "noyau/Conversions.h"
#include "noyau/Erreurs.h"

namespace orva {
namespace {

std::string Reference(double v, int sig, char separateur, bool pourStr) {
  if (std::isnan(v)) return "NaN";
  const bool negatif = std::signbit(v) && v != 0;
  const double a = std::fabs(v);
  if (a == 0) return "0";
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, a, std::chars_format::scientific, sig - 1);
  std::string s(buf, r.ptr);
  auto e = s.find('e');
  std::string chiffres;
  for (char c : s.substr(0, e))
    if (c != '.') chiffres += c;
  const int exposant = std::stoi(s.substr(e + 1)) + 1;
  while (chiffres.size() > 1 && chiffres.back() == '0') chiffres.pop_back();
  std::string t;
  const int ex = exposant - 1;
  if (ex >= sig || ex <= -5) {
    t = chiffres.substr(0, 1);
    if (chiffres.size() > 1) t += separateur + chiffres.substr(1);
    std::string x = std::to_string(std::abs(ex));
    if (x.size() < 2) x = "0" + x;
    t += std::string("E") + (ex < 0 ? '-' : '+') + x;
  } else if (exposant <= 0) {
    t = (pourStr ? "" : "0") + std::string(1, separateur) + std::string(static_cast<std::size_t>(-exposant), '0') + chiffres;
  } else if (static_cast<int>(chiffres.size()) <= exposant) {
    t = chiffres + std::string(static_cast<std::size_t>(exposant) - chiffres.size(), '0');
  } else {
    t = chiffres.substr(0, static_cast<std::size_t>(exposant)) + separateur + chiffres.substr(static_cast<std::size_t>(exposant));
  }
  return negatif ? "-" + t : t;
}

TEST(TexteNombre, CommeLaReference) {
  std::mt19937_64 alea(7);
  for (int essai = 0; essai < 200000; ++essai) {
    // Any bit pattern: every magnitude, subnormals included.
    uint64_t bits = alea();
    double d;
    std::memcpy(&d, &bits, sizeof d);
    if (std::isinf(d) || std::isnan(d)) continue;
    // Round values, which end in zeros, half the time.
    if (essai % 2) d = std::round(std::ldexp(static_cast<double>(alea() % 2000000) - 1000000, static_cast<int>(alea() % 40) - 20));
    const float f = static_cast<float>(d);
    ASSERT_EQ(CStr(d), Reference(d, 15, '.', false)) << d;
    ASSERT_EQ(CStr(d, ','), Reference(d, 15, ',', false)) << d;
    if (!std::isinf(f)) {
      ASSERT_EQ(CStr(f), Reference(f, 7, '.', false)) << f;
      const std::string s = Reference(f, 7, '.', true);
      ASSERT_EQ(Str(f), f >= 0 ? " " + s : s) << f;
    }
  }
  EXPECT_EQ(CStr(-0.0), "0");
  EXPECT_EQ(CStr(1e-300), "1E-300");
  // An infinity has no text: the overflow error, as its computation would give.
  EXPECT_THROW(CStr(HUGE_VAL), ErreurExecution);
}

}  // namespace
}  // namespace orva
