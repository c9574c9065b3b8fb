// Undo of the editing: several steps deep, the tables put back field by field, the entries of the
// menus, the bounds of the stack, and a network changed by another command.
#include "edition/Annulation.h"
#include "edition/ModifArcs.h"
#include "graphe/Modifications.h"
#include "noyau/Orva.h"
#include "tests/edition/CommunEdition.h"

namespace orva {
namespace {

const std::vector<NoeudTest> kNoeuds = {
    {"ALPHA", 10, 100, 100}, {"BETA", 20, 288, 100}, {"GAMMA", 30, 150, 300}, {"DELTA", 40, 100, 300}};

class AnnulationTest : public EditionTest {
 protected:
  static void Clique(Controle& c) { c.Click(); }
  static bool Actives() { return Orva.Menu("menAnnuler")->Enabled && Orva.Menu("menAnnulerNoeuds")->Enabled; }
};

// A creation, a removal and a change, undone three times: the tables are those of before.
TEST_F(AnnulationTest, CreerDetruireChangerPuisTroisAnnulations) {
  Reseau(kNoeuds, {{40, 10, 7, 400, 343, 8, 90}, {20, 30, 3, 250, 80}, {30, 40, 6, 210, 120}});
  MessagesElimination = Faux;
  const Tableau<Noeud> noeuds = Noeuds;
  const Tableau<Arc> arcs = Arcs;
  EXPECT_FALSE(Orva.Menu("menAnnuler")->Enabled);
  EXPECT_FALSE(Orva.Menu("menAnnulerNoeuds")->Enabled);
  EXPECT_EQ(Orva.Menu("menAnnuler")->Raccourci, "Ctrl+Z");
  ChoisitPaire(1, 2, "Route70");
  Clique(ModifArcs.BtnCreer);
  EXPECT_TRUE(Actives());
  ChoisitPaire(2, 3, "TGV");
  Clique(ModifArcs.BtnDetruire);
  ChoisitPaire(4, 1, "Route70");
  port.saisies.push_back("77");
  Clique(ModifArcs.Capacite);
  ASSERT_EQ(NbArcs, 3);
  EXPECT_EQ(Arcs[3].Capacite, 77.0f);
  EXPECT_EQ(NombreEtapesAnnulables(), 3u);
  ExecuteMenu("menAnnuler");
  EXPECT_EQ(Arcs[1].Capacite, 90.0f);
  // The dialog shows the arc put back.
  EXPECT_EQ(ModifArcs.Capacite.Text, "90");
  ExecuteMenu("menAnnulerNoeuds");
  ExecuteMenu("menAnnuler");
  EXPECT_FALSE(Actives());
  AttendReseauxEgaux(noeuds, 4, arcs, 3);
  // Nothing left: the entry does nothing.
  ExecuteMenu("menAnnuler");
  EXPECT_EQ(NbArcs, 3);
  EXPECT_TRUE(port.boites.empty());
}

TEST_F(AnnulationTest, VingtEtapesAuPlus) {
  Reseau(kNoeuds, {});
  for (int k = 0; k < 25; ++k) {
    ChoisitPaire(1 + k % 4, 1 + (k / 4) % 4, "Route70");
    ModifArcs.Longueur.Text = "10";
    ModifArcs.BtnCreer.Enabled = true;
    Clique(ModifArcs.BtnCreer);
  }
  EXPECT_EQ(NbArcs, 25);
  EXPECT_EQ(NombreEtapesAnnulables(), MaxEtapesAnnulables);
  for (int k = 0; k < 30; ++k) ExecuteMenu("menAnnuler");
  EXPECT_EQ(NbArcs, 5);
}

TEST_F(AnnulationTest, BudgetDesGrandsReseaux) {
  std::vector<ArcTest> arcs(90000, ArcTest{10, 20, 7, 1});
  Reseau(kNoeuds, arcs);
  for (int k = 0; k < 20; ++k) {
    ChoisitPaire(3, 4, "Route70");
    ModifArcs.BtnCreer.Enabled = true;
    Clique(ModifArcs.BtnCreer);
  }
  EXPECT_EQ(NbArcs, 90020);
  EXPECT_LT(NombreEtapesAnnulables(), MaxEtapesAnnulables);
  EXPECT_GE(NombreEtapesAnnulables(), 1u);
  EXPECT_LE(NombreEtapesAnnulables() * 90020 * sizeof(Arc), BudgetAnnulation);
}

TEST_F(AnnulationTest, ReseauChangeAilleursNePeutPlusEtreAnnule) {
  Reseau(kNoeuds, {{40, 10, 7, 400, 343}});
  ChoisitPaire(1, 2, "Route70");
  Clique(ModifArcs.BtnCreer);
  ChoisitPaire(2, 3, "Route70");
  Clique(ModifArcs.BtnCreer);
  ASSERT_EQ(NombreEtapesAnnulables(), 2u);
  // The relief's choice of minimal arcs is not a change of the network: the step applies.
  for (long i = 1; i <= NbArcs; ++i) Arcs[i].Minimal = 0;
  ExecuteMenu("menAnnuler");
  EXPECT_EQ(NbArcs, 2);
  EXPECT_TRUE(port.boites.empty());
  // Another command appends an arc: the steps no longer apply, they are dropped with a message.
  AjouteArc(30, 40, 3, 4, 3, 50, 20, 600, 620, "", 1, 0);
  ExecuteMenu("menAnnuler");
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].titre, "Annuler la dernière modification");
  EXPECT_EQ(port.boites[0].icone, Icone::Exclamation);
  EXPECT_EQ(NbArcs, 3);
  EXPECT_FALSE(Actives());
  EXPECT_EQ(NombreEtapesAnnulables(), 0u);
}

}  // namespace
}  // namespace orva
