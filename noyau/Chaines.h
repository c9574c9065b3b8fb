// The platform's string helpers on UTF-8 text, counting characters (code points), not bytes:
// Len, Left, Right, Mid, Trim, Space, InStr, fixed-length strings; and the Windows-1252 text
// files of the system (one byte a character) with the platform's line reading.
#pragma once
#include <cstdint>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

namespace orva {

long Len(std::string_view s);
std::string Left(std::string_view s, long n);
std::string Right(std::string_view s, long n);
// Mid with a start counted from 1; n < 0 takes the rest.
std::string Mid(std::string_view s, long debut, long n = -1);
// Mid as a view into s, for a field read at once (valid while s is).
std::string_view MidVue(std::string_view s, long debut, long n = -1);
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
std::string Trim(std::string_view s);
std::string Space(long n);
// Position (from 1) of the first occurrence of cherche at or after debut, 0 if none.
long InStr(long debut, std::string_view s, std::string_view cherche);
long InStr(std::string_view s, std::string_view cherche);
long InStrRev(std::string_view s, std::string_view cherche);
std::string UCase(std::string_view s);
std::string LCase(std::string_view s);
// Replaces the n characters of s from position debut (from 1) by the first n of r (Mid statement).
void RemplaceMid(std::string& s, long debut, long n, std::string_view r);

// Truncates or blank-pads s to exactly n characters, as assigning to a fixed string does.
std::string Fixe(std::string_view s, long n);

// A fixed-length string: always exactly N characters, blank padded; empty means N blanks.
template <int N>
struct ChaineFixe {
  std::string s = std::string(N, ' ');
  ChaineFixe() = default;
  ChaineFixe(std::string_view v) : s(Fixe(v, N)) {}  // NOLINT: assignment from text as the platform does
  ChaineFixe(const char* v) : s(Fixe(v, N)) {}        // NOLINT
  ChaineFixe& operator=(std::string_view v) { s = Fixe(v, N); return *this; }
  ChaineFixe& operator=(const char* v) { s = Fixe(v, N); return *this; }
  operator const std::string&() const { return s; }  // NOLINT
  const std::string& str() const { return s; }
  bool operator==(const ChaineFixe& o) const { return s == o.s; }
  bool operator==(std::string_view o) const { return s == o; }
};

// Windows-1252 <-> UTF-8.
std::string Cp1252VersUtf8(std::string_view octets);
std::string Utf8VersCp1252(std::string_view texte);
bool EstUtf8Valide(std::string_view octets);
// A line of a system file: valid UTF-8 with non-ASCII characters is taken as UTF-8,
// anything else as Windows-1252.
std::string DecodeLigne(std::string_view octets);

// Reads one line as the platform's Line Input: ends at CR, LF or CR LF; raises the end-of-file
// error when nothing is left to read. Returns the line in UTF-8.
std::string LitLigne(std::istream& in);
// True when the channel has nothing left to read (the platform's EOF).
bool FinFichier(std::istream& in);
// Writes a line as Print # does: the text in Windows-1252 then CR LF.
void EcritLigne(std::ostream& out, std::string_view texte);

}  // namespace orva
