// The anamorphosis: the file plane redrawn around one node, so that each link is as long as its
// length stretched by the ratio of the fastest speed to its own. Nodes are placed ring by ring
// from the centre, the fastest links first, then relaxed toward the wanted length of their other
// links; the report gives for each link its reached and wanted length and the running stress.
#pragma once
#include <cstdint>
#include <string>

namespace orva {

// The highest mode speed among the selected arcs, the speed level in work, the highest ring.
inline double VitesseMaxAna = 0;
inline double VitesseNiveau = 0;
inline int32_t NiveauMax = 0;

// Arcs sorted in place by decreasing speed of their mode: a Shell sort of halved gaps whose
// passes swap neighbours at the gap (every field but Ana), not stable.
void TrieArcsParVitesse();
// One arc per pair of codes: the last in table order among the fastest; Arc.Minimal 1 for it.
void SelectionneArcsAnamorphose();
// Spreads the rings from the centre (Noeud.AnaA 0) one arc step at a time into AnaA and Arc.Ana,
// and returns the highest ring in `niveauMax`. Stops, returning false, when a pass reaches
// nothing new while selected arcs stay unreached.
bool NumeroteAnneaux(int32_t& niveauMax);
// 31 passes that move each node of the ring, not yet frozen, along its eligible links toward
// their wanted length, then freeze it. Two nodes at one place: the division-by-zero error.
void RelaxeAnneau(long anneau, double vitesseMaxAna, double vitesseNiveau);
// The projection of the nodes from AnaX, AnaY and Z, and the redraw of the view (at most a few
// times a second; `force` redraws whatever the time).
void AfficheAnamorphose(bool force = false);
// The report: a header, then a line per selected arc of a length; written whole or not at all.
void EcritRapportAnamorphose(const std::string& fichier, double vitesseMaxAna);

// The whole run around the node of ListIndex of frmAnamorphose.ListeModifiable1 (node 2 when no
// row is chosen): the network is changed only when the run ends well. A selected arc that the
// centre cannot reach gives a message naming the nodes cut off; an error of the run (a speed of
// 0, two nodes at one place, more arcs than 16 bits count, a report that cannot be written)
// reaches the command's handler. In both cases every table is as it was.
void CalculeAnamorphose();

// The command and the two buttons of frmAnamorphose.
void menAnamorphose();
void frmAnamorphoseCmdOK();
void frmAnamorphoseCmdAnnuler();

void EnregistreAnamorphose();

}  // namespace orva
