// The check of the timetables: every link that carries one is listed in HorairesArcs, and each
// run whose duration is off the link's mean, by a ratio and by an amount of minutes at once, is
// shown to the user, who may stop there to correct it.
#pragma once

namespace orva {

// The tolerances, kept from one check to the next; a value not above 0 takes its default
// (1.2, 1.2, 5 minutes) when a check starts.
inline double MargeSuperieure = 0;
inline double MargeInferieure = 0;
inline double EcartMaximum = 0;

// Reads Arcs and the mode of ModifArcs; writes the tolerances from three input boxes, the node
// combos of ModifArcs, the listing of HorairesArcs and its selected row, the progress. A run is
// reported when it is longer than MargeSuperieure times the mean or shorter than the mean over
// MargeInferieure (0: the division error), and differs from it by more than EcartMaximum; "Oui"
// stops the check with its row selected. More than 100000 arcs: the index error.
void DetecteErreursHoraires();

void EnregistreVerification();

}  // namespace orva
