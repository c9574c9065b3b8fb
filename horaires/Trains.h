// Trains: the store knows single runs only, and a train is rebuilt on demand from one chosen
// run, linking an arrival at a node to a departure from it in the same mode at the same minute.
// The dialog Trains lists the train's runs, one row each, and duplicates, shifts, removes them.
#pragma once
#include <cstdint>
#include <string>

#include "noyau/Controles.h"
#include "noyau/Def.h"

namespace orva {

struct EtatTrains : Dialogue {
  Etiquette Info;        // the ends, the stops and the total time
  Etiquette Etiquette1;  // the header of the columns
  Liste ListeTrains;     // sorted by text, multiple selection: row 0 is the start of the train
  Bouton Reculer, Avancer, Dupliquer, Supprimer;
  Bouton SSCommand1;     // "Test trains": the selected rows to the clipboard
  Bouton Quitter;
};
inline EtatTrains Trains;

// The direction of the next search of a run: True scans from arc 1 upward, False from NbArcs
// downward; each search turns it over.
inline Booleen RechercheDescendante = Faux;
// The total time of the last train, in minutes.
inline double Duree = 0;

// Reads Arcs, NbArcs; turns RechercheDescendante over. The first arc with these codes, mode,
// departure and arrival in the scan's direction, 0 when none. An upward scan stops before arc
// NbArcs (it never looks at it unless NbArcs is 1), a downward scan starts there: two identical
// arcs are found in turn from either end.
long TrouveArcHoraire(int32_t codeOrigine, int32_t codeDestination, int16_t mode, double depart, double arrivee);

// Reads Arcs(i), Noeuds: departure, 2 blanks, arrival, 2 blanks, Temps as "###" right-trimmed
// and followed by 3 blanks (1 digit) or 1 (2 digits), a blank, the two codes as "0000000000"
// separated by a blank, 2 blanks, 10 characters of each end's name separated by 2 blanks.
std::string LigneTrain(long i);
// The run of a row of ListeTrains: its times, the codes read at columns 20 and 31 (10 wide),
// the mode of ModeCourant.
long ArcDeLigneTrain(const std::string& ligne);
// The run of a row of ListeHoraires: its times, the codes of the pair chosen in ModifArcs.
long ArcDeLigneHoraire(const std::string& ligne);
// True when the run of the candidate row touches two rows of ListeTrains or more (same origin,
// same destination, or an end of one at the other end of the other).
bool TrainEnBoucle(const std::string& ligne);

// Rebuilds the train of the row selected in ListeHoraires into ListeTrains, backward then
// forward until nothing more links; asks "Deux trains" when a scan offers a second candidate.
// Writes ModeCourant, Duree, DialogueHorairesOuvert, the dialog Trains; shows ModifArcs,
// HorairesArcs and Trains in this order.
void AfficheTrain();
// The command "Train" of HorairesArcs: the dialog Trains shown, then AfficheTrain.
void MontreTrain();

// The commands of Trains.
void SelectionneTousSiAucun();
void DupliqueTrain();
void AvanceTrain();
void ReculeTrain();
void SupprimeTrain();
void TesteTrains();
// Double click on a row: the listing of its pair with the row of its run selected.
void ListeTrainsDoubleClic();
void CacheTrains();

void EnregistreTrains();

}  // namespace orva
