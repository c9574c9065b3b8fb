// The platform's number conversions and formats, in one place: every number of every file and
// every figure typed in a dialog goes through here.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace orva {

// Val: reads the longest number at the head of the text, blanks skipped anywhere, "." as
// decimal mark, an optional exponent (E or D), "&H"/"&O" prefixes; 0 when there is no digit.
double Val(std::string_view texte);

// Rounding to nearest, ties to even, with the overflow error outside the type's range.
int16_t CInt(double v);
int32_t CLng(double v);
float CSng(double v);
// Floor and truncation.
double Int(double v);
double Fix(double v);
// Round half to even, no range check: coordinates becoming device integers.
double ArrondiPair(double v);

// Decimal mark of the process locale (LC_NUMERIC), for displayed values.
char SeparateurLocal();

// CStr: the number's text with the given decimal mark, 15 significant digits (7 for 32-bit floats).
std::string CStr(double v, char separateur = '.');
std::string CStr(float v, char separateur = '.');
// CStr with "." written into a buffer of 64 characters at least; returns the text's length.
int CStrDans(char* tampon, double v);
int CStrDans(char* tampon, float v);
std::string CStr(long v);
inline std::string CStr(int v) { return CStr(static_cast<long>(v)); }
inline std::string CStr(int16_t v) { return CStr(static_cast<long>(v)); }
// Str: as CStr with "." and a leading blank for numbers that are not negative; the leading
// zero of a fraction is left out (" .5").
std::string Str(double v);
std::string Str(float v);
std::string Str(long v);
inline std::string Str(int v) { return Str(static_cast<long>(v)); }
inline std::string Str(int16_t v) { return Str(static_cast<long>(v)); }

// Format with the numeric patterns of the system ("0000.000", "####", "0.00", "fixed",
// "Standard"...). FormatFichier always writes "."; Format follows the process locale.
std::string FormatAvec(double v, std::string_view motif, char separateur);
inline std::string FormatFichier(double v, std::string_view motif) { return FormatAvec(v, motif, '.'); }
std::string Format(double v, std::string_view motif);
// Format applied to a text: a numeric text is formatted, any other text comes back unchanged.
std::string FormatTexte(std::string_view texte, std::string_view motif);

// Shortest text that reads back to the same value of the type, "." as decimal mark.
std::string TexteCourt(double v);
std::string TexteCourt(float v);

}  // namespace orva
