#include "dxf/PairesDXF.h"

#include <string>

#include "noyau/Chaines.h"
#include "noyau/Conversions.h"

namespace orva {

void PairesDXF::Texte(int code, std::string_view valeur) {
  EcritLigne(out_, std::to_string(code) + "\r" + std::string(valeur));
}

void PairesDXF::Entier(int code, long valeur) { Texte(code, CStr(valeur)); }
void PairesDXF::Reel(int code, float valeur) { Texte(code, CStr(valeur)); }
void PairesDXF::Reel(int code, double valeur) { Texte(code, CStr(valeur)); }

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
