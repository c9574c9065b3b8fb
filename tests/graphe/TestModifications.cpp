// The routines that append and remove arcs and nodes: the orientation of a new arc, the removal
// that does not step back, the node removal that does, and their boxes.
#include "graphe/Modifications.h"
#include "tests/graphe/CommunGraphe.h"

namespace orva {
namespace {

class Modifications : public GrapheTest {
 protected:
  void SetUp() override {
    GrapheTest::SetUp();
    Noeuds.ReDim(0, 0);
    Arcs.ReDim(0, 0);
    NomsCourts.ReDim(0, 0);
    OrdreNoeuds.ReDim(0, 0);
    NbNoeuds = NbArcs = 0;
  }
  static void Arc_(int32_t o, int32_t d, int16_t mode = 1, int16_t depart = 0, int16_t arrivee = 0, float temps = 0) {
    AjouteArc(o, d, 0, 0, mode, 10, temps, depart, arrivee, "", 0, 0);
  }
};

TEST_F(Modifications, UnArcAjouteALaFin) {
  Arc_(1, 2);
  Arc_(2, 3, 41, 600, 630, 30);
  ASSERT_EQ(NbArcs, 2);
  EXPECT_EQ(Arcs.UBound(), 2);
  EXPECT_EQ(Arcs[1].Orientation, Faux);  // departure and arrival 0: no timetable
  EXPECT_EQ(Arcs[2].Orientation, Vrai);
  EXPECT_EQ(Arcs[2].Minimal, 1);
  EXPECT_EQ(Arcs[2].Jours.s, "       ");
  // A run that starts before midnight and one after: only their sum decides.
  Arc_(3, 4, 41, -10, 10);
  EXPECT_EQ(Arcs[3].Orientation, Faux);
}

TEST_F(Modifications, EliminationArcsNeReculePas) {
  // Three adjacent arcs of one pair and mode: the first and the third go, the second stays.
  Arc_(1, 2);
  Arc_(2, 1);
  Arc_(1, 2);
  Arc_(1, 2, 5);
  EXPECT_EQ(EliminationArcs(1, 2, 1, 0, 0), 2);
  ASSERT_EQ(NbArcs, 2);
  EXPECT_EQ(Arcs[1].CodeOrigine, 2);
  EXPECT_EQ(Arcs[2].Mode, 5);
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte, "2 arcs ont été éliminés.\rDernier numéro de ligne : 2");
  EXPECT_EQ(port.boites[0].titre, "Elimination des arcs");
  // A second call clears what the first left; none found takes the singular form.
  MessagesElimination = Faux;
  EXPECT_EQ(EliminationArcs(2, 1, 1, 0, 0), 1);
  MessagesElimination = Vrai;
  EXPECT_EQ(EliminationArcs(2, 1, 1, 0, 0), 0);
  EXPECT_EQ(port.boites.back().texte, "0 arc a été éliminé.\rNuméro de ligne : 0");
  // While a timetable is shown, only the run with those times goes.
  Arc_(7, 8, 41, 600, 630);
  Arc_(7, 8, 41, 700, 730);
  DialogueHorairesOuvert = Vrai;
  EXPECT_EQ(EliminationArcs(7, 8, 41, 700, 730), 1);
  EXPECT_EQ(Arcs[NbArcs].Depart, 600);
}

TEST_F(Modifications, EliminationNoeudEtSesArcs) {
  AjouteNoeud("AAA", 10, 0, 0, 0, 0);
  AjouteNoeud("BBB", 20, 0, 1, 1, 0);
  AjouteNoeud("CCC", 30, 0, 2, 2, 0);
  EXPECT_TRUE(CodeExiste(30));
  EXPECT_FALSE(CodeExiste(40));
  EXPECT_EQ(OrdreNoeuds[3], 3);
  // Adjacent arcs of the node all go, the last arc of the table too.
  Arc_(20, 10);
  Arc_(10, 20);
  Arc_(10, 30);
  Arc_(30, 20);
  EXPECT_EQ(EliminationNoeud(20), 3);
  ASSERT_EQ(NbNoeuds, 2);
  EXPECT_EQ(Noeuds[2].Code, 30);
  ASSERT_EQ(NbArcs, 1);
  EXPECT_EQ(Arcs[1].CodeDestination, 30);
  EXPECT_EQ(port.boites.back().texte, "Le noeud BBB a été éliminé.\r3 arc(s) a(ont) été éliminé(s).");
  // The last node: no shift. An unknown code still scans and says so.
  EXPECT_EQ(EliminationNoeud(30), 1);
  EXPECT_EQ(NbNoeuds, 1);
  EXPECT_EQ(NbArcs, 0);
  OptimisationEnCours = Vrai;
  const std::size_t avant = port.boites.size();
  EliminationNoeud(99);
  EXPECT_EQ(port.boites.size(), avant);
  OptimisationEnCours = Faux;
  EliminationNoeud(99);
  EXPECT_EQ(port.boites.back().texte, "Le noeud <noeud non trouvé> a été éliminé.\r0 arc(s) a(ont) été éliminé(s).");
  // Codes carried along.
  Arc_(10, 10);
  RemplaceCodeDansArcs(10, 11);
  EXPECT_EQ(Arcs[1].CodeOrigine, 11);
  EXPECT_EQ(Arcs[1].CodeDestination, 11);
}

}  // namespace
}  // namespace orva
