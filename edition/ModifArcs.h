// State of the dialog ModifArcs ("Modification des arcs"): the current pair, mode and arc values,
// and its commands.
#pragma once
#include <functional>

#include "noyau/Controles.h"
#include "noyau/Def.h"

namespace orva {

struct EtatModifArcs : Dialogue {
  Liste ListeModifiable1;  // origin: row 0 a blank, row n node n
  Liste ListeModifiable2;  // destination, same rows
  Liste ListeModifiable3;  // mode names
  Liste ListeFichArcs;     // arc files loaded, with their counts
  ZoneTexte Longueur, Heures, Minutes, Debit, Capacite;
  Bouton BtnCreer, BtnDetruire, BtnDoubleArc, BtnHoraires;
  Bouton Commande1;   // "Longeur arcs": the test of the lengths
  Bouton Command3D1;  // the redraw options
  Bouton Command3D3;  // "Redessiner"
  Bouton Command3D4;  // "Enregistrer fichier arcs"
  Bouton Command3D5;  // "Quitter"
  Bouton SSCommand1;  // "Ajoute fichier"
  // The mode in force, the length held across a removal and creation, and the flag raised while
  // a duration is being confirmed.
  Mode ModeArc;
  float LongueurArc = 0;
  Booleen SaisieDuree = Faux;
};
inline EtatModifArcs ModifArcs;

// Run after "Ajoute fichier" has merged a file: the timetable dialogs close (their rows are
// stale), plugged in by the timetables.
inline std::function<void()> ApresAjoutFichierArcs;

void EnregistreModifArcs();

}  // namespace orva
