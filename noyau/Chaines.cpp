#include "noyau/Chaines.h"

#include <algorithm>
#include <array>

#include "noyau/Erreurs.h"

namespace orva {

namespace {

bool EstSuite(unsigned char c) { return (c & 0xC0) == 0x80; }

// Byte offset of character number k (from 0) of s, or s.size() past the end.
std::size_t Decalage(std::string_view s, long k) {
  if (k <= 0) return 0;
  std::size_t i = 0;
  while (i < s.size() && k > 0) {
    ++i;
    while (i < s.size() && EstSuite(static_cast<unsigned char>(s[i]))) ++i;
    --k;
  }
  return i;
}

bool EstBlanc(char c) { return c == ' '; }

}  // namespace

long Len(std::string_view s) {
  long n = 0;
  for (unsigned char c : s)
    if (!EstSuite(c)) ++n;
  return n;
}

std::string Left(std::string_view s, long n) {
  if (n < 0) Leve(ErrAppelIncorrect);
  return std::string(s.substr(0, Decalage(s, n)));
}

std::string Right(std::string_view s, long n) {
  if (n < 0) Leve(ErrAppelIncorrect);
  long l = Len(s);
  if (n >= l) return std::string(s);
  return std::string(s.substr(Decalage(s, l - n)));
}

std::string_view MidVue(std::string_view s, long debut, long n) {
  if (debut < 1) Leve(ErrAppelIncorrect);
  std::size_t a = Decalage(s, debut - 1);
  if (a >= s.size()) return {};
  if (n < 0) return s.substr(a);
  std::size_t b = a + Decalage(s.substr(a), n);
  return s.substr(a, b - a);
}

std::string Mid(std::string_view s, long debut, long n) { return std::string(MidVue(s, debut, n)); }

std::string LTrim(std::string_view s) {
  std::size_t i = 0;
  while (i < s.size() && EstBlanc(s[i])) ++i;
  return std::string(s.substr(i));
}

std::string RTrim(std::string_view s) {
  std::size_t n = s.size();
  while (n > 0 && EstBlanc(s[n - 1])) --n;
  return std::string(s.substr(0, n));
}

std::string Trim(std::string_view s) { return LTrim(RTrim(s)); }

std::string Space(long n) { return std::string(static_cast<std::size_t>(n < 0 ? 0 : n), ' '); }

long InStr(long debut, std::string_view s, std::string_view cherche) {
  if (debut < 1) Leve(ErrAppelIncorrect);
  std::size_t a = Decalage(s, debut - 1);
  if (a > s.size()) return 0;
  if (cherche.empty()) return debut <= Len(s) + 1 ? debut : 0;
  std::size_t p = s.find(cherche, a);
  if (p == std::string_view::npos) return 0;
  return Len(s.substr(0, p)) + 1;
}

long InStr(std::string_view s, std::string_view cherche) { return InStr(1, s, cherche); }

long InStrRev(std::string_view s, std::string_view cherche) {
  std::size_t p = s.rfind(cherche);
  if (p == std::string_view::npos) return 0;
  return Len(s.substr(0, p)) + 1;
}

namespace {
// Case mapping over ASCII and the Latin-1 letters that Windows-1252 holds.
std::string ChangeCasse(std::string_view s, bool majuscule) {
  std::string r;
  r.reserve(s.size());
  for (std::size_t i = 0; i < s.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(s[i]);
    if (c < 0x80) {
      if (majuscule && c >= 'a' && c <= 'z') c = static_cast<unsigned char>(c - 32);
      if (!majuscule && c >= 'A' && c <= 'Z') c = static_cast<unsigned char>(c + 32);
      r += static_cast<char>(c);
    } else if (c == 0xC3 && i + 1 < s.size()) {
      unsigned char d = static_cast<unsigned char>(s[i + 1]);
      // U+00C0..U+00DE <-> U+00E0..U+00FE except the multiplication and division signs.
      if (majuscule && d >= 0xA0 && d <= 0xBE && d != 0xB7) d = static_cast<unsigned char>(d - 0x20);
      else if (!majuscule && d >= 0x80 && d <= 0x9E && d != 0x97) d = static_cast<unsigned char>(d + 0x20);
      r += static_cast<char>(c);
      r += static_cast<char>(d);
      ++i;
    } else {
      r += static_cast<char>(c);
    }
  }
  return r;
}
}  // namespace

std::string UCase(std::string_view s) { return ChangeCasse(s, true); }
std::string LCase(std::string_view s) { return ChangeCasse(s, false); }

void RemplaceMid(std::string& s, long debut, long n, std::string_view r) {
  long l = Len(s);
  if (debut < 1 || debut > l) Leve(ErrAppelIncorrect);
  long m = std::min({n < 0 ? l : n, Len(r), l - debut + 1});
  std::size_t a = Decalage(s, debut - 1);
  std::size_t b = a + Decalage(std::string_view(s).substr(a), m);
  std::string remplacement = Left(r, m);
  s.replace(a, b - a, remplacement);
}

std::string Fixe(std::string_view s, long n) {
  long l = Len(s);
  if (l >= n) return Left(s, n);
  std::string r(s);
  r.append(static_cast<std::size_t>(n - l), ' ');
  return r;
}

namespace {
// Code points of the bytes 0x80..0x9F in Windows-1252 (0 where the byte is undefined there,
// kept as the C1 control of the same value).
constexpr std::array<char32_t, 32> kCp1252Haut = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AjouteUtf8(std::string& r, char32_t c) {
  if (c < 0x80) {
    r += static_cast<char>(c);
  } else if (c < 0x800) {
    r += static_cast<char>(0xC0 | (c >> 6));
    r += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    r += static_cast<char>(0xE0 | (c >> 12));
    r += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    r += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    r += static_cast<char>(0xF0 | (c >> 18));
    r += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    r += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    r += static_cast<char>(0x80 | (c & 0x3F));
  }
}
}  // namespace

std::string Cp1252VersUtf8(std::string_view octets) {
  std::string r;
  r.reserve(octets.size());
  for (unsigned char c : octets) {
    if (c < 0x80) r += static_cast<char>(c);
    else if (c < 0xA0) AjouteUtf8(r, kCp1252Haut[c - 0x80]);
    else AjouteUtf8(r, c);
  }
  return r;
}

bool EstUtf8Valide(std::string_view s) {
  std::size_t i = 0;
  while (i < s.size()) {
    unsigned char c = static_cast<unsigned char>(s[i]);
    int n;
    char32_t cp;
    if (c < 0x80) { ++i; continue; }
    if ((c & 0xE0) == 0xC0) { n = 1; cp = c & 0x1F; }
    else if ((c & 0xF0) == 0xE0) { n = 2; cp = c & 0x0F; }
    else if ((c & 0xF8) == 0xF0) { n = 3; cp = c & 0x07; }
    else return false;
    for (int k = 1; k <= n; ++k) {
      if (i + static_cast<std::size_t>(k) >= s.size()) return false;
      unsigned char d = static_cast<unsigned char>(s[i + static_cast<std::size_t>(k)]);
      if (!EstSuite(d)) return false;
      cp = (cp << 6) | (d & 0x3F);
    }
    if ((n == 1 && cp < 0x80) || (n == 2 && cp < 0x800) || (n == 3 && (cp < 0x10000 || cp > 0x10FFFF)) ||
        (cp >= 0xD800 && cp <= 0xDFFF))
      return false;
    i += static_cast<std::size_t>(n) + 1;
  }
  return true;
}

std::string DecodeLigne(std::string_view octets) {
  bool ascii = true;
  for (unsigned char c : octets)
    if (c >= 0x80) { ascii = false; break; }
  if (ascii) return std::string(octets);
  if (EstUtf8Valide(octets)) return std::string(octets);
  return Cp1252VersUtf8(octets);
}

std::string Utf8VersCp1252(std::string_view s) {
  std::string r;
  r.reserve(s.size());
  std::size_t i = 0;
  while (i < s.size()) {
    unsigned char c = static_cast<unsigned char>(s[i]);
    char32_t cp;
    int n;
    if (c < 0x80) { r += static_cast<char>(c); ++i; continue; }
    if ((c & 0xE0) == 0xC0) { n = 1; cp = c & 0x1F; }
    else if ((c & 0xF0) == 0xE0) { n = 2; cp = c & 0x0F; }
    else if ((c & 0xF8) == 0xF0) { n = 3; cp = c & 0x07; }
    else { r += '?'; ++i; continue; }
    bool ok = true;
    for (int k = 1; ok && k <= n; ++k) {
      if (i + static_cast<std::size_t>(k) >= s.size() || !EstSuite(static_cast<unsigned char>(s[i + static_cast<std::size_t>(k)]))) { ok = false; break; }
      cp = (cp << 6) | (static_cast<unsigned char>(s[i + static_cast<std::size_t>(k)]) & 0x3F);
    }
    if (!ok) { r += '?'; ++i; continue; }
    i += static_cast<std::size_t>(n) + 1;
    if (cp >= 0xA0 && cp <= 0xFF) { r += static_cast<char>(cp); continue; }
    char o = '?';
    for (int k = 0; k < 32; ++k)
      if (kCp1252Haut[static_cast<std::size_t>(k)] == cp) { o = static_cast<char>(0x80 + k); break; }
    r += o;
  }
  return r;
}

bool FinFichier(std::istream& in) {
  return in.peek() == std::char_traits<char>::eof();
}

std::string LitLigne(std::istream& in) {
  if (FinFichier(in)) {
    in.clear();
    Leve(ErrFinFichier);
  }
  // Read from the stream's buffer: a check of the stream for each character costs more than the
  // character when a file of a hundred thousand lines is read.
  constexpr int fin = std::char_traits<char>::eof();
  std::streambuf* tampon = in.rdbuf();
  std::string octets;
  while (true) {
    const int c = tampon->sbumpc();
    if (c == fin) {
      in.setstate(std::ios::eofbit);
      break;
    }
    if (c == '\n') break;
    if (c == '\r') {
      const int suivant = tampon->sgetc();
      if (suivant == '\n') tampon->sbumpc();
      else if (suivant == fin) in.setstate(std::ios::eofbit);
      break;
    }
    octets += static_cast<char>(c);
  }
  return DecodeLigne(octets);
}

void EcritLigne(std::ostream& out, std::string_view texte) {
  out << Utf8VersCp1252(texte) << "\r\n";
}

}  // namespace orva
