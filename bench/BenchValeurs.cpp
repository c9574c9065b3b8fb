// The values on the large synthetic network: a value on every node (6000) and on 18500 pairs of
// nodes, the node symbols and the flows, indexed and word for word.
#include <benchmark/benchmark.h>

#include "bench/Reseau.h"
#include "dessin/Surface.h"
#include "noyau/Def.h"
#include "noyau/Valeurs.h"
#include "tests/references/Litteral.h"
#include "valeurs/CouchesArcVal.h"
#include "valeurs/FichiersValeurs.h"
#include "valeurs/Ronds.h"

namespace orva {
namespace {

// The node values read, the symbols computed, sorted, sized and drawn.
template <bool Litteral>
void Ronds(benchmark::State& etat) {
  ChargeGrandReseau();
  ChargeNoeudVal1(DossierGrandReseau() + "/stm6000.dat");
  for (auto _ : etat) {
    Ima.Cls();
    if constexpr (Litteral) {
      litteral::CalculeValeursNoeuds("Valeur1");
      litteral::TrieNoeudVals();
    } else {
      CalculeValeursNoeuds("Valeur1");
      TrieNoeudVals();
    }
    DimensionneRonds("Valeur1");
    TraceRonds("Valeur1");
  }
  etat.counters["valeurs"] = NbNoeudVal;
}
void BM_Ronds(benchmark::State& etat) { Ronds<false>(etat); }
void BM_Ronds_Litteral(benchmark::State& etat) { Ronds<true>(etat); }
BENCHMARK(BM_Ronds)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Ronds_Litteral)->Unit(benchmark::kMillisecond)->Iterations(1);

// The arc values read, their nodes found, sorted, and the flows drawn with the afflux of nodes.
template <bool Litteral>
void Flux(benchmark::State& etat) {
  ChargeGrandReseau();
  for (auto _ : etat) {
    Ima.Cls();
    ChargeArcVal1(DossierGrandReseau() + "/3ar18500.dat");
    if constexpr (Litteral) {
      litteral::ImplementeIndicesDesArcVal1();
      litteral::TrieArcVal();
    } else {
      ImplementeIndicesDesArcVal1();
      TrieArcVal();
    }
    TraceAffluxNoeuds();
    TraceFlux();
  }
  etat.counters["valeurs"] = NbArcVal1;
}
void BM_Flux(benchmark::State& etat) { Flux<false>(etat); }
void BM_Flux_Litteral(benchmark::State& etat) { Flux<true>(etat); }
BENCHMARK(BM_Flux)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Flux_Litteral)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace orva
