// The relief on the large synthetic network: the minimal arcs, and the tracing of the whole
// network under "Temps", tilted by 60 degrees.
#include <benchmark/benchmark.h>

#include "bench/Reseau.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "relief/ArcsMinimaux.h"
#include "relief/OptionsRelief.h"
#include "relief/TraceRelief.h"
#include "tests/references/Litteral.h"
#include "vue/Projection.h"

namespace orva {
namespace {

void Prepare() {
  ChargeGrandReseau();
  Ima.Width = 350;
  Ima.Height = 250;
  OptionsRelief.TGV.Value = 1;
  OptionsRelief.Route.Value = 1;
}

template <bool Litteral>
void ArcsMinimaux(benchmark::State& etat) {
  Prepare();
  MesureSeule(etat, [] {}, [] { Litteral ? litteral::SelectionneArcsMinimaux() : SelectionneArcsMinimaux(); });
}
ORVA_PAIRE(SelectionneArcsMinimaux, ArcsMinimaux);

// Tilted by 60 degrees, the minimal arcs chosen; traces nodes 1 to `dernier` (0: all) of the
// order under "Route70" at each round, with the vector picture ticked or not, and reports a
// tracing that did not end in its report.
void MesureTrace(benchmark::State& etat, long dernier, double capacite, bool vectorielle) {
  Prepare();
  Inclinaison = 60 * Pi / 180;
  Projette();
  SelectionneArcsMinimaux();
  CapaciteFacettes = capacite;
  EntreeMenu* menu = Orva.Menu("menImageVectorielle");
  if (!menu) return etat.SkipWithError("pas de menu de l'image vectorielle");
  menu->Checked = vectorielle;
  ImaVec.Width = Ima.Width;
  ImaVec.Height = Ima.Height;
  Mode route;
  ChercheModeParNom("Route70", route);
  for (auto _ : etat) {
    etat.PauseTiming();
    EffaceImages();
    Orva.StatusBar[5].clear();
    etat.ResumeTiming();
    TraceRelief(route.Code, route.CouleurCommun, 1, dernier > 0 ? dernier : NbNoeuds, route);
    if (Orva.StatusBar[5].rfind("L'espace", 0) != 0) {
      etat.SkipWithError("le tracé du relief a échoué");
      break;
    }
  }
  menu->Checked = false;
}

void BM_TraceRelief(benchmark::State& etat) { MesureTrace(etat, 0, 10000, false); }
BENCHMARK(BM_TraceRelief)->Unit(benchmark::kMillisecond);

// The same with the vector picture ticked, on the first nodes of the order (the whole network has
// more vertices than their 16-bit count holds): every node recorded, ImaVec following node by node,
// the facets recorded and drawn again in depth order.
void BM_TraceReliefVectoriel(benchmark::State& etat) { MesureTrace(etat, etat.range(0), 32767, true); }
BENCHMARK(BM_TraceReliefVectoriel)->Unit(benchmark::kMillisecond)->Iterations(2)->Arg(500)->Arg(1000);

}  // namespace
}  // namespace orva

BENCHMARK_MAIN();
