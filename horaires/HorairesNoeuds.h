// The timetable of one node ("Horaires (noeud)"): every departure from, or every arrival at, the
// node chosen in ModifNoeuds in the mode chosen in ModifArcs, each with the stop before or after
// it; a double click on a row shows its train.
#pragma once
#include <string>

#include "noyau/Controles.h"

namespace orva {

struct EtatHorairesNoeuds : Dialogue {
  BoutonOption HDeparts;      // "Départs"
  BoutonOption HArrivees;     // "Arrivées"
  Etiquette DepartDe;         // the title and the count
  Etiquette Etiquette1;       // the header, which follows the option
  Liste ListeHorairesNoeud;   // sorted, multiple selection
  Bouton Command3D3;          // "Quitter"
};
inline EtatHorairesNoeuds HorairesNoeuds;

// Reads the mode of ModifArcs, the node of ModifNoeuds, Arcs, Noeuds; writes ModeCourant,
// NoeudOrigine, DialogueHorairesOuvert, the progress and the dialog, which it shows. A timetable
// arc is listed from the node (departures, with the stop it comes from) or at it (arrivals, the
// arrival first, with the stop it goes on to); an arc without timetable at either end.
void AfficheHorairesNoeud();
// The run of a row of ListeHorairesNoeud: its times (the arrivals form read by its "("), the
// node of ModifNoeuds, the far node by the name after column 41, the mode of ModeCourant.
long ArcDeLigneNoeud(const std::string& ligne);

void EnregistreHorairesNoeuds();

}  // namespace orva
