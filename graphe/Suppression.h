// Removal of one arc or one node, keeping table order.
#pragma once

namespace orva {

// Reads and writes Arcs, NbArcs: every arc after `indice` moves one place down, field by field;
// NbArcs - 1; Arcs shrunk to 0..NbArcs, contents kept. Indices in other tables are not mended.
void SupprimeArc(long indice);
// Reads and writes Noeuds, NbNoeuds: every node after `indice` moves one place down, only Nom,
// Code, Population, X, Y and Z copied (projected coordinates, Actif and Modes stay where they
// were); NbNoeuds - 1; Noeuds shrunk to 0..NbNoeuds, contents kept. Arcs keep their old indices
// until ImplementeIndicesArcs runs.
void SupprimeNoeud(long indice);

}  // namespace orva
