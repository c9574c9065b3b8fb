#include "graphe/Modes.h"

namespace orva {
void InitialiseModes() {}
void ChercheModeParCode(int, Mode&) {}
void ChercheModeParNom(const std::string&, Mode&) {}
Mode* ModeNomme(const std::string&) { return nullptr; }
int16_t CodeMode(const std::string&) { return 0; }
bool ModeHoraire(int) { return false; }
void DefinitModesNoeuds() {}
int32_t CouleurModesNoeud(const std::string&) { return 0; }
void RecenseModesPresents() {}
}  // namespace orva
