// The anamorphosis on the large synthetic network, cut to the 32767 arcs that its 16-bit ring
// marks can count (a table of more arcs stops at once with the overflow error).
#include <benchmark/benchmark.h>

#include "anamorphose/Anamorphose.h"
#include "anamorphose/FrmAnamorphose.h"
#include "bench/Reseau.h"
#include "dessin/Surface.h"
#include "graphe/FichiersArcs.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "tests/references/Litteral.h"

namespace orva {
namespace {

void BM_Anamorphose(benchmark::State& etat) {
  ChargeGrandReseau();
  Ima.Width = 350;
  Ima.Height = 250;
  NbArcs = 32767;
  Arcs.ReDimPreserve(NbArcs);
  ImplementeIndicesArcs();
  const Tableau<Noeud> noeuds = Noeuds;
  const Tableau<Arc> arcs = Arcs;
  frmAnamorphose.ListeModifiable1.ListIndex = 1;
  for (auto _ : etat) {
    etat.PauseTiming();
    Noeuds = noeuds;
    Arcs = arcs;
    NbArcs = 32767;
    Orva.StatusBar[5].clear();
    etat.ResumeTiming();
    CalculeAnamorphose();
    if (Orva.StatusBar[5].rfind("Anamorphose en", 0) != 0) etat.SkipWithError("l'anamorphose n'a pas abouti");
  }
}
BENCHMARK(BM_Anamorphose)->Unit(benchmark::kMillisecond)->Iterations(2);

// The sort by speed that opens the anamorphosis, on every arc of the network.
template <bool Litteral>
void TriParVitesse(benchmark::State& etat) {
  ChargeGrandReseau();
  const Tableau<Arc> arcs = Arcs;
  MesureSeule(etat, [&] { Arcs = arcs; }, [] { Litteral ? litteral::TrieArcsParVitesse() : TrieArcsParVitesse(); });
}
ORVA_PAIRE(TriParVitesse, TriParVitesse);

}  // namespace
}  // namespace orva
