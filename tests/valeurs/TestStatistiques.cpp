// The classes of Statistiques: the three methods of limits at their edges, a value on a limit,
// the number of classes, the counts of the graph; the merges of arc values; and the arc layers'
// reference, threshold and width bands.
#include <string>
#include <vector>

#include "noyau/Conversions.h"
#include "noyau/Orva.h"
#include "tests/valeurs/CommunValeurs.h"
#include "valeurs/CouchesArcVal.h"
#include "valeurs/Ronds.h"
#include "valeurs/Statistiques.h"

namespace orva {
namespace {

class Classement : public ValeursTest {
 protected:
  void Classes_(int n) {
    Statistiques.Text5.Text = std::to_string(n);
    ChangeNombreDeClasses();
  }
  static double Borne(long i) { return Val(Statistiques.Borne[static_cast<std::size_t>(i)].Text); }
};

TEST_F(Classement, IsoAmplitudeMinimumEgalMaximum) {
  Noeud_(1);
  Classes_(3);
  Statistiques.Text1.Text = Statistiques.Text2.Text = "7";
  IsoAmplitude();
  EXPECT_DOUBLE_EQ(Borne(1), 6);
  EXPECT_DOUBLE_EQ(Borne(2), 7);
  EXPECT_DOUBLE_EQ(Borne(3), 7);
  EXPECT_DOUBLE_EQ(Borne(4), 8);
  EXPECT_EQ(Statistiques.Amplitude.Caption, "Iso-amplitude :0");
  // The classes share their limits; only the last one can hold 7.
  EXPECT_FLOAT_EQ(Classes[1].Max, Classes[2].Min);
  NoeudVals.ReDim(1, 1);
  NoeudVals[1].Valeur = 7;
  CalculeStatistiques();
  EXPECT_EQ(Statistiques.Graph1.Valeurs, (std::vector<double>{0, 0, 1}));
}

TEST_F(Classement, UneValeurSurUneBorneVaDansLaClasseDuDessus) {
  for (int c = 1; c <= 4; ++c) Noeud_(c);
  Classes_(2);
  Statistiques.Text1.Text = "0";
  Statistiques.Text2.Text = "10";
  IsoAmplitude();
  EXPECT_NEAR(Borne(1), -1, 1e-6);
  EXPECT_DOUBLE_EQ(Borne(2), 5);
  EXPECT_DOUBLE_EQ(Borne(3), 11);
  NoeudVals.ReDim(1, 4);
  const float v[] = {0, 4.99f, 5, 10};
  for (long i = 1; i <= 4; ++i) NoeudVals[i].Valeur = v[i - 1];
  CalculeStatistiques();
  EXPECT_EQ(Statistiques.Text1.Text, "0");
  EXPECT_EQ(Statistiques.Text2.Text, "10");
  EXPECT_EQ(Statistiques.Graph1.Valeurs, (std::vector<double>{2, 2}));
  // Regular intervals: the amplitude asked; an answer cancelled changes nothing.
  port.saisies.push_back("3");
  IntervallesReguliers();
  EXPECT_DOUBLE_EQ(Borne(2), 3);
  port.saisies.push_back(std::nullopt);
  IntervallesReguliers();
  EXPECT_DOUBLE_EQ(Borne(2), 3);
}

TEST_F(Classement, IsoEffectifsAvecMoinsDeNoeudsQueDeClasses) {
  Noeud_(1);
  Noeud_(2);
  Classes_(5);
  NoeudVals.ReDim(1, 2);
  NoeudVals[1].Valeur = 10;
  NoeudVals[2].Valeur = 30;
  Statistiques.Text1.Text = "10";
  Statistiques.Text2.Text = "30";
  IsoEffectifs();
  // E = 0.4: positions 2, 1, 1, 1 (0 made 1) of the values sorted from the greatest.
  EXPECT_EQ(Statistiques.Amplitude.Caption, "0.4");
  const double e = 20.0 / 1000000000;
  EXPECT_DOUBLE_EQ(Borne(2), 10 + e);
  EXPECT_DOUBLE_EQ(Borne(3), 30 + e);
  EXPECT_DOUBLE_EQ(Borne(4), 30 + e);
  EXPECT_DOUBLE_EQ(Borne(5), 30 + e);
  EXPECT_DOUBLE_EQ(Borne(6), 31);
  // The margin is below the precision of the classes' single-precision limits: 10 and 30 fall
  // in the class above their limit.
  EXPECT_FLOAT_EQ(Classes[2].Min, 10);
  EXPECT_EQ(Statistiques.Graph1.Valeurs, (std::vector<double>{0, 1, 0, 0, 1}));
}

TEST_F(Classement, NombreDeClassesEntreUnEtDix) {
  Classes_(4);
  Classes[2].Couleur = 0x123456;
  Classes_(0);
  EXPECT_EQ(NbClasses, 1);
  Classes_(12);
  EXPECT_EQ(NbClasses, 10);
  Classes_(3);
  EXPECT_TRUE(Statistiques.Borne[4].Visible);
  EXPECT_FALSE(Statistiques.Borne[5].Visible);
  EXPECT_TRUE(Statistiques.PicClasse[3].Visible);
  EXPECT_FALSE(Statistiques.PicClasse[4].Visible);
  // The label above the colours tells widths on the pages of arcs.
  EXPECT_EQ(Statistiques.EtiquetteCouleurs.Caption, "Couleurs des classes :");
  Statistiques.SSTab1.Tab = 1;
  Statistiques.SSTab1.Click();
  EXPECT_EQ(Statistiques.EtiquetteCouleurs.Caption, "Couleurs et épaisseurs des classes :");
}

TEST_F(Classement, RegroupementsDesArcsValeurs) {
  auto pose = [](Tableau<ArcVal>& t, long i, int32_t o, int32_t d, float v) {
    t[i].CodeOrigine = o;
    t[i].CodeDestination = d;
    t[i].Valeur = v;
  };
  pose(ArcVal1, 1, 1, 2, 10);
  pose(ArcVal1, 2, 1, 3, 20);
  NbArcVal1 = 2;
  pose(ArcVal2, 1, 1, 3, 99);
  pose(ArcVal2, 2, 2, 1, 5);
  NbArcVal2 = 2;
  RegroupeArcVal();
  ASSERT_EQ(NbArcVal1, 3);
  EXPECT_FLOAT_EQ(ArcVal1[2].Valeur, 20);  // a pair of both keeps the first table's value
  EXPECT_EQ(ArcVal1[3].CodeOrigine, 2);
  EXPECT_FLOAT_EQ(ArcVal1[3].Valeur, 5);
  EXPECT_NE(ArcVal1[2].Marque, 0);
  EXPECT_EQ(ArcVal1[1].Marque, 0);
  RegroupeArcVal2();
  EXPECT_EQ(NbArcVal2, 3);
  EXPECT_EQ(ArcVal2[3].CodeDestination, 2);
}

class Couches : public ValeursTest {
 protected:
  void SetUp() override {
    ValeursTest::SetUp();
    Noeud_(1, 0, 0);
    Noeud_(2, 100, 0);
    EchelleRonds = 1;
  }
  static void Arc(long i, float v) {
    ArcVal1[i] = ArcVal{};
    ArcVal1[i].CodeOrigine = 1;
    ArcVal1[i].IndiceOrigine = 1;
    ArcVal1[i].CodeDestination = 2;
    ArcVal1[i].IndiceDestination = 2;
    ArcVal1[i].Valeur = v;
    NbArcVal1 = static_cast<int32_t>(std::max<long>(NbArcVal1, i));
  }
};

TEST_F(Couches, ReferenceArrondieAuPremierChiffre) {
  Arc(1, 3456.7f);
  Arc(2, 12);
  CalculeValeurMaxArcs();
  EXPECT_FLOAT_EQ(ValeurMaxArcs, 3000);
  Arc(1, 98.7f);
  CalculeValeurMaxArcs();
  EXPECT_FLOAT_EQ(ValeurMaxArcs, 90);
  // Kept while the scale is locked.
  menEchelleBlindeeArcs();
  Arc(1, 5000);
  CalculeValeurMaxArcs();
  EXPECT_FLOAT_EQ(ValeurMaxArcs, 90);
  menEchelleBlindeeArcs();
  CalculeValeurMaxArcs();
  EXPECT_FLOAT_EQ(ValeurMaxArcs, 5000);
}

TEST_F(Couches, SeuilStrictEtBandesDesFluxNonOrientes) {
  // A locked reference of 100: 50 is p = 50 (width 10), 40 the threshold itself (not drawn),
  // 200 above every band (the pen stays at 10).
  Arc(1, 100);
  Arc(2, 50);
  Arc(3, 40);
  Arc(4, 200);
  SeuilAttractions = 40;
  menEchelleBlindeeArcs();
  ValeurMaxArcs = 100;
  Ima.DrawWidth = 1;
  TraceFluxNonOrientes();
  EXPECT_EQ(journal.Lignes({"Polyline"}).size(), 3u);
  EXPECT_FLOAT_EQ(ArcVal1[1].Travail1, 20);
  EXPECT_FLOAT_EQ(ArcVal1[2].Travail1, 10);
  EXPECT_FLOAT_EQ(ArcVal1[4].Travail1, 10);
  // Oriented flows: width w times the scale, the stroke moved aside by half of it.
  journal.Efface();
  EchelleRonds = 2;
  TraceFlux();
  EXPECT_FLOAT_EQ(ArcVal1[2].Travail1, 12);
  const std::vector<std::string> traits = journal.Lignes({"Polyline"});
  ASSERT_EQ(traits.size(), 3u);
  EXPECT_EQ(traits[1], "Polyline 0,6 100,6");
}

TEST_F(Couches, ReferenceNulleEstUneErreur) {
  Arc(1, 0.5f);
  EXPECT_EQ(ErreurDe(TraceFlux), ErrDivisionZero);
}

}  // namespace
}  // namespace orva
