// The cleaning of a network made by hand: the lengths of arcs against the distance of their
// nodes, the arcs whose ends are unknown, the double arcs. All work on Arcs in memory; a file is
// only written by "Enregistrer fichier arcs".
#pragma once

namespace orva {

// "Longeur arcs" of ModifArcs. For each arc: an end missing offers its removal
// (EliminationArcs); a length outside 90 % to 160 % of the bird's-flight length x 203 / 188, by
// more than 5 km, is shown with Oui (keep), Non (a new length typed) and Annuler (stop). Reads
// Noeuds; writes Arcs, the progress.
void TesteLongueursArcs();
// The arcs with fewer than two ends found among the nodes' codes, from the last to the first,
// removed with or without asking; the count in a box. Returns the count. Writes Arcs, NbArcs.
long EliminationArcsDeconnectes();
// For each arc, the later arcs of the same mode between the same two nodes (either direction)
// are removed; the first stays. The records' codes, indices, mode, length, time and Minimal move
// down; the other fields stay with their place in the table. The count in a box; returns it. An
// undoable step of its own.
long EliminationArcsDoubles();
// "Elimine arcs déconnectés...": the indices rebuilt, the disconnected arcs removed, the count
// of arcs in panel 2 of the status bar.
void menElimineArcsDeconnectes();

}  // namespace orva
