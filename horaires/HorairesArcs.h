// Timetables of one link: an arc with a departure and an arrival is one run. The text of a
// timetable row, the listing of the runs of the pair and mode chosen in ModifArcs in the dialog
// HorairesArcs ("Horaires (arcs)"), and the commands that add, remove and replace a run.
#pragma once
#include <cstdint>
#include <string>

#include "noyau/Controles.h"
#include "noyau/Def.h"

namespace orva {

struct EtatHorairesArcs : Dialogue {
  Etiquette OriDest;     // the pair, the count and the mean duration
  Etiquette Etiquette1;  // the header of the columns
  Liste ListeHoraires;   // sorted by text: in order of departure
  Bouton Command3D2;     // "Nouveau"
  Bouton Command3D1;     // "Supprimer"
  Bouton Modifier;
  Bouton DevHor;         // "Dév. hor."
  Bouton Optimise;
  Bouton AfficheTrain;   // "Train"
  Bouton DetecteErreurs; // "Vérifier"
  Bouton Command3D3;     // "Quitter"
  // The text of the row last clicked: what "Supprimer" and "Modifier" act on.
  std::string LigneSelectionnee;
};
inline EtatHorairesArcs HorairesArcs;

// The pair and the mean of the last listing.
inline double NoeudOrigine = 0;
inline int16_t NoeudDestination = 0;
inline double MoyenneHoraires = 0;

// Val of characters 1-2 times 60 plus Val of characters 3-4; no check of any kind.
double ChaineHHMMVersMinutes(const std::string& s);
// Minutes as "HH:MM" through MinutesVersHHMM: hundreds (floored) and rest, each formatted "00".
// Hours are not reduced ("25:10"); a negative time shows a negative hour (-75 gives "-02:85").
std::string TexteHeure(double minutes);

// The two times of a row of the timetable lists: characters 1-2 and 4-5 are the departure as
// HHMM; from character 6 the first non-blank at position k starts the arrival, characters k,
// k+1 and k+3, k+4. Both in minutes through HHMMVersMinutes. Position is k.
struct HeuresDeLigne {
  double Depart = 0;
  double Arrivee = 0;
  long Position = 0;
};
HeuresDeLigne LitHeures(const std::string& ligne);
// The time at characters k, k+1 and k+3, k+4 of the row, in minutes.
double LitHeure(const std::string& ligne, long k);

// Reads Arcs(i), Noeuds: departure, 5 blanks, arrival, 7 blanks, Jours, 3 blanks, Temps as
// "###" padded to 3 (nothing for 0), "   L", Debit as "00".
std::string LigneHoraire(long i);
// Arrivee - Depart of a run, as a 16-bit subtraction (the overflow error beyond its range).
int16_t DureeHoraire(const Arc& a);

// Reads the combos of ModifArcs, Arcs, Noeuds; writes ModeCourant, NoeudOrigine,
// NoeudDestination, MoyenneHoraires, DialogueHorairesOuvert and the dialog HorairesArcs, which
// it shows. A timetable arc is listed from its origin only, with the stop it comes from; an arc
// without timetable in both directions. The sum of the durations is 16-bit (overflow error).
void AfficheHorairesArcs();

// The commands of HorairesArcs.
void NouvelHoraire();      // "Nouveau": two input boxes, AjouteArc, the listing again
void SupprimeHoraire();    // "Supprimer": EliminationArcs of the row last clicked
void ModifieHoraire();     // "Modifier": a silent removal, then "Nouveau"
void QuitteHorairesArcs(); // "Quitter"

// The selection of a row of a list as the user's click: the row chosen, and its Click run
// when the row changes.
void ChoisitRang(Liste& l, int rang);

// The dialog HorairesArcs, its settings, and its own commands.
void EnregistreHorairesArcs();

}  // namespace orva
