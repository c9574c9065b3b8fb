// State of the dialog ModifNoeuds ("Modifie les noeuds"): the current node and its fields.
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatModifNoeuds : Dialogue {
  Liste ListeModifiable1;  // row 0 a blank, row n node n
  ZoneTexte Texte1, Texte2, Texte3, Texte4, Texte5, Texte6, Texte7;
};
inline EtatModifNoeuds ModifNoeuds;

void EnregistreModifNoeuds();

}  // namespace orva
