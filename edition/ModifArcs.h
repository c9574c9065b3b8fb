// State of the dialog ModifArcs ("Modification des arcs"): the current pair, mode and arc values.
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatModifArcs : Dialogue {
  Liste ListeModifiable1;  // origin: row 0 a blank, row n node n
  Liste ListeModifiable2;  // destination, same rows
  Liste ListeModifiable3;  // mode names
  Liste ListeFichArcs;     // arc files loaded, with their counts
  ZoneTexte Longueur, Heures, Minutes, Debit, Capacite;
};
inline EtatModifArcs ModifArcs;

void EnregistreModifArcs();

}  // namespace orva
