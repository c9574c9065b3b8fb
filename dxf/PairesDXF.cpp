#include "dxf/PairesDXF.h"

#include <charconv>
#include <string>

#include "noyau/Chaines.h"
#include "noyau/Conversions.h"

namespace orva {

void PairesDXF::Texte(int code, std::string_view valeur) {
  // Numbers and plain names go out as they are; other text is converted to Windows-1252 as every
  // line ORVA writes.
  bool ascii = true;
  for (char c : valeur) ascii = ascii && static_cast<unsigned char>(c) < 0x80;
  if (ascii) Ecrit(code, valeur);
  else Ecrit(code, Utf8VersCp1252(valeur));
}

void PairesDXF::Ecrit(int code, std::string_view valeur) {
  // The pair made whole, then handed to the stream's buffer in one call: a DXF of a large network
  // holds millions of pairs.
  std::string& ligne = ligne_;
  ligne.clear();
  char tampon[16];
  const auto r = std::to_chars(tampon, tampon + sizeof tampon, code);
  ligne.append(tampon, r.ptr);
  ligne += '\r';
  ligne.append(valeur);
  ligne += "\r\n";
  std::streambuf* tampon_sortie = out_.good() ? out_.rdbuf() : nullptr;
  const auto taille = static_cast<std::streamsize>(ligne.size());
  if (!tampon_sortie || tampon_sortie->sputn(ligne.data(), taille) != taille) out_.setstate(std::ios::badbit);
}

void PairesDXF::Entier(int code, long valeur) {
  char t[24];
  const auto r = std::to_chars(t, t + sizeof t, valeur);
  Ecrit(code, std::string_view(t, static_cast<std::size_t>(r.ptr - t)));
}

void PairesDXF::Reel(int code, float valeur) {
  char t[64];
  Ecrit(code, std::string_view(t, static_cast<std::size_t>(CStrDans(t, valeur))));
}

void PairesDXF::Reel(int code, double valeur) {
  char t[64];
  Ecrit(code, std::string_view(t, static_cast<std::size_t>(CStrDans(t, valeur))));
}

void PairesDXF::Point(int code, float x, float y, float z) {
  Reel(code, x);
  Reel(code + 10, y);
  Reel(code + 20, z);
}

void PairesDXF::Point(int code, double x, double y, double z) {
  Reel(code, x);
  Reel(code + 10, y);
  Reel(code + 20, z);
}

}  // namespace orva
