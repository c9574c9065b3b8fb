// The two passes that complete arcs after a load: node indices and orientation. The literal
// algorithms are kept here as references; the indexed implementations must give
// exactly their results, errors and progress included, on random networks.
#include <gtest/gtest.h>

#include <chrono>
#include <initializer_list>
#include <random>
#include <string>
#include <tuple>

#include "graphe/FichiersArcs.h"
#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "noyau/Progression.h"
#include "tests/graphe/CommunGraphe.h"
#include "tests/references/Litteral.h"

namespace orva {
namespace {

// ---------------------------------------------------------------------------------------------
// The state both versions act on, and its comparison.

struct Etat {
  Tableau<Noeud> noeuds;
  Tableau<Arc> arcs;
  int32_t nbNoeuds = 0, nbArcs = 0;
  bool visible = false;
  double pourcent = 0;
  std::string panneau5;
  int erreur = 0;

  static Etat Capture(int erreur) {
    Etat e;
    e.noeuds = Noeuds;
    e.arcs = Arcs;
    e.nbNoeuds = NbNoeuds;
    e.nbArcs = NbArcs;
    e.visible = Orva.ProgressionVisible;
    e.pourcent = Orva.PourcentProgression;
    e.panneau5 = Orva.StatusBar[5];
    e.erreur = erreur;
    return e;
  }
  void Restaure() const {
    Noeuds = noeuds;
    Arcs = arcs;
    NbNoeuds = nbNoeuds;
    NbArcs = nbArcs;
    Orva.ProgressionVisible = visible;
    Orva.PourcentProgression = pourcent;
    Orva.StatusBar[5] = panneau5;
  }
};

void CompareEtats(const Etat& litteral, const Etat& indexe, const std::string& contexte) {
  ASSERT_EQ(litteral.erreur, indexe.erreur) << contexte;
  ASSERT_EQ(litteral.arcs.UBound(), indexe.arcs.UBound()) << contexte;
  for (long i = litteral.arcs.LBound(); i <= litteral.arcs.UBound(); ++i) {
    const Arc& a = litteral.arcs[i];
    const Arc& b = indexe.arcs[i];
    ASSERT_EQ(a.IndiceOrigine, b.IndiceOrigine) << contexte << " arc " << i;
    ASSERT_EQ(a.IndiceDestination, b.IndiceDestination) << contexte << " arc " << i;
    ASSERT_EQ(a.Orientation, b.Orientation) << contexte << " arc " << i;
  }
  ASSERT_EQ(litteral.visible, indexe.visible) << contexte;
  ASSERT_EQ(litteral.pourcent, indexe.pourcent) << contexte;
  ASSERT_EQ(litteral.panneau5, indexe.panneau5) << contexte;
}

template <class F, class G>
void CompareLitteralEtIndexe(F litteral, G indexe, const std::string& contexte) {
  const Etat depart = Etat::Capture(0);
  const int e1 = ErreurDe(litteral);
  const Etat apresLitteral = Etat::Capture(e1);
  depart.Restaure();
  const int e2 = ErreurDe(indexe);
  const Etat apresIndexe = Etat::Capture(e2);
  CompareEtats(apresLitteral, apresIndexe, contexte);
}

// ---------------------------------------------------------------------------------------------

using IndicesArcs = GrapheTest;
using OrientationArcs = GrapheTest;

void Noeuds_(std::initializer_list<int32_t> codes) {
  NbNoeuds = static_cast<int32_t>(codes.size());
  Noeuds.ReDim(0, NbNoeuds);
  long i = 1;
  for (int32_t c : codes) Noeuds[i++].Code = c;
}

// Arcs (origin code, destination code); indices preset to stale values 77 and 88.
void ArcsCodes(std::initializer_list<std::pair<int32_t, int32_t>> arcs) {
  NbArcs = static_cast<int32_t>(arcs.size());
  Arcs.ReDim(0, NbArcs);
  long i = 1;
  for (auto [o, d] : arcs) {
    Arcs[i].CodeOrigine = o;
    Arcs[i].CodeDestination = d;
    Arcs[i].IndiceOrigine = 77;
    Arcs[i].IndiceDestination = 88;
    ++i;
  }
}

TEST_F(IndicesArcs, CasDeLaPartie) {
  Noeuds_({10, 20, 30, 40});
  ArcsCodes({{10, 20}, {40, 10}, {10, 99}, {99, 20}, {30, 30}, {99, 99}});
  ImplementeIndicesArcs();
  auto paire = [](long i) { return std::pair<int, int>(Arcs[i].IndiceOrigine, Arcs[i].IndiceDestination); };
  EXPECT_EQ(paire(1), std::pair(1, 2));
  EXPECT_EQ(paire(2), std::pair(4, 1));
  // Known at one end only: unknown at both.
  EXPECT_EQ(paire(3), std::pair(0, 0));
  EXPECT_EQ(paire(4), std::pair(0, 0));
  // A loop matches both tests on the same node.
  EXPECT_EQ(paire(5), std::pair(3, 3));
  EXPECT_EQ(paire(6), std::pair(0, 0));
  // The progress panel ends hidden.
  EXPECT_FALSE(Orva.ProgressionVisible);
}

TEST_F(IndicesArcs, CodesEnDouble) {
  // First match wins when the two codes alternate.
  Noeuds_({1, 2, 1, 2});
  ArcsCodes({{1, 2}, {2, 1}, {1, 1}});
  ImplementeIndicesArcs();
  EXPECT_EQ(Arcs[1].IndiceOrigine, 1);
  EXPECT_EQ(Arcs[1].IndiceDestination, 2);
  EXPECT_EQ(Arcs[2].IndiceOrigine, 2);
  EXPECT_EQ(Arcs[2].IndiceDestination, 1);
  EXPECT_EQ(Arcs[3].IndiceOrigine, 1);
  EXPECT_EQ(Arcs[3].IndiceDestination, 1);
  // Two occurrences of the origin code before the destination: the scan counts two matches on
  // the origin, stops there, and leaves the destination index as it was.
  Noeuds_({1, 1, 2});
  ArcsCodes({{1, 2}, {2, 1}});
  ImplementeIndicesArcs();
  EXPECT_EQ(Arcs[1].IndiceOrigine, 2);
  EXPECT_EQ(Arcs[1].IndiceDestination, 88);
  EXPECT_EQ(Arcs[2].IndiceOrigine, 77);
  EXPECT_EQ(Arcs[2].IndiceDestination, 2);
  // Both codes doubled, origin first: the first two matches are both the origin's.
  Noeuds_({5, 5, 6, 6});
  ArcsCodes({{5, 6}, {6, 5}});
  ImplementeIndicesArcs();
  EXPECT_EQ(Arcs[1].IndiceOrigine, 2);
  EXPECT_EQ(Arcs[1].IndiceDestination, 88);
  EXPECT_EQ(Arcs[2].IndiceOrigine, 77);
  EXPECT_EQ(Arcs[2].IndiceDestination, 2);
  // A code doubled and the other missing still counts two.
  Noeuds_({5, 5});
  ArcsCodes({{5, 9}});
  ImplementeIndicesArcs();
  EXPECT_EQ(Arcs[1].IndiceOrigine, 2);
  EXPECT_EQ(Arcs[1].IndiceDestination, 88);
}

TEST_F(IndicesArcs, BornesDeNbNoeuds) {
  // Only nodes 1..NbNoeuds are scanned.
  Noeuds_({1, 2, 3});
  NbNoeuds = 2;
  ArcsCodes({{1, 3}});
  ImplementeIndicesArcs();
  EXPECT_EQ(Arcs[1].IndiceOrigine, 0);
  // No node and record 0 only: the scan reads past the table.
  Noeuds_({});
  ArcsCodes({{1, 2}});
  EXPECT_EQ(ErreurDe([] { ImplementeIndicesArcs(); }), ErrIndice);
  // No arc, no scan.
  ArcsCodes({});
  EXPECT_EQ(ErreurDe([] { ImplementeIndicesArcs(); }), 0);
  // NbNoeuds 0 over a table left at its maximum by a failed read: the scan never meets j = 0
  // and goes on; an arc between two nodes of code 0 finds node 1.
  Noeuds.ReDim(0, 6000);
  NbNoeuds = 0;
  ArcsCodes({{0, 0}});
  ImplementeIndicesArcs();
  EXPECT_EQ(Arcs[1].IndiceOrigine, 1);
  EXPECT_EQ(Arcs[1].IndiceDestination, 1);
  // NbNoeuds beyond the table.
  Noeuds_({1, 2});
  NbNoeuds = 5;
  ArcsCodes({{1, 2}, {1, 3}});
  EXPECT_EQ(ErreurDe([] { ImplementeIndicesArcs(); }), ErrIndice);
  EXPECT_EQ(Arcs[1].IndiceOrigine, 1);
  EXPECT_EQ(Arcs[1].IndiceDestination, 2);
  EXPECT_EQ(Arcs[2].IndiceOrigine, 1);  // set before the scan ran off the table
  EXPECT_EQ(Arcs[2].IndiceDestination, 88);
}

TEST_F(IndicesArcs, AleatoiresLitteralEtIndexe) {
  std::mt19937 g(20240611);
  auto u = [&g](int a, int b) { return std::uniform_int_distribution<int>(a, b)(g); };
  for (int essai = 0; essai < 3000; ++essai) {
    // Nodes: a small code range for duplicates, code 0 included; sometimes no table at all.
    const int haut = u(0, 30);
    const int codes = u(1, 12);
    if (u(0, 20) == 0) Noeuds = {};
    else Noeuds.ReDim(0, haut);
    if (!Noeuds.Vide())
      for (long j = 0; j <= haut; ++j) Noeuds[j].Code = u(0, codes);
    switch (u(0, 5)) {
      case 0: NbNoeuds = 0; break;
      case 1: NbNoeuds = haut + u(1, 3); break;
      case 2: NbNoeuds = u(0, haut); break;
      case 3: NbNoeuds = -1; break;
      default: NbNoeuds = haut; break;
    }
    // Arcs: unknown codes, loops, stale indices; sometimes a count beyond the table.
    const int nbArcs = u(0, 45);
    Arcs.ReDim(0, nbArcs);
    NbArcs = u(0, 15) == 0 ? nbArcs + u(1, 3) : nbArcs;
    for (long i = 0; i <= nbArcs; ++i) {
      Arc& a = Arcs[i];
      a.CodeOrigine = u(0, codes + 3);
      a.CodeDestination = u(0, 4) == 0 ? a.CodeOrigine : u(0, codes + 3);
      a.IndiceOrigine = static_cast<int16_t>(u(0, 50));
      a.IndiceDestination = static_cast<int16_t>(u(0, 50));
    }
    Orva.ProgressionVisible = u(0, 1) == 1;
    CompareLitteralEtIndexe(litteral::ImplementeIndicesArcs, ImplementeIndicesArcs, "essai " + std::to_string(essai));
    if (HasFatalFailure()) return;
  }
}

TEST_F(IndicesArcs, GrandReseau) {
  std::mt19937 g(7);
  auto u = [&g](int a, int b) { return std::uniform_int_distribution<int>(a, b)(g); };
  NbNoeuds = 6000;
  Noeuds.ReDim(0, NbNoeuds);
  for (long j = 1; j <= NbNoeuds; ++j) Noeuds[j].Code = u(1, 7000);
  NbArcs = 100000;
  Arcs.ReDim(0, NbArcs);
  for (long i = 1; i <= NbArcs; ++i) {
    Arcs[i].CodeOrigine = u(1, 7100);
    Arcs[i].CodeDestination = u(1, 7100);
    Arcs[i].Mode = static_cast<int16_t>(u(0, 1) ? 7 : 3);
  }
  const Tableau<Arc> avant = Arcs;
  const auto t0 = std::chrono::steady_clock::now();
  ImplementeIndicesArcs();
  DefinitOrientationArcs();
  const double secondes = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
  EXPECT_LT(secondes, 20.0);
  // Each arc's indices depend only on itself: a sample against the literal scan.
  for (long i = 1; i <= NbArcs; i += 97) {
    Arc a = avant[i];
    litteral::ImplementeIndicesUnArc(a);
    ASSERT_EQ(a.IndiceOrigine, Arcs[i].IndiceOrigine) << i;
    ASSERT_EQ(a.IndiceDestination, Arcs[i].IndiceDestination) << i;
  }
}

// ---------------------------------------------------------------------------------------------

// Arcs (origin, destination, mode, departure, arrival).
void ArcsModes(std::initializer_list<std::tuple<int32_t, int32_t, int, int, int>> arcs) {
  NbArcs = static_cast<int32_t>(arcs.size());
  Arcs.ReDim(0, NbArcs);
  long i = 1;
  for (auto [o, d, m, dep, arr] : arcs) {
    Arcs[i].CodeOrigine = o;
    Arcs[i].CodeDestination = d;
    Arcs[i].Mode = static_cast<int16_t>(m);
    Arcs[i].Depart = static_cast<int16_t>(dep);
    Arcs[i].Arrivee = static_cast<int16_t>(arr);
    ++i;
  }
}

TEST_F(OrientationArcs, PairesRoutieres) {
  // A to B and B to A of the same road mode: both undirected; a third A to B stays oriented.
  ArcsModes({{1, 2, 7, 0, 0}, {2, 1, 7, 0, 0}, {1, 2, 7, 0, 0}});
  DefinitOrientationArcs();
  EXPECT_EQ(Arcs[1].Orientation, Faux);
  EXPECT_EQ(Arcs[2].Orientation, Faux);
  EXPECT_EQ(Arcs[3].Orientation, Vrai);
  // Two pairs.
  ArcsModes({{1, 2, 7, 0, 0}, {1, 2, 7, 0, 0}, {2, 1, 7, 0, 0}, {2, 1, 7, 0, 0}});
  DefinitOrientationArcs();
  for (long i = 1; i <= 4; ++i) EXPECT_EQ(Arcs[i].Orientation, Faux) << i;
  // Pairing follows table order: arc 1 takes arc 3, arc 2 takes arc 4, arc 5 is left.
  ArcsModes({{1, 2, 6, 0, 0}, {1, 2, 6, 0, 0}, {2, 1, 6, 0, 0}, {2, 1, 6, 0, 0}, {2, 1, 6, 0, 0}});
  DefinitOrientationArcs();
  EXPECT_EQ(Arcs[5].Orientation, Vrai);
}

TEST_F(OrientationArcs, ModesHorairesEtBoucles) {
  ArcsModes({
      {1, 2, 7, 0, 0}, {2, 1, 71, 0, 0},  // different modes: no pair
      {3, 4, 3, 0, 0}, {4, 3, 3, 0, 0},   // TGV has no arrows: not oriented at all
      {5, 6, 4, 480, 540}, {6, 5, 4, 0, 0},  // timetable: oriented; Train without one: not
      {7, 8, 7, 600, 0}, {8, 7, 7, 0, 0},  // a timetable arc never pairs: both stay oriented
      {9, 9, 7, 0, 0},                     // a loop pairs with itself
      {10, 11, 555, 0, 0},                 // unknown mode: the previous record (Route70)
  });
  DefinitOrientationArcs();
  const Booleen attendu[] = {Vrai, Vrai, Faux, Faux, Vrai, Faux, Vrai, Vrai, Faux, Vrai};
  for (long i = 1; i <= NbArcs; ++i) EXPECT_EQ(Arcs[i].Orientation, attendu[i - 1]) << i;
  // Unknown mode on the first arc: the empty record, no arrows.
  ArcsModes({{1, 2, 555, 0, 0}});
  Arcs[1].Orientation = Vrai;
  DefinitOrientationArcs();
  EXPECT_EQ(Arcs[1].Orientation, Faux);
}

TEST_F(OrientationArcs, SansArcOrientePasDeSecondePasse) {
  ArcsModes({{1, 2, 3, 0, 0}, {2, 1, 4, 0, 0}});
  Orva.StatusBar[5] = "avant";
  DefinitOrientationArcs();
  EXPECT_EQ(Orva.StatusBar[5], "avant");
  EXPECT_EQ(Arcs[1].Orientation, Faux);
}

TEST_F(OrientationArcs, SommeHoraireHorsDe16Bits) {
  ArcsModes({{1, 2, 7, 0, 0}, {1, 2, 4, 20000, 20000}});
  EXPECT_EQ(ErreurDe([] { DefinitOrientationArcs(); }), ErrDepassement);
  EXPECT_EQ(Arcs[1].Orientation, Vrai);
}

TEST_F(OrientationArcs, AleatoiresLitteralEtIndexe) {
  std::mt19937 g(99);
  auto u = [&g](int a, int b) { return std::uniform_int_distribution<int>(a, b)(g); };
  const int modes[] = {7, 7, 61, 6, 3, 4, 555, 71};
  for (int essai = 0; essai < 3000; ++essai) {
    const int n = u(0, 60);
    const int codes = u(1, 6);
    Arcs.ReDim(0, n);
    NbArcs = u(0, 25) == 0 ? n + u(1, 2) : n;
    for (long i = 0; i <= n; ++i) {
      Arc& a = Arcs[i];
      a.CodeOrigine = u(0, codes);
      a.CodeDestination = u(0, 5) == 0 ? a.CodeOrigine : u(0, codes);
      a.Mode = static_cast<int16_t>(modes[u(0, 7)]);
      a.Depart = static_cast<int16_t>(u(0, 6) == 0 ? u(-5, 5) : 0);
      a.Arrivee = static_cast<int16_t>(u(0, 6) == 0 ? u(-5, 5) : 0);
      if (u(0, 300) == 0) a.Depart = a.Arrivee = 20000;
      a.Orientation = static_cast<Booleen>(u(0, 1) ? Vrai : Faux);
    }
    CompareLitteralEtIndexe(litteral::DefinitOrientationArcs, DefinitOrientationArcs, "essai " + std::to_string(essai));
    if (HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace orva
