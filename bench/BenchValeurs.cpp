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
ORVA_PAIRE(Ronds, Ronds);

// The passes of the values that search and sort, each alone beside its literal form: the node of
// each value, the node values by size, the nodes of each pair value, the pair values by size.
template <bool Litteral>
void ValeursNoeuds(benchmark::State& etat) {
  ChargeGrandReseau();
  ChargeNoeudVal1(DossierGrandReseau() + "/stm6000.dat");
  MesureSeule(etat, [] {}, [] { Litteral ? litteral::CalculeValeursNoeuds("Valeur1") : CalculeValeursNoeuds("Valeur1"); });
}
ORVA_PAIRE(CalculeValeursNoeuds, ValeursNoeuds);

template <bool Litteral>
void TriNoeudVals(benchmark::State& etat) {
  ChargeGrandReseau();
  ChargeNoeudVal1(DossierGrandReseau() + "/stm6000.dat");
  CalculeValeursNoeuds("Valeur1");
  const auto avant = NoeudVals;
  MesureSeule(etat, [&] { NoeudVals = avant; }, [] { Litteral ? litteral::TrieNoeudVals() : TrieNoeudVals(); });
}
ORVA_PAIRE(TrieNoeudVals, TriNoeudVals);

template <bool Litteral>
void IndicesArcVal(benchmark::State& etat) {
  ChargeGrandReseau();
  ChargeArcVal1(DossierGrandReseau() + "/3ar18500.dat");
  MesureSeule(etat, [] {}, [] { Litteral ? litteral::ImplementeIndicesDesArcVal1() : ImplementeIndicesDesArcVal1(); });
}
ORVA_PAIRE(ImplementeIndicesDesArcVal1, IndicesArcVal);

template <bool Litteral>
void TriArcVal(benchmark::State& etat) {
  ChargeGrandReseau();
  ChargeArcVal1(DossierGrandReseau() + "/3ar18500.dat");
  ImplementeIndicesDesArcVal1();
  const auto avant = ArcVal1;
  MesureSeule(etat, [&] { ArcVal1 = avant; }, [] { Litteral ? litteral::TrieArcVal() : TrieArcVal(); });
}
ORVA_PAIRE(TrieArcVal, TriArcVal);

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
ORVA_PAIRE(Flux, Flux);

}  // namespace
}  // namespace orva
