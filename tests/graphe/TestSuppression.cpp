// Removal of one arc or one node.
#include <gtest/gtest.h>

#include "graphe/FichiersArcs.h"
#include "graphe/Suppression.h"
#include "noyau/Def.h"
#include "tests/graphe/CommunGraphe.h"

namespace orva {
namespace {

using SuppressionTables = GrapheTest;

void CinqArcs() {
  NbArcs = 5;
  Arcs.ReDim(0, 5);
  for (long i = 1; i <= 5; ++i) {
    Arc& a = Arcs[i];
    a.CodeOrigine = static_cast<int32_t>(10 * i);
    a.CodeDestination = static_cast<int32_t>(10 * i + 1);
    a.IndiceOrigine = static_cast<int16_t>(i);
    a.IndiceDestination = static_cast<int16_t>(i + 1);
    a.Mode = static_cast<int16_t>(i);
    a.Orientation = i % 2 ? Vrai : Faux;
    a.Longueur = static_cast<float>(i) + 0.5f;
    a.Temps = static_cast<float>(i * 60);
    a.Minimal = static_cast<int16_t>(i % 2);
    a.Depart = static_cast<int16_t>(i * 100);
    a.Arrivee = static_cast<int16_t>(i * 100 + 5);
    a.Jours = std::to_string(i) + "000000";
    a.Debit = static_cast<float>(i * 3);
    a.Capacite = static_cast<float>(i * 7);
    a.Ana = static_cast<float>(i) / 4;
  }
}

void AttendArc(const Arc& a, long i) {
  EXPECT_EQ(a.CodeOrigine, 10 * i);
  EXPECT_EQ(a.CodeDestination, 10 * i + 1);
  EXPECT_EQ(a.IndiceOrigine, i);
  EXPECT_EQ(a.IndiceDestination, i + 1);
  EXPECT_EQ(a.Mode, i);
  EXPECT_EQ(a.Orientation, i % 2 ? Vrai : Faux);
  EXPECT_EQ(a.Longueur, static_cast<float>(i) + 0.5f);
  EXPECT_EQ(a.Temps, static_cast<float>(i * 60));
  EXPECT_EQ(a.Minimal, i % 2);
  EXPECT_EQ(a.Depart, i * 100);
  EXPECT_EQ(a.Arrivee, i * 100 + 5);
  EXPECT_EQ(a.Jours, std::to_string(i) + "000000");
  EXPECT_EQ(a.Debit, static_cast<float>(i * 3));
  EXPECT_EQ(a.Capacite, static_cast<float>(i * 7));
  EXPECT_EQ(a.Ana, static_cast<float>(i) / 4);
}

TEST_F(SuppressionTables, ArcAuMilieuEnPremierEnDernier) {
  CinqArcs();
  SupprimeArc(2);
  ASSERT_EQ(NbArcs, 4);
  EXPECT_EQ(Arcs.UBound(), 4);
  AttendArc(Arcs[1], 1);
  AttendArc(Arcs[2], 3);  // every field moved down
  AttendArc(Arcs[3], 4);
  AttendArc(Arcs[4], 5);
  SupprimeArc(1);
  EXPECT_EQ(NbArcs, 3);
  AttendArc(Arcs[1], 3);
  SupprimeArc(3);
  EXPECT_EQ(NbArcs, 2);
  EXPECT_EQ(Arcs.UBound(), 2);
  AttendArc(Arcs[2], 4);
  SupprimeArc(1);
  SupprimeArc(1);
  EXPECT_EQ(NbArcs, 0);
  EXPECT_EQ(Arcs.UBound(), 0);
}

void CinqNoeuds() {
  NbNoeuds = 5;
  Noeuds.ReDim(0, 5);
  for (long i = 1; i <= 5; ++i) {
    Noeud& n = Noeuds[i];
    n.Nom = "N" + std::to_string(i);
    n.Code = static_cast<int32_t>(100 + i);
    n.Population = static_cast<int32_t>(1000 * i);
    n.X = static_cast<float>(i);
    n.Y = static_cast<float>(2 * i);
    n.Z = static_cast<float>(3 * i);
    n.XEcran = static_cast<float>(10 * i);
    n.YEcran = static_cast<float>(20 * i);
    n.ZEcran = static_cast<float>(30 * i);
    n.Actif = i == 3 ? Faux : Vrai;
    n.Modes = i == 3 ? "TGV-000-000-000-000" : "000-000-000-000-000";
    n.AnaX = static_cast<float>(i);
  }
}

TEST_F(SuppressionTables, NoeudNeDeplaceQueLesChampsDuFichier) {
  CinqNoeuds();
  SupprimeNoeud(2);
  ASSERT_EQ(NbNoeuds, 4);
  EXPECT_EQ(Noeuds.UBound(), 4);
  // Nom, Code, Population, X, Y, Z move down.
  EXPECT_EQ(Noeuds[2].Nom, Fixe("N3", 50));
  EXPECT_EQ(Noeuds[2].Code, 103);
  EXPECT_EQ(Noeuds[2].Population, 3000);
  EXPECT_EQ(Noeuds[2].X, 3.0f);
  EXPECT_EQ(Noeuds[2].Y, 6.0f);
  EXPECT_EQ(Noeuds[2].Z, 9.0f);
  EXPECT_EQ(Noeuds[4].Code, 105);
  // The projection, Actif and Modes stay at their old places.
  EXPECT_EQ(Noeuds[2].XEcran, 20.0f);
  EXPECT_EQ(Noeuds[2].YEcran, 40.0f);
  EXPECT_EQ(Noeuds[2].ZEcran, 60.0f);
  EXPECT_EQ(Noeuds[2].Actif, Vrai);
  EXPECT_EQ(Noeuds[3].Actif, Faux);
  EXPECT_EQ(Noeuds[3].Modes.str(), "TGV-000-000-000-000");
  EXPECT_EQ(Noeuds[2].AnaX, 2.0f);
  EXPECT_EQ(Noeuds[1].Code, 101);
}

TEST_F(SuppressionTables, LesArcsGardentLeursIndicesJusquAuRecalcul) {
  CinqNoeuds();
  NbArcs = 1;
  Arcs.ReDim(0, 1);
  Arcs[1].CodeOrigine = 104;
  Arcs[1].CodeDestination = 105;
  ImplementeIndicesArcs();
  EXPECT_EQ(Arcs[1].IndiceOrigine, 4);
  EXPECT_EQ(Arcs[1].IndiceDestination, 5);
  SupprimeNoeud(1);
  EXPECT_EQ(Arcs[1].IndiceOrigine, 4);
  EXPECT_EQ(Arcs[1].IndiceDestination, 5);  // beyond the table now, until the recomputation
  ImplementeIndicesArcs();
  EXPECT_EQ(Arcs[1].IndiceOrigine, 3);
  EXPECT_EQ(Arcs[1].IndiceDestination, 4);
}

TEST_F(SuppressionTables, LeDernierNoeud) {
  CinqNoeuds();
  SupprimeNoeud(5);
  EXPECT_EQ(NbNoeuds, 4);
  EXPECT_EQ(Noeuds.UBound(), 4);
  EXPECT_EQ(Noeuds[4].Code, 104);
}

}  // namespace
}  // namespace orva
