// From file coordinates to view coordinates: scaling with offsets, rotation around a node,
// tilt, and the depth order of painting; zoom and recentring on a node.
#pragma once
#include <string>

namespace orva {

constexpr double Pi = 3.141593;  // the system's value of pi, everywhere

// The tilt kept for a representation of data only.
inline float InclinaisonDonnees = 0;

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
// Zooms by the factor of the button (1 out, 2 in; Ctrl, maj = 2, stronger) and recentres the
// view on the node nearest to (x, y). Writes EchelleVue, DecalageX, DecalageY.
void ZoomeVers(double x, double y, int bouton, int maj);
// Moves the view until the node of `code` lies at the centre of Ima (50 rounds at most).
void RecentreSurNoeud(long code, int restreint);

}  // namespace orva
