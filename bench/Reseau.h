// The large synthetic network (6000 nodes, 99999 arcs) of the data generator, written once into
// a temporary folder, and the program's state loaded from it for each benchmark.
#pragma once
#include <benchmark/benchmark.h>

#include <string>

namespace orva {

// The folder of the generated files (n6000.dat, a99999.dat...), generated on first use.
const std::string& DossierGrandReseau();
// Every table and setting as after start-up, on the large network: nodes, arcs, modes, projection.
void ChargeGrandReseau();

// A pass measured alone: `remet` puts back, untimed, what the pass changes, then the pass runs.
template <class Remet, class Passe>
void MesureSeule(benchmark::State& etat, Remet remet, Passe passe) {
  for (auto _ : etat) {
    etat.PauseTiming();
    remet();
    etat.ResumeTiming();
    passe();
  }
}

}  // namespace orva

// A pass and its literal form, from one template of parameter `bool Litteral`, registered side by
// side: BM_Nom, and BM_Nom_Litteral run once (the literal forms take seconds at these sizes).
#define ORVA_PAIRE(Nom, Gabarit)                                                \
  void BM_##Nom(benchmark::State& etat) { Gabarit<false>(etat); }              \
  void BM_##Nom##_Litteral(benchmark::State& etat) { Gabarit<true>(etat); }    \
  BENCHMARK(BM_##Nom)->Unit(benchmark::kMillisecond);                           \
  BENCHMARK(BM_##Nom##_Litteral)->Unit(benchmark::kMillisecond)->Iterations(1)

namespace orva {

}  // namespace orva
