// The files written from the large synthetic network: the arc file in the long layout, and the
// DXF of the network's polylines and names, then of its tubes.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/Reseau.h"
#include "dxf/SortieDXF.h"
#include "graphe/FichiersArcs.h"
#include "noyau/Def.h"

namespace orva {
namespace {

void BM_EcritureArcs(benchmark::State& etat) {
  ChargeGrandReseau();
  const std::string nom = DossierGrandReseau() + "/ecrit.dat";
  for (auto _ : etat) EcritArcsLong(nom);
  etat.counters["octets"] = static_cast<double>(std::filesystem::file_size(nom));
}
BENCHMARK(BM_EcritureArcs)->Unit(benchmark::kMillisecond);

void BM_EcritureDXF(benchmark::State& etat) {
  ChargeGrandReseau();
  SortieDXF.CocheNoeud[0].Value = 1;
  SortieDXF.CocheNoeud[1].Value = 1;
  SortieDXF.CocheArcs.Value = 1;
  SortieDXF.TroisDTubes.Value = false;
  SortieDXF.PolyLignes.Value = true;
  NomFichierDXF = DossierGrandReseau() + "/reseau.dxf";
  for (auto _ : etat) EcritFichierDXF();
  etat.counters["octets"] = static_cast<double>(std::filesystem::file_size(NomFichierDXF));
}
BENCHMARK(BM_EcritureDXF)->Unit(benchmark::kMillisecond);

// Every arc as a tube of facets: six times the pairs of the polylines.
void BM_EcritureDXFTubes(benchmark::State& etat) {
  ChargeGrandReseau();
  SortieDXF.CocheArcs.Value = 1;
  SortieDXF.PolyLignes.Value = false;
  SortieDXF.TroisDTubes.Value = true;
  NomFichierDXF = DossierGrandReseau() + "/tubes.dxf";
  for (auto _ : etat) EcritFichierDXF();
  etat.counters["octets"] = static_cast<double>(std::filesystem::file_size(NomFichierDXF));
}
BENCHMARK(BM_EcritureDXFTubes)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orva
