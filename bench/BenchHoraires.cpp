// The timetables on the large synthetic network (73863 runs of regional trains with line
// numbers among its 99999 arcs): the listing of one link, the following of one train from its
// first section, and the development by line numbers of the whole network.
#include <benchmark/benchmark.h>

#include "bench/Reseau.h"
#include "edition/ModifArcs.h"
#include "graphe/Modes.h"
#include "horaires/Developpement.h"
#include "horaires/HorairesArcs.h"
#include "horaires/Trains.h"
#include "noyau/Def.h"

namespace orva {
namespace {

// The pair and mode of the first regional arc, chosen in ModifArcs as a user would.
long ChoisitPremiereLigne() {
  ChargeGrandReseau();
  const int16_t ter = CodeMode("TER");
  for (long i = 1; i <= NbArcs; ++i)
    if (Arcs[i].Mode == ter) {
      ModifArcs.ListeModifiable1.ListIndex = Arcs[i].IndiceOrigine;
      ModifArcs.ListeModifiable2.ListIndex = Arcs[i].IndiceDestination;
      ModifArcs.ListeModifiable3.Text = "TER";
      return i;
    }
  return 0;
}

void BM_HorairesListing(benchmark::State& etat) {
  if (ChoisitPremiereLigne() == 0) etat.SkipWithError("pas de train régional");
  for (auto _ : etat) AfficheHorairesArcs();
  etat.counters["rangees"] = HorairesArcs.ListeHoraires.ListCount();
}
BENCHMARK(BM_HorairesListing)->Unit(benchmark::kMillisecond);

void BM_HorairesTrain(benchmark::State& etat) {
  if (ChoisitPremiereLigne() == 0) etat.SkipWithError("pas de train régional");
  AfficheHorairesArcs();
  HorairesArcs.ListeHoraires.ListIndex = 0;
  for (auto _ : etat) AfficheTrain();
  etat.counters["rangees"] = Trains.ListeTrains.ListCount();
  if (Trains.ListeTrains.ListCount() < 2) etat.SkipWithError("le train n'a pas été suivi");
}
BENCHMARK(BM_HorairesTrain)->Unit(benchmark::kMillisecond);

void BM_HorairesDeveloppement(benchmark::State& etat) {
  ChargeGrandReseau();
  const Tableau<Arc> arcs = Arcs;
  const int32_t nombre = NbArcs;
  for (auto _ : etat) {
    DeveloppeHoraires();
    etat.PauseTiming();
    etat.counters["arcs"] = NbArcs;
    Arcs = arcs;
    NbArcs = nombre;
    etat.ResumeTiming();
  }
}
BENCHMARK(BM_HorairesDeveloppement)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orva
