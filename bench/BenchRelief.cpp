// The relief on the large synthetic network: the minimal arcs, and the tracing of the whole
// network under "Temps", tilted by 60 degrees.
#include <benchmark/benchmark.h>

#include "bench/Reseau.h"
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

void BM_TraceRelief(benchmark::State& etat) {
  Prepare();
  Inclinaison = 60 * Pi / 180;
  Projette();
  SelectionneArcsMinimaux();
  CapaciteFacettes = 10000;
  Mode route;
  ChercheModeParNom("Route70", route);
  for (auto _ : etat) {
    Orva.StatusBar[5].clear();
    TraceRelief(route.Code, route.CouleurCommun, 1, NbNoeuds, route);
    if (Orva.StatusBar[5].rfind("L'espace", 0) != 0) etat.SkipWithError("le tracé du relief a échoué");
  }
}
BENCHMARK(BM_TraceRelief)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orva

BENCHMARK_MAIN();
