#include "graphe/Suppression.h"

#include "noyau/Def.h"

namespace orva {

void SupprimeArc(long indice) {
  for (long k = indice; k <= NbArcs - 1; ++k) Arcs[k] = Arcs[k + 1];
  NbArcs = NbArcs - 1;
  Arcs.ReDimPreserve(NbArcs);
}

void SupprimeNoeud(long indice) {
  for (long k = indice; k <= NbNoeuds - 1; ++k) {
    Noeud& n = Noeuds[k];
    const Noeud& s = Noeuds[k + 1];
    n.Nom = s.Nom;
    n.Code = s.Code;
    n.Population = s.Population;
    n.X = s.X;
    n.Y = s.Y;
    n.Z = s.Z;
  }
  NbNoeuds = NbNoeuds - 1;
  Noeuds.ReDimPreserve(NbNoeuds);
}

}  // namespace orva
