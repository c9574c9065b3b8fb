// Development and optimisation of the timetables of the regional trains (mode TER). The
// development adds a direct arc for every pair of stops of one train (the maximum graph); the
// optimisation takes out every node at which no train starts or ends, with its arcs (the
// minimum graph).
#pragma once

namespace orva {

// Reads Arcs: line numbers (a Debit not 0 on an arc of TER, Train, TGV or TGVSiteClassique)
// choose the development by line numbers, otherwise by matching. Appends to Arcs.
void DeveloppeHoraires();
// By matching: for each TER arc, in turn the arcs added by this very loop, every TER arc of the
// same line that arrives at its origin at its departure (from elsewhere than its destination)
// gives a direct arc, unless one of that line, origin, destination and departure exists: then
// the earlier arrival is kept in it. Reads and writes Arcs, NbArcs; reports progress.
void DeveloppeHorairesParAppariement();
// By line numbers: the array's order is the order of a train's stops. Each run of TER arcs that
// continue one another (same line, next origin the last destination, departure at the last
// arrival) gives an arc for every pair of its stops, the stages doubled, with Temps and Longueur
// from the difference of the HHMM numbers; node indices 0 until ImplementeIndicesArcs. A run at
// the end of the array reads one arc past it: the index error.
void DeveloppeHorairesParLigne();

// Reads and writes Noeuds, Arcs; asks whether to confirm each removal. Every node served only by
// timetable modes, at which every TER arrival has a TER departure at its minute, is eliminated
// with its arcs; the view is projected, indexed and redrawn after each removal.
void OptimiseHoraires();

// The menu entries and the buttons of HorairesArcs. "Dév. hor." leaves the indices as they are.
void menDeveloppmentHoraire();
void menOptimisationHoraire();
void DeveloppeDepuisHorairesArcs();
void OptimiseDepuisHorairesArcs();

}  // namespace orva
