// From file coordinates to view coordinates: scaling with offsets, rotation around a node,
// tilt, and the depth order of painting.
#pragma once
#include <string>

namespace orva {

constexpr double Pi = 3.141593;  // the system's value of pi, everywhere

// Reads Noeuds X, Y, Z, EchelleVue, DecalageX, DecalageY; writes XEcran, YEcran, ZEcran
// (and mends EchelleVue 0 or beyond 100 to 1).
void CalculeCoordonneesEcran();
// Reads and writes XEcran, YEcran: rotation by angle around the first node whose first four
// letters of Nom equal nom, or around (0, 0).
void TourneVue(double angle, const std::string& nom);
// Reads ZEcran, writes YEcran: the parallel tilt.
void InclineVue(double angle);
// Reads YEcran, ZEcran, Inclinaison; writes OrdreNoeuds.
void TrieNoeudsProfondeur();
// The normal sequence: the four above.
void Projette();

}  // namespace orva
