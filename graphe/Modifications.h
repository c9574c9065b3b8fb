// The routines that change the tables of the network one record at a time, shared by the
// editing dialogs, the timetable commands, the digitising and the optimisation: appending and
// removing arcs and nodes (SupprimeArc and SupprimeNoeud of Suppression.h move the records), and
// the flags that change what a removal takes and says.
#pragma once
#include <cstdint>
#include <string>

#include "graphe/Suppression.h"
#include "noyau/Def.h"

namespace orva {

// True while a timetable listing or a train is shown: EliminationArcs then removes only the
// arcs whose departure and arrival match its arguments.
inline Booleen DialogueHorairesOuvert = Faux;
// False: EliminationArcs shows no result box.
inline Booleen MessagesElimination = Vrai;
// True during the timetable optimisation: EliminationNoeud shows no result box.
inline Booleen OptimisationEnCours = Faux;

// Appends an arc at the end of Arcs. Orientation is True when depart + arrivee is not 0,
// Minimal is 1, jours is left-justified in 7 characters. No index is rebuilt.
void AjouteArc(int32_t codeOrigine, int32_t codeDestination, int16_t indiceOrigine, int16_t indiceDestination,
               int16_t mode, float longueur, float temps, int16_t depart, int16_t arrivee, const std::string& jours,
               float debit, float capacite);
// Removes the arcs of the pair (either direction) in that mode, and, while a timetable is shown,
// with that departure and arrival. After a removal the arc that slides into the place is not
// examined: of two adjacent matching arcs the second stays. Reports in a box while
// MessagesElimination is True. Returns the count.
long EliminationArcs(int32_t codeOrigine, int32_t codeDestination, int16_t mode, int16_t depart, int16_t arrivee);

// Appends a node, drawn last.
void AjouteNoeud(const std::string& nom, int32_t code, int32_t population, float x, float y, float z);
// True when a node has that code.
bool CodeExiste(int32_t code);
// The arcs' ends of one code given another.
void RemplaceCodeDansArcs(int32_t ancien, int32_t nouveau);
// Removes the node of that code and every arc with that code at either end (the arc that slides
// into the place of a removed one is examined in its turn), rebuilds the node lists, and, unless
// OptimisationEnCours, reports in a box. Returns the count of arcs removed.
long EliminationNoeud(int32_t code);

// The flags back to their state before start-up.
void EnregistreModifications();

}  // namespace orva
