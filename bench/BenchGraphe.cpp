// The spine on the large synthetic network: the readers, the recomputation after a load (indexed
// and word for word), the census of modes, the projection, and the drawing of every arc and node
// into the raster context and into the metafile recorder.
#include <benchmark/benchmark.h>

#include "bench/Reseau.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "tests/references/Litteral.h"
#include "vue/CoucheArcs.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"

namespace orva {
namespace {

void BM_LectureNoeuds(benchmark::State& etat) {
  ChargeGrandReseau();
  for (auto _ : etat) ChargeNoeudsLong(DossierGrandReseau() + "/n6000.dat");
  etat.counters["noeuds"] = NbNoeuds;
}
BENCHMARK(BM_LectureNoeuds)->Unit(benchmark::kMillisecond);

void BM_LectureArcs(benchmark::State& etat) {
  ChargeGrandReseau();
  for (auto _ : etat) ChargeArcsLong(DossierGrandReseau() + "/a99999.dat");
  etat.counters["arcs"] = NbArcs;
}
BENCHMARK(BM_LectureArcs)->Unit(benchmark::kMillisecond);

// What follows a load: screen coordinates, depth order, indices, orientation, mode sets.
template <bool Litteral>
void Recalcul(benchmark::State& etat) {
  ChargeGrandReseau();
  for (auto _ : etat) {
    CalculeCoordonneesEcran();
    TrieNoeudsProfondeur();
    if constexpr (Litteral) {
      litteral::ImplementeIndicesArcs();
      litteral::DefinitOrientationArcs();
    } else {
      ImplementeIndicesArcs();
      DefinitOrientationArcs();
    }
    DefinitModesNoeuds();
  }
}
ORVA_PAIRE(Recalcul, Recalcul);

// The two passes of the recomputation that scan the tables, each alone beside its literal form.
template <bool Litteral>
void Indices(benchmark::State& etat) {
  ChargeGrandReseau();
  MesureSeule(etat, [] {}, [] { Litteral ? litteral::ImplementeIndicesArcs() : ImplementeIndicesArcs(); });
}
ORVA_PAIRE(ImplementeIndicesArcs, Indices);

template <bool Litteral>
void Orientation(benchmark::State& etat) {
  ChargeGrandReseau();
  MesureSeule(etat, [] {}, [] { Litteral ? litteral::DefinitOrientationArcs() : DefinitOrientationArcs(); });
}
ORVA_PAIRE(DefinitOrientationArcs, Orientation);

// The readers and the recomputation together, as at start-up.
void BM_LectureEtRecalcul(benchmark::State& etat) {
  ChargeGrandReseau();
  for (auto _ : etat) {
    ChargeNoeudsLong(DossierGrandReseau() + "/n6000.dat");
    ChargeArcsLong(DossierGrandReseau() + "/a99999.dat");
    CalculeCoordonneesEcran();
    TrieNoeudsProfondeur();
    ImplementeIndicesArcs();
    DefinitOrientationArcs();
    DefinitModesNoeuds();
  }
}
BENCHMARK(BM_LectureEtRecalcul)->Unit(benchmark::kMillisecond);

void BM_RecenseModesPresents(benchmark::State& etat) {
  ChargeGrandReseau();
  for (auto _ : etat) RecenseModesPresents();
  etat.counters["modes"] = NbModesPresents;
}
BENCHMARK(BM_RecenseModesPresents)->Unit(benchmark::kMillisecond);

void BM_Projection(benchmark::State& etat) {
  ChargeGrandReseau();
  for (auto _ : etat) Projette();
}
BENCHMARK(BM_Projection)->Unit(benchmark::kMillisecond);

// Every arc, mode after mode, then every node, as the redraw of the modes present does.
void TraceTout() {
  for (long m = 1; m <= NbModes; ++m) {
    const Mode mode = TableModes[m];
    if (mode.Present) TraceArcsDuMode(mode.Code, mode);
  }
  TraceLesNoeuds(true, false);
}

void BM_DessinRaster(benchmark::State& etat) {
  ChargeGrandReseau();
  RecenseModesPresents();
  for (auto _ : etat) {
    Ima.Cls();
    TraceTout();
  }
}
BENCHMARK(BM_DessinRaster)->Unit(benchmark::kMillisecond);

void BM_DessinMetafichier(benchmark::State& etat) {
  ChargeGrandReseau();
  RecenseModesPresents();
  Orva.Menu("menImageVectorielle")->Checked = true;
  for (auto _ : etat) {
    EffaceImages();
    TraceTout();
  }
  Orva.Menu("menImageVectorielle")->Checked = false;
}
BENCHMARK(BM_DessinMetafichier)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orva
