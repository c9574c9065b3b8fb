#include "noyau/Conversions.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstring>
#include <limits>

#include "noyau/Erreurs.h"

namespace orva {

namespace {

bool EstBlancVal(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool EstChiffre(char c) { return c >= '0' && c <= '9'; }

double LitReel(std::string_view s) {
  if (s.empty()) return 0;
  double v = 0;
  auto r = std::from_chars(s.data(), s.data() + s.size(), v);
  if (r.ec == std::errc::result_out_of_range) {
    // Underflow gives 0; overflow is the platform's overflow error.
    bool grand = false;
    auto e = s.find_first_of("eE");
    if (e != std::string_view::npos) grand = e + 1 >= s.size() || s[e + 1] != '-';
    else grand = true;
    if (grand) Leve(ErrDepassement);
    return 0;
  }
  if (r.ec != std::errc()) return 0;
  if (std::isinf(v)) Leve(ErrDepassement);
  return v;
}

double ValBase(std::string_view t, int base) {
  // &H and &O give 16-bit values when they fit, as the platform does, else 32-bit.
  uint64_t n = 0;
  bool chiffre = false;
  for (char c : t) {
    int d;
    if (c >= '0' && c <= '9') d = c - '0';
    else if (base == 16 && c >= 'a' && c <= 'f') d = c - 'a' + 10;
    else if (base == 16 && c >= 'A' && c <= 'F') d = c - 'A' + 10;
    else break;
    if (d >= base) break;
    n = n * static_cast<uint64_t>(base) + static_cast<uint64_t>(d);
    if (n > 0xFFFFFFFFull) Leve(ErrDepassement);
    chiffre = true;
  }
  if (!chiffre) return 0;
  if (n <= 0xFFFF) return static_cast<double>(static_cast<int16_t>(static_cast<uint16_t>(n)));
  return static_cast<double>(static_cast<int32_t>(static_cast<uint32_t>(n)));
}

}  // namespace

double Val(std::string_view texte) {
  // The text without its blanks, then the number it begins with (never longer), both on the
  // stack when the text is short: every field of every file goes through here.
  constexpr std::size_t kPile = 64;
  char pileT[kPile], pileN[kPile];
  std::string tasT, tasN;
  char* tt = pileT;
  char* nn = pileN;
  if (texte.size() > kPile) {
    tasT.resize(texte.size());
    tasN.resize(texte.size());
    tt = tasT.data();
    nn = tasN.data();
  }
  std::size_t m = 0;
  for (char c : texte)
    if (!EstBlancVal(c)) tt[m++] = c;
  const std::string_view t(tt, m);
  if (t.size() >= 2 && t[0] == '&') {
    char p = t[1];
    if (p == 'h' || p == 'H') return ValBase(t.substr(2), 16);
    if (p == 'o' || p == 'O') return ValBase(t.substr(2), 8);
    return ValBase(t.substr(1), 8);
  }
  std::size_t k = 0;
  std::size_t i = 0;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) {
    if (t[i] == '-') nn[k++] = '-';
    ++i;
  }
  bool chiffres = false;
  while (i < t.size() && EstChiffre(t[i])) { nn[k++] = t[i++]; chiffres = true; }
  if (i < t.size() && t[i] == '.') {
    nn[k++] = t[i++];
    while (i < t.size() && EstChiffre(t[i])) { nn[k++] = t[i++]; chiffres = true; }
  }
  if (!chiffres) return 0;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E' || t[i] == 'd' || t[i] == 'D')) {
    // The exponent counts only with a digit: "1e" is 1.
    std::size_t j = i + 1, e = k;
    nn[e++] = 'e';
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) nn[e++] = t[j++];
    bool ce = false;
    while (j < t.size() && EstChiffre(t[j])) { nn[e++] = t[j++]; ce = true; }
    if (ce) k = e;
  }
  const std::string_view n(nn, k);
  if (n == "-" || n == "." || n == "-.") return 0;
  double v = LitReel(n);
  return v == 0 ? 0.0 : v;  // no negative zero
}

double ArrondiPair(double v) { return std::nearbyint(v); }

int16_t CInt(double v) {
  if (std::isnan(v)) Leve(ErrDepassement);
  double r = std::nearbyint(v);
  if (r < -32768.0 || r > 32767.0) Leve(ErrDepassement);
  return static_cast<int16_t>(r);
}

int32_t CLng(double v) {
  if (std::isnan(v)) Leve(ErrDepassement);
  double r = std::nearbyint(v);
  if (r < -2147483648.0 || r > 2147483647.0) Leve(ErrDepassement);
  return static_cast<int32_t>(r);
}

float CSng(double v) {
  if (std::isinf(v) || std::fabs(v) > static_cast<double>(std::numeric_limits<float>::max()))
    Leve(ErrDepassement);
  return static_cast<float>(v);
}

double Int(double v) { return std::floor(v); }
double Fix(double v) { return std::trunc(v); }

char SeparateurLocal() {
  const std::lconv* l = std::localeconv();
  if (l && l->decimal_point && l->decimal_point[0]) return l->decimal_point[0];
  return '.';
}

namespace {

// Decimal digits of |v| rounded to sig significant digits: digits and the power of ten of the
// first one.
struct Decimal {
  bool negatif = false;
  std::string chiffres;  // no leading zero, unless the value is 0 ("0")
  int exposant = 0;      // value = 0.d1d2d3... x 10^(exposant)
};

// The significant digits of a > 0 rounded to sig of them, trailing zeros dropped, written into
// chiffres (at least 20 chars); returns their count and sets the power of ten of the first.
int ChiffresSignificatifs(double a, int sig, char* chiffres, int& exposant) {
  // "d.ddddde+xx" read in place: the digits without the point, then the signed exponent.
  char buf[64];
  const auto r = std::to_chars(buf, buf + sizeof buf, a, std::chars_format::scientific, sig - 1);
  const char* p = buf;
  int n = 0;
  while (p < r.ptr && *p != 'e') {
    if (*p != '.') chiffres[n++] = *p;
    ++p;
  }
  int ex = 0;
  if (p < r.ptr) std::from_chars(p + (p[1] == '+' ? 2 : 1), r.ptr, ex);
  exposant = ex + 1;
  while (n > 1 && chiffres[n - 1] == '0') --n;
  return n;
}

Decimal EnDecimal(double v, int sig) {
  Decimal d;
  d.negatif = std::signbit(v) && v != 0;
  double a = std::fabs(v);
  if (a == 0) { d.chiffres = "0"; d.exposant = 1; return d; }
  char chiffres[32];
  const int n = ChiffresSignificatifs(a, sig, chiffres, d.exposant);
  d.chiffres.assign(chiffres, static_cast<std::size_t>(n));
  return d;
}

// Integer and fraction digits of |v| rounded half away from zero to `decimales` places, from
// its 15 significant digits.
void Arrondi(double v, int decimales, bool& negatif, std::string& entier, std::string& fraction) {
  Decimal d = EnDecimal(v, 15);
  negatif = d.negatif;
  // All digits as one string with the point after position exposant.
  std::string tout = d.chiffres;
  int point = d.exposant;
  if (point <= 0) {
    tout = std::string(static_cast<std::size_t>(-point), '0') + tout;
    point = 0;
  }
  if (static_cast<int>(tout.size()) < point) tout += std::string(static_cast<std::size_t>(point) - tout.size(), '0');
  int garde = point + decimales;
  if (garde < 0) { entier = "0"; fraction = std::string(static_cast<std::size_t>(decimales), '0'); negatif = false; return; }
  std::string kept = tout.substr(0, static_cast<std::size_t>(std::min<int>(garde, static_cast<int>(tout.size()))));
  bool hausse = static_cast<int>(tout.size()) > garde && tout[static_cast<std::size_t>(garde)] >= '5';
  if (static_cast<int>(kept.size()) < garde) kept += std::string(static_cast<std::size_t>(garde) - kept.size(), '0');
  if (hausse) {
    int k = static_cast<int>(kept.size()) - 1;
    while (k >= 0 && kept[static_cast<std::size_t>(k)] == '9') { kept[static_cast<std::size_t>(k)] = '0'; --k; }
    if (k < 0) { kept = "1" + kept; ++point; }
    else kept[static_cast<std::size_t>(k)]++;
  }
  entier = kept.substr(0, static_cast<std::size_t>(point));
  fraction = kept.substr(static_cast<std::size_t>(point));
  std::size_t nz = entier.find_first_not_of('0');
  entier = nz == std::string::npos ? "" : entier.substr(nz);
  if (entier.empty() && fraction.find_first_not_of('0') == std::string::npos) negatif = false;
}

std::string AvecMilliers(const std::string& entier, char milliers) {
  std::string r;
  int n = static_cast<int>(entier.size());
  for (int i = 0; i < n; ++i) {
    r += entier[static_cast<std::size_t>(i)];
    int reste = n - 1 - i;
    if (reste > 0 && reste % 3 == 0) r += milliers;
  }
  return r;
}

std::string Minuscules(std::string_view s) {
  std::string r(s);
  for (char& c : r)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
  return r;
}

// The text of v written into r (64 characters at most); returns its length. Built in a buffer of
// its own: millions of numbers go through here when a large file is written.
int TexteNombreDans(char* r, double v, int sig, char separateur, bool pourStr) {
  if (std::isnan(v)) {
    std::memcpy(r, "NaN", 3);
    return 3;
  }
  if (v == 0) {
    r[0] = '0';
    return 1;
  }
  if (std::isinf(v)) Leve(ErrDepassement);
  char c[32];
  int exposant = 0;
  const int n = ChiffresSignificatifs(std::fabs(v), sig, c, exposant);
  int k = 0;
  if (std::signbit(v)) r[k++] = '-';
  const int ex = exposant - 1;  // scientific exponent
  // Scientific notation past the significant digits and below 1E-4.
  if (ex >= sig || ex <= -5) {
    r[k++] = c[0];
    if (n > 1) {
      r[k++] = separateur;
      for (int i = 1; i < n; ++i) r[k++] = c[i];
    }
    r[k++] = 'E';
    r[k++] = ex < 0 ? '-' : '+';
    const int e = std::abs(ex);
    if (e >= 100) r[k++] = static_cast<char>('0' + e / 100);
    r[k++] = static_cast<char>('0' + e / 10 % 10);
    r[k++] = static_cast<char>('0' + e % 10);
  } else if (exposant <= 0) {
    if (!pourStr) r[k++] = '0';
    r[k++] = separateur;
    for (int i = 0; i < -exposant; ++i) r[k++] = '0';
    for (int i = 0; i < n; ++i) r[k++] = c[i];
  } else if (n <= exposant) {
    for (int i = 0; i < n; ++i) r[k++] = c[i];
    for (int i = n; i < exposant; ++i) r[k++] = '0';
  } else {
    for (int i = 0; i < exposant; ++i) r[k++] = c[i];
    r[k++] = separateur;
    for (int i = exposant; i < n; ++i) r[k++] = c[i];
  }
  return k;
}

std::string TexteNombre(double v, int sig, char separateur, bool pourStr) {
  char r[64];
  const int k = TexteNombreDans(r, v, sig, separateur, pourStr);
  return std::string(r, static_cast<std::size_t>(k));
}

}  // namespace

int CStrDans(char* tampon, double v) { return TexteNombreDans(tampon, v, 15, '.', false); }
int CStrDans(char* tampon, float v) { return TexteNombreDans(tampon, static_cast<double>(v), 7, '.', false); }
std::string CStr(double v, char separateur) { return TexteNombre(v, 15, separateur, false); }
std::string CStr(float v, char separateur) { return TexteNombre(static_cast<double>(v), 7, separateur, false); }
std::string CStr(long v) { return std::to_string(v); }

std::string Str(double v) {
  std::string t = TexteNombre(v, 15, '.', true);
  return v >= 0 || std::isnan(v) ? " " + t : t;
}
std::string Str(float v) {
  std::string t = TexteNombre(static_cast<double>(v), 7, '.', true);
  return v >= 0 ? " " + t : t;
}
std::string Str(long v) { return v >= 0 ? " " + std::to_string(v) : std::to_string(v); }

std::string FormatAvec(double v, std::string_view motif, char separateur) {
  std::string m = Minuscules(motif);
  char milliers = separateur == ',' ? ' ' : ',';
  if (m == "fixed") return FormatAvec(v, "0.00", separateur);
  if (m == "standard") return FormatAvec(v, "#,##0.00", separateur);
  if (m == "general number") return CStr(v, separateur);
  if (m == "percent") return FormatAvec(v * 100, "0.00", separateur) + "%";
  // Numeric pattern: placeholders 0 and #, one ".", "," for thousands.
  std::string_view p = motif;
  auto point = p.find('.');
  std::string_view pe = point == std::string_view::npos ? p : p.substr(0, point);
  std::string_view pf = point == std::string_view::npos ? std::string_view() : p.substr(point + 1);
  int minEntier = 0;
  bool sepMilliers = false;
  for (char c : pe) {
    if (c == '0') ++minEntier;
    if (c == ',') sepMilliers = true;
  }
  int zerosFraction = 0, decimales = 0;
  for (char c : pf) {
    if (c == '0' || c == '#') {
      ++decimales;
      if (c == '0') zerosFraction = decimales;
    }
  }
  bool negatif;
  std::string entier, fraction;
  Arrondi(v, decimales, negatif, entier, fraction);
  if (static_cast<int>(entier.size()) < minEntier)
    entier = std::string(static_cast<std::size_t>(minEntier) - entier.size(), '0') + entier;
  if (sepMilliers) entier = AvecMilliers(entier, milliers);
  while (static_cast<int>(fraction.size()) > zerosFraction && !fraction.empty() && fraction.back() == '0')
    fraction.pop_back();
  std::string r = negatif ? "-" : "";
  r += entier;
  if (point != std::string_view::npos) r += separateur + fraction;
  return r;
}

std::string Format(double v, std::string_view motif) { return FormatAvec(v, motif, SeparateurLocal()); }

std::string FormatTexte(std::string_view texte, std::string_view motif) {
  // A numeric text: blanks around, a sign, digits with at most one point, an exponent.
  std::size_t a = 0, b = texte.size();
  while (a < b && (texte[a] == ' ' || texte[a] == '\t')) ++a;
  while (b > a && (texte[b - 1] == ' ' || texte[b - 1] == '\t')) --b;
  std::string_view t = texte.substr(a, b - a);
  std::size_t i = 0;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
  bool chiffres = false;
  while (i < t.size() && EstChiffre(t[i])) { ++i; chiffres = true; }
  if (i < t.size() && t[i] == '.') {
    ++i;
    while (i < t.size() && EstChiffre(t[i])) { ++i; chiffres = true; }
  }
  if (chiffres && i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) ++j;
    bool ce = false;
    while (j < t.size() && EstChiffre(t[j])) { ++j; ce = true; }
    if (ce) i = j;
  }
  if (!chiffres || i != t.size()) return std::string(texte);
  return FormatFichier(Val(t), motif);
}

std::string TexteCourt(double v) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, r.ptr);
}

std::string TexteCourt(float v) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, r.ptr);
}

}  // namespace orva
