// The node layer: one circle per node and, for towns whose population lies between the two
// thresholds, the name.
#pragma once
#include <cstdint>
#include <string>

namespace orva {

// Colour of the names (chosen with the font of AspectVisuelNoeuds).
inline int32_t CouleurNoms = 0;

// Draws the nodes in OrdreNoeuds order on Ima (and in the metafile when recording): circles of
// RayonNoeud (radius 0 without avecRonds), names when avecNoms. Reads Noeuds, OrdreNoeuds,
// RayonNoeud, EpaisseurNoeud, CouleurInterieurNoeud, CouleurBordNoeud, CouleurNoms, the
// thresholds, NbLettres (0 mended to 20) and the boxes of AspectVisuelNoeuds; writes
// Noeud.Actif (False beyond 32000 pixels). An error ends the node at hand only.
void TraceLesNoeuds(bool avecRonds = false, bool avecNoms = false);

// The name with a capital at the head of each word (after a blank or "-"), the rest lowered:
// "SAINT-ETIENNE LA VILLE" gives "Saint-Etienne La Ville".
std::string MinusculeNom(const std::string& texte);

// Menu entries: the nodes, with their circles and their names.
void menAfficheVilles();
void menAfficheNomsVilles();

}  // namespace orva
